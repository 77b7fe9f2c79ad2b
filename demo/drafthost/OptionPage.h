// A page of the options: shows those of the dialog's options for which its template has a control.
#pragma once

#include <zoui/CZoUiTabPage.h>

#include "DialogOptions.h"

class OptionPage : public CZoUiTabPage {
public:
    explicit OptionPage(UINT templateId) : CZoUiTabPage(templateId) {}

    /// The options that the page shows and changes, from the next UpdateData on. They outlive the page.
    void setOptions(DialogOptions& options) { m_options = &options; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

private:
    bool has(UINT control) const { return ::GetDlgItem(m_hWnd, static_cast<int>(control)) != nullptr; }

    DialogOptions* m_options = nullptr;
};
