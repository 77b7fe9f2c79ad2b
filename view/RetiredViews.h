// Views that have been replaced while they were calling us.
#pragma once

#include "shell/ComPtr.h"
#include "view/DeferredCall.h"

#include <vector>

namespace knav {

/// A view is never destroyed inside its own handler: while a call from a view is under way, views that are put here are
/// only hidden, and destroyed from the message loop after the call has returned.
class RetiredViews {
public:
    RetiredViews() : m_destroyLater([this] { destroyIdle(); }) {}
    ~RetiredViews() { destroyAll(); }

    /// Lives as long as a call that a view makes to us.
    class CallFromView {
    public:
        explicit CallFromView(RetiredViews& views) : m_views(views) { ++views.m_calls; }
        CallFromView(const CallFromView&) = delete;
        CallFromView& operator=(const CallFromView&) = delete;
        ~CallFromView();

    private:
        RetiredViews& m_views;
    };

    /// Takes over a view and destroys its window, now or as soon as it may; also when the view itself does not.
    void retire(ComPtr<IShellView> view, HWND window);
    /// For the end of the dialog, when no message loop follows.
    void destroyAll();
    bool empty() const { return m_views.empty(); }

private:
    void destroyIdle();

    struct Retired {
        ComPtr<IShellView> view;
        HWND window;
    };

    static void destroy(const Retired& retired);

    std::vector<Retired> m_views;
    DeferredCall m_destroyLater;
    int m_calls = 0;
};

/// The view's window; null when it has none.
HWND windowOfView(IShellView* view);

}  // namespace knav
