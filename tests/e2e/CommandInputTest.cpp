// Every command of the dialog by button, by menu and by key.
#include <knav/CNavListBox.h>

#include <algorithm>
#include <atomic>
#include <filesystem>

#include "demo/driver/RemoteList.h"
#include "e2e/DialogInput.h"
#include "resources/ids.h"

namespace knav::test {
namespace {

using input::click;

/// The window's parts, as the person at it sees them.
class Eyes {
public:
    explicit Eyes(const NavDialogWindow& window) : m_window(window.window()) {}

    HWND control(UINT id) const { return GetDlgItem(m_window, static_cast<int>(id)); }
    HWND list() const {
        const HWND view = FindWindowExW(m_window, nullptr, L"SHELLDLL_DefView", nullptr);
        return FindWindowExW(view, nullptr, WC_LISTVIEWW, nullptr);
    }
    HWND focus() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(m_window, nullptr), &info);
        return info.hwndFocus;
    }
    bool menuIsOpen() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(m_window, nullptr), &info);
        return (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
    }
    std::vector<std::wstring> lookInRows() const {
        const HWND combo = control(IDC_KNAV_LOOK_IN);
        std::vector<std::wstring> rows(static_cast<std::size_t>(SendMessageW(combo, CB_GETCOUNT, 0, 0)));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            wchar_t text[MAX_PATH] = L"";
            SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
            rows[i] = text;
        }
        return rows;
    }
    std::wstring lookIn() const {
        const auto rows = lookInRows();
        const LRESULT row = SendMessageW(control(IDC_KNAV_LOOK_IN), CB_GETCURSEL, 0, 0);
        return row >= 0 && row < static_cast<LRESULT>(rows.size()) ? rows[static_cast<std::size_t>(row)] : L"";
    }
    bool isDropped() const { return SendMessageW(control(IDC_KNAV_LOOK_IN), CB_GETDROPPEDSTATE, 0, 0) != 0; }
    DWORD viewMode() const { return static_cast<DWORD>(SendMessageW(list(), LVM_GETVIEW, 0, 0)); }
    bool shows(const std::wstring& name) const { return input::RemoteList(list()).find(name).has_value(); }

    /// The box of the shell's that has come up, or null.
    HWND box() const {
        const HWND front = GetForegroundWindow();
        wchar_t name[64] = L"";
        GetClassNameW(front, name, 64);
        const bool isBox = front != m_window && lstrcmpW(name, L"#32770") == 0 && GetDlgItem(front, IDYES) != nullptr;
        return isBox ? front : nullptr;
    }

    // --- hands ---------------------------------------------------------------------------------------------------
    void press(UINT id) const { press(control(id)); }
    static void press(HWND window) {
        RECT at{};
        GetWindowRect(window, &at);
        click({(at.left + at.right) / 2, (at.top + at.bottom) / 2});
    }
    /// Opens the menu of a button by its mnemonic and presses the keys in it.
    void chooseFromMenu(WORD mnemonic, std::initializer_list<WORD> keys) const {
        pressKey(mnemonic, VK_MENU);
        EXPECT_TRUE(waitUntil([this] { return menuIsOpen(); }, 3000)) << "menu of Alt+" << static_cast<char>(mnemonic);
        for (const WORD key : keys) {
            pressKey(key);
        }
        EXPECT_TRUE(waitUntil([this] { return !menuIsOpen(); }, 3000)) << "menu of Alt+" << static_cast<char>(mnemonic);
    }
    /// F4 is for the button that has the focus, not for the Look-in list.
    void dropByF4(UINT button) const {
        EXPECT_TRUE(waitUntil([&] { return focus() == control(button); }, 3000)) << button;
        pressKey(VK_F4);
        EXPECT_TRUE(waitUntil([this] { return menuIsOpen(); }, 3000)) << button;
        EXPECT_FALSE(isDropped()) << button;
    }
    void focusList() const {
        SetForegroundWindow(m_window);
        for (int tabs = 0; tabs < 20 && focus() != list(); ++tabs) {
            const HWND before = focus();
            pressKey(VK_TAB);
            waitUntil([&] { return focus() != before; }, 2000);
        }
        EXPECT_EQ(focus(), list());
    }
    /// Types the name of an item in the list, which selects it.
    void typeAhead(const std::wstring& name) const {
        EXPECT_TRUE(waitUntil([&] { return shows(name); })) << utf8(name);
        focusList();
        typeText(name);
        const auto selected = [&] {
            const input::RemoteList items(list());
            return items.isSelected(items.find(name).value_or(-1));
        };
        EXPECT_TRUE(waitUntil(selected)) << "type-ahead to " << utf8(name);
    }
    /// Waits until the dialog is there, and listens again.
    void expectFolder(const std::wstring& name) const {
        EXPECT_TRUE(waitUntil([&] { return lookIn() == name; })) << utf8(name) << " expected, not " << utf8(lookIn());
        SendMessageW(m_window, WM_NULL, 0, 0);
    }

