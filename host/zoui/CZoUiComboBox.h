#pragma once

#include <platform/CComboBox.h>
#include <zoui/CZoUiControl.h>

/// A combo box that tells its dialog of a new selection or text through OnNotifyControlChange, before the dialog gets
/// the window notification; a change that is answered as handled goes no further.
class ZOUI_API CZoUiComboBox : public CComboBox, public CZoUiControl {
    DECLARE_DYNAMIC(CZoUiComboBox)
public:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
