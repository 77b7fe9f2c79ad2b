#include <knav/CNavTree.h>

#include <gtest/gtest.h>
#include <knav/CNavExtensionPolicy.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <platform/CWnd.h>
#include <platform/Resources.h>
#include <ry/RyUtResource.h>

#include "shell/ComPtr.h"
#include "support/ItemLists.h"
#include "support/ObjectCounts.h"
#include "support/RealNamespace.h"
#include "support/RegistryRedirect.h"
#include "support/ScopedTempFolder.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

int countNodes(const CNavTree& tree) {
    int count = 0;
    for (CNavNode* node = tree.GetRootNode(); node != nullptr; node = CNavNode::EnumerateNextNode(node)) {
        ++count;
    }
    return count;
}

// The folders with a path that a folder enumerates, by their parsing names: what the tree should show of it.
std::vector<CString> systemFolders(int csidl) {
    std::vector<CString> names;
    const auto folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(special(csidl).get()));
    const auto items = ComPtr<IEnumIDList>::from(
        [&](IEnumIDList** result) { return folder->EnumObjects(nullptr, SHCONTF_FOLDERS, result); });
    ITEMIDLIST* item = nullptr;
    while (items->Next(1, &item, nullptr) == S_OK) {
        const ItemList owned = ItemList::adopt(item);
        const ITEMIDLIST* asked = item;
        SFGAOF attributes = SFGAO_FOLDER | SFGAO_FILESYSTEM | SFGAO_FILESYSANCESTOR;
        folder->GetAttributesOf(1, &asked, &attributes);
        if ((attributes & SFGAO_FOLDER) != 0 && (attributes & (SFGAO_FILESYSTEM | SFGAO_FILESYSANCESTOR)) != 0) {
            NavGetItemNameForParsing(folder.get(), item, names.emplace_back());
        }
    }
    return names;
}

std::vector<CString> childNames(const CNavNode& node) {
    std::vector<CString> names;
    for (const CNavNode* child = node.GetChild(); child != nullptr; child = child->GetNext()) {
        child->GetNameForParsing(names.emplace_back());
    }
    return names;
}

class NavTree : public testing::Test {
protected:
    int build(const ItemList& current = {}) {
        return m_tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, current.get());
    }

    CNavNode* find(const ItemList& list) const {
        CNavNode* const first = m_tree.GetRootNode()->GetChild();
        return first != nullptr ? first->FindItemList(list.get()) : nullptr;
    }

    RegisteredForTest m_registered;
    ScopedTempFolder m_temp;
    CString m_deepPath = m_temp.addFolder(L"one\\two\\three \u00c4");
    CString m_otherPath = m_temp.addFolder(L"other");
    ItemList m_deep = parsed(m_deepPath);
    ItemList m_other = parsed(m_otherPath);
    ComPtr<FakeFolder> m_folder = FakeFolder::make(L"root");
    CNavTree m_tree;
};

TEST_F(NavTree, StandardHierarchyHasTheDesktopsFoldersAndTheDrives) {
    ASSERT_TRUE(build());
    const CNavNode* const root = m_tree.GetRootNode();
    ASSERT_NE(root, nullptr);
    EXPECT_TRUE(NavIsDesktop(root->GetID()));
    EXPECT_EQ(childNames(*root), systemFolders(CSIDL_DESKTOP));
    const CNavNode* const drives = find(special(CSIDL_DRIVES));
    ASSERT_NE(drives, nullptr);
    EXPECT_EQ(childNames(*drives), systemFolders(CSIDL_DRIVES));
    EXPECT_NE(find(parsed(L"C:\\")), nullptr);
    for (const CNavNode* node = root->GetChild(); node != nullptr; node = node->GetNext()) {
        EXPECT_NE(node->GetFolder(), nullptr);
        EXPECT_NE(node->GetIcon(), nullptr);
    }
}

TEST_F(NavTree, OnlyTheLastLocationKeepsItsChain) {
    ASSERT_TRUE(build());
    const int standard = countNodes(m_tree);
    ASSERT_TRUE(build(m_deep));
    const CNavNode* const node = find(m_deep);
    ASSERT_NE(node, nullptr);
    CString name;
    EXPECT_TRUE(node->GetNameForParsing(name));
    EXPECT_EQ(name, m_deepPath);
    EXPECT_TRUE(isSame(ItemList::adopt(node->CalculateQualifiedItemList()), m_deep));
    EXPECT_NE(node->GetFolder(), nullptr);

    ASSERT_TRUE(build(m_other));
    EXPECT_EQ(find(m_deep), nullptr);
    EXPECT_NE(find(m_other), nullptr);
    ASSERT_TRUE(build(parsed(L"C:\\")));
    EXPECT_EQ(countNodes(m_tree), standard) << "a drive is there already";
    ASSERT_TRUE(build(makeList({})));
    EXPECT_EQ(countNodes(m_tree), standard);
}