private:
    HWND m_window;
};

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
        eyes.focusList();
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
    const auto person = [&](const NavDialogWindow& window) {
        const Eyes eyes(window);
        eyes.chooseFromMenu('V', {'L'});
        EXPECT_TRUE(waitUntil([&] { return eyes.viewMode() == LV_VIEW_LIST; }));
        pressKey('2', VK_CONTROL);
        EXPECT_TRUE(waitUntil([&] { return eyes.viewMode() == LV_VIEW_DETAILS; }));
        pressKey('1', VK_CONTROL);
        EXPECT_TRUE(waitUntil([&] { return eyes.viewMode() == LV_VIEW_LIST; }));
        eyes.press(IDC_KNAV_VIEWS);
        EXPECT_TRUE(waitUntil([&] { return eyes.menuIsOpen(); }));
        pressKey(VK_ESCAPE);
        EXPECT_TRUE(waitUntil([&] { return !eyes.menuIsOpen(); })) << "the menu goes first";
        EXPECT_TRUE(window.isOpen());
        for (int tabs = 0; tabs < 20 && eyes.focus() != eyes.control(IDC_KNAV_VIEWS); ++tabs) {
            const HWND before = eyes.focus();
            pressKey(VK_TAB);
            waitUntil([&] { return eyes.focus() != before; }, 2000);
        }
        eyes.dropByF4(IDC_KNAV_VIEWS);
        pressKey(VK_ESCAPE);
        EXPECT_TRUE(waitUntil([&] { return !eyes.menuIsOpen(); }));

        window.typeName(L"plan");
        eyes.chooseFromMenu('L', {'L'});
        EXPECT_TRUE(waitUntil([this] { return m_host.located == 1; }));
        const LRESULT places = SendMessageW(eyes.control(IDC_KNAV_PLACES), LB_GETCOUNT, 0, 0);
        eyes.chooseFromMenu('L', {'P'});
        EXPECT_TRUE(
            waitUntil([&] { return SendMessageW(eyes.control(IDC_KNAV_PLACES), LB_GETCOUNT, 0, 0) == places + 1; }));
        eyes.chooseFromMenu('L', {'V', 'F'});
        EXPECT_TRUE(waitUntil([&] { return PathFileExistsW(favorite.c_str()) != FALSE; }));

        window.typeName(L"plan.dwg");
        SetFocus(nullptr);
        RECT ok{};
        GetWindowRect(eyes.control(IDOK), &ok);
        click({ok.right - 8, (ok.top + ok.bottom) / 2});
        EXPECT_TRUE(waitUntil([&] { return eyes.menuIsOpen(); }));
        pressKey(VK_ESCAPE);
        EXPECT_TRUE(waitUntil([&] { return !eyes.menuIsOpen(); }));
        eyes.dropByF4(IDOK);
        pressKey('R');
    };
    EXPECT_EQ(run(m_host, person), IDOK);
    EXPECT_TRUE(m_host.GetReadOnlySpecified());
    DeleteFileW(favorite.c_str());
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
        eyes.focusList();
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
        click({(top.left + top.right) / 2, (top.top + top.bottom) / 2});
        eyes.expectFolder(desktop);
        pressKey(VK_LEFT, VK_MENU);
        eyes.expectFolder(leaf());
        window.pressEscape();
    };
    EXPECT_EQ(run(m_host, person), IDCANCEL);
}

TEST_F(CommandInput, KeyboardAlone_PicksAFileOnAnotherDrive) {
    if (!PathIsDirectoryW(L"Z:\\")) {
        GTEST_SKIP() << "there is one drive only";
    }
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
