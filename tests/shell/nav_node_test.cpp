#include <knav/CNavNode.h>

#include <gtest/gtest.h>
#include <knav/CNavShell.h>
#include <knav/NavFolders.h>

#include <memory>

#include "shell/SpecialItems.h"
#include "support/ItemLists.h"
#include "support/ObjectCounts.h"
#include "support/ScopedTempFolder.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

class NavNode : public testing::Test {
protected:
    // A node over a fake folder; items of the folder are relative to it.
    std::unique_ptr<CNavNode> nodeOver(ComPtr<FakeFolder> folder, NavNodeType type = NavNodeShell) {
        auto node = std::make_unique<CNavNode>(m_shell);
        node->SetFolder(folder.release());
        node->SetID(makeList({"parent"}).release());
        node->SetType(type);
        return node;
    }

    static void freeList(CNavNode& node) { ItemList::adopt(node.GetID()).reset(); }

    static std::vector<CString> childNames(const CNavNode& node) {
        std::vector<CString> names;
        for (const CNavNode* child = node.GetChild(); child != nullptr; child = child->GetNext()) {
            CString name;
            child->GetNameInFolder(name);
            names.push_back(name);
        }
        return names;
    }

    CNavShell m_shell;
};

// a
// +- b
// |  +- c
// +- d
class LinkedNodes : public NavNode {
protected:
    LinkedNodes() {
        m_b = m_a.AddChild(nullptr);
        m_d = m_b->AddNode(nullptr);
        m_c = m_a.AddChild(nullptr);
    }

    CNavNode m_a{m_shell};
    CNavNode* m_b;
    CNavNode* m_c;
    CNavNode* m_d;
};

TEST_F(LinkedNodes, ChildrenGoToTheDeepestFirstChildAndSiblingsToTheEnd) {
    EXPECT_EQ(m_b->GetParent(), &m_a);
    EXPECT_EQ(m_c->GetParent(), m_b);
    EXPECT_EQ(m_b->GetNext(), m_d);
    EXPECT_EQ(m_d->GetPrev(), m_b);
    EXPECT_EQ(m_d->GetParent(), &m_a);
    EXPECT_EQ(m_d->GetFirst(), m_b);
    EXPECT_EQ(m_b->GetLast(), m_d);
    EXPECT_EQ(m_a.GetLastChild(), m_c) << "down along first children, not along siblings";
    EXPECT_EQ(m_d->GetLastChild(), m_d);
}

TEST_F(LinkedNodes, EnumerationIsPreOrder) {
    EXPECT_EQ(CNavNode::EnumerateNextNode(&m_a), m_b);
    EXPECT_EQ(CNavNode::EnumerateNextNode(m_b), m_c);
    EXPECT_EQ(CNavNode::EnumerateNextNode(m_c), m_d);
    EXPECT_EQ(CNavNode::EnumerateNextNode(m_d), nullptr);
    EXPECT_EQ(CNavNode::EnumerateNextNode(nullptr), nullptr);
}

TEST_F(LinkedNodes, SiteIsTheNearestNodeOfItsKind) {
    struct Row {
        const char* why;
        NavNodeType top, middle, bottom;
        CNavNode* site;
    };
    const Row rows[] = {
        {"ordinary items have none", NavNodeInternetSite, NavNodeShell, NavNodeShell, nullptr},
        {"a site is its own", NavNodeShell, NavNodeShell, NavNodeInternetSite, m_c},
        {"an item below a site", NavNodeInternetRoot, NavNodeInternetSite, NavNodeInternetItem, m_b},
        {"an item deeper below a site", NavNodeExtensionSite, NavNodeExtensionItem, NavNodeExtensionItem, &m_a},
        {"a root has none", NavNodeShell, NavNodeShell, NavNodeWebFoldersRoot, nullptr},
        {"an item without a site", NavNodeShell, NavNodeShell, NavNodeWebFolderItem, nullptr},
    };
    for (const Row& row : rows) {
        m_a.SetType(row.top);
        m_b->SetType(row.middle);
        m_c->SetType(row.bottom);
        EXPECT_EQ(m_c->GetSiteNode(), row.site) << row.why;
    }
}

struct Flag {
    const char* name;
    DWORD shell;
    int (CNavNode::*get)() const;
};

