// A registered extension whose folder and views are a test's.
#pragma once

#include "shell/RegisteredExtensions.h"
#include "view/FakeView.h"

#include <gtest/gtest.h>

namespace knav::test {

/// Registered for as long as this lives.
class ViewStore {
public:
    ViewStore() {
        CNavExtension& extension = *registeredExtensions().AddData();
        extension.SetName(L"Store");
        extension.CreateID();
        extension.SetRootFolder(makeViewFolder(script).get());
        m_root = ItemList::copyOf(extension.GetID());
    }
    ViewStore(const ViewStore&) = delete;
    ViewStore& operator=(const ViewStore&) = delete;
    ~ViewStore() { registeredExtensions().RemoveAllData(); }

    /// Qualified list of its root.
    ITEMIDLIST* root() const { return m_root.get(); }
    /// An item of such a folder.
    static ItemList item(std::wstring name) {
        name.push_back(L'\0');
        return FakeFolder::item(name);
    }

    ViewScript script;

private:
    ItemList m_root;
};

using Misconduct = std::map<ViewCall, Conduct>;

/// The methods that `use`, called with what is to misbehave in it, comes to where all of them work; with views of both
/// kinds.
template <class Use>
std::vector<ViewCall> reachedMethods(ViewScript& script, Use&& use) {
    script.calls.clear();
    for (const bool view2 : {false, true}) {
        script.offersView2 = view2;
        use(Misconduct());
    }
    std::vector<ViewCall> reached;
    for (const auto& [call, count] : script.calls) {
        reached.push_back(call);
    }
    EXPECT_GE(reached.size(), 10u) << "there is little that could misbehave";
    return reached;
}

}  // namespace knav::test
