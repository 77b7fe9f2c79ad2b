#include "view/RetiredViews.h"

#include <utility>

namespace knav {

RetiredViews::CallFromView::~CallFromView() {
    if (--m_views.m_calls == 0 && !m_views.m_views.empty()) {
        m_views.m_destroyLater.post();
    }
}

void RetiredViews::destroy(const Retired& retired) {
    guarded([&retired] { return retired.view->DestroyViewWindow(); });
    if (IsWindow(retired.window)) {
        guardedRun([&retired] { DestroyWindow(retired.window); });
    }
}

void RetiredViews::retire(ComPtr<IShellView> view, HWND window) {
    if (!view) {
        return;
    }
    Retired retired{std::move(view), window};
    if (m_calls == 0) {
        destroy(retired);
        return;
    }
    if (IsWindow(window)) {
        ShowWindow(window, SW_HIDE);
    }
    m_views.push_back(std::move(retired));
}

void RetiredViews::destroyAll() {
    for (const Retired& retired : std::exchange(m_views, {})) {
        destroy(retired);
    }
}

// A nested message loop (a message box shown from the view's handler) may get here too early; the end of the call posts
// again.
void RetiredViews::destroyIdle() {
    if (m_calls == 0) {
        destroyAll();
    }
}

HWND windowOfView(IShellView* view) {
    HWND window = nullptr;
    return view != nullptr && SUCCEEDED(guarded([&] { return view->GetWindow(&window); })) ? window : nullptr;
}

}  // namespace knav
