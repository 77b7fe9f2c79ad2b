// Folders, names and qualification in the system's own namespace, checked against the system's functions.
#include <knav/NavFolders.h>

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
};

TEST_F(Namespace, SpecialItemsAreTheSystems) {
    for (const int csidl : {CSIDL_DESKTOP, CSIDL_INTERNET, CSIDL_PERSONAL, CSIDL_DRIVES, CSIDL_NETWORK}) {
        const auto list = ItemList::adopt(NavGetSpecialFolderItem(nullptr, csidl));
        SCOPED_TRACE(csidl);
        EXPECT_THAT(list.get(), HoldsSameBytes(special(csidl).get()));
        EXPECT_EQ(NavIsDesktop(list.get()) != 0, csidl == CSIDL_DESKTOP);
        EXPECT_EQ(NavIsDrives(list.get()) != 0, csidl == CSIDL_DRIVES);
        EXPECT_EQ(NavIsNetwork(list.get()) != 0, csidl == CSIDL_NETWORK);
        EXPECT_EQ(NavIsInternetRoot(list.get()) != 0, csidl == CSIDL_INTERNET);
    }
    EXPECT_TRUE(NavIsDrives(parsed(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}").get()));
    EXPECT_FALSE(NavIsDesktop(nullptr) || NavIsDrives(nullptr) || NavIsNetwork(nullptr) || NavIsInternetRoot(nullptr));
    EXPECT_THAT(ItemList::adopt(NavGetDesktopFolderItem(nullptr)).get(), HoldsSameBytes(emptyList()));
    EXPECT_TRUE(isSame(ItemList::adopt(NavGetDrivesFolderItem(nullptr)), special(CSIDL_DRIVES)));
    EXPECT_EQ(NavGetSpecialFolderItem(nullptr, 0x7FFF), nullptr);
}

TEST_F(Namespace, FoldersAreBoundWhereTheyCanBe) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    const auto drives = ComPtr<IShellFolder>::adopt(NavGetDrivesFolder());
    EXPECT_TRUE(isSame(placeOf(desktop.get()), makeList({})));
    EXPECT_TRUE(isSame(placeOf(drives.get()), special(CSIDL_DRIVES)));
    expectNoTaskMemoryLeft(NavUpdateShellCache);
    EXPECT_EQ(NavGetFolderFromDesktop(nullptr), nullptr);
    EXPECT_EQ(NavGetFolderFromItem(nullptr, parsed(m_deep).get()), nullptr);
    EXPECT_EQ(NavGetFolderFromItem(desktop.get(), nullptr), nullptr);
    NavReleaseFolder(nullptr);
}

TEST_F(Namespace, ListsAreShownToPeople) {
    const std::wstring shown = describe(parsed(m_deep).get());
    EXPECT_TRUE(shown.starts_with(L"\"" + std::wstring(m_deep.view()) + L"\" [20: ")) << utf8(shown);
    PageEnd page;
    const std::vector<BYTE> whole = listBytes({"abcdef", "a payload of more than a dozen bytes"});
    EXPECT_TRUE(describe(page.put(whole.data(), whole.size()))
                    .ends_with(L" [8: 61 62 63 64 65 66] [38: 61 20 70 61 79 6c 6f 61 64 20 6f 66 ...]"));
    EXPECT_TRUE(describe(page.put(whole.data(), 12)).ends_with(L" [8: 61 62 63 64 65 66] [38: unreadable]"));
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

}  // namespace
