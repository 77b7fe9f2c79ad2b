#pragma once

#include <platform/CButton.h>
#include <zoui/CZoUiControl.h>

/// Base of owner-drawn buttons (BS_OWNERDRAW in the template): a derived class draws itself in DrawItem. The window
/// text stays the button's name for assistive tools.
class ZOUI_API CZoUiBitmapButton : public CButton, public CZoUiControl {
    DECLARE_DYNAMIC(CZoUiBitmapButton)
};
