#include <knav/CNavBitmapListBox.h>

#include <platform/GdiOwners.h>

#include "controls/Picture.h"
#include "places/PlaceDrag.h"
#include "places/PlacesRules.h"

using namespace knav;

BLBItemDataTag::BLBItemDataTag() = default;

BLBItemDataTag::~BLBItemDataTag() = default;

CNavBitmapListBox::CNavBitmapListBox() : m_session(std::make_unique<GdiPlusSession>()) {
    UpdateTextColor();
}

CNavBitmapListBox::~CNavBitmapListBox() = default;

// --- rows ------------------------------------------------------------------------------------------------------

Picture CNavBitmapListBox::pictureFrom(const wchar_t* resource, HBITMAP bitmap, HINSTANCE module) const {
    if (bitmap)
        return pictureOf(bitmap);
    if (!resource)
        return nullptr;
    Picture icon = loadPicture(resource, GetSystemMetricsForDpi(SM_CXICON, GetDpi()), module);
    return icon ? std::move(icon) : loadBitmapPicture(resource, module);
}

void CNavBitmapListBox::showPicture(BLBItemDataTag& data, Picture picture) const {
    data.picture = std::move(picture);
    const int pictureHeight = data.picture ? static_cast<int>(data.picture->GetHeight()) : 0;
    data.displayedHeight = std::min(GetSystemMetricsForDpi(SM_CYICON, GetDpi()), pictureHeight);
    data.displayedWidth = GetSystemMetricsForDpi(SM_CXICON, GetDpi());
}

int CNavBitmapListBox::AddListItem(const wchar_t* resource, HBITMAP bitmap, const wchar_t* displayText,
                                   const wchar_t* tipText, HINSTANCE module) {
    return InsertListItem(-1, resource, bitmap, displayText, tipText, module);
}

int CNavBitmapListBox::InsertListItem(int index, const wchar_t* resource, HBITMAP bitmap, const wchar_t* displayText,
                                      const wchar_t* tipText, HINSTANCE module) {
    return InsertListItem(index, pictureFrom(resource, bitmap, module).release(), displayText, tipText);
}

int CNavBitmapListBox::InsertListItem(int index, Gdiplus::Bitmap* picture, const wchar_t* displayText,
                                      const wchar_t* tipText) {
    Picture owned(picture);
    if (!owned)
        return -1;
    auto data = std::make_unique<BLBItemDataTag>();
    showPicture(*data, std::move(owned));
    data->displayText = displayText;
    data->tipText = tipText;
    return insertRow(index, std::move(data));
}

int CNavBitmapListBox::insertRow(int index, std::unique_ptr<BLBItemDataTag> data) {
    const int row = InsertString(index < 0 || index > GetCount() ? -1 : index, data->displayText);
    if (row < 0)
        return -1;
    fixRowHeight(*data);
    m_rows.push_back(std::move(data));
    SetItemDataPtr(row, m_rows.back().get());
    return row;
}

void CNavBitmapListBox::DeleteItem(DELETEITEMSTRUCT* item) {
    const auto* data = reinterpret_cast<const BLBItemDataTag*>(item->itemData);
    std::erase_if(m_rows, [data](const auto& row) { return row.get() == data; });
    m_pointedAt = -1;
}

int CNavBitmapListBox::MoveItemFromIndex(int from, int to) {
    BLBItemDataTag* data = GetRowData(from);
    if (!data)
        return -1;
    const bool selected = GetCurSel() == from;
    const auto held = std::ranges::find(m_rows, data, [](const auto& row) { return row.get(); });
    std::unique_ptr<BLBItemDataTag> kept = std::move(*held);
    m_rows.erase(held);
    SetItemDataPtr(from, nullptr);
    DeleteString(from);
    const int row = insertRow(to, std::move(kept));
    if (selected)
        SetCurSel(row);
    return row;
}

// --- what a row has --------------------------------------------------------------------------------------------

