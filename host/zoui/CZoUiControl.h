// What every control of the framework has beyond its window class.
#pragma once

#include <platform/CWnd.h>

/// Mixed into the control classes. User-interface thread only.
class ZOUI_API CZoUiControl {
public:
    CZoUiControl() = default;
    CZoUiControl(const CZoUiControl&) = delete;
    CZoUiControl& operator=(const CZoUiControl&) = delete;

    /// The window that is told about changes; null: the window's own parent. Not owned; a dialog sets itself with
    /// CZoUiBaseDialog::AutoLoadControl where nobody is set yet.
    CWnd* GetZoUiParent() const noexcept { return m_zoUiParent; }
    void SetZoUiParent(CWnd* parent) noexcept { m_zoUiParent = parent; }

    /// Fills the control with what it remembers, or with what it shows by default. Called by AutoLoadControl when the
    /// window exists. Nonzero when it could; the default has nothing to load and answers 0.
    virtual int OnAutoLoad();

protected:
    virtual ~CZoUiControl() = default;

    /// Tells the parent that `control` changed, with the control's own notification code. Nonzero when the parent
    /// handled it.
    BOOL NotifyChange(const CWnd& control, UINT code) const;

private:
    CWnd* m_zoUiParent = nullptr;
};
