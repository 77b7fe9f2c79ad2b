// A person's eyes and hands for the parts of a dialog.
#pragma once

#include "demo/driver/RemoteList.h"
#include "e2e/DialogInput.h"
#include "resources/ids.h"
#include "support/Controls.h"

namespace knav::test {

/// The window's parts, as the person at it sees them.
class Eyes {
public:
    explicit Eyes(const NavDialogWindow& window) : m_window(window.window()) {}

    HWND control(UINT id) const { return GetDlgItem(m_window, static_cast<int>(id)); }
    HWND list() const {
        const HWND view = FindWindowExW(m_window, nullptr, L"SHELLDLL_DefView", nullptr);
        return FindWindowExW(view, nullptr, WC_LISTVIEWW, nullptr);
    }
    HWND focus() const { return thread().hwndFocus; }
    bool menuIsOpen() const { return (thread().flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0; }
    std::vector<std::wstring> lookInRows() const { return rowsOf(control(IDC_KNAV_LOOK_IN)); }
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
        input::click({(at.left + at.right) / 2, (at.top + at.bottom) / 2});
    }
    /// Presses the keys in the menu that is coming up, which then closes.
    void chooseFromMenu(std::initializer_list<WORD> keys) const {
        EXPECT_TRUE(waitUntil([this] { return menuIsOpen(); }));
        for (const WORD key : keys) {
            pressKey(key);
        }
        EXPECT_TRUE(waitUntil([this] { return !menuIsOpen(); }));
    }
    /// Opens the menu of a button by its mnemonic and presses the keys in it.
    void chooseFromMenu(WORD mnemonic, std::initializer_list<WORD> keys) const {
        SCOPED_TRACE(static_cast<char>(mnemonic));
        pressKey(mnemonic, VK_MENU);
        chooseFromMenu(keys);
    }
    /// F4 is for the button that has the focus, not for the Look-in list.
    void chooseByF4(UINT button, std::initializer_list<WORD> keys) const {
        EXPECT_TRUE(waitUntil([&] { return focus() == control(button); })) << button;
        pressKey(VK_F4);
        EXPECT_TRUE(waitUntil([this] { return menuIsOpen(); })) << button;
        EXPECT_FALSE(isDropped()) << button;
        chooseFromMenu(keys);
    }
    void tabTo(UINT id) const {
        tabUntilOn([this, id] { return control(id); });
    }
    void tabToList() const {
        tabUntilOn([this] { return list(); });
    }
    /// Types the name of an item in the list, which selects it; anew when the letters came too far apart.
    void typeAhead(const std::wstring& name) const {
        EXPECT_TRUE(waitUntil([&] { return shows(name); })) << utf8(name);
        const auto selected = [&] {
            const input::RemoteList items(list());
            return items.isSelected(items.find(name).value_or(-1));
        };
        for (int tries = 0; tries < 3 && !selected(); ++tries) {
            tabToList();
            typeText(name);
            waitUntil(selected, 4000);
        }
        EXPECT_TRUE(selected()) << "type-ahead to " << utf8(name);
    }
    /// Until the dialog listens again, having dealt with the input that was noticed so far.
    void untilHandled() const { SendMessageW(m_window, WM_NULL, 0, 0); }
    /// Waits until the dialog is there, and listens again.
    void expectFolder(const std::wstring& name) const {
        EXPECT_TRUE(waitUntil([&] { return lookIn() == name; })) << utf8(name) << " expected, not " << utf8(lookIn());
        untilHandled();
    }

private:
    // The list is another one after each change of folder, possibly a little late.
    template <class Part>
    void tabUntilOn(Part part) const {
        SetForegroundWindow(m_window);
        for (int tabs = 0; tabs < 20 && focus() != part(); ++tabs) {
            const HWND before = focus();
            pressKey(VK_TAB);
            waitUntil([&] { return focus() != before; }, 2000);
            untilHandled();  // the view hands the focus on to its list
        }
        EXPECT_EQ(focus(), part());
    }
    GUITHREADINFO thread() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(m_window, nullptr), &info);
        return info;
    }

    HWND m_window;
};

}  // namespace knav::test
