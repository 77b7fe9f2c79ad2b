#include "platform/WindowBinding.h"

#include <cwchar>
#include <unordered_map>
#include <utility>

namespace zoui {

namespace {

constexpr UINT_PTR kSubclassId = 1;

thread_local CreationHook* t_innermostHook = nullptr;

// Named after this copy of the framework: another one in the process has windows of its own.
const wchar_t* propertyName() noexcept {
    static const ATOM atom = [] {
        wchar_t name[40];
        std::swprintf(name, ARRAYSIZE(name), L"zoui.CWnd.%p", static_cast<const void*>(&kSubclassId));
        return GlobalAddAtomW(name);
    }();
    return MAKEINTATOM(atom);
}

// Messages are intercepted by an own window procedure. The system's list of subclasses looks itself up on the window
// three times for each message, which on some systems are calls to another process and half of what opening a dialog
// costs. Where a window is in that list already, though, it has to be used: it takes its procedure off the window in
// the end without regard to what came later.
struct Interception {
    WNDPROC next;
    WindowBinding* binding;  // null when the object has let go but somebody came in front of us since
};
thread_local std::unordered_map<HWND, Interception> t_interceptions;

bool isInSystemList(HWND window) noexcept {
    return GetPropW(window, L"CC32SubclassInfo") != nullptr;
}

// The system's subclass list is not for windows of other threads, but does not always refuse them.
bool isOfThisThread(HWND window) noexcept {
    return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

bool isOfThisProcess(HWND window) noexcept {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

// Notes the message being handled and keeps the binding alive while it is.
class Frame {
public:
    Frame(WindowBinding& binding, const MSG& message) noexcept
        : m_binding(binding), m_outer(std::exchange(binding.current, message)) {
        ++m_binding.depth;
    }
    ~Frame() {
        m_binding.current = m_outer;
        if (--m_binding.depth == 0 && m_binding.object == nullptr) {
            delete &m_binding;
        }
    }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

private:
    WindowBinding& m_binding;
    MSG m_outer;
};

}  // namespace

WindowBinding* WindowBinding::of(HWND window) noexcept {
    auto* const binding = static_cast<WindowBinding*>(GetPropW(window, propertyName()));
    // Another process's windows may carry the property too, but its pointer means nothing here.
    return binding != nullptr && isOfThisProcess(window) ? binding : nullptr;
}

WindowBinding* WindowBinding::make(CWnd& object, HWND window, bool subclass, bool created) {
    if (!IsWindow(window) || of(window) != nullptr || (subclass && !isOfThisThread(window))) {
        return nullptr;
    }
    auto binding = std::make_unique<WindowBinding>(WindowBinding{&object, window, subclass, created});
    if (subclass && !binding->intercept()) {
        return nullptr;
    }
    if (!SetPropW(window, propertyName(), binding.get())) {
        binding->stopIntercepting();
        return nullptr;
    }
    return binding.release();
}

void WindowBinding::letGo(CWnd& object) noexcept {
    WindowBinding* const binding = std::exchange(object.m_binding, nullptr);
    object.m_hWnd = nullptr;
    if (binding == nullptr) {
        return;
    }
    // A merely attached window may have ended unnoticed and its handle may be in use again.
    if (of(binding->window) == binding) {
        RemovePropW(binding->window, propertyName());
        binding->stopIntercepting();
    }
    binding->object = nullptr;
    if (binding->depth == 0) {
        delete binding;
    }
}

bool WindowBinding::intercept() noexcept try {
    if (!created && isInSystemList(window)) {
        return SetWindowSubclass(window, listedProcedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
    }
    Interception& entry = t_interceptions[window];
    if (entry.next == nullptr) {
        const LONG_PTR before = SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
        entry.next = reinterpret_cast<WNDPROC>(before);
    }
    if (entry.next == nullptr) {
        t_interceptions.erase(window);
        return false;
    }
    entry.binding = this;
    next = entry.next;
    return true;
} catch (...) {
    return false;
}

void WindowBinding::stopIntercepting() noexcept {
    if (!subclassed) {
        return;
    }
    if (next == nullptr) {
        RemoveWindowSubclass(window, listedProcedure, kSubclassId);
        return;
    }
    const auto entry = t_interceptions.find(window);
    if (entry == t_interceptions.end()) {
        return;
    }
    if (GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&procedure)) {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(next));
        t_interceptions.erase(entry);
    } else {
        entry->second.binding = nullptr;
    }
}

LRESULT WindowBinding::passOn(UINT message, WPARAM wParam, LPARAM lParam) const noexcept {
    return next != nullptr ? CallWindowProcW(next, window, message, wParam, lParam)
           : subclassed    ? DefSubclassProc(window, message, wParam, lParam)
                           : ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK WindowBinding::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto entry = t_interceptions.find(window);
    if (entry == t_interceptions.end()) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    const Interception found = entry->second;
    const LRESULT result = found.binding != nullptr ? receive(*found.binding, message, wParam, lParam)
                                                    : CallWindowProcW(found.next, window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        t_interceptions.erase(window);
    }
    return result;
}

LRESULT CALLBACK WindowBinding::listedProcedure(HWND, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                                DWORD_PTR data) {
    return receive(*reinterpret_cast<WindowBinding*>(data), message, wParam, lParam);
}

LRESULT WindowBinding::receive(WindowBinding& binding, UINT message, WPARAM wParam, LPARAM lParam) {
    const Frame frame(binding, MSG{binding.window, message, wParam, lParam, 0, {}});
    const LRESULT result = handle(binding, message, wParam, lParam);
    if (message == WM_NCDESTROY && binding.object != nullptr) {
        windowEnded(binding);
    }
    return result;
}

LRESULT WindowBinding::handle(WindowBinding& binding, UINT message, WPARAM wParam, LPARAM lParam) noexcept try {
    return binding.object->WindowProc(message, wParam, lParam);
} catch (...) {
    OutputDebugStringW(L"zoui: a message handler threw; the message counts as handled\n");
    switch (message) {
        case WM_CREATE:
            return -1;
        case WM_NCDESTROY:
            return binding.passOn(message, wParam, lParam);
        default:
            return 0;
    }
}

void WindowBinding::windowEnded(WindowBinding& binding) noexcept try {
    CWnd& object = *binding.object;
    letGo(object);
    object.PostNcDestroy();
} catch (...) {
    OutputDebugStringW(L"zoui: PostNcDestroy threw\n");
}

CreationHook::CreationHook(CWnd& object)
    : m_outer(std::exchange(t_innermostHook, this)),
      m_object(&object),
      m_hook(SetWindowsHookExW(WH_CBT, hook, nullptr, GetCurrentThreadId())) {
}

CreationHook::~CreationHook() {
    if (m_hook != nullptr) {
        UnhookWindowsHookEx(m_hook);
    }
    t_innermostHook = m_outer;
}

LRESULT CALLBACK CreationHook::hook(int code, WPARAM wParam, LPARAM lParam) {
    CreationHook* const self = t_innermostHook;
    if (code != HCBT_CREATEWND || self == nullptr || self->m_object == nullptr) {
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    // Only the first window is ours: the ones it creates in turn are its own affair.
    CWnd* const object = std::exchange(self->m_object, nullptr);
    UnhookWindowsHookEx(std::exchange(self->m_hook, nullptr));
    try {
        object->bindCreated(reinterpret_cast<HWND>(wParam));
    } catch (...) {
        return 1;  // no window rather than one without its object
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace zoui
