#include <zoui/CZoUiBaseDialog.h>

#include <zoui/CZoUiControl.h>

#include "zoui/NotifyMessage.h"
#include "zoui/ThemedControls.h"

IMPLEMENT_DYNAMIC(CZoUiBaseDialog, CDialog)

BEGIN_MESSAGE_MAP(CZoUiBaseDialog, CDialog)
ON_REGISTERED_MESSAGE(WM_ZOUI_NOTIFY, &CZoUiBaseDialog::onZoUiNotify)
END_MESSAGE_MAP()

CZoUiBaseDialog::CZoUiBaseDialog(UINT templateId, CWnd* parent, HINSTANCE module)
    : CDialog(templateId, parent, module) {
}

INT_PTR CZoUiBaseDialog::DoModal() {
    const zoui::ThemedControls themed;
    return CDialog::DoModal();
}

int CZoUiBaseDialog::AutoLoadControl(CWnd& control) {
    auto* const loadable = dynamic_cast<CZoUiControl*>(&control);
    if (loadable == nullptr || control.m_hWnd == nullptr) {
        return 0;
    }
    if (loadable->GetZoUiParent() == nullptr) {
        loadable->SetZoUiParent(this);
    }
    return loadable->OnAutoLoad();
}

ZOUI_REPLY CZoUiBaseDialog::OnNotifyControlChange(unsigned int, __int64) {
    return ZOUI_REPLY_NOT_HANDLED;
}

ZOUI_REPLY CZoUiBaseDialog::OnNotifyGeneric(unsigned int, __int64) {
    return ZOUI_REPLY_NOT_HANDLED;
}

LRESULT CZoUiBaseDialog::onZoUiNotify(WPARAM wParam, LPARAM lParam) {
    const unsigned int code = zoui::notifyCode(wParam);
    return zoui::notifyKind(wParam) == zoui::NotifyKind::ControlChange ? OnNotifyControlChange(code, lParam)
                                                                       : OnNotifyGeneric(code, lParam);
}
