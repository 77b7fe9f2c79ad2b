#include "bench/open/FirstPaint.h"

#include <array>
#include <string_view>

namespace {

constexpr UINT kLimitMs = 60'000;

bench::FirstPaint* g_waiting = nullptr;
WNDPROC g_listProcedure = nullptr;

bool isOfClass(HWND window, std::wstring_view name) {
    std::array<wchar_t, 32> text{};
    const int length = GetClassNameW(window, text.data(), static_cast<int>(text.size()));
    return std::wstring_view(text.data(), static_cast<std::size_t>(length)) == name;
}

}  // namespace

bench::FirstPaint::FirstPaint(int items, std::function<void(HWND top)> painted)
    : m_items(items),
      m_painted(std::move(painted)),
      m_hook(SetWindowsHookExW(WH_CBT, &onWindow, nullptr, GetCurrentThreadId())),
      m_limit(SetTimer(nullptr, 0, kLimitMs, &onLimit)) {
    g_waiting = this;
}

bench::FirstPaint::~FirstPaint() {
    KillTimer(nullptr, m_limit);
    UnhookWindowsHookEx(m_hook);
    g_waiting = nullptr;
}

// Of all hooks the one for the creation of windows is the cheapest: it is not asked about messages. So is this way of
// watching a window: the system's list of subclasses is looked up for every message.
LRESULT CALLBACK bench::FirstPaint::onWindow(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && g_waiting != nullptr) {
        const auto window = reinterpret_cast<HWND>(wParam);
        const HWND parent = reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs->hwndParent;
        if (isOfClass(window, WC_LISTVIEWW) && isOfClass(parent, L"SHELLDLL_DefView")) {
            const LONG_PTR before = SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&onList));
            g_listProcedure = reinterpret_cast<WNDPROC>(before);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK bench::FirstPaint::onList(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallWindowProcW(g_listProcedure, list, message, wParam, lParam);
    if (message == WM_PAINT && g_waiting != nullptr) {
        g_waiting->paintedList(list);
    }
    return result;
}

void bench::FirstPaint::paintedList(HWND list) {
    if (m_when || !IsWindowVisible(list) || ListView_GetItemCount(list) != m_items) {
        return;
    }
    m_when = Clock::now();
    m_painted(GetAncestor(list, GA_ROOT));
}

// A view that never fills must not stop the benchmark.
void CALLBACK bench::FirstPaint::onLimit(HWND, UINT, UINT_PTR, DWORD) {
    if (const HWND window = windowInFront()) {
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    }
}

HWND bench::windowInFront() {
    HWND found = nullptr;
    const auto look = [](HWND window, LPARAM result) -> BOOL {
        *reinterpret_cast<HWND*>(result) = IsWindowVisible(window) ? window : nullptr;
        return !IsWindowVisible(window);
    };
    EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&found));
    return found;
}
