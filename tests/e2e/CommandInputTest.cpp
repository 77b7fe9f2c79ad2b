// Every command of the dialog by button, by menu and by key.
#include <knav/CNavListBox.h>

#include <algorithm>
#include <atomic>
#include <filesystem>

#include "demo/driver/Screenshot.h"
#include "e2e/DialogEyes.h"
#include "e2e/DialogInput.h"

namespace knav::test {
namespace {

/// Notes the commands that lead out of the dialog instead of doing them.
class HostDialog : public CNavDialog {
public:
    using CNavDialog::CNavDialog;
    int LaunchBrowserDialog(CString&, const wchar_t*, const wchar_t*, const wchar_t*) override {
        ++browsed;
        return 0;
    }
    void OnDoFind() override { ++searched; }
    void OnDoLocate() override { ++located; }

    std::atomic<int> browsed = 0;
    std::atomic<int> searched = 0;
    std::atomic<int> located = 0;
};

class CommandInput : public DialogInput {
protected:
    CommandInput() { setUp(m_host); }
    std::wstring leaf() const { return std::filesystem::path(std::wstring(m_folder.path())).filename(); }

    HostDialog m_host{m_data, m_filters};
};

}  // namespace

TEST_F(CommandInput, UpAndBackThroughFiveFolders_ByButtonAndEachKey) {
    m_host.SetForceInitialFolder(m_folder.addFolder(L"1\\2\\3\\4\\5"));
    const auto person = [this](const NavDialogWindow& window) {
        const Eyes eyes(window);
        eyes.expectFolder(L"5");
        eyes.press(IDC_KNAV_UP);
        eyes.expectFolder(L"4");
        pressKey(VK_UP, VK_MENU);
        eyes.expectFolder(L"3");
        eyes.tabToList();
        pressKey(VK_BACK);
        eyes.expectFolder(L"2");
        eyes.press(IDC_KNAV_UP);
        eyes.expectFolder(L"1");
        pressKey(VK_UP, VK_MENU);
        eyes.expectFolder(leaf());
        for (const wchar_t* folder : {L"1", L"2", L"3"}) {
            pressKey(VK_LEFT, VK_MENU);
            eyes.expectFolder(folder);
        }
        for (const wchar_t* folder : {L"4", L"5"}) {
            eyes.press(IDC_KNAV_BACK);
            eyes.expectFolder(folder);
        }
        EXPECT_TRUE(waitUntil([&] { return !IsWindowEnabled(eyes.control(IDC_KNAV_BACK)); }));
        window.pressEscape();
    };
    EXPECT_EQ(run(m_host, person), IDCANCEL);
}

TEST_F(CommandInput, NewFolderTwice_ByButtonAndKey_GivesTheNumberedName) {
    const auto person = [this](const NavDialogWindow& window) {
        const Eyes eyes(window);
        const auto renaming = [&] { return ListView_GetEditControl(eyes.list()) != nullptr; };
        eyes.press(IDC_KNAV_NEW_FOLDER);
        EXPECT_TRUE(waitUntil(renaming));
        pressKey(VK_RETURN);
        EXPECT_TRUE(waitUntil([&] { return !renaming(); }));
        pressKey('N', VK_CONTROL);
        EXPECT_TRUE(waitUntil(renaming));
        pressKey(VK_ESCAPE);
        EXPECT_TRUE(waitUntil([&] { return !renaming() && eyes.shows(L"New Folder (2)"); }));
        eyes.untilHandled();
        EXPECT_TRUE(eyes.shows(L"New Folder"));
        pressKey(VK_F2);
        EXPECT_TRUE(waitUntil(renaming));
        typeText(L"Plans");
        pressKey(VK_RETURN);
        EXPECT_TRUE(waitUntil([&] { return PathIsDirectoryW(m_folder.path(L"Plans")) != FALSE; }));
        window.pressEscape();
    };
    EXPECT_EQ(run(m_host, person), IDCANCEL);
    EXPECT_FALSE(PathIsDirectoryW(m_folder.path(L"New Folder (2)")));
}

TEST_F(CommandInput, Delete_AsksAndDeletes_ByButtonAndKey) {
    const auto person = [this](const NavDialogWindow& window) {
        const Eyes eyes(window);
        const auto answer = [&](int button) {
            EXPECT_TRUE(waitUntil([&] { return eyes.box() != nullptr; })) << "it asks";
            if (const HWND box = eyes.box()) {
                input::waitUntilSettled(box);
                Eyes::press(GetDlgItem(box, button));
                EXPECT_TRUE(waitUntil([&] { return !IsWindow(box); }));
            }
        };
        window.select({L"plan.dwg"});
        eyes.press(IDC_KNAV_DELETE);
        answer(IDNO);
        EXPECT_TRUE(PathFileExistsW(m_folder.path(L"plan.dwg")));
        eyes.press(IDC_KNAV_DELETE);
        answer(IDYES);
        EXPECT_TRUE(waitUntil([this] { return !PathFileExistsW(m_folder.path(L"plan.dwg")); }));
        window.select({L"site plan.dwg"});
        pressKey(VK_DELETE);
        answer(IDYES);
        EXPECT_TRUE(waitUntil([this] { return !PathFileExistsW(m_folder.path(L"site plan.dwg")); }));
        window.pressEscape();
    };
    EXPECT_EQ(run(m_host, person), IDCANCEL);
}

TEST_F(CommandInput, ViewsToolsAndOkMenus_ByMouseAndKeys) {
    std::wstring favorites(MAX_PATH, L'\0');
    SHGetFolderPathW(nullptr, CSIDL_FAVORITES, nullptr, 0, favorites.data());
    const std::wstring favorite = std::wstring(favorites.c_str()) + L"\\" + leaf() + L".lnk";
    const std::wstring favoriteItem = std::wstring(favorites.c_str()) + L"\\plan.dwg.lnk";
    const auto person = [&](const NavDialogWindow& window) {
        const Eyes eyes(window);
        constexpr std::tuple<WORD, WORD, unsigned> modes[] = {{'L', '1', 3}, {'D', '2', 4}, {'T', '3', 5}};
        for (const auto& [entry, key, mode] : modes) {
            eyes.chooseFromMenu('V', {entry});
            EXPECT_TRUE(waitUntil([&, mode = mode] { return m_host.GetViewMode() == mode; })) << mode;
        }
        for (const auto& [entry, key, mode] : modes) {
            pressKey(key, VK_CONTROL);
            EXPECT_TRUE(waitUntil([&, mode = mode] { return m_host.GetViewMode() == mode; })) << mode;
        }
        pressKey('1', VK_CONTROL);
        EXPECT_TRUE(waitUntil([&] { return eyes.viewMode() == LV_VIEW_LIST; }));
        eyes.press(IDC_KNAV_VIEWS);
        eyes.chooseFromMenu({VK_ESCAPE});
        EXPECT_TRUE(window.isOpen()) << "Escape was for the menu";
        eyes.tabTo(IDC_KNAV_VIEWS);
        eyes.chooseByF4(IDC_KNAV_VIEWS, {VK_ESCAPE});

        window.typeName(L"plan");
        eyes.chooseFromMenu('L', {'L'});
        EXPECT_TRUE(waitUntil([this] { return m_host.located == 1; }));
        const LRESULT places = SendMessageW(eyes.control(IDC_KNAV_PLACES), LB_GETCOUNT, 0, 0);
        eyes.chooseFromMenu('L', {'P'});
        EXPECT_TRUE(
            waitUntil([&] { return SendMessageW(eyes.control(IDC_KNAV_PLACES), LB_GETCOUNT, 0, 0) == places + 1; }));
        eyes.chooseFromMenu('L', {'V', 'F'});
        EXPECT_TRUE(waitUntil([&] { return PathFileExistsW(favorite.c_str()) != FALSE; }));
        window.select({L"plan.dwg"});
        eyes.chooseFromMenu('L', {'V', 'I'});
        EXPECT_TRUE(waitUntil([&] { return PathFileExistsW(favoriteItem.c_str()) != FALSE; }));

        window.typeName(L"plan.dwg");
        RECT ok{};
        GetWindowRect(eyes.control(IDOK), &ok);
        input::click({ok.right - 8, (ok.top + ok.bottom) / 2});
        eyes.chooseFromMenu({VK_ESCAPE});
        eyes.chooseByF4(IDOK, {'R'});
    };
    EXPECT_EQ(run(m_host, person), IDOK);
    EXPECT_TRUE(m_host.GetReadOnlySpecified());
    DeleteFileW(favorite.c_str());
    DeleteFileW(favoriteItem.c_str());

    const auto opener = [](const NavDialogWindow& window) {
        const Eyes eyes(window);
        window.typeName(L"site plan");
        eyes.tabTo(IDOK);
        eyes.chooseByF4(IDOK, {'O'});
    };
    EXPECT_EQ(run(m_host, opener), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"site plan.dwg"));
    EXPECT_FALSE(m_host.GetReadOnlySpecified());
}

