// Drawing the rows.
#include <knav/CNavBitmapListBox.h>

#include <platform/GdiOwners.h>

#include "controls/BackBuffer.h"
#include "controls/Picture.h"
#include "places/PlacesRules.h"

using namespace knav;

namespace {

constexpr COLORREF kFrameDark = RGB(0, 0, 0);
constexpr COLORREF kFrameLight = RGB(0xC0, 0xC0, 0xC0);
constexpr int kSelectedTint = 22;  // percent of the highlight colour
constexpr int kHotTint = 10;

bool isHighContrast() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

COLORREF mixed(COLORREF a, COLORREF b, int percentOfB) {
    const auto channel = [percentOfB](int from, int to) { return from + (to - from) * percentOfB / 100; };
    return RGB(channel(GetRValue(a), GetRValue(b)), channel(GetGValue(a), GetGValue(b)),
               channel(GetBValue(a), GetBValue(b)));
}

void fill(HDC dc, const RECT& area, COLORREF colour) {
    SetDCBrushColor(dc, colour);
    FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

int widthOf(HDC dc, const CString& text) {
    SIZE size{};
    GetTextExtentPoint32W(dc, text, text.GetLength(), &size);
    return size.cx;
}

}  // namespace

void CNavBitmapListBox::UpdateTextColor() {
    m_textColor = GetSysColor(COLOR_WINDOWTEXT);
    m_backgroundColor = GetSysColor(COLOR_WINDOW);
    Invalidate();
}

bool CNavBitmapListBox::isHot(int index) const {
    return index == m_pointedAt && IsWindowEnabled();
}

bool CNavBitmapListBox::isPressed(int index) const {
    return index == m_pressedRow || GetCurSel() == index;
}

void CNavBitmapListBox::invalidateRow(int index) const {
    RECT row{};
    if (index >= 0 && GetItemRect(index, &row) != LB_ERR)
        InvalidateRect(&row, FALSE);
}

void CNavBitmapListBox::eraseBelowRows(HDC dc) const {
    RECT area{};
    GetClientRect(&area);
    RECT last{};
    if (GetCount() > 0 && GetItemRect(GetCount() - 1, &last) != LB_ERR)
        area.top = std::max(last.bottom, area.top);
    if (area.top < area.bottom)
        fill(dc, area, m_backgroundColor);
}

void CNavBitmapListBox::DrawItem(DRAWITEMSTRUCT* item) {
    const int index = static_cast<int>(item->itemID);
    if (!GetRowData(index) || IsRectEmpty(&item->rcItem))
        return;
    const BackBuffer buffer(item->hDC, item->rcItem);
    const RECT& row = item->rcItem;
    const bool disabled = (item->itemState & ODS_DISABLED) != 0;
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    fillRow(buffer.dc(), row, index);
    DrawLBitmap(buffer.dc(), row, index, disabled);
    DrawLText(buffer.dc(), row, index, disabled);
    DrawLBorder(buffer.dc(), row, index, selected);
    if ((item->itemState & ODS_FOCUS) && !(item->itemState & ODS_NOFOCUSRECT)) {
        RECT focus = row;
        InflateRect(&focus, -2, -2);
        DrawFocusRect(buffer.dc(), &focus);
    }
}

void CNavBitmapListBox::fillRow(HDC dc, const RECT& row, int index) const {
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    COLORREF colour = m_backgroundColor;
    if (isPressed(index))
        colour = isHighContrast() ? highlight : mixed(colour, highlight, kSelectedTint);
    else if (isHot(index) && !isHighContrast())
        colour = mixed(colour, highlight, kHotTint);
    fill(dc, row, colour);
}

RECT CNavBitmapListBox::pictureRect(const RECT& row, int index) const {
    const BLBItemDataTag* data = GetRowData(index);
    int x = 0;
    int y = 0;
    GetBitmapCoord(index, row.right - row.left, &x, &y);
    return {row.left + x, row.top + y, row.left + x + data->displayedWidth, row.top + y + data->displayedHeight};
}

HICON CNavBitmapListBox::GetSystemIcon(int) {
    return nullptr;
}

HICON CNavBitmapListBox::GetSystemIconIfApplicable(BLBItemDataTag& data, int index) {
    if (!data.systemIcon)
        data.systemIcon.reset(GetSystemIcon(index));
    return data.systemIcon.get();
}

void CNavBitmapListBox::DrawLBitmap(HDC dc, const RECT& row, int index, int disabled) {
    BLBItemDataTag* data = GetRowData(index);
    if (!data)
        return;
    if (GetSystemIconIfApplicable(*data, index))
        DrawLIcon(dc, row, index);
    else if (data->picture)
        drawPicture(dc, *data->picture, pictureRect(row, index), disabled ? PictureTone::Grey : PictureTone::Plain);
}

void CNavBitmapListBox::DrawLIcon(HDC dc, const RECT& row, int index) {
    const BLBItemDataTag* data = GetRowData(index);
    if (!data || !data->systemIcon)
        return;
    const RECT to = pictureRect(row, index);
    DrawIconEx(dc, to.left, to.top, data->systemIcon.get(), to.right - to.left, to.bottom - to.top, 0, nullptr,
               DI_NORMAL);
}

void CNavBitmapListBox::DrawLText(HDC dc, const RECT& row, int index, int disabled) {
    const RowMeasures measures = rowMeasures(GetDpi());
    const zoui::SavedDC saved(dc);
    if (HFONT font = GetFont())
        SelectObject(dc, font);
    const int available = GetAvailableWidth(index);
    if (available - 2 * measures.margin <= widthOf(dc, L"W..."))
        return;
    CString text = GetItemDisplayText(index);
    ShortenString(dc, text, available);
    RECT label{row.left, row.top, row.right, row.bottom - measures.gap};
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    label.top = label.bottom - metrics.tmHeight;
    SetBkMode(dc, TRANSPARENT);
    const bool onHighlight = isPressed(index) && isHighContrast();
    SetTextColor(dc, disabled      ? GetSysColor(COLOR_GRAYTEXT)
                     : onHighlight ? GetSysColor(COLOR_HIGHLIGHTTEXT)
                                   : m_textColor);
    DrawTextW(dc, text, text.GetLength(), &label, DT_CENTER | DT_SINGLELINE | DT_NOPREFIX);
}

int CNavBitmapListBox::ShortenString(HDC dc, CString& text, int available) {
    return shortenLabel(text, available, rowMeasures(static_cast<UINT>(GetDeviceCaps(dc, LOGPIXELSX))).margin,
                        [dc](const CString& part) { return widthOf(dc, part); });
}

void CNavBitmapListBox::RemoveTrailingChar(CString& text) {
    text.Delete(text.GetLength() - 1);
}

void CNavBitmapListBox::DrawLBorder(HDC dc, const RECT& row, int index, int selected) {
    const bool down = selected || isPressed(index);
    if (down || isHot(index))
        DrawItemBorder(dc, row, down, isHot(index));
}

void CNavBitmapListBox::DrawItemBorder(HDC dc, const RECT& row, int pressed, int hot) {
    const COLORREF upper = pressed ? kFrameDark : hot ? kFrameLight : m_backgroundColor;
    const COLORREF lower = pressed ? kFrameLight : hot ? kFrameDark : m_backgroundColor;
    fill(dc, {row.left, row.top, row.right, row.top + 1}, upper);
    fill(dc, {row.left, row.top, row.left + 1, row.bottom}, upper);
    fill(dc, {row.left, row.bottom - 1, row.right, row.bottom}, lower);
    fill(dc, {row.right - 1, row.top, row.right, row.bottom}, lower);
}
