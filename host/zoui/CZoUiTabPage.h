#pragma once

#include <zoui/CZoUiBaseDialog.h>

/// One page of a CZoUiTabMainDialog: a child dialog without buttons of its own (styles DS_CONTROL | WS_CHILD). Enter,
/// Escape and commands that it does not handle are the main dialog's. The object outlives the main dialog's window.
class ZOUI_API CZoUiTabPage : public CZoUiBaseDialog {
    DECLARE_DYNAMIC(CZoUiTabPage)
public:
    explicit CZoUiTabPage(UINT templateId, HINSTANCE module = nullptr);

    /// The page is about to be left, for another page or by OK. 0 keeps it in front; the page has then told the user
    /// why. The default reads the controls by UpdateData.
    virtual BOOL OnLeave();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void OnOK() override;
    void OnCancel() override;
};