constexpr Flag kFlags[] = {
    {"CanCopy", 0x1, &CNavNode::CanCopy},
    {"CanDelete", 0x20, &CNavNode::CanDelete},
    {"CanLink", 0x4, &CNavNode::CanLink},
    {"CanMove", 0x2, &CNavNode::CanMove},
    {"CanRename", 0x10, &CNavNode::CanRename},
    {"HasSubFolder", 0x80000000, &CNavNode::HasSubFolder},
    {"HasPropSheet", 0x40, &CNavNode::HasPropSheet},
    {"IsDropTarget", 0x100, &CNavNode::IsDropTarget},
    {"IsFileSystemAncestor", 0x10000000, &CNavNode::IsFileSystemAncestor},
    {"IsFolder", 0x20000000, &CNavNode::IsFolder},
    {"IsGhosted", 0x8000, &CNavNode::IsGhosted},
    {"IsInFileSystem", 0x40000000, &CNavNode::IsInFileSystem},
    {"IsLink", 0x10000, &CNavNode::IsLink},
    {"IsOnRemovableMedia", 0x2000000, &CNavNode::IsOnRemovableMedia},
    {"IsShared", 0x20000, &CNavNode::IsShared},
};

TEST_F(NavNode, EachShellAttributeSetsItsFlagOnly) {
    const auto folder = FakeFolder::make(L"root");
    const auto nameOf = [](const Flag& flag) { return std::wstring(flag.name, flag.name + std::strlen(flag.name)); };
    for (const Flag& flag : kFlags) {
        folder->add(nameOf(flag), flag.shell);
    }
    const auto parent = nodeOver(folder);
    for (const Flag& asked : kFlags) {
        CNavNode child(m_shell);
        child.SetParent(parent.get());
        child.SetID(FakeFolder::item(nameOf(asked)).release());
        ASSERT_TRUE(child.GetAttributes());
        for (const Flag& flag : kFlags) {
            EXPECT_EQ((child.*flag.get)() != 0, &flag == &asked) << asked.name << " sets " << flag.name;
        }
    }
}

TEST_F(NavNode, FolderOfTheParentIsAskedAboutANodeAndItsOwnWithoutOne) {
    const auto outer = FakeFolder::make(L"outer");
    const auto inner = FakeFolder::make(L"inner");
    outer->add(L"item", SFGAO_CANCOPY);
    inner->add(L"item", SFGAO_CANMOVE);
    const auto parent = nodeOver(outer);
    const auto child = nodeOver(inner);
    freeList(*child);
    child->SetID(FakeFolder::item(L"item").release());
    ASSERT_TRUE(child->GetAttributes());
    EXPECT_TRUE(child->CanMove());
    child->SetParent(parent.get());
    ASSERT_TRUE(child->GetAttributes());
    EXPECT_TRUE(child->CanCopy());
    EXPECT_FALSE(child->CanMove());
}

TEST_F(NavNode, FailedAttributeQueryLeavesTheFlags) {
    const auto folder = FakeFolder::make(L"root");
    folder->add(L"item", SFGAO_FOLDER);
    const auto parent = nodeOver(folder);
    CNavNode child(m_shell);
    child.SetParent(parent.get());
    child.SetID(FakeFolder::item(L"item").release());
    ASSERT_TRUE(child.GetAttributes());
    folder->set(FolderCall::GetAttributesOf, Conduct::Faults);
    EXPECT_FALSE(child.GetAttributes());
    EXPECT_TRUE(child.IsFolder());
    CNavNode alone(m_shell);
    EXPECT_FALSE(alone.GetAttributes()) << "without a folder there is nobody to ask";
    const int asked = folder->calls(FolderCall::GetAttributesOf);
    CNavNode nameless(m_shell);
    nameless.SetParent(parent.get());
    EXPECT_FALSE(nameless.GetAttributes());
    EXPECT_EQ(folder->calls(FolderCall::GetAttributesOf), asked) << "without an item there is nothing to ask for";
}

