// How a window's message finds its handler, in its own class or in that of a child.
#include <platform/CWnd.h>

#include "platform/WindowBinding.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
END_MESSAGE_MAP()

namespace {

bool isColourRequest(UINT message) noexcept {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

template <class ItemInfo>
HWND itemWindow(LPARAM lParam) noexcept {
    return reinterpret_cast<const ItemInfo*>(lParam)->hwndItem;
}

// The child window that a message to its parent is about; null when there is none.
HWND childOf(HWND parent, UINT message, LPARAM lParam) noexcept {
    if (isColourRequest(message)) {
        return reinterpret_cast<HWND>(lParam);
    }
    switch (message) {
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            return item.CtlType == ODT_MENU ? nullptr : item.hwndItem;
        }
        case WM_MEASUREITEM: {
            const auto& item = *reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
            return item.CtlType == ODT_MENU ? nullptr : ::GetDlgItem(parent, static_cast<int>(item.CtlID));
        }
        case WM_COMPAREITEM:
            return itemWindow<COMPAREITEMSTRUCT>(lParam);
        case WM_DELETEITEM:
            return itemWindow<DELETEITEMSTRUCT>(lParam);
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CHARTOITEM:
        case WM_VKEYTOITEM:
            return reinterpret_cast<HWND>(lParam);
        default:
            return nullptr;
    }
}

bool answers(const AFX_MSGMAP_ENTRY& entry, UINT message) noexcept {
    return entry.m_thunk != nullptr &&
           (entry.m_registered != nullptr ? *entry.m_registered : entry.m_message) == message;
}

}  // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_binding != nullptr ? m_binding->passOn(message, wParam, lParam) : 0;
}

LRESULT CWnd::Default() {
    const MSG message = GetCurrentMessage();
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CWnd::defaultOrReflect(HWND child) {
    const MSG message = GetCurrentMessage();
    LRESULT result = 0;
    if (child != m_hWnd && ReflectMessage(child, message.message, message.wParam, message.lParam, &result)) {
        return result;
    }
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

bool CWnd::callHandler(UINT message, UINT id, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const zoui::MessageCall call{wParam, lParam, id, result};
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr; map = map->m_getBase ? map->m_getBase() : nullptr) {
        for (const AFX_MSGMAP_ENTRY& entry : map->m_entries) {
            if (answers(entry, message) && entry.m_thunk(*this, call)) {
                return true;
            }
        }
    }
    return false;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        return OnCommand(wParam, lParam);
    }
    if (message == WM_NOTIFY) {
        return OnNotify(wParam, lParam, result);
    }
    // Seven messages, one handler: the kind of control is a parameter of it.
    const UINT kind = isColourRequest(message) ? message - WM_CTLCOLORMSGBOX : 0;
    if (callHandler(isColourRequest(message) ? WM_CTLCOLOR : message, kind, wParam, lParam, result)) {
        return TRUE;
    }
    const HWND child = childOf(m_hWnd, message, lParam);
    return child != m_hWnd && ReflectMessage(child, message, wParam, lParam, result);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr) {
        return OnCmdMsg(LOWORD(wParam), CN_COMMAND, nullptr, nullptr);
    }
    LRESULT unused = 0;
    return ReflectMessage(control, WM_COMMAND, wParam, lParam, &unused) ||
           OnCmdMsg(LOWORD(wParam), HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectMessage(header->hwndFrom, WM_NOTIFY, wParam, lParam, result)) {
        return TRUE;
    }
    AFX_NOTIFY notify{result, header};
    return OnCmdMsg(static_cast<UINT>(header->idFrom), MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::ReflectMessage(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    CWnd* const object = child != nullptr ? FromHandlePermanent(child) : nullptr;
    return object != nullptr && object->OnChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM, LRESULT*) {
    return message == WM_COMMAND &&
           OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_COMMAND + zoui::kReflected), nullptr, nullptr);
}

HBRUSH CWnd::OnCtlColor(HDC, CWnd* child, UINT) {
    return reinterpret_cast<HBRUSH>(defaultOrReflect(SafeHwnd(child)));
}

void CWnd::OnDeleteItem(int, DELETEITEMSTRUCT* item) {
    defaultOrReflect(item->hwndItem);
}

void CWnd::OnDrawItem(int, DRAWITEMSTRUCT* item) {
    defaultOrReflect(childOf(m_hWnd, WM_DRAWITEM, reinterpret_cast<LPARAM>(item)));
}

void CWnd::OnMeasureItem(int, MEASUREITEMSTRUCT* item) {
    defaultOrReflect(childOf(m_hWnd, WM_MEASUREITEM, reinterpret_cast<LPARAM>(item)));
}

void CWnd::OnHScroll(UINT, UINT, CWnd* bar) {
    defaultOrReflect(SafeHwnd(bar));
}

void CWnd::OnVScroll(UINT, UINT, CWnd* bar) {
    defaultOrReflect(SafeHwnd(bar));
}
