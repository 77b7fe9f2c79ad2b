// Folders, names and qualification in the system's own namespace, checked against the system's functions.
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

#include <gtest/gtest.h>

#include "shell/FolderCalls.h"
#include "shell/FolderPaths.h"
#include "support/RealNamespace.h"

namespace {

using namespace knav;
using namespace knav::test;

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
        std::string_view is;  // the first letter of the location that it is
    };
    Row rows[] = {
        {"null", ItemList(), ""},
        {"desktop", makeList({}), "d"},
        {"My Computer", special(CSIDL_DRIVES), "M"},
        {"My Computer, parsed", parsed(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"), "M"},
        {"network", special(CSIDL_NETWORK), "n"},
        {"internet", special(CSIDL_INTERNET), "i"},
        {"a drive", parsed(L"C:\\"), ""},
        {"a folder", parsed(m_deep), ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NavIsDesktop(row.list.get()) != 0, row.is == "d") << row.why;
        EXPECT_EQ(NavIsDrives(row.list.get()) != 0, row.is == "M") << row.why;
        EXPECT_EQ(NavIsNetwork(row.list.get()) != 0, row.is == "n") << row.why;
        EXPECT_EQ(NavIsInternetRoot(row.list.get()) != 0, row.is == "i") << row.why;
    }
}

TEST_F(Namespace, FoldersAreBoundWhereTheyCanBe) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    const auto drives = ComPtr<IShellFolder>::adopt(NavGetDrivesFolder());
    EXPECT_TRUE(isSame(placeOf(desktop.get()), makeList({})));
    EXPECT_TRUE(isSame(placeOf(drives.get()), special(CSIDL_DRIVES)));
    EXPECT_EQ(NavGetFolderFromDesktop(nullptr), nullptr);
    EXPECT_EQ(NavGetFolderFromItem(nullptr, parsed(m_deep).get()), nullptr);
    EXPECT_EQ(NavGetFolderFromItem(desktop.get(), nullptr), nullptr);
    NavReleaseFolder(nullptr);
}

TEST_F(Namespace, PathsAreParsedUpToTheirLimit) {
    CString folder = m_temp.addFolder(L"a") + L"\\";
    folder += CString(L'x', 100) + L"\\";
    const CString longest = folder + CString(L'y', MAX_PATH - 1 - folder.GetLength());
    const CString tooLong = longest + L"y";
    const int inFolder = m_temp.path().GetLength() + 1;
    m_temp.addFile(longest.Mid(inFolder));
    m_temp.addFile(tooLong.Mid(inFolder));
    struct Row {
        const char* why;
        CString path;
        bool found;
    };
    const Row rows[] = {
        {"other letters than on disk", CString(m_deep).MakeUpper(), true},
        {"259 characters", longest, true},
        {"260 characters", tooLong, false},
        {"nothing", L"", false},
        {"a wildcard", m_temp.path(L"*"), false},
        {"a missing file", m_temp.path(L"missing"), false},
    };
    for (const Row& row : rows) {
        const auto list = ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(row.path));
        EXPECT_EQ(static_cast<bool>(list), row.found) << row.why;
        EXPECT_TRUE(!list || isSame(list, parsed(row.path))) << row.why;
    }
    EXPECT_EQ(NavGetQualifiedItemListFromFolderFullPath(nullptr), nullptr);
}

TEST_F(Namespace, FoldersHaveTheirPaths) {
    EXPECT_EQ(pathOfFolder(parsed(m_deep).get()), m_deep);
    wchar_t windows[MAX_PATH] = L"";
    GetWindowsDirectoryW(windows, MAX_PATH);
    EXPECT_STREQ(pathOfSpecialFolder(CSIDL_WINDOWS), windows);
    EXPECT_EQ(pathOfSpecialFolder(CSIDL_DRIVES), L"");
    EXPECT_EQ(pathOfFolder(nullptr), L"");
    const DWORD mode = GetThreadErrorMode();
    EXPECT_TRUE(isPathThere(m_deep));
    EXPECT_FALSE(isPathThere(m_temp.path(L"missing")));
    EXPECT_EQ(GetThreadErrorMode(), mode);
}

TEST_F(Namespace, ListsAreShownToPeople) {
    EXPECT_EQ(describe(nullptr), L"no list");
    EXPECT_EQ(describe(emptyList()), L"the desktop (empty list)");
    const std::wstring shown = describe(parsed(m_file).get());
    EXPECT_TRUE(shown.starts_with(L"\"" + std::wstring(m_file.view()) + L"\" [20: ")) << utf8(shown);
    PageEnd page;
    const std::vector<BYTE> whole = listBytes({"abcdef", "a payload of more than a dozen bytes"});
    EXPECT_TRUE(describe(page.put(whole.data(), whole.size()))
                    .ends_with(L" [8: 61 62 63 64 65 66] "
                               L"[38: 61 20 70 61 79 6c 6f 61 64 20 6f 66 ...]"));
    EXPECT_TRUE(describe(page.put(whole.data(), 12)).ends_with(L" [8: 61 62 63 64 65 66] [38: unreadable]"));
    EXPECT_EQ(testing::PrintToString(parsed(m_file)), utf8(shown));
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
    const ItemList link = parsed(addShortcut(m_temp, L"s.lnk", m_file));
    const Child child(list);
    expectNoTaskMemoryLeft([&] {
        CNavShell shell;
        CString name;
        ITEMIDLIST* const relative = listArgument(child.list);
        ItemList::adopt(NavGetQualifiedItemList(shell, child.folder.get(), relative)).reset();
        ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(m_deep)).reset();
        NavGetItemNameForParsing(nullptr, list.get(), name);
        NavGetItemNameInFolder(child.folder.get(), relative, name);
        ItemList::adopt(NavResolveLink(link.get(), 0)).reset();
        ItemList::adopt(NavGetLinkIDList(link.get())).reset();
        NavResolveLink(list.get(), 0);
        NavReleaseFolder(NavGetDrivesFolder());
        NavReleaseFolder(NavGetInternetRootFolder());
        NavReleaseFolder(NavGetFolderFromDesktop(list.get()));
        NavIsDesktop(list.get());
        NavIsNetwork(list.get());
        NavUpdateShellCache();
    });
}

}  // namespace