TEST_F(NavNode, ExtensionRootIsAFolderWithoutAPath) {
    const auto folder = FakeFolder::make(L"root");
    folder->add(L"item", SFGAO_CANRENAME | SFGAO_FILESYSTEM | SFGAO_CANCOPY);
    const auto parent = nodeOver(folder);
    CNavNode root(m_shell);
    root.SetParent(parent.get());
    root.SetID(FakeFolder::item(L"item").release());
    root.SetType(NavNodeExtensionRoot);
    ASSERT_TRUE(root.GetAttributes());
    EXPECT_TRUE(root.CanCopy());
    EXPECT_FALSE(root.CanRename());
    EXPECT_FALSE(root.IsInFileSystem());
    EXPECT_TRUE(root.IsFileSystemAncestor());
    EXPECT_TRUE(root.IsFolder());
}

TEST_F(NavNode, ExpandingShowsWhatHasAPathAndEverythingOfAnExtension) {
    constexpr DWORD folderFlags = SFGAO_FOLDER | SFGAO_FILESYSTEM;
    const auto folder = FakeFolder::make(L"root");
    folder->add(L"on disk", folderFlags, FakeFolder::make(L"1"))
        .add(L"above a disk", SFGAO_FOLDER | SFGAO_FILESYSANCESTOR, FakeFolder::make(L"2"))
        .add(L"virtual", SFGAO_FOLDER, FakeFolder::make(L"3"))
        .add(L"not to be bound", folderFlags)
        .add(L"file", SFGAO_FILESYSTEM)
        .add(L"virtual file", 0);
    struct Row {
        const char* why;
        NavNodeType type;
        int foldersOnly;
        std::vector<CString> shown;
        NavNodeType childType;
    };
    const Row rows[] = {
        {"folders of the shell", NavNodeShell, 1, {L"on disk", L"above a disk"}, NavNodeShell},
        {"items of the shell", NavNodeShell, 0, {L"on disk", L"above a disk", L"file"}, NavNodeShell},
        {"sites of an extension",
         NavNodeExtensionRoot,
         1,
         {L"on disk", L"above a disk", L"virtual"},
         NavNodeExtensionSite},
        {"items of an extension",
         NavNodeExtensionSite,
         0,
         {L"on disk", L"above a disk", L"virtual", L"file", L"virtual file"},
         NavNodeExtensionItem},
        {"internet sites", NavNodeInternetRoot, 1, {L"on disk", L"above a disk"}, NavNodeInternetSite},
        {"internet items", NavNodeInternetSite, 1, {L"on disk", L"above a disk"}, NavNodeInternetItem},
        {"sites of the Web Folders",
         NavNodeWebFoldersRoot,
         1,
         {L"on disk", L"above a disk", L"virtual"},
         NavNodeWebFolderSite},
        {"deeper Web Folders",
         NavNodeWebFolderItem,
         1,
         {L"on disk", L"above a disk", L"virtual"},
         NavNodeWebFolderItem},
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
            EXPECT_EQ(child->GetParent(), node.get()) << row.why;
        }
    }
    folder->set(FolderCall::EnumObjects, Conduct::Fails);
    EXPECT_FALSE(nodeOver(folder)->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
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
    const auto desktop = nodeOver(folder);
    freeList(*desktop);
    desktop->SetID(makeList({}).release());
    ASSERT_TRUE(desktop->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    CNavNode* const internet = desktop->GetChild();
    ASSERT_NE(internet, nullptr);
    CNavNode* const network = internet->GetNext();
    ASSERT_NE(network, nullptr);
    EXPECT_TRUE(NavIsInternetRoot(internet->GetID()));
    EXPECT_TRUE(NavIsNetwork(network->GetID()));
    EXPECT_EQ(internet->GetDisplayNode(), network);
    EXPECT_EQ(network->GetNext(), nullptr);

    const auto file = FakeFolder::make(L"desktop");
    file->add(nameLike(CSIDL_INTERNET), 0);
    const auto shallow = nodeOver(file);
    freeList(*shallow);
    shallow->SetID(makeList({}).release());
    ASSERT_TRUE(shallow->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    EXPECT_EQ(shallow->GetChild(), nullptr) << "only folders were wanted";

    const auto elsewhere = nodeOver(folder);
    ASSERT_TRUE(elsewhere->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    EXPECT_EQ(elsewhere->GetChild()->GetNext(), nullptr) << "only the desktop shows the internet root";
    EXPECT_TRUE(NavIsNetwork(elsewhere->GetChild()->GetID()));
    EXPECT_EQ(elsewhere->GetChild()->GetDisplayNode(), nullptr);
}

TEST_F(NavNode, ChainBelowTheInternetRootHasItsTypes) {
    const auto site = FakeFolder::make(L"site");
    const auto internet = FakeFolder::make(L"internet");
    const auto folder = FakeFolder::make(L"desktop");
    site->add(L"page", 0);
    internet->add(L"site", SFGAO_FOLDER, site);
    folder->add(nameLike(CSIDL_INTERNET), SFGAO_FOLDER, internet);
    const auto node = nodeOver(folder);
    const ItemList list =
        ItemList::join(FakeFolder::item(nameLike(CSIDL_INTERNET)).get(), FakeFolder::item(L"site/page").get());
    CNavNode* const page = node->ExpandNode(list.get(), nullptr);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->GetType(), NavNodeInternetItem);
    EXPECT_EQ(page->GetSiteNode(), page->GetParent());
    EXPECT_EQ(page->GetParent()->GetParent()->GetType(), NavNodeInternetRoot);
    EXPECT_TRUE(NavIsInternetSiteItem(list.get()));
    EXPECT_FALSE(NavIsInternetSiteItem(ItemList::firstOf(list.get()).get())) << "the root itself is no site";
}

TEST_F(NavNode, WebFoldersAreKnownByTheirClassInMyComputer) {
    constexpr BYTE element[] = {0x2E, 0x00, 0x00, 0xDF, 0xEA, 0xBD, 0x65, 0xC2, 0xD0,
                                0x11, 0xBC, 0xED, 0x00, 0xA0, 0xC9, 0x0A, 0xB5, 0x0F};
    const std::wstring name(reinterpret_cast<const wchar_t*>(element), sizeof element / sizeof(wchar_t));
    const auto web = FakeFolder::make(L"web");
    const auto drives = FakeFolder::make(L"drives");
    web->add(L"site", SFGAO_FOLDER, FakeFolder::make(L"site"));
    drives->add(name, SFGAO_FOLDER, web).add(L"virtual", SFGAO_FOLDER, FakeFolder::make(L"virtual"));
    const auto node = nodeOver(drives);
    freeList(*node);
    node->SetID(NavGetDrivesFolderItem(nullptr));
    ASSERT_TRUE(node->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    ASSERT_NE(node->GetChild(), nullptr);
    EXPECT_EQ(node->GetChild()->GetType(), NavNodeWebFoldersRoot);
    EXPECT_EQ(node->GetChild()->GetNext(), nullptr);
    CNavNode* const site = node->ExpandNode(FakeFolder::item(name + L"/site").get(), nullptr);
    ASSERT_NE(site, nullptr);
    EXPECT_EQ(site->GetType(), NavNodeWebFolderSite);
    EXPECT_FALSE(NavIsWebFoldersItem(node->GetID()));
}

TEST_F(NavNode, ChainHasANodeForEachElement) {
    const auto leaf = FakeFolder::make(L"leaf");
    const auto middle = FakeFolder::make(L"middle");
    const auto root = FakeFolder::make(L"root");
    leaf->add(L"file", 0);
    middle->add(L"leaf", SFGAO_FOLDER, leaf).add(L"broken", SFGAO_FOLDER);
    root->add(L"middle", SFGAO_FOLDER, middle);
    const auto node = nodeOver(root, NavNodeExtensionRoot);
    node->SetExtensionName(L"Foo");

    CNavNode* first = nullptr;
    CNavNode* const last = node->ExpandNode(FakeFolder::item(L"middle/leaf/file").get(), &first);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(first, node->GetChild());
    EXPECT_EQ(first->GetType(), NavNodeExtensionSite);
    EXPECT_EQ(last->GetType(), NavNodeExtensionItem);
    EXPECT_STREQ(last->GetExtensionName(), L"Foo");
    EXPECT_EQ(last->GetParent()->GetFolder(), leaf.get());
    EXPECT_EQ(last->GetFolder(), nullptr);
    EXPECT_EQ(last->GetSiteNode(), first);

    EXPECT_EQ(node->ExpandNode(FakeFolder::item(L"middle/broken").get(), nullptr), nullptr) << "cannot be bound";
    EXPECT_EQ(node->ExpandNode(FakeFolder::item(L"middle/leaf/file/below").get(), nullptr), nullptr) << "no folder";
    first = nullptr;
    EXPECT_EQ(node->ExpandNode(nullptr, &first), nullptr);
    EXPECT_EQ(node->ExpandNode(makeList({}).get(), &first), nullptr);
    EXPECT_EQ(first, nullptr);
}

TEST_F(NavNode, ChainDeeperThanAnyPlaceIsRefused) {
    const auto endless = FakeFolder::make(L"endless");
    endless->add(L"x", SFGAO_FOLDER, endless);
    const auto chain = [](std::size_t depth) {
        std::wstring path = L"x";
        for (std::size_t level = 1; level < depth; ++level) {
            path += L"/x";
        }
        return FakeFolder::item(path);
    };
    const auto node = nodeOver(endless);
    EXPECT_NE(node->ExpandNode(chain(300).get(), nullptr), nullptr);
    EXPECT_EQ(node->ExpandNode(chain(30'000).get(), nullptr), nullptr);
    EXPECT_EQ(node->GetChild()->GetNext(), nullptr);
    endless->clear();
}

TEST_F(NavNode, FindingAddsOnlyBelowAMatch) {
    const auto inner = FakeFolder::make(L"inner");
    const auto outer = FakeFolder::make(L"outer");
    const auto root = FakeFolder::make(L"root");
    inner->add(L"leaf", SFGAO_FILESYSTEM);
    outer->add(L"inner", SFGAO_FOLDER | SFGAO_FILESYSTEM, inner);
    root->add(L"other", SFGAO_FOLDER | SFGAO_FILESYSTEM, FakeFolder::make(L"other"))
        .add(L"outer", SFGAO_FOLDER | SFGAO_FILESYSTEM, outer);
    const auto node = nodeOver(root);
    ASSERT_TRUE(node->ExpandFolder(nullptr, 1, SHCONTF_FOLDERS));
    CNavNode* const children = node->GetChild();
    const ItemList path = FakeFolder::item(L"outer/inner/leaf");

    CNavNode* first = nullptr;
    EXPECT_EQ(children->FindItemList(FakeFolder::item(L"outer").get()), children->GetNext());
    EXPECT_EQ(children->FindItemList(path.get()), nullptr);
    EXPECT_EQ(children->FindOrAddItemList(FakeFolder::item(L"missing/inner").get(), 1, &first), nullptr);
    EXPECT_EQ(children->FindItemList(nullptr), nullptr);
    EXPECT_EQ(first, nullptr);

    CNavNode* const leaf = children->FindOrAddItemList(path.get(), 1, &first);
    ASSERT_NE(leaf, nullptr);
    EXPECT_EQ(first, children->GetNext()->GetChild()) << "the match was there already";
    EXPECT_EQ(leaf->GetParent(), first);
    EXPECT_EQ(children->FindItemList(path.get()), leaf);
    first = nullptr;
    EXPECT_EQ(children->FindOrAddItemList(path.get(), 1, &first), leaf);
    EXPECT_EQ(first, nullptr) << "nothing was made the second time";
}

TEST_F(NavNode, QualifiedListIsThePathFromTheRoot) {
    const auto node = nodeOver(FakeFolder::make(L"root"));
    CNavNode* const child = node->AddChild(nullptr);
    child->SetID(makeList({"child"}).release());
    EXPECT_THAT(ItemList::adopt(child->CalculateQualifiedItemList()).get(),
                HoldsSameBytes(makeList({"parent", "child"}).get()));
    CNavNode* const qualified = child->AddChild(nullptr);
    qualified->SetID(makeList({"x", "y"}).release());
    EXPECT_THAT(ItemList::adopt(qualified->CalculateQualifiedItemList()).get(),
                HoldsSameBytes(makeList({"x", "y"}).get()));
}

TEST_F(NavNode, NameOfAnExtensionRootIsThatOfItsFolder) {
    RegisteredForTest registered;
    CNavExtension& extension = registered.add(L"Foo");
    extension.SetRootFolderDisplayName(L"Foo sites");
    const auto root = nodeOver(FakeFolder::make(L"what the folder says"), NavNodeExtensionRoot);
    CString name;
    EXPECT_TRUE(root->GetNameInFolder(name));
    EXPECT_EQ(name, L"what the folder says");
    EXPECT_EQ(root->FindName(L"WHAT the folder says"), root.get());
    EXPECT_EQ(root->FindName(L"what"), nullptr);
    const auto deferred = nodeOver({}, NavNodeExtensionRoot);
    EXPECT_FALSE(deferred->GetNameInFolder(name));
    deferred->SetExtensionName(L"foo");
    EXPECT_TRUE(deferred->GetNameInFolder(name));
    EXPECT_EQ(name, L"Foo sites");
}

TEST_F(NavNode, FtpIsAskedOfTheRegisteredExtension) {
    CNavNode node(m_shell);
    node.SetExtensionName(L"ftpsites");
    EXPECT_FALSE(node.IsFTP()) << "no such extension";
    RegisteredForTest registered;
    CNavExtension& ftp = registered.add(L"FTPSites");
    registered.add(L"Other");
    EXPECT_TRUE(node.IsFTP());
    EXPECT_TRUE(node.IsFTPRoot());
    EXPECT_EQ(node.GetExtension(), &ftp);
    node.SetExtensionName(L"Other");
    EXPECT_FALSE(node.IsFTP());
    node.SetExtensionName(nullptr);
    EXPECT_EQ(node.GetExtension(), nullptr);
}

TEST_F(NavNode, IconComesFromTheExtractorOrFromTheModuleItNames) {
    wchar_t shellModule[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"shell32.dll"), shellModule, MAX_PATH);
    struct Row {
        const char* why;
        FakeIcon icon;
        bool found;
    };
    const Row rows[] = {
        {"extracted", {L"", 0, S_OK}, true},
        {"left to the caller", {shellModule, 1, S_FALSE}, true},
        {"extraction failed", {shellModule, 1, E_FAIL}, true},
        {"no such icon", {shellModule, 31'000, E_FAIL}, false},
        {"no such module", {L"C:\\missing.dll", 1, E_FAIL}, false},
        {"no module", {L"", 0, E_FAIL}, false},
    };
    const auto folder = FakeFolder::make(L"root");
    const auto parent = nodeOver(folder);
    const auto takeIcons = [&] {
        for (const Row& row : rows) {
            folder->setIcon(row.icon);
            CNavNode child(m_shell);
            child.SetParent(parent.get());
            child.SetID(FakeFolder::item(L"item").release());
            child.SetType(NavNodeExtensionSite);
            child.SetIcon();
            child.SetIcon();
            EXPECT_EQ(child.GetIcon() != nullptr, row.found) << row.why;
            EXPECT_FALSE(folder->askedForItself()) << row.why;
        }
    };
    takeIcons();
    const ObjectCounts before = ObjectCounts::now();
    takeIcons();
    EXPECT_EQ(ObjectCounts::now(), before);
    const auto root = nodeOver(folder, NavNodeExtensionRoot);
    root->SetIcon();
    EXPECT_TRUE(folder->askedForItself());
}

// A copy of the framework with the system's first icon under a name that looks like a number.
CString addModuleWithNamedIcon(const ScopedTempFolder& temp, const wchar_t* name) {
    const HMODULE source = LoadLibraryW(L"shell32.dll");
    const auto bytesOf = [source](const wchar_t* id, const wchar_t* type) {
        const HRSRC found = FindResourceW(source, id, type);
        const auto* const bytes = static_cast<const BYTE*>(LockResource(LoadResource(source, found)));
        return std::vector<BYTE>(bytes, bytes + SizeofResource(source, found));
    };
    std::vector<BYTE> group = bytesOf(MAKEINTRESOURCEW(1), RT_GROUP_ICON);
    const CString path = temp.path(L"named.dll");
    wchar_t framework[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"zoui.dll"), framework, MAX_PATH);
    CopyFileW(framework, path, FALSE);
    const HANDLE update = BeginUpdateResourceW(path, FALSE);
    constexpr WORD neutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
    const auto put = [&](const wchar_t* type, const wchar_t* id, std::vector<BYTE>& bytes) {
        UpdateResourceW(update, type, id, neutral, bytes.data(), static_cast<DWORD>(bytes.size()));
    };
    put(RT_GROUP_ICON, name, group);
    constexpr std::size_t header = 6;
    constexpr std::size_t entry = 14;  // its last two bytes are the picture's id
    for (std::size_t end = header + entry; end <= group.size(); end += entry) {
        const wchar_t* const id = MAKEINTRESOURCEW(MAKEWORD(group[end - 2], group[end - 1]));
        std::vector<BYTE> picture = bytesOf(id, RT_ICON);
        put(RT_ICON, id, picture);
    }
    EndUpdateResourceW(update, FALSE);
    FreeLibrary(source);
    return path;
}

TEST_F(NavNode, IconOfAModuleIsFoundByItsNumberAsANameToo) {
    const ScopedTempFolder temp;
    const CString module = addModuleWithNamedIcon(temp, L"777");
    const auto folder = FakeFolder::make(L"root");
    const auto parent = nodeOver(folder);
    for (const int index : {777, 778}) {
        folder->setIcon({module.GetString(), index, E_FAIL});
        CNavNode child(m_shell);
        child.SetParent(parent.get());
        child.SetType(NavNodeExtensionSite);
        child.SetIcon();
        EXPECT_EQ(child.GetIcon() != nullptr, index == 777);
    }
}

TEST_F(NavNode, IconIsTakenWhenItIsAskedForAndOnlyOnce) {
    const auto folder = FakeFolder::make(L"root");
    folder->setIcon({L"", 0, S_OK});
    folder->add(L"item", SFGAO_FOLDER);
    const auto parent = nodeOver(folder);
    CNavNode child(m_shell);
    child.SetParent(parent.get());
    child.SetID(FakeFolder::item(L"item").release());
    child.SetType(NavNodeExtensionSite);
    EXPECT_EQ(child.GetIcon(), nullptr) << "nothing has called for one";
    ASSERT_TRUE(child.GetAttributes());
    EXPECT_EQ(folder->calls(FolderCall::GetUIObjectOf), 0);
    const HICON icon = child.GetIcon();
    EXPECT_NE(icon, nullptr);
    EXPECT_EQ(child.GetIcon(), icon);
    EXPECT_EQ(folder->calls(FolderCall::GetUIObjectOf), 1);
    ASSERT_TRUE(child.GetAttributes());
    EXPECT_NE(child.GetIcon(), nullptr);
    EXPECT_EQ(folder->calls(FolderCall::GetUIObjectOf), 2);
}

TEST_F(NavNode, IconOfAnOrdinaryItemIsTheShells) {
    CNavNode node(m_shell);
    ITEMIDLIST* list = nullptr;
    ASSERT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &list), S_OK);
    node.SetID(list);
    node.SetIcon();
    EXPECT_NE(node.GetIcon(), nullptr);
    RegisteredForTest registered;
    registered.add(L"FTPSites");
    CNavNode item(m_shell);
    item.SetType(NavNodeExtensionItem);
    item.SetExtensionName(L"FTPSites");
    item.SetIcon();
    EXPECT_NE(item.GetIcon(), nullptr) << "the closed folder";
}

TEST_F(NavNode, InitializeForgetsWithoutFreeing) {
    const auto folder = FakeFolder::make(L"root");
    CNavNode node(m_shell);
    const ItemList id = makeList({"x"});
    node.SetID(id.get());
    node.SetFolder(folder.get());
    node.SetType(NavNodeInternetItem);
    node.SetIndent(3);
    node.SetDisplayNode(&node);
    node.SetExtensionName(L"Foo");
    node.Initialize();
    EXPECT_EQ(node.GetID(), nullptr);
    EXPECT_EQ(node.GetFolder(), nullptr);
    EXPECT_EQ(node.GetType(), NavNodeShell);
    EXPECT_EQ(node.GetIndent(), 0);
    EXPECT_EQ(node.GetDisplayNode(), nullptr);
    EXPECT_STREQ(node.GetExtensionName(), L"Foo");
}

TEST_F(NavNode, DestructionFreesEverythingBelowAndBehind) {
    const auto folder = FakeFolder::make(L"root");
    expectNoTaskMemoryLeft([&] {
        const auto node = nodeOver(folder);
        for (int index = 0; index < 20'000; ++index) {
            CNavNode* const child = new CNavNode(m_shell);
            child->SetNext(node->GetChild());
            child->SetID(makeList({"x"}).release());
            node->SetChild(child);
        }
    });
    EXPECT_EQ(folder->references(), 1);
}

}  // namespace
