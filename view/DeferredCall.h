// A call that has to wait until the code now running has returned to the message loop.
#pragma once

#include <platform/Windows.h>

#include <functional>

namespace knav {

/// Runs `work` once from the message loop after post(), however often that was called before. Nothing runs after the
/// object has gone. `work` may destroy the object. For one thread.
class DeferredCall {
public:
    explicit DeferredCall(std::function<void()> work) : m_work(std::move(work)) {}
    DeferredCall(const DeferredCall&) = delete;
    DeferredCall& operator=(const DeferredCall&) = delete;
    ~DeferredCall();

    /// False when the system has no window left to post to; the work is then not done.
    bool post();

private:
    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR self);
    bool makeWindow();

    std::function<void()> m_work;
    HWND m_window = nullptr;  // message-only, made by the first post
    bool m_posted = false;
};

}  // namespace knav
