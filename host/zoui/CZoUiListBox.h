#pragma once

#include <platform/CListBox.h>
#include <zoui/CZoUiControl.h>

#include <memory>

namespace zoui {
class RowTip;
}

/// A list box that tells its dialog of a new selection as CZoUiComboBox does, and that shows tips for its rows.
class ZOUI_API CZoUiListBox : public CListBox, public CZoUiControl {
    DECLARE_DYNAMIC(CZoUiListBox)
public:
    CZoUiListBox();
    ~CZoUiListBox() override;

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

protected:
    /// Nonzero when the list has tips. The default has none.
    virtual int OnGetTipSupport();
    /// The area, in client coordinates, over which the tip at `point` stays up. 0: no tip there. The default gives the
    /// row under the point.
    virtual int OnGetTipRect(const POINT& point, RECT& area);
    /// The text of that tip; 0 or empty text: no tip. The default has none.
    virtual int OnGetTipText(const POINT& point, CString& text);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void updateTip(const POINT& point);

    std::unique_ptr<zoui::RowTip> m_tip;
};