TEST_F(CommandInput, WebFindRefreshAndNameField_ByButtonAndKey) {
    const auto person = [this](const NavDialogWindow& window) {
        const Eyes eyes(window);
        eyes.press(IDC_KNAV_WEB);
        EXPECT_TRUE(waitUntil([this] { return m_host.browsed == 1; }));
        pressKey('W', VK_MENU);
        EXPECT_TRUE(waitUntil([this] { return m_host.browsed == 2; }));
        pressKey('F', VK_CONTROL);
        EXPECT_TRUE(waitUntil([this] { return m_host.searched == 1; }));
        m_folder.addFile(L"later.dwg");
        pressKey(VK_F5);
        EXPECT_TRUE(waitUntil([&] { return eyes.shows(L"later.dwg"); }));
        m_folder.addFile(L"last.dwg");
        eyes.press(IDC_KNAV_REFRESH);
        EXPECT_TRUE(waitUntil([&] { return eyes.shows(L"last.dwg"); }));
        eyes.tabToList();
        pressKey('D', VK_MENU);
        EXPECT_TRUE(waitUntil([&] { return IsChild(eyes.control(IDC_KNAV_FILE_NAME), eyes.focus()) != FALSE; }));
        typeText(L"later");
        pressKey(VK_RETURN);
    };
    EXPECT_EQ(run(m_host, person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"later.dwg"));
}

