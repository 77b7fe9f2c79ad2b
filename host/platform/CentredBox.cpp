#include "platform/CentredBox.h"

#include <algorithm>
#include <utility>

namespace zoui {
namespace {

thread_local CentredBox* t_innermost = nullptr;

bool isDialog(HWND window) noexcept {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, ARRAYSIZE(name));
    return lstrcmpiW(name, L"#32770") == 0;
}

// Where a span of `length` begins whose middle is that of `around`, inside `room`.
LONG startOf(LONG length, LONG aroundStart, LONG aroundEnd, LONG roomStart, LONG roomEnd) noexcept {
    const LONG middle = aroundStart + (aroundEnd - aroundStart - length) / 2;
    return std::max(roomStart, std::min(middle, roomEnd - length));
}

}  // namespace

void centreOver(HWND window, HWND owner) noexcept {
    if (owner == nullptr || !IsWindowVisible(owner) || IsIconic(owner)) {
        return;
    }
    RECT around{};
    RECT box{};
    GetWindowRect(owner, &around);
    GetWindowRect(window, &box);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& room = monitor.rcWork;
    SetWindowPos(window, nullptr, startOf(box.right - box.left, around.left, around.right, room.left, room.right),
                 startOf(box.bottom - box.top, around.top, around.bottom, room.top, room.bottom), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CentredBox::CentredBox(HWND owner) noexcept
    : m_owner(owner != nullptr ? GetAncestor(owner, GA_ROOT) : nullptr),
      m_outer(t_innermost),
      m_hook(SetWindowsHookExW(WH_CBT, &onActivity, nullptr, GetCurrentThreadId())) {
    t_innermost = this;
}

CentredBox::~CentredBox() {
    t_innermost = m_outer;
    if (m_hook != nullptr) {
        UnhookWindowsHookEx(m_hook);
    }
}

LRESULT CALLBACK CentredBox::onActivity(int code, WPARAM wParam, LPARAM lParam) noexcept {
    const auto window = reinterpret_cast<HWND>(wParam);
    // It has its size by the time it is activated, and is not on the screen yet.
    if (code == HCBT_ACTIVATE && t_innermost != nullptr && t_innermost->m_owner != nullptr &&
        GetWindow(window, GW_OWNER) == t_innermost->m_owner && isDialog(window)) {
        centreOver(window, std::exchange(t_innermost->m_owner, nullptr));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace zoui
