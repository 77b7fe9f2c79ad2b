// The tie between one window and its object.
#pragma once

#include <memory>

#include <platform/CWnd.h>

namespace zoui {

// Hung on the window itself as a property. Lives until both the object has let go and no message of the window is being
// handled any more.
struct WindowBinding {
    CWnd* object;  // null when the object has let go
    HWND window;
    bool subclassed;
    bool created;            // the object made the window, so it takes it along when it ends
    WNDPROC next = nullptr;  // who gets the messages after the object; null: the system's list of subclasses decides
    int depth = 0;
    MSG current{};

    static WindowBinding* of(HWND window) noexcept;

    // Null when the window is dead, has an object already or belongs to another thread.
    static WindowBinding* make(CWnd& object, HWND window, bool subclass, bool created);
    static void letGo(CWnd& object) noexcept;

    // What the window does with a message of its own accord.
    LRESULT passOn(UINT message, WPARAM wParam, LPARAM lParam) const noexcept;

private:
    bool intercept() noexcept;
    void stopIntercepting() noexcept;
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK listedProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                            DWORD_PTR data);
    static LRESULT receive(WindowBinding& binding, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT handle(WindowBinding& binding, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    static void windowEnded(WindowBinding& binding) noexcept;
};

// Binds the next window that this thread creates, before it gets its first message.
class CreationHook {
public:
    explicit CreationHook(CWnd& object);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);

    CreationHook* m_outer;
    CWnd* m_object;
    HHOOK m_hook;
};

}  // namespace zoui
