#include <zoui/ZoUiNotify.h>

#include <platform/RegisteredMessage.h>

#include "zoui/NotifyMessage.h"

const UINT WM_ZOUI_NOTIFY = zoui::registeredMessage(L"Kelvara.ZoUiNotify");

namespace {

ZOUI_REPLY notify(CWnd* owner, zoui::NotifyKind kind, unsigned int code, __int64 parameter) {
    if (SafeHwnd(owner) == nullptr) {
        return ZOUI_REPLY_NOT_HANDLED;
    }
    const LRESULT reply = owner->SendMessage(WM_ZOUI_NOTIFY, zoui::packNotify(kind, code), parameter);
    return reply == ZOUI_REPLY_HANDLED ? ZOUI_REPLY_HANDLED : ZOUI_REPLY_NOT_HANDLED;
}

}  // namespace

ZOUI_REPLY ZoUiNotify(CWnd* owner, unsigned int code, __int64 parameter) {
    return notify(owner, zoui::NotifyKind::Generic, code, parameter);
}

ZOUI_REPLY ZoUiNotifyControlChange(CWnd* owner, unsigned int controlId, __int64 code) {
    return notify(owner, zoui::NotifyKind::ControlChange, controlId, code);
}
