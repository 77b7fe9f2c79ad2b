// Drawing the items of the Look-in combo.
#include <knav/CNavFolderComboBox.h>

#include "controls/ComboItems.h"
#include "controls/Dpi.h"
#include "controls/RowIcons.h"
#include "data/ApiEdge.h"

#include <platform/GdiOwners.h>
#include <uxtheme.h>

namespace {

// The list and the field share the combo's window; only the state tells them apart.
bool isSelectionField(const DRAWITEMSTRUCT& item) {
    return (item.itemState & ODS_COMBOBOXEDIT) != 0;
}

// A theme paints the selection field itself, also while it has the focus. A text in the colour of highlighted text
// would be lost on it.
bool isPaintedByTheme(const DRAWITEMSTRUCT& item) {
    return isSelectionField(item) && IsAppThemed() && IsThemeActive();
}

}  // namespace

void CNavFolderComboBox::DrawItem(DRAWITEMSTRUCT* item) {
    const CNavNode* const node =
        static_cast<int>(item->itemID) >= 0 ? GetNode(static_cast<int>(item->itemID)) : nullptr;
    if (node == nullptr) {
        return;
    }
    knav::atApiEdge([&] {
        const zoui::SavedDC saved(item->hDC);
        if ((GetLayout(item->hDC) & LAYOUT_RTL) != 0) {  // not every system mirrors the clipping of the field too
            SelectClipRgn(item->hDC, nullptr);
            IntersectClipRect(item->hDC, item->rcItem.left, item->rcItem.top, item->rcItem.right, item->rcItem.bottom);
        }
        const bool themed = isPaintedByTheme(*item);
        const bool selected = (item->itemState & ODS_SELECTED) != 0 && !themed;
        const zoui::SelectedObject font(item->hDC, GetFont());
        if (!themed) {
            FillRect(item->hDC, &item->rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        }
        const int left = pictureLeft(*node, isSelectionField(*item));
        drawPicture(*item, *node, left);
        SetBkMode(item->hDC, TRANSPARENT);
        SetTextColor(item->hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        RECT place = item->rcItem;
        place.left = left + m_indentWidth + knav::scaled(2, knav::dpiOf(m_hWnd));
        CString text;
        GetItemText(static_cast<int>(item->itemID), text);
        // A mirrored context clips a pixel too much of the text's end; the row itself is clipped already.
        const UINT mirrored = (GetLayout(item->hDC) & LAYOUT_RTL) != 0 ? DT_NOCLIP : 0u;
        DrawTextW(item->hDC, text, text.GetLength(), &place, DT_SINGLELINE | DT_NOPREFIX | DT_VCENTER | mirrored);
        if ((item->itemState & ODS_FOCUS) != 0) {
            DrawFocusRect(item->hDC, &item->rcItem);
        }
    });
}

int CNavFolderComboBox::pictureLeft(const CNavNode& node, bool selectionField) const {
    const UINT dpi = knav::dpiOf(m_hWnd);
    return selectionField ? knav::scaled(5, dpi) : m_indentWidth * node.GetIndent() + knav::scaled(2, dpi);
}

void CNavFolderComboBox::drawPicture(const DRAWITEMSTRUCT& item, const CNavNode& node, int left) const {
    const POINT at{left, item.rcItem.top};
    const SIZE size{m_iconWidth, m_iconHeight};
    const knav::RowLook& look = m_icons->lookOf(node);
    if (look.general) {
        m_icons->draw(item.hDC, *look.general, at, size);
    } else {
        knav::drawIcon(item.hDC, look.icon ? look.icon.get() : node.GetIcon(), at, size);
    }
    m_icons->drawOverlay(item.hDC, look.overlay, at, size);
}

void CNavFolderComboBox::MeasureItem(MEASUREITEMSTRUCT* item) {
    item->itemHeight = static_cast<UINT>(m_itemHeight);
}