TEST_F(CommandInput, LookIn_ListsDesktopDrivesAndTheChain_AndNavigates) {
    const auto person = [this](const NavDialogWindow& window) {
        const Eyes eyes(window);
        const std::wstring desktop = eyes.lookInRows().front();
        pressKey(VK_F4);
        EXPECT_TRUE(waitUntil([&] { return eyes.isDropped(); }));
        const auto rows = eyes.lookInRows();
        const auto has = [&rows](const std::wstring& part) {
            return std::ranges::any_of(rows, [&](const auto& row) { return row.find(part) != std::wstring::npos; });
        };
        EXPECT_EQ(rows.front(), desktop);
        EXPECT_TRUE(has(L"(C:)"));
        EXPECT_TRUE(has(L"Temp"));
        EXPECT_EQ(eyes.lookIn(), leaf());
        pressKey(VK_HOME);
        pressKey(VK_ESCAPE);
        EXPECT_TRUE(waitUntil([&] { return !eyes.isDropped(); }));
        eyes.expectFolder(leaf());
        EXPECT_TRUE(window.isOpen()) << "Escape was for the list";

        eyes.press(IDC_KNAV_LOOK_IN);
        EXPECT_TRUE(waitUntil([&] { return eyes.isDropped(); }));
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        GetComboBoxInfo(eyes.control(IDC_KNAV_LOOK_IN), &info);
        RECT top{};
        SendMessageW(info.hwndList, LB_SETTOPINDEX, 0, 0);
        SendMessageW(info.hwndList, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&top));
        MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&top), 2);
        input::click({(top.left + top.right) / 2, (top.top + top.bottom) / 2});
        eyes.expectFolder(desktop);
        pressKey(VK_LEFT, VK_MENU);
        eyes.expectFolder(leaf());
        window.pressEscape();
    };
    EXPECT_EQ(run(m_host, person), IDCANCEL);
}

