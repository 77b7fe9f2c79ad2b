#include <zoui/CZoUiControl.h>

#include <zoui/ZoUiNotify.h>

int CZoUiControl::OnAutoLoad() {
    return 0;
}

BOOL CZoUiControl::NotifyChange(const CWnd& control, UINT code) const {
    CWnd* const parent = m_zoUiParent != nullptr ? m_zoUiParent : control.GetParent();
    const auto id = static_cast<unsigned int>(control.GetDlgCtrlID());
    return ZoUiNotifyControlChange(parent, id, code) == ZOUI_REPLY_HANDLED;
}
