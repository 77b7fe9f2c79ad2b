#include "controls/Accessible.h"

#include <oleacc.h>

#include <memory>

#include "data/ApiEdge.h"
#include "shell/ComPtr.h"

namespace knav {
namespace {

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool opensMenu(long role) {
    return role == ROLE_SYSTEM_BUTTONMENU || role == ROLE_SYSTEM_SPLITBUTTON;
}

bool isButton(long role) {
    return role == ROLE_SYSTEM_PUSHBUTTON || opensMenu(role);
}

/// What the keyboard calls the key.
std::wstring altKey() {
    const auto code = static_cast<LONG>(MapVirtualKeyW(VK_MENU, MAPVK_VK_TO_VSC));
    wchar_t name[32] = L"";
    const bool named = GetKeyNameTextW(code << 16, name, static_cast<int>(std::size(name))) > 0;
    return named ? name : L"Alt";
}

/// Answers with the text that `make` gives.
template <class Make>
HRESULT give(BSTR* result, Make&& make) {
    if (!result) {
        return E_POINTER;
    }
    *result = nullptr;
    return atApiEdge<HRESULT>(E_OUTOFMEMORY, [&] {
        const std::wstring text = make();
        *result = text.empty() ? nullptr : SysAllocString(text.c_str());
        return *result != nullptr ? S_OK : S_FALSE;
    });
}

/// The system's object for the control, with its own answers for the control itself. It may outlive the control.
class AccessibleControl final : public IAccessible {
public:
    AccessibleControl(HWND control, const AccessibleFacts& facts) : m_control(control), m_facts(facts) {
        CreateStdAccessibleObject(control, OBJID_CLIENT, IID_IAccessible, reinterpret_cast<void**>(m_system.put()));
    }

    STDMETHOD(QueryInterface)(REFIID iid, void** object) override {
        if (!object) {
            return E_POINTER;
        }
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == IID_IAccessible;
        *object = known ? static_cast<IAccessible*>(this) : nullptr;
        if (!known) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHOD_(ULONG, AddRef)() override { return static_cast<ULONG>(InterlockedIncrement(&m_references)); }
    STDMETHOD_(ULONG, Release)() override {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0) {
            delete this;
        }
        return static_cast<ULONG>(left);
    }

    // --- what differs ---------------------------------------------------------------------------------------------
    STDMETHOD(get_accName)(VARIANT child, BSTR* name) override {
        return isSelf(child) ? give(name, [this] { return plainName(caption()); })
                             : ask(&IAccessible::get_accName, child, name);
    }
    STDMETHOD(get_accDescription)(VARIANT child, BSTR* text) override {
        const bool own = isSelf(child) && m_facts.description && IsWindow(m_control);
        return own ? give(text, m_facts.description) : ask(&IAccessible::get_accDescription, child, text);
    }
    STDMETHOD(get_accRole)(VARIANT child, VARIANT* role) override {
        if (!isSelf(child)) {
            return ask(&IAccessible::get_accRole, child, role);
        }
        if (!role) {
            return E_POINTER;
        }
        role->vt = VT_I4;
        role->lVal = m_facts.role;
        return S_OK;
    }
    STDMETHOD(get_accState)(VARIANT child, VARIANT* state) override {
        const HRESULT result = ask(&IAccessible::get_accState, child, state);
        if (result == S_OK && isSelf(child) && state->vt == VT_I4 && opensMenu(m_facts.role)) {
            state->lVal |= STATE_SYSTEM_HASPOPUP;
        }
        return result;
    }
    STDMETHOD(get_accKeyboardShortcut)(VARIANT child, BSTR* keys) override {
        return isSelf(child) ? give(keys, [this] { return shortcutOf(caption()); })
                             : ask(&IAccessible::get_accKeyboardShortcut, child, keys);
    }
    STDMETHOD(accDoDefaultAction)(VARIANT child) override {
        // Posted: what the button does may take until the user has closed a menu or a message.
        if (isSelf(child) && isButton(m_facts.role)) {
            return PostMessageW(m_control, BM_CLICK, 0, 0) ? S_OK : E_FAIL;
        }
        return ask(&IAccessible::accDoDefaultAction, child);
    }