TEST_F(NavTree, ShortcutToAFolderLeadsToItsTarget) {
    const ItemList link = parsed(addShortcut(m_temp, L"short.lnk", m_otherPath));
    ASSERT_TRUE(build(link));
    EXPECT_NE(find(m_other), nullptr);
    EXPECT_EQ(find(link), nullptr);
    const CNavNode* const node = m_tree.BuildSimpleHierarchy(nullptr, link.get());
    ASSERT_NE(node, nullptr);
    EXPECT_TRUE(isSame(ItemList::adopt(node->CalculateQualifiedItemList()), m_other));
}

TEST_F(NavTree, SimpleHierarchyIsOneChain) {
    EXPECT_TRUE(m_tree.ExpandToItem(nullptr, m_deep.get()));
    EXPECT_EQ(m_tree.GetRootNode(), nullptr) << "expanding needs a root";
    ASSERT_TRUE(build(m_deep));
    const CNavNode* const node = m_tree.BuildSimpleHierarchy(nullptr, m_deep.get());
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(countNodes(m_tree), 1 + measureList(m_deep.get()).count);
    EXPECT_EQ(m_tree.GetRootNode()->GetLastChild(), node);
    EXPECT_EQ(m_tree.BuildSimpleHierarchy(nullptr, makeList({}).get()), m_tree.GetRootNode());
    EXPECT_EQ(countNodes(m_tree), 1);
    EXPECT_EQ(m_tree.BuildSimpleHierarchy(nullptr, nullptr), nullptr);
    EXPECT_EQ(m_tree.GetRootNode(), nullptr);
}

class PolicyWindow : public CWnd, public CNavExtensionPolicy {
public:
    explicit PolicyWindow(int leavesOut) : m_leavesOut(leavesOut) {}
    int LeavesOutDisabledExtensions() const override { return m_leavesOut; }

private:
    int m_leavesOut;
};

TEST_F(NavTree, ExtensionsFollowTheDesktopsFoldersUnlessHidden) {
    m_registered.add(L"FTPSites", m_folder);
    m_registered.add(L"Foo", m_folder);
    m_registered.add(L"ftpsites", m_folder);
    const std::size_t ordinary = systemFolders(CSIDL_DESKTOP).size();
    struct Row {
        int hideFtp, hideExtensions;
        std::vector<CString> shown;
    };
    const Row rows[] = {
        {0, 0, {L"FTPSites", L"Foo", L"ftpsites"}}, {1, 0, {L"Foo"}}, {0, 1, {L"FTPSites", L"ftpsites"}}, {1, 1, {}}};
    for (const Row& row : rows) {
        CNavTree tree;
        ASSERT_TRUE(tree.BuildStandardHierarchy(nullptr, nullptr, row.hideFtp, row.hideExtensions, nullptr));
        std::vector<CString> shown;
        std::size_t index = 0;
        for (const CNavNode* node = tree.GetRootNode()->GetChild(); node != nullptr; node = node->GetNext()) {
            if (index++ >= ordinary) {
                EXPECT_EQ(node->GetType(), NavNodeExtensionRoot);
                EXPECT_EQ(node->GetFolder(), m_folder.get());
                shown.push_back(node->GetExtensionName());
            }
        }
        EXPECT_EQ(shown, row.shown) << row.hideFtp << row.hideExtensions;
    }
}

TEST_F(NavTree, DeferredExtensionIsShownWithoutItsFolderAndHasAnIconWhenItsSettingIsOne) {
    const HINSTANCE module = RyUtResource::loadDll(L"KnavRes.dll");
    ASSERT_NE(module, nullptr);
    {
        const CDynLinkLibrary pictures(module);
        m_registered.add(L"cannot be loaded");
        CNavExtension& extension = m_registered.add(L"FTPSites");
        extension.SetDelayInit(1);
        m_registered.add(L"ftpsites").SetDelayInit(2);
        CNavNode desktop(m_tree);
        EXPECT_EQ(m_tree.AddExtensionsToDesktop(nullptr, &desktop), 2);
        const CNavNode* const ftp = desktop.GetChild();
        ASSERT_NE(ftp, nullptr);
        EXPECT_STREQ(ftp->GetExtensionName(), L"FTPSites");
        EXPECT_THAT(ftp->GetID(), HoldsSameBytes(extension.GetID()));
        EXPECT_EQ(ftp->GetFolder(), nullptr);
        EXPECT_NE(ftp->GetIcon(), nullptr) << "the picture of the FTP sites";
        EXPECT_STREQ(ftp->GetNext()->GetExtensionName(), L"ftpsites");
        EXPECT_EQ(ftp->GetNext()->GetIcon(), nullptr);
    }
    RyUtResource::freeDll(module);
    EXPECT_EQ(m_tree.AddExtensionsToDesktop(nullptr, nullptr), 0);
}

