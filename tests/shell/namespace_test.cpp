// Folders, names and qualification in the system's own namespace, checked against the system's functions.
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include <gtest/gtest.h>

#include "shell/FolderCalls.h"
#include "support/ItemLists.h"
#include "support/ScopedTempFolder.h"

namespace {

using namespace knav;
using namespace knav::test;

ItemList parsed(const wchar_t* path) {
    ITEMIDLIST* list = nullptr;
    return SUCCEEDED(SHParseDisplayName(path, nullptr, &list, 0, nullptr)) ? ItemList::adopt(list) : ItemList();
}

ItemList special(int csidl) {
    ITEMIDLIST* list = nullptr;
    return SUCCEEDED(SHGetSpecialFolderLocation(nullptr, csidl, &list)) ? ItemList::adopt(list) : ItemList();
}

bool isSame(const ItemList& a, const ItemList& b) {
    return a && b && ILIsEqual(a.get(), b.get());
}

// Where the folder itself says that it is.
ItemList placeOf(IShellFolder* folder) {
    const auto place = ComPtr<IShellFolder>::retain(folder).as<IPersistFolder2>();
    ITEMIDLIST* list = nullptr;
    return place && SUCCEEDED(place->GetCurFolder(&list)) ? ItemList::adopt(list) : ItemList();
}

// A child item and its folder, as the system splits a qualified list.
struct Child {
    const ITEMIDLIST* list = nullptr;
    ComPtr<IShellFolder> folder;

