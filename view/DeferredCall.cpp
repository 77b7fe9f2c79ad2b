#include "view/DeferredCall.h"

#include "data/ApiEdge.h"

#include <utility>

namespace knav {
namespace {

constexpr UINT kRun = WM_APP;

}  // namespace

DeferredCall::~DeferredCall() {
    if (m_window != nullptr) {
        DestroyWindow(m_window);
    }
}

bool DeferredCall::post() {
    if (!m_posted) {
        m_posted = makeWindow() && PostMessageW(m_window, kRun, 0, 0);
    }
    return m_posted;
}

bool DeferredCall::makeWindow() {
    if (m_window == nullptr) {
        m_window = CreateWindowExW(0, WC_STATICW, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        if (m_window != nullptr) {
            SetWindowSubclass(m_window, receive, 0, reinterpret_cast<DWORD_PTR>(this));
        }
    }
    return m_window != nullptr;
}

LRESULT CALLBACK DeferredCall::receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR self) {
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, receive, id);
    } else if (message == kRun) {
        auto* const call = reinterpret_cast<DeferredCall*>(self);
        call->m_posted = false;
        atApiEdge([call] {
            const auto work = call->m_work;  // a copy: the work may destroy the object
            work();
        });
        return 0;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace knav