TEST_F(CommandInput, Policies_TakeAwayPlacesBackAndTheHistory) {
    const auto pickPlan = [](const NavDialogWindow& window) {
        window.typeName(L"plan");
        window.pressEnter();
    };
    EXPECT_EQ(run(m_host, pickPlan), IDOK);
    constexpr std::pair<const wchar_t*, const wchar_t*> policies[] = {{L"Comdlg32", L"NoPlacesBar"},
                                                                      {L"Comdlg32", L"NoBackButton"},
                                                                      {L"Comdlg32", L"NoFileMru"},
                                                                      {L"Explorer", L"NoRecentDocsHistory"}};
    for (const auto& [key, value] : policies) {
        constexpr DWORD on = 1;
        RegSetKeyValueW(HKEY_CURRENT_USER, CString(L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\") + key,
                        value, REG_DWORD, &on, sizeof on);
    }
    const auto person = [this](const NavDialogWindow& window) {
        const Eyes eyes(window);
        EXPECT_FALSE(IsWindowVisible(eyes.control(IDC_KNAV_PLACES)));
        EXPECT_FALSE(IsWindowVisible(eyes.control(IDC_KNAV_BACK)));
        RECT lookIn{};
        RECT back{};
        RECT up{};
        GetWindowRect(eyes.control(IDC_KNAV_LOOK_IN), &lookIn);
        GetWindowRect(eyes.control(IDC_KNAV_BACK), &back);
        GetWindowRect(eyes.control(IDC_KNAV_UP), &up);
        EXPECT_GT(lookIn.right, back.left) << "its room is used";
        EXPECT_LE(lookIn.right, up.left);
        window.open(L"Details");
        eyes.expectFolder(L"Details");
        pressKey(VK_LEFT, VK_MENU);  // does nothing: the next key is for the same folder
        pressKey(VK_UP, VK_MENU);
        eyes.expectFolder(leaf());
        window.typeName(L"");
        pressKey(VK_DOWN);
        pressKey(VK_DOWN);
        window.waitUntilHandled();
        EXPECT_EQ(GetWindowTextLengthW(eyes.control(IDC_KNAV_FILE_NAME)), 0) << "there is no history";
        window.typeName(L"site plan");
        window.pressEnter();
    };
    EXPECT_EQ(run(m_host, person), IDOK);
    CString newest;
    EXPECT_EQ(m_host.GetDialogData(L"FileNameMRU0", newest), 1);
    EXPECT_EQ(m_host.GetDialogData(L"FileNameMRU1", newest), 0) << "and nothing is added to it";
}

TEST_F(CommandInput, KeyboardAlone_PicksAFileOnAnotherDrive) {
    ASSERT_TRUE(PathIsDirectoryW(L"Z:\\")) << "a second drive is needed";
    m_host.SetForceInitialFolder(L"Z:\\");
    const std::wstring file(m_folder.path(L"Details\\door.dwg"));
    const auto person = [&file](const NavDialogWindow& window) {
        const Eyes eyes(window);
        pressKey(VK_F4);
        EXPECT_TRUE(waitUntil([&] { return eyes.isDropped(); }));
        pressKey(VK_HOME);
        for (std::size_t row = 0; row < eyes.lookInRows().size() && eyes.lookIn().find(L"(C:)") == std::wstring::npos;
             ++row) {
            const std::wstring before = eyes.lookIn();
            pressKey(VK_DOWN);
            waitUntil([&] { return eyes.lookIn() != before; }, 1000);
        }
        pressKey(VK_RETURN);
        eyes.expectFolder(L" (C:)");
        for (const std::filesystem::path& folder : std::filesystem::path(file).parent_path().relative_path()) {
            eyes.typeAhead(folder);
            pressKey(VK_RETURN);
            eyes.expectFolder(folder);
        }
        eyes.typeAhead(L"door.dwg");
        pressKey(VK_RETURN);
    };
    EXPECT_EQ(run(m_host, person), IDOK);
    EXPECT_EQ(utf8(chosen(0).view()), utf8(file));
}

}  // namespace knav::test
