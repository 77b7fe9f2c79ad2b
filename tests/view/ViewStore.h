// A registered extension whose folder and views are a test's.
#pragma once

#include "support/TestExtension.h"
#include "view/FakeView.h"

#include <gtest/gtest.h>

namespace knav::test {

/// Registered for as long as this lives.
class ViewStore {
public:
    /// Its items, all of them with these attributes, are like the root.
    explicit ViewStore(DWORD attributes = 0) {
        for (const wchar_t* const name : {L"site", L"item", L"a", L" b "}) {
            folder->add(name, attributes, folder);
        }
        folder->setOwnName(L"Store");
        folder->setView([this](Conducts& conducts) { return makeFakeView(conducts, script); });
        m_root = ItemList::copyOf(m_registered.add(L"Store", folder).GetID());
    }
    ViewStore(const ViewStore&) = delete;
    ViewStore& operator=(const ViewStore&) = delete;
    ~ViewStore() {
        folder->setOnly({});
        folder->clear();
    }

    /// Qualified list of its root.
    ITEMIDLIST* root() const { return m_root.get(); }

    ViewScript script;
    ComPtr<FakeFolder> folder = FakeFolder::make(L"");

private:
    RegisteredForTest m_registered;
    ItemList m_root;
};

/// The methods that `use`, called with what is to misbehave in it, comes to where all of them work; with views of both
/// kinds.
template <class Use>
std::vector<FolderCall> reachedMethods(ViewStore& store, Use&& use) {
    store.folder->forgetCalls();
    for (const bool view2 : {false, true}) {
        store.script.offersView2 = view2;
        use(Misconduct());
    }
    std::vector<FolderCall> reached;
    for (int call = 0; call < static_cast<int>(FolderCall::Count); ++call) {
        if (store.folder->calls(static_cast<FolderCall>(call)) > 0) {
            reached.push_back(static_cast<FolderCall>(call));
        }
    }
    EXPECT_GE(reached.size(), 10u) << "there is little that could misbehave";
    return reached;
}

}  // namespace knav::test