TEST_F(NavTree, DisabledExtensionIsLeftOutWhenTheDialogSaysSo) {
    m_registered.add(L"Foo", m_folder);
    RegistryRedirect machine(HKEY_LOCAL_MACHINE);
    machine.set(L"Software\\Kelvara\\Dialogs\\AllNavDialogs", L"FooExtensionOff", 1);
    PolicyWindow leavesOut(1);
    PolicyWindow keeps(0);
    CWnd other;
    CNavNode desktop(m_tree);
    EXPECT_EQ(m_tree.AddExtensionsToDesktop(&leavesOut, &desktop), 0);
    EXPECT_EQ(m_tree.AddExtensionsToDesktop(&keeps, &desktop), 1);
    EXPECT_EQ(m_tree.AddExtensionsToDesktop(&other, &desktop), 1);
    EXPECT_EQ(m_tree.AddExtensionsToDesktop(nullptr, &desktop), 1);
}

TEST_F(NavTree, LocationInsideAnExtensionGetsItsChain) {
    const auto site = FakeFolder::make(L"site");
    site->add(L"folder", SFGAO_FOLDER, FakeFolder::make(L"folder"));
    m_folder->add(L"site", SFGAO_FOLDER, site);
    const CNavExtension& extension = m_registered.add(L"Foo", m_folder);
    const ItemList location = ItemList::join(extension.GetID(), FakeFolder::item(L"site/folder").get());
    ASSERT_TRUE(build(location));
    CNavNode* const node = find(location);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->GetType(), NavNodeExtensionItem);
    EXPECT_EQ(node->GetSiteNode()->GetFolder(), site.get());
    EXPECT_THAT(ItemList::adopt(node->CalculateQualifiedItemList()).get(), HoldsSameBytes(location.get()));
}

TEST_F(NavTree, DeletingTakesTheFollowingSiblingsAndTheChainAlong) {
    ASSERT_TRUE(build(m_deep));
    CNavNode* const drives = find(special(CSIDL_DRIVES));
    m_tree.DeleteNode(drives->GetChild());
    EXPECT_EQ(drives->GetChild(), nullptr);
    // The chain went with its drive and is not deleted a second time.
    ASSERT_TRUE(build(m_deep));
    m_tree.DeleteNode(nullptr);
    m_tree.DeleteNode(m_tree.GetRootNode());
    EXPECT_EQ(m_tree.GetRootNode(), nullptr);
}

TEST_F(NavTree, DeletingLeavesNothingThatPresentsTheNode) {
    CNavNode* const root = m_tree.AddChild(nullptr);
    CNavNode* const presented = m_tree.AddChild(nullptr);
    EXPECT_EQ(m_tree.GetRootNode(), root);
    EXPECT_EQ(presented->GetParent(), root);
    CNavNode* const deleted = presented->AddNode(nullptr);
    root->SetDisplayNode(presented);
    presented->SetDisplayNode(deleted->AddChild(nullptr));
    m_tree.DeleteNode(deleted);
    EXPECT_EQ(presented->GetDisplayNode(), nullptr);
    EXPECT_EQ(root->GetDisplayNode(), presented);

    auto* const detached = new CNavNode(m_tree);
    detached->SetParent(root);
    m_tree.DeleteNode(detached);
    EXPECT_EQ(root->GetChild(), presented) << "the parent's children are others";
    const CNavNode* const sibling = m_tree.AddNode(nullptr);
    EXPECT_EQ(root->GetNext(), sibling);
    EXPECT_EQ(m_tree.GetRootNode(), root);
}

TEST_F(NavTree, NothingIsLeftBehind) {
    m_registered.add(L"Foo", m_folder);
    const LONG references = m_folder->references();
    const auto use = [this] {
        CNavTree tree;
        tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, m_deep.get());
        tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, m_other.get());
        tree.BuildSimpleHierarchy(nullptr, m_deep.get());
    };
    use();
    const ObjectCounts before = ObjectCounts::now();
    use();
    EXPECT_EQ(ObjectCounts::now(), before);
    EXPECT_EQ(m_folder->references(), references);
}

}  // namespace