    explicit Child(const ItemList& qualified)
        : folder(ComPtr<IShellFolder>::from([&](IShellFolder** result) {
              return SHBindToParent(qualified.get(), IID_IShellFolder, reinterpret_cast<void**>(result), &list);
          })) {}
};

class Namespace : public testing::Test {
protected:
    ScopedTempFolder m_temp;
    CString m_deep = m_temp.addFolder(L"one\\two\\three \u00c4\u4e16");
    CString m_file = m_temp.addFile(L"one\\two\\three \u00c4\u4e16\\plan \u00fc.dwg");
};

TEST_F(Namespace, SpecialItemsAreTheSystems) {
    for (const int csidl : {CSIDL_DESKTOP, CSIDL_INTERNET, CSIDL_PERSONAL, CSIDL_DRIVES, CSIDL_NETWORK}) {
        const auto list = ItemList::adopt(NavGetSpecialFolderItem(nullptr, csidl));
        EXPECT_THAT(list.get(), HoldsSameBytes(special(csidl).get())) << csidl;
    }
    EXPECT_THAT(ItemList::adopt(NavGetDesktopFolderItem(nullptr)).get(), HoldsSameBytes(emptyList()));
    EXPECT_TRUE(isSame(ItemList::adopt(NavGetDrivesFolderItem(nullptr)), special(CSIDL_DRIVES)));
    EXPECT_EQ(NavGetSpecialFolderItem(nullptr, 0x7FFF), nullptr);
}

TEST_F(Namespace, PredicatesKnowTheirLocationOnly) {
    struct Row {
        const char* why;
        ItemList list;
        int desktop, drives, network, internet;
    };
    Row rows[] = {
        {"null", ItemList(), 0, 0, 0, 0},
        {"desktop", makeList({}), 1, 0, 0, 0},
        {"My Computer", special(CSIDL_DRIVES), 0, 1, 0, 0},
        {"My Computer, parsed", parsed(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"), 0, 1, 0, 0},
        {"network", special(CSIDL_NETWORK), 0, 0, 1, 0},
        {"internet", special(CSIDL_INTERNET), 0, 0, 0, 1},
        {"a drive", parsed(L"C:\\"), 0, 0, 0, 0},
        {"a folder", parsed(m_deep), 0, 0, 0, 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NavIsDesktop(row.list.get()) != 0, row.desktop != 0) << row.why;
        EXPECT_EQ(NavIsDrives(row.list.get()) != 0, row.drives != 0) << row.why;
        EXPECT_EQ(NavIsNetwork(row.list.get()) != 0, row.network != 0) << row.why;
        EXPECT_EQ(NavIsInternetRoot(row.list.get()) != 0, row.internet != 0) << row.why;
    }
}

TEST_F(Namespace, FolderOfAListIsWhereTheListSays) {
    for (const CString& path : {CString(L"C:\\"), m_temp.path(), m_deep}) {
        const ItemList list = parsed(path);
        const auto folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(list.get()));
        EXPECT_TRUE(isSame(placeOf(folder.get()), list)) << utf8(path.view());
    }
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(listArgument(emptyList())));
    EXPECT_TRUE(isSame(placeOf(desktop.get()), makeList({})));
    const auto drives = ComPtr<IShellFolder>::adopt(NavGetDrivesFolder());
    EXPECT_TRUE(isSame(placeOf(drives.get()), special(CSIDL_DRIVES)));

    EXPECT_EQ(NavGetFolderFromDesktop(nullptr), nullptr);
    EXPECT_EQ(NavGetFolderFromDesktop(parsed(m_file).get()), nullptr) << "a file is no folder";
    EXPECT_EQ(NavGetFolderFromItem(nullptr, parsed(m_deep).get()), nullptr);
    EXPECT_EQ(NavGetFolderFromItem(desktop.get(), nullptr), nullptr);
    NavReleaseFolder(nullptr);
}

TEST_F(Namespace, NamesAreThoseOfTheDisk) {
    for (const CString& path : {m_temp.path(), m_deep, m_file}) {
        const ItemList list = parsed(path);
        const Child child(list);
        const CString leaf = path.Mid(path.ReverseFind(L'\\') + 1);
        wchar_t systemPath[MAX_PATH];
        ASSERT_TRUE(SHGetPathFromIDListW(list.get(), systemPath));

        CString name = L"old";
        EXPECT_TRUE(NavGetItemNameForParsing(child.folder.get(), listArgument(child.list), name));
        EXPECT_EQ(name, systemPath);
        EXPECT_TRUE(NavGetItemNameForParsing(nullptr, list.get(), name));
        EXPECT_EQ(name, systemPath);
        EXPECT_TRUE(NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, list.get(), name));
        EXPECT_EQ(name, systemPath);
        EXPECT_TRUE(NavGetItemNameWithExtensionInFolder(child.folder.get(), listArgument(child.list), name));
        EXPECT_EQ(name, leaf);
        EXPECT_TRUE(NavGetItemNameInFolder(child.folder.get(), listArgument(child.list), name));
        EXPECT_EQ(leaf.Find(name), 0);
    }
    CString name = L"old";
    EXPECT_FALSE(NavGetItemDisplayName(SHGDN_NORMAL, nullptr, parsed(m_file).get(), name));
    EXPECT_TRUE(name.IsEmpty());
}

TEST_F(Namespace, QualifiedListIsTheSameItemSeenFromTheDesktop) {
    CNavShell shell;
    const ItemList list = parsed(m_file);
    const Child child(list);
    ITEMIDLIST* const relative = listArgument(child.list);
    EXPECT_TRUE(isSame(ItemList::adopt(NavGetQualifiedItemList(shell, child.folder.get(), relative)), list));
    EXPECT_TRUE(isSame(ItemList::adopt(shell.GetQualifiedItemList(child.folder.get(), relative)), list));
    EXPECT_EQ(NavGetQualifiedItemList(nullptr, child.folder.get(), relative), nullptr);
    EXPECT_EQ(NavGetQualifiedItemList(shell, nullptr, relative), nullptr);
    EXPECT_EQ(NavGetQualifiedItemList(shell, child.folder.get(), nullptr), nullptr);
}

