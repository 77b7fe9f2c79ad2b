// Notifications from controls and helpers to the dialog above them.
#pragma once

#include <platform/CWnd.h>
#include <zoui/ZOUI_REPLY.h>

/// The message that carries them, for ON_REGISTERED_MESSAGE. Pass its parameters on as they are.
ZOUI_API extern const UINT WM_ZOUI_NOTIFY;

/// Calls OnNotifyGeneric of the CZoUiBaseDialog that `owner` is, at once. Any other window, or null, answers that it
/// was not handled. On the owner's thread.
ZOUI_API ZOUI_REPLY ZoUiNotify(CWnd* owner, unsigned int code, __int64 parameter = 0);

/// The same for OnNotifyControlChange: what the control with the id shows or holds has changed.
ZOUI_API ZOUI_REPLY ZoUiNotifyControlChange(CWnd* owner, unsigned int controlId, __int64 code = 0);
