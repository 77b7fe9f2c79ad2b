#include "platform/WindowBinding.h"

#include <cwchar>
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
    if (subclass && !SetWindowSubclass(window, procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(binding.get()))) {
        return nullptr;
    }
    if (!SetPropW(window, propertyName(), binding.get())) {
        RemoveWindowSubclass(window, procedure, kSubclassId);
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
        if (binding->subclassed) {
            RemoveWindowSubclass(binding->window, procedure, kSubclassId);
        }
    }
    binding->object = nullptr;
    if (binding->depth == 0) {
        delete binding;
    }
}

LRESULT CALLBACK WindowBinding::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR data) {
    auto& binding = *reinterpret_cast<WindowBinding*>(data);
    const Frame frame(binding, MSG{window, message, wParam, lParam, 0, {}});
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
            return DefSubclassProc(binding.window, message, wParam, lParam);
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