TEST_F(Namespace, PathsAreParsedUpToTheirLimit) {
    CString folder = m_temp.path();
    while (folder.GetLength() < 200) {
        folder += L"\\fifteen letters";
    }
    folder = m_temp.addFolder(folder.Mid(m_temp.path().GetLength() + 1));
    const CString stem = folder + L"\\";
    const CString longest = stem + CString(L'x', MAX_PATH - 1 - stem.GetLength());
    const CString tooLong = longest + L"x";
    m_temp.addFile(longest.Mid(m_temp.path().GetLength() + 1));
    m_temp.addFile(tooLong.Mid(m_temp.path().GetLength() + 1));
    struct Row {
        const char* why;
        CString path;
        bool found;
    };
    const Row rows[] = {
        {"a drive", L"C:\\", true},
        {"other letters than on disk", CString(m_deep).MakeUpper(), true},
        {"a file", m_file, true},
        {"259 characters", longest, true},
        {"260 characters", tooLong, false},
        {"nothing", L"", false},
        {"a wildcard", m_temp.path() + L"\\*", false},
        {"a missing file", m_temp.path() + L"\\missing", false},
    };
    for (const Row& row : rows) {
        const auto list = ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(row.path));
        EXPECT_EQ(static_cast<bool>(list), row.found) << row.why;
        if (row.found) {
            EXPECT_TRUE(isSame(list, parsed(row.path))) << row.why;
        }
    }
    EXPECT_EQ(NavGetQualifiedItemListFromFolderFullPath(nullptr), nullptr);
}

TEST_F(Namespace, ComparisonIsAnOrder) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    const ItemList a = parsed(m_temp.addFolder(L"a"));
    const ItemList b = parsed(m_temp.addFolder(L"b"));
    const ItemList upperA = parsed(m_temp.path(L"A"));
    EXPECT_EQ(NavCompareFolderItems(desktop.get(), a.get(), upperA.get()), 0);
    EXPECT_LT(NavCompareFolderItems(desktop.get(), a.get(), b.get()), 0);
    EXPECT_GT(NavCompareFolderItems(desktop.get(), b.get(), a.get()), 0);
    EXPECT_LT(NavCompareFolderItems(desktop.get(), nullptr, a.get()), 0);
    EXPECT_GT(NavCompareFolderItems(desktop.get(), a.get(), nullptr), 0);
    EXPECT_EQ(NavCompareFolderItems(nullptr, a.get(), b.get()), 0);
}

TEST_F(Namespace, SystemImageListHasSmallIcons) {
    const HIMAGELIST images = NavGetSystemImageList();
    int width = 0;
    int height = 0;
    ASSERT_TRUE(ImageList_GetIconSize(images, &width, &height));
    EXPECT_EQ(width, GetSystemMetrics(SM_CXSMICON));
    EXPECT_EQ(height, GetSystemMetrics(SM_CYSMICON));
}

TEST_F(Namespace, NothingIsLeftInTaskMemory) {
    const ItemList list = parsed(m_file);
    const Child child(list);
    expectNoTaskMemoryLeft([&] {
        CNavShell shell;
        CString name;
        ITEMIDLIST* const relative = listArgument(child.list);
        ItemList::adopt(NavGetQualifiedItemList(shell, child.folder.get(), relative)).reset();
        ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(m_deep)).reset();
        NavGetItemNameForParsing(nullptr, list.get(), name);
        NavGetItemNameInFolder(child.folder.get(), relative, name);
        NavReleaseFolder(NavGetDrivesFolder());
        NavReleaseFolder(NavGetInternetRootFolder());
        NavReleaseFolder(NavGetFolderFromDesktop(list.get()));
        NavIsDesktop(list.get());
        NavIsNetwork(list.get());
        NavUpdateShellCache();
    });
}

// A list that somebody stored and damaged: whatever the shell makes of it, the process and the memory survive.
TEST_F(Namespace, DamagedListsAreHarmless) {
    const std::vector<BYTE> whole = bytesOf(parsed(m_file).get());
    PageEnd page;
    expectNoTaskMemoryLeft([&] {
        for (std::size_t cut = 0; cut < whole.size(); cut += cut < 80 ? 1 : 7) {
            ITEMIDLIST* const list = page.put(whole.data(), cut);
            CString name;
            CNavShell shell;
            NavGetItemNameForParsing(nullptr, list, name);
            NavIsDesktop(list);
            NavIsDrives(list);
            NavReleaseFolder(NavGetFolderFromDesktop(list));
            const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
            ItemList::adopt(NavGetQualifiedItemList(shell, desktop.get(), list)).reset();
        }
    });
}

}  // namespace