BLBItemDataTag* CNavBitmapListBox::GetRowData(int index) const {
    return index >= 0 ? static_cast<BLBItemDataTag*>(GetItemDataPtr(index)) : nullptr;
}

CString CNavBitmapListBox::GetItemDisplayText(int index) const {
    const BLBItemDataTag* data = GetRowData(index);
    return data ? data->displayText : CString();
}

// The list box has no way to change a string: the row goes and comes again.
void CNavBitmapListBox::SetItemDisplayText(int index, const wchar_t* text) {
    BLBItemDataTag* data = GetRowData(index);
    if (!data)
        return;
    data->displayText = text;
    MoveItemFromIndex(index, index);
}

CString CNavBitmapListBox::GetItemTipText(int index) const {
    const BLBItemDataTag* data = GetRowData(index);
    return data ? data->tipText : CString();
}

void CNavBitmapListBox::SetItemTipText(int index, const wchar_t* text) {
    if (BLBItemDataTag* data = GetRowData(index))
        data->tipText = text;
}

UINT_PTR CNavBitmapListBox::GetUserData(int index) const {
    const BLBItemDataTag* data = GetRowData(index);
    return data ? data->userData : 0;
}

void CNavBitmapListBox::SetUserData(int index, UINT_PTR userData) {
    if (BLBItemDataTag* data = GetRowData(index))
        data->userData = userData;
}

void CNavBitmapListBox::SetItemPicture(int index, Gdiplus::Bitmap* picture) {
    Picture owned(picture);
    BLBItemDataTag* data = GetRowData(index);
    if (!data)
        return;
    showPicture(*data, std::move(owned));
    invalidateRow(index);
}

// --- measures --------------------------------------------------------------------------------------------------

int CNavBitmapListBox::labelHeight() const {
    const zoui::WindowDC dc(m_hWnd);
    const zoui::SelectedObject font(dc, GetFont());
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
}

void CNavBitmapListBox::fixRowHeight(const BLBItemDataTag& first) {
    if (m_rowHeight == 0)
        m_rowHeight = rowHeight(rowMeasures(GetDpi()), labelHeight(), first.displayedHeight);
    SetItemHeight(0, m_rowHeight);
}

void CNavBitmapListBox::MeasureItem(MEASUREITEMSTRUCT* item) {
    if (m_rowHeight > 0)
        item->itemHeight = static_cast<UINT>(m_rowHeight);
}

int CNavBitmapListBox::ItemFromPoint(POINT point) const {
    BOOL outside = FALSE;
    const UINT row = CListBox::ItemFromPoint(point, outside);
    return outside || static_cast<int>(row) >= GetCount() ? -1 : static_cast<int>(row);
}

int CNavBitmapListBox::GetVisibleItemCount() const {
    RECT area{};
    GetClientRect(&area);
    return m_rowHeight > 0 ? static_cast<int>(area.bottom) / m_rowHeight : 0;
}

int CNavBitmapListBox::GetAvailableWidth(int index) const {
    RECT row{};
    if (GetItemRect(index, &row) == LB_ERR)
        return 0;
    return std::max<int>(row.right - row.left - 2 * rowMeasures(GetDpi()).margin, 0);
}

void CNavBitmapListBox::GetBitmapCoord(int index, int width, int* x, int* y) const {
    const RowMeasures measures = rowMeasures(GetDpi());
    const BLBItemDataTag* data = GetRowData(index);
    *x = pictureOffset(measures, width - 2 * measures.margin, data ? data->displayedWidth : 0);
    *y = measures.gap;
}

// --- tips ------------------------------------------------------------------------------------------------------

int CNavBitmapListBox::OnGetTipSupport() {
    return 1;
}

int CNavBitmapListBox::OnGetTipRect(const POINT& point, RECT& area) {
    const int row = ItemFromPoint(point);
    return row >= 0 && GetItemRect(row, &area) != LB_ERR;
}

int CNavBitmapListBox::OnGetTipText(const POINT& point, CString& text) {
    text = GetItemTipText(ItemFromPoint(point));
    return !text.IsEmpty();
}
