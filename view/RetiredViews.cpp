#include "view/RetiredViews.h"

#include <utility>

namespace knav {
namespace {

void destroyViewWindow(IShellView* view) {
    guarded([view] { return view->DestroyViewWindow(); });
}

}  // namespace

RetiredViews::CallFromView::~CallFromView() {
    if (--m_views.m_calls == 0 && !m_views.m_views.empty()) {
        m_views.m_destroyLater.post();
    }
}

void RetiredViews::retire(ComPtr<IShellView> view) {
    if (!view) {
        return;
    }
    if (m_calls == 0) {
        destroyViewWindow(view.get());
        return;
    }
    if (const HWND window = windowOfView(view.get())) {
        ShowWindow(window, SW_HIDE);
    }
    m_views.push_back(std::move(view));
}

void RetiredViews::destroyAll() {
    for (const auto& view : std::exchange(m_views, {})) {
        destroyViewWindow(view.get());
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