    // --- what the system says ---------------------------------------------------------------------------------------
    STDMETHOD(GetTypeInfoCount)(UINT* count) override { return ask(&IAccessible::GetTypeInfoCount, count); }
    STDMETHOD(GetTypeInfo)(UINT index, LCID locale, ITypeInfo** info) override {
        return ask(&IAccessible::GetTypeInfo, index, locale, info);
    }
    STDMETHOD(GetIDsOfNames)(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return m_system ? m_system->GetIDsOfNames(iid, names, count, locale, ids) : E_NOTIMPL;
    }
    STDMETHOD(Invoke)
    (DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
     UINT* argument) override {
        return m_system ? m_system->Invoke(id, iid, locale, flags, parameters, result, exception, argument) : E_NOTIMPL;
    }
    STDMETHOD(get_accParent)(IDispatch** parent) override { return ask(&IAccessible::get_accParent, parent); }
    STDMETHOD(get_accChildCount)(long* count) override { return ask(&IAccessible::get_accChildCount, count); }
    STDMETHOD(get_accChild)(VARIANT child, IDispatch** object) override {
        return ask(&IAccessible::get_accChild, child, object);
    }
    STDMETHOD(get_accValue)(VARIANT child, BSTR* value) override {
        return ask(&IAccessible::get_accValue, child, value);
    }
    STDMETHOD(get_accHelp)(VARIANT child, BSTR* help) override { return ask(&IAccessible::get_accHelp, child, help); }
    STDMETHOD(get_accHelpTopic)(BSTR* file, VARIANT child, long* topic) override {
        return ask(&IAccessible::get_accHelpTopic, file, child, topic);
    }
    STDMETHOD(get_accFocus)(VARIANT* child) override { return ask(&IAccessible::get_accFocus, child); }
    STDMETHOD(get_accSelection)(VARIANT* children) override { return ask(&IAccessible::get_accSelection, children); }
    STDMETHOD(get_accDefaultAction)(VARIANT child, BSTR* action) override {
        return ask(&IAccessible::get_accDefaultAction, child, action);
    }
    STDMETHOD(accSelect)(long flags, VARIANT child) override { return ask(&IAccessible::accSelect, flags, child); }
    STDMETHOD(accLocation)(long* left, long* top, long* width, long* height, VARIANT child) override {
        return ask(&IAccessible::accLocation, left, top, width, height, child);
    }
    STDMETHOD(accNavigate)(long direction, VARIANT start, VARIANT* end) override {
        return ask(&IAccessible::accNavigate, direction, start, end);
    }
    STDMETHOD(accHitTest)(long left, long top, VARIANT* child) override {
        return ask(&IAccessible::accHitTest, left, top, child);
    }
    STDMETHOD(put_accName)(VARIANT child, BSTR name) override { return ask(&IAccessible::put_accName, child, name); }
    STDMETHOD(put_accValue)(VARIANT child, BSTR value) override {
        return ask(&IAccessible::put_accValue, child, value);
    }

private:
    ~AccessibleControl() = default;

    static bool isSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }
    std::wstring caption() const { return textOf(m_facts.label ? m_facts.label : m_control); }

    template <class Method, class... Arguments>
    HRESULT ask(Method method, Arguments... arguments) {
        return m_system ? guarded([&] { return (m_system.get()->*method)(arguments...); }) : E_FAIL;
    }

    const HWND m_control;
    const AccessibleFacts m_facts;
    ComPtr<IAccessible> m_system;
    LONG m_references = 1;
};

ComPtr<IAccessible> accessibleOf(HWND control, const AccessibleFacts& facts) {
    return atApiEdge(ComPtr<IAccessible>(),
                     [&] { return ComPtr<IAccessible>::adopt(new AccessibleControl(control, facts)); });
}

constexpr UINT_PTR kHookId = 0xACCE;

LRESULT CALLBACK hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR reference) {
    auto* const facts = reinterpret_cast<AccessibleFacts*>(reference);
    if (message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT) {
        if (const auto object = accessibleOf(window, *facts)) {
            return LresultFromObject(IID_IAccessible, wParam, object.get());
        }
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, hook, id);
        const std::unique_ptr<AccessibleFacts> owned(facts);
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

void makeAccessible(HWND control, AccessibleFacts facts) {
    if (!control) {
        return;
    }
    auto owned = std::make_unique<AccessibleFacts>(std::move(facts));
    if (SetWindowSubclass(control, hook, kHookId, reinterpret_cast<DWORD_PTR>(owned.get()))) {
        owned.release();
    }
}

std::wstring plainName(std::wstring_view caption) {
    std::wstring name;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && i + 1 < caption.size()) {
            ++i;
        }
        name += caption[i];
    }
    if (name.ends_with(L':')) {
        name.pop_back();
    }
    return name;
}

std::wstring shortcutOf(std::wstring_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&') {
            continue;
        }
        if (caption[i + 1] != L'&') {
            const auto key = static_cast<wchar_t>(reinterpret_cast<ULONG_PTR>(
                CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(caption[i + 1])))));
            return altKey() + L'+' + key;
        }
        ++i;
    }
    return {};
}

}  // namespace knav
