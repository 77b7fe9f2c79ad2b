// A window with buttons, for tests.
#pragma once

#include <knav/CNavButtonMenuSource.h>
#include <platform/CMenu.h>
#include <platform/CWnd.h>
#include <platform/GdiOwners.h>
#include <platform/Resources.h>

#include <vector>

#include "controls/GdiPlus.h"

namespace knav::test {

inline constexpr UINT kButtonId = 100;
inline constexpr UINT kFirstCommand = 201;

/// Records the commands it gets; its menu has two entries, and closes by itself or by choosing the highlighted one.
class ButtonHost : public CWnd, public CNavButtonMenuSource {
public:
    enum class Close { Escape, Choose };

    ButtonHost() { CreateEx(0, nullptr, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr); }
    ~ButtonHost() override { CWnd::DestroyWindow(); }

    HWND addButton(DWORD style, const wchar_t* text = L"&Open", RECT at = {10, 10, 110, 34}) {
        return CreateWindowExW(0, L"BUTTON", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, at.left, at.top,
                               at.right - at.left, at.bottom - at.top, m_hWnd,
                               reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kButtonId)), nullptr, nullptr);
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
    Close close = Close::Escape;
    std::function<void()> whileOpen;
    std::vector<UINT> asked;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_commands.emplace_back(LOWORD(wParam), HIWORD(wParam));
        return CWnd::OnCommand(wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_TIMER && wParam == kCloser) {
            KillTimer(kCloser);
            if (whileOpen)
                whileOpen();
            PostMessage(WM_KEYDOWN, close == Close::Choose ? VK_RETURN : VK_ESCAPE);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    static constexpr UINT_PTR kCloser = 1;
    std::vector<std::pair<int, int>> m_commands;
};

/// What a window paints, as pixels.
inline std::vector<DWORD> paintedBy(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = area.right;
    info.bmiHeader.biHeight = -area.bottom;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const zoui::UniqueMemoryDC dc(CreateCompatibleDC(nullptr));
    const zoui::UniqueBitmap bitmap(CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const zoui::SelectedObject selected(dc.get(), bitmap.get());
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
    GdiFlush();
    const auto* pixels = static_cast<const DWORD*>(bits);
    std::vector<DWORD> result(pixels, pixels + area.right * area.bottom);
    for (DWORD& pixel : result)
        pixel &= 0xFFFFFF;
    return result;
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
