// Whatever a folder of another component does, every operation gives its failure value and the process goes on.
#include <gtest/gtest.h>
#include <knav/CNavTree.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include "shell/ExtensionItems.h"
#include "shell/ItemNames.h"
#include "support/ItemLists.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

class BrokenFolder : public testing::TestWithParam<Conduct> {
protected:
    // The objects are left to themselves: a folder whose Release faults cannot be freed.
    FakeFolder* m_folder = FakeFolder::make(L"root").release();
    ItemList m_item = FakeFolder::item(L"item");
};

TEST_P(BrokenFolder, LeavesEveryFunctionWithItsFailureValue) {
    m_folder->add(L"item", SFGAO_FOLDER, FakeFolder::make(L"item"));
    m_folder->setAll(GetParam());
    expectNoTaskMemoryLeft([this] {
        CNavShell shell;
        CString name = L"old";
        EXPECT_EQ(NavGetFolderFromItem(m_folder, m_item.get()), nullptr);
        EXPECT_NE(NavCompareFolderItems(m_folder, m_item.get(), ItemList::copyOf(m_item.get()).get()), 0);
        EXPECT_FALSE(NavGetItemNameForParsing(m_folder, m_item.get(), name));
        EXPECT_TRUE(name.IsEmpty());
        EXPECT_FALSE(NavGetItemLastPathComponent(m_folder, m_item.get(), name));
        const auto qualified = ItemList::adopt(NavGetQualifiedItemList(shell, m_folder, m_item.get()));
        EXPECT_THAT(qualified.get(), HoldsSameBytes(m_item.get())) << "without a name the list is taken as it is";
        ComPtr<IShellFolder>::retain(m_folder).reset();
    });
}

TEST_P(BrokenFolder, AsRootOfAnExtensionLeavesTheExtensionWithoutFolder) {
    RegisteredForTest registered;
    CNavExtension& extension = registered.add(L"Foo", ComPtr<FakeFolder>::retain(m_folder));
    m_folder->setAll(GetParam());
    CString name;
    const ItemList child = ItemList::join(extension.GetID(), m_item.get());
    NavReleaseFolder(NavGetFolderFromItem(nullptr, extension.GetID()));
    EXPECT_EQ(NavGetFolderFromItem(nullptr, child.get()), nullptr);
    EXPECT_FALSE(NavGetItemDisplayName(SHGDN_NORMAL, nullptr, extension.GetID(), name));
    EXPECT_EQ(NavBuildExtensionItemList(&extension, L"item"), nullptr);
    EXPECT_EQ(NavCompareFolderItems(m_folder, child.get(), m_item.get()), GetParam() == Conduct::Fails ? 0 : -1);
}

TEST_P(BrokenFolder, GivesANodeNothing) {
    m_folder->add(L"item", SFGAO_FOLDER | SFGAO_FILESYSTEM, FakeFolder::make(L"item"));
    m_folder->setAll(GetParam());
    CNavShell shell;
    CNavNode node(shell);
    node.SetFolder(m_folder);
    node.SetID(makeList({"parent"}).release());
    CString name;
    EXPECT_FALSE(node.GetAttributes());
    EXPECT_EQ(node.GetIcon(), nullptr);
    EXPECT_FALSE(node.ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    const CNavNode* const child = node.ExpandNode(m_item.get(), nullptr);
    ASSERT_NE(child, nullptr) << "an item without attributes is no folder, but a node";
    EXPECT_FALSE(child->IsFolder());
    EXPECT_EQ(child->GetFolder(), nullptr);
    EXPECT_EQ(child->GetIcon(), nullptr);
    node.SetType(NavNodeExtensionRoot);
    EXPECT_FALSE(node.GetNameInFolder(name));
    node.SetIcon();
    EXPECT_EQ(node.GetIcon(), nullptr);
}

// One method at a time misbehaves while the others work, so that the calls behind it are reached too.
TEST_P(BrokenFolder, MisbehavingMethodDoesNotStopTheOthers) {
    for (int call = 0; call < static_cast<int>(FolderCall::Count); ++call) {
        FakeFolder* const folder = FakeFolder::make(L"root").release();
        const auto item = FakeFolder::make(L"item");
        folder->add(L"item", SFGAO_FOLDER | SFGAO_FILESYSTEM, item);
        folder->set(static_cast<FolderCall>(call), GetParam());
        const LONG before = AllocationSpy::live();
        {
            CNavShell shell;
            CNavNode node(shell);
            node.SetFolder(folder);
            node.SetID(makeList({"parent"}).release());
            CString name;
            node.GetAttributes();
            node.ExpandFolder(nullptr, 1, SHCONTF_FOLDERS);
            node.ExpandNode(m_item.get(), nullptr);
            if (CNavNode* const child = node.GetChild()) {
                child->SetIcon();
                child->FindName(L"item");
                child->FindItemList(m_item.get());
            }
            node.GetNameInFolder(name);
        }
        EXPECT_EQ(AllocationSpy::live(), before) << "method " << call;
    }
}

INSTANTIATE_TEST_SUITE_P(Conducts, BrokenFolder, testing::Values(Conduct::Fails, Conduct::Faults, Conduct::Throws),
                         [](const auto& each) {
                             return std::string(each.param == Conduct::Fails    ? "Failing"
                                                : each.param == Conduct::Faults ? "Faulting"
                                                                                : "Throwing");
                         });

}  // namespace
