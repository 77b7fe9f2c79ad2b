#include <knav/NavFolders.h>

#include "shell/NavNodeTest.h"
#include "shell/SpecialItems.h"

namespace {

using namespace knav;
using namespace knav::test;

// The names of the children, each followed by a blank.
CString childNames(const CNavNode& node) {
    CString names;
    for (const CNavNode* child = node.GetChild(); child != nullptr; child = child->GetNext()) {
        CString name;
        child->GetNameInFolder(name);
        names += name + L" ";
    }
    return names;
}

TEST_F(NavNode, ExpandingShowsWhatHasAPathAndEverythingOfAnExtension) {
    constexpr DWORD folderFlags = SFGAO_FOLDER | SFGAO_FILESYSTEM;
    const auto folder = FakeFolder::make(L"root");
    folder->add(L"disk", folderFlags, FakeFolder::make(L"1"))
        .add(L"above", SFGAO_FOLDER | SFGAO_FILESYSANCESTOR, FakeFolder::make(L"2"))
        .add(L"virtual", SFGAO_FOLDER, FakeFolder::make(L"3"))
        .add(L"not-to-be-bound", folderFlags)
        .add(L"file", SFGAO_FILESYSTEM)
        .add(L"virtual-file", 0);
    struct Row {
        const char* why;
        NavNodeType type;
        int foldersOnly;
        const wchar_t* shown;
        NavNodeType childType;
    };
    constexpr Row rows[] = {
        {"folders of the shell", NavNodeShell, 1, L"disk above ", NavNodeShell},
        {"items of the shell", NavNodeShell, 0, L"disk above file ", NavNodeShell},
        {"sites of an extension", NavNodeExtensionRoot, 1, L"disk above virtual ", NavNodeExtensionSite},
        {"its items", NavNodeExtensionSite, 0, L"disk above virtual file virtual-file ", NavNodeExtensionItem},
        {"internet sites", NavNodeInternetRoot, 1, L"disk above ", NavNodeInternetSite},
        {"internet items", NavNodeInternetSite, 1, L"disk above ", NavNodeInternetItem},
        {"sites of the Web Folders", NavNodeWebFoldersRoot, 1, L"disk above virtual ", NavNodeWebFolderSite},
        {"deeper Web Folders", NavNodeWebFolderItem, 1, L"disk above virtual ", NavNodeWebFolderItem},
    };
    for (const Row& row : rows) {
        const auto node = nodeOver(folder, row.type);
        node->SetExtensionName(L"Foo");
        ASSERT_TRUE(node->ExpandFolder(nullptr, row.foldersOnly, SHCONTF_FOLDERS)) << row.why;
        EXPECT_EQ(childNames(*node), row.shown) << row.why;
        for (const CNavNode* child = node->GetChild(); child != nullptr; child = child->GetNext()) {
            EXPECT_EQ(child->GetType(), row.childType) << row.why;
            EXPECT_STREQ(child->GetExtensionName(), L"Foo") << row.why;
            EXPECT_EQ(child->GetFolder() != nullptr, child->IsFolder() != 0) << row.why;
        }
    }
}

// The single element of a special location as the name that gives a fake folder's item the same bytes.
std::wstring nameLike(int csidl) {
    const auto list = ItemList::adopt(NavGetSpecialFolderItem(nullptr, csidl));
    const auto bytes = static_cast<std::size_t>(NavGetItemElementSize(list.get())) - sizeof(USHORT);
    std::wstring name(bytes / sizeof(wchar_t), L'\0');
    std::memcpy(name.data(), list.get()->mkid.abID, bytes);
    return name;
}

TEST_F(NavNode, InternetRootIsShownOnTheDesktopAndPresentedByTheNetwork) {
    const auto folder = FakeFolder::make(L"desktop");
    folder->add(nameLike(CSIDL_INTERNET), SFGAO_FOLDER, FakeFolder::make(L"internet"))
        .add(L"virtual", SFGAO_FOLDER, FakeFolder::make(L"virtual"))
        .add(nameLike(CSIDL_NETWORK), SFGAO_FOLDER | SFGAO_FILESYSANCESTOR, FakeFolder::make(L"network"));
    const auto desktop = nodeOver(folder, NavNodeShell, makeList({}));
    ASSERT_TRUE(desktop->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    CNavNode* const internet = desktop->GetChild();
    ASSERT_NE(internet, nullptr);
    CNavNode* const network = internet->GetNext();
    ASSERT_NE(network, nullptr);
    EXPECT_TRUE(NavIsInternetRoot(internet->GetID()));
    EXPECT_FALSE(NavIsInternetSiteItem(internet->GetID())) << "the root itself is no site";
    EXPECT_TRUE(NavIsNetwork(network->GetID()));
    EXPECT_EQ(internet->GetDisplayNode(), network);
    EXPECT_EQ(network->GetNext(), nullptr);

    const auto elsewhere = nodeOver(folder);
    ASSERT_TRUE(elsewhere->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    EXPECT_EQ(elsewhere->GetChild()->GetNext(), nullptr) << "only the desktop shows the internet root";
    EXPECT_TRUE(NavIsNetwork(elsewhere->GetChild()->GetID()));
    EXPECT_EQ(elsewhere->GetChild()->GetDisplayNode(), nullptr);
    const CNavNode* const inChain = elsewhere->ExpandNode(internet->GetID(), nullptr);
    ASSERT_NE(inChain, nullptr);
    EXPECT_EQ(inChain->GetType(), NavNodeInternetRoot);

    const auto file = FakeFolder::make(L"desktop");
    file->add(nameLike(CSIDL_INTERNET), 0);
    const auto shallow = nodeOver(file, NavNodeShell, makeList({}));
    ASSERT_TRUE(shallow->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    EXPECT_EQ(shallow->GetChild(), nullptr) << "only folders were wanted";
}

TEST_F(NavNode, WebFoldersAreKnownByTheirClassInMyComputer) {
    constexpr BYTE element[] = {0x2E, 0x00, 0x00, 0xDF, 0xEA, 0xBD, 0x65, 0xC2, 0xD0,
                                0x11, 0xBC, 0xED, 0x00, 0xA0, 0xC9, 0x0A, 0xB5, 0x0F};
    const std::wstring name(reinterpret_cast<const wchar_t*>(element), sizeof element / sizeof(wchar_t));
    const auto drives = FakeFolder::make(L"drives");
    drives->add(name, SFGAO_FOLDER, FakeFolder::make(L"web"))
        .add(L"virtual", SFGAO_FOLDER, FakeFolder::make(L"virtual"));
    const auto node = nodeOver(drives, NavNodeShell, ItemList::adopt(NavGetDrivesFolderItem(nullptr)));
    ASSERT_TRUE(node->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    ASSERT_NE(node->GetChild(), nullptr);
    EXPECT_EQ(node->GetChild()->GetType(), NavNodeWebFoldersRoot);
    EXPECT_EQ(node->GetChild()->GetNext(), nullptr);
    EXPECT_FALSE(NavIsWebFoldersItem(node->GetID()));
}

// root
// +- other
// +- outer
//    +- broken
//    +- inner
//       +- leaf
class NodeChain : public NavNode {
protected:
    NodeChain() {
        m_inner->add(L"leaf", SFGAO_FILESYSTEM);
        m_outer->add(L"broken", SFGAO_FOLDER | SFGAO_FILESYSTEM)
            .add(L"inner", SFGAO_FOLDER | SFGAO_FILESYSTEM, m_inner);
        m_root->add(L"other", SFGAO_FOLDER | SFGAO_FILESYSTEM, FakeFolder::make(L"other"))
            .add(L"outer", SFGAO_FOLDER | SFGAO_FILESYSTEM, m_outer);
    }

    ComPtr<FakeFolder> m_inner = FakeFolder::make(L"inner");
    ComPtr<FakeFolder> m_outer = FakeFolder::make(L"outer");
    ComPtr<FakeFolder> m_root = FakeFolder::make(L"root");
    ItemList m_leaf = FakeFolder::item(L"outer/inner/leaf");
    CNavNode* m_first = nullptr;
};

TEST_F(NodeChain, HasANodeForEachElement) {
    const auto node = nodeOver(m_root, NavNodeExtensionRoot);
    node->SetExtensionName(L"Foo");
    CNavNode* const last = node->ExpandNode(m_leaf.get(), &m_first);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(m_first, node->GetChild());
    EXPECT_EQ(m_first->GetType(), NavNodeExtensionSite);
    EXPECT_EQ(last->GetType(), NavNodeExtensionItem);
    EXPECT_STREQ(last->GetExtensionName(), L"Foo");
    EXPECT_EQ(last->GetParent()->GetFolder(), m_inner.get());
    EXPECT_EQ(last->GetFolder(), nullptr);
    EXPECT_EQ(last->GetSiteNode(), m_first);

    EXPECT_EQ(node->ExpandNode(FakeFolder::item(L"outer/broken").get(), nullptr), nullptr) << "cannot be bound";
    EXPECT_EQ(node->ExpandNode(FakeFolder::item(L"outer/inner/leaf/below").get(), nullptr), nullptr) << "no folder";
    m_first = nullptr;
    EXPECT_EQ(node->ExpandNode(nullptr, &m_first), nullptr);
    EXPECT_EQ(node->ExpandNode(makeList({}).get(), &m_first), nullptr);
    EXPECT_EQ(m_first, nullptr);
}

TEST_F(NodeChain, IsAddedOnlyBelowAMatch) {
    const auto node = nodeOver(m_root);
    ASSERT_TRUE(node->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    CNavNode* const children = node->GetChild();
    CNavNode* const outer = children->GetNext();
    EXPECT_EQ(children->FindItemList(FakeFolder::item(L"outer").get()), outer);
    EXPECT_EQ(children->FindItemList(m_leaf.get()), nullptr);
    EXPECT_EQ(children->FindOrAddItemList(FakeFolder::item(L"missing/inner").get(), 1, &m_first), nullptr);
    EXPECT_EQ(children->FindItemList(nullptr), nullptr);
    EXPECT_EQ(m_first, nullptr);

    CNavNode* const leaf = children->FindOrAddItemList(m_leaf.get(), 1, &m_first);
    ASSERT_NE(leaf, nullptr);
    EXPECT_EQ(m_first, outer->GetChild()) << "the match was there already";
    EXPECT_EQ(leaf->GetParent(), m_first);
    m_first = nullptr;
    EXPECT_EQ(children->FindOrAddItemList(m_leaf.get(), 1, &m_first), leaf);
    EXPECT_EQ(m_first, nullptr) << "nothing was made the second time";
    EXPECT_EQ(children->FindOrAddItemList(FakeFolder::item(L"outer/inner/leaf/below").get(), 1, &m_first), nullptr);
    EXPECT_TRUE(outer->GetChild() == outer->GetChild()->GetLast()) << "known nodes are not made again";
    EXPECT_EQ(leaf->GetNext(), nullptr);
}

TEST_F(NavNode, ChainDeeperThanAnyPlaceIsRefused) {
    const auto endless = FakeFolder::make(L"endless");
    endless->add(L"x", SFGAO_FOLDER, endless);
    const auto node = nodeOver(endless);
    const auto expand = [&node](std::size_t depth) {
        std::wstring path;
        while (path.size() < 2 * depth) {
            path += L"x/";
        }
        return node->ExpandNode(FakeFolder::item(path).get(), nullptr);
    };
    EXPECT_NE(expand(300), nullptr);
    EXPECT_EQ(expand(30'000), nullptr);
    EXPECT_EQ(node->GetChild()->GetNext(), nullptr);
    endless->clear();
}

}  // namespace
