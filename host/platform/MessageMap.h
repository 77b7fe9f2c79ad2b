// Message maps: constant tables that lead a message to a member function, checked by the compiler for signature.
//
//     class CSample : public CDialog {
//         DECLARE_MESSAGE_MAP()
//         void OnApply();
//     };
//     BEGIN_MESSAGE_MAP(CSample, CDialog)
//         ON_COMMAND(IDC_APPLY, &CSample::OnApply)
//         ON_WM_SIZE()
//     END_MESSAGE_MAP()
//
// Handlers are named as &Class::Member. The ON_WM_ macros (WindowMessages.h) name the member OnXxx themselves.
#pragma once

#include <span>
#include <type_traits>

#include <platform/Windows.h>
#include <platform/export.h>

class CCmdTarget;

namespace zoui {

// One message or command on its way to a handler. `id` is the command or control id.
struct MessageCall {
    WPARAM wParam;
    LPARAM lParam;
    UINT id;
    LRESULT* result;
};

// Calls the handler. False: the handler declined, and the search for one goes on.
using MessageThunk = bool (*)(CCmdTarget& target, const MessageCall& call);

// Added to the number of a message that is offered to the child window it came from, before its parent.
inline constexpr UINT kReflected = 0xBC00;

}  // namespace zoui

// A command without a notification code: from a menu, an accelerator or a button's click.
inline constexpr int CN_COMMAND = 0;

struct AFX_MSGMAP_ENTRY {
    UINT m_message;  // WM_COMMAND and WM_NOTIFY entries also compare code and id
    UINT m_code;
    UINT m_firstId;
    UINT m_lastId;
    zoui::MessageThunk m_thunk;
    const UINT* m_registered = nullptr;  // the message number, where it is only known at run time
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*m_getBase)();  // null at the root
    std::span<const AFX_MSGMAP_ENTRY> m_entries;
};

// What CCmdTarget::OnCmdMsg gets as `extra` for WM_NOTIFY.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// Passed to CCmdTarget::OnCmdMsg to ask who would handle a command without running it.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget = nullptr;
};

namespace zoui {

template <class Member>
struct HandlerOf;
template <class Class, class Result, class... Arguments>
struct HandlerOf<Result (Class::*)(Arguments...)> {
    using Target = Class;
};

template <auto Handler>
auto& targetOf(CCmdTarget& target) {
    return static_cast<typename HandlerOf<decltype(Handler)>::Target&>(target);
}

// Whether a handler took the command: always, unless it is one that says so by its result.
template <bool Declines, class Body>
bool taken(Body body) {
    if constexpr (Declines) {
        return body() != 0;
    } else {
        body();
        return true;
    }
}

// void or BOOL Handler(), or with the command's id.
template <auto Handler, bool Declines = false>
bool callCommand(CCmdTarget& target, const MessageCall& call) {
    auto& object = targetOf<Handler>(target);
    return taken<Declines>([&] {
        if constexpr (std::is_invocable_v<decltype(Handler), decltype(object), UINT>) {
            return (object.*Handler)(call.id);
        } else {
            return (object.*Handler)();
        }
    });
}

// void Handler(NMHDR*, LRESULT*)
template <auto Handler>
bool callNotify(CCmdTarget& target, const MessageCall& call) {
    (targetOf<Handler>(target).*Handler)(reinterpret_cast<NMHDR*>(call.lParam), call.result);
    return true;
}

// LRESULT Handler(WPARAM, LPARAM)
template <auto Handler>
bool callRaw(CCmdTarget& target, const MessageCall& call) {
    auto& object = targetOf<Handler>(target);
    static_assert(std::is_same_v<decltype((object.*Handler)(call.wParam, call.lParam)), LRESULT>,
                  "the handler of ON_MESSAGE is LRESULT Handler(WPARAM, LPARAM)");
    *call.result = (object.*Handler)(call.wParam, call.lParam);
    return true;
}

}  // namespace zoui

// In the class body; ends in `protected:` access.
#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

// In the class's source. END_MESSAGE_MAP closes the table.
#define BEGIN_MESSAGE_MAP(the_class, base_class)                                                               \
    const AFX_MSGMAP* the_class::GetMessageMap() const {                                                       \
        return GetThisMessageMap();                                                                            \
    }                                                                                                          \
    const AFX_MSGMAP* the_class::GetThisMessageMap() {                                                         \
        using ThisClass [[maybe_unused]] = the_class;                                                          \
        static constexpr auto getBase = []() -> const AFX_MSGMAP* { return base_class::GetThisMessageMap(); }; \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                          \
    {WM_NULL, 0, 0, 0, nullptr, nullptr},          \
    }                                              \
    ;                                              \
    static const AFX_MSGMAP map{getBase, entries}; \
    return &map;                                   \
    }

// Commands of menus, accelerators and buttons.
#define ON_COMMAND(id, handler) {WM_COMMAND, CN_COMMAND, (id), (id), &zoui::callCommand<handler>},
#define ON_COMMAND_RANGE(first, last, handler) {WM_COMMAND, CN_COMMAND, (first), (last), &zoui::callCommand<handler>},

// Notifications of child controls, by code.
#define ON_CONTROL(code, id, handler) {WM_COMMAND, (code), (id), (id), &zoui::callCommand<handler>},
#define ON_BN_CLICKED(id, handler) ON_CONTROL(BN_CLICKED, id, handler)
#define ON_CBN_SELCHANGE(id, handler) ON_CONTROL(CBN_SELCHANGE, id, handler)
#define ON_NOTIFY(code, id, handler) {WM_NOTIFY, LOWORD(code), (id), (id), &zoui::callNotify<handler>},

// The same notifications, handled by the control's own class before its parent sees them: it does when the handler,
// which returns BOOL, returns 0.
#define ON_CONTROL_REFLECT_EX(code, handler) \
    {WM_COMMAND + zoui::kReflected, (code), 0, 0, &zoui::callCommand<handler, true>},

// Any message. `variable` is a static UINT that holds a registered message's number.
#define ON_MESSAGE(message, handler) {(message), 0, 0, 0, &zoui::callRaw<handler>},
#define ON_REGISTERED_MESSAGE(variable, handler) {WM_NULL, 0, 0, 0, &zoui::callRaw<handler>, &(variable)},
