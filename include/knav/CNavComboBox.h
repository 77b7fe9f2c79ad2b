#pragma once

#include <knav/export.h>
#include <zoui/CZoUiComboBox.h>

/// Base of the library's combo boxes.
class KNAV_API CNavComboBox : public CZoUiComboBox {
public:
    CNavComboBox() = default;

protected:
    /// Bits of m_flags. The combo handles its notifications as a plain window, not as the host framework's combo; the
    /// other low bits are free for derived classes.
    enum : unsigned { PlainChildNotify = 8, AllFlags = 15 };

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    unsigned m_flags = 0;
    /// Item that a derived class keeps in mind; -1: none.
    int m_itemIndex = -1;
};
