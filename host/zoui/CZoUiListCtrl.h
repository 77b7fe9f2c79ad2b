#pragma once

#include <platform/CListCtrl.h>
#include <zoui/CZoUiControl.h>

/// A list view that belongs to a dialog of the framework.
class ZOUI_API CZoUiListCtrl : public CListCtrl, public CZoUiControl {
    DECLARE_DYNAMIC(CZoUiListCtrl)
};
