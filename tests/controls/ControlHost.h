// A window with controls, for tests.
#pragma once

#include <knav/CNavButtonMenuSource.h>
#include <platform/CComboBox.h>
#include <platform/CMenu.h>
#include <platform/Resources.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace knav::test {

inline constexpr UINT kControlId = 100;
inline constexpr UINT kFirstCommand = 201;
inline constexpr RECT kComboPlace{0, 0, 200, 300};

/// Records the commands it gets; its menu has two entries, and closes by itself or by choosing the highlighted one.
class ControlHost : public CWnd, public CNavButtonMenuSource {
public:
    ControlHost() { CreateEx(0, nullptr, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr); }
    ~ControlHost() override { CWnd::DestroyWindow(); }

    HWND addButton(DWORD style, const wchar_t* text = L"&Open", RECT at = {10, 10, 110, 34}) {
        return CreateWindowExW(0, L"BUTTON", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, at.left, at.top,
                               at.right - at.left, at.bottom - at.top, m_hWnd,
                               reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kControlId)), nullptr, nullptr);
    }

    int PrepareButtonMenu(UINT buttonId, CMenu& menu) override {
        asked.push_back(buttonId);
        if (!hasMenu)
            return 0;
        CMenu popup;
        popup.CreatePopupMenu();
        popup.AppendMenu(MF_STRING, kFirstCommand, L"first");
        popup.AppendMenu(MF_STRING, kFirstCommand + 1, L"second");
        menu.CreateMenu();
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"menu");
        SetTimer(kCloser, 30);
        return 1;
    }

    /// What has come by now, in order: for each WM_COMMAND its id and code.
    std::vector<std::pair<int, int>> takeCommands() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        return std::exchange(m_commands, {});
    }

    bool hasMenu = true;
    WPARAM closingKey = VK_ESCAPE;
    std::function<void()> whileOpen = [] {};
    std::vector<UINT> asked;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const BOOL taken = CWnd::OnCommand(wParam, lParam);
        if (!taken)
            m_commands.emplace_back(LOWORD(wParam), HIWORD(wParam));
        return taken;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_TIMER && wParam == kCloser) {
            KillTimer(kCloser);
            whileOpen();
            PostMessage(WM_KEYDOWN, closingKey);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    static constexpr UINT_PTR kCloser = 1;
    std::vector<std::pair<int, int>> m_commands;
};

inline std::vector<std::wstring> textsOf(const CComboBox& combo) {
    std::vector<std::wstring> texts;
    CString text;
    for (int index = 0; index < combo.GetCount(); ++index) {
        combo.GetLBText(index, text);
        texts.emplace_back(text.view());
    }
    return texts;
}

/// The library's resource module as a resource source.
class ResourcesInUse {
public:
    ResourcesInUse() : m_module(LoadLibraryW(L"KnavRes.dll")), m_link(m_module) {}
    ~ResourcesInUse() { FreeLibrary(m_module); }
    ResourcesInUse(const ResourcesInUse&) = delete;
    ResourcesInUse& operator=(const ResourcesInUse&) = delete;

private:
    HMODULE m_module;
    CDynLinkLibrary m_link;
};

}  // namespace knav::test
