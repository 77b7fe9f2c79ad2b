#pragma once

#include <memory>
#include <vector>

#include <knav/export.h>
#include <platform/CString.h>
#include <platform/GdiOwners.h>
#include <zoui/CZoUiListBox.h>

namespace Gdiplus {
class Bitmap;
}

namespace knav {
class GdiPlusSession;
struct PlaceDrag;
}  // namespace knav

/// What one row of a CNavBitmapListBox shows. Belongs to the row.
struct KNAV_API BLBItemDataTag {
    BLBItemDataTag();
    ~BLBItemDataTag();

    std::unique_ptr<Gdiplus::Bitmap> picture;
    zoui::UniqueIcon systemIcon;  ///< drawn instead of the picture
    int displayedHeight = 0;      ///< of the picture: at most that of a large icon of the system
    int displayedWidth = 0;       ///< of the picture: that of a large icon of the system
    CString displayText;
    CString tipText;
    UINT_PTR userData = 0;
};

/// A list box whose rows show a large picture over a line of text, with a frame around the row that is selected or
/// pointed at, and tips; rows can be dragged to a new place. Its strings are the rows' texts, so that assistive tools
/// read them. Template styles: LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT.
///
/// Row indices are zero-based. Operations on an index that is not a row do nothing and answer 0, null or an empty
/// text. User-interface thread only.
class KNAV_API CNavBitmapListBox : public CZoUiListBox {
public:
    CNavBitmapListBox();
    ~CNavBitmapListBox() override;

    /// Add a row, at the end or before `index` (-1: at the end). The picture is a copy of `bitmap`, or, without one,
    /// the icon or bitmap resource of that name (or MAKEINTRESOURCE id) in `module` (null: the resource modules). They
    /// return the row's index, or -1 when there is no picture. The handle stays the caller's.
    int AddListItem(const wchar_t* resource, HBITMAP bitmap, const wchar_t* displayText, const wchar_t* tipText,
                    HINSTANCE module = nullptr);
    int InsertListItem(int index, const wchar_t* resource, HBITMAP bitmap, const wchar_t* displayText,
                       const wchar_t* tipText, HINSTANCE module = nullptr);
    /// The same with a picture made by the caller, which the row takes over (also when -1 is returned).
    int InsertListItem(int index, Gdiplus::Bitmap* picture, const wchar_t* displayText, const wchar_t* tipText);

    /// The row's own data; null for an index that is no row.
    BLBItemDataTag* GetRowData(int index) const;
    CString GetItemDisplayText(int index) const;
    void SetItemDisplayText(int index, const wchar_t* text);
    CString GetItemTipText(int index) const;
    void SetItemTipText(int index, const wchar_t* text);
    /// A value of the user of the class; default 0.
    UINT_PTR GetUserData(int index) const;
    void SetUserData(int index, UINT_PTR data);
    /// Replaces the picture, which the row takes over.
    void SetItemPicture(int index, Gdiplus::Bitmap* picture);

    /// Takes a row out and inserts it at `to` (behind the last row when there is no such row), with all it has. Its new
    /// index, or -1 when `from` is no row.
    virtual int MoveItemFromIndex(int from, int to);

    /// The row under a point in client coordinates, or -1.
    int ItemFromPoint(POINT point) const;
    /// How many whole rows the list shows.
    int GetVisibleItemCount() const;
    /// The width that a row has for its picture, in pixels.
    int GetAvailableWidth(int index) const;
    /// Where the picture of a row of that width stands, relative to the row.
    void GetBitmapCoord(int index, int width, int* x, int* y) const;

    /// The row under the pointer, or -1.
    int GetItemPointedAt() const { return m_pointedAt; }
    void SetItemPointedAt(int index);

    /// Takes the colours of text and background from the system; after a change of them.
    void UpdateTextColor();

    /// Shortens a text that is wider than `available` less the margins, and ends it with "...": 1. A text that fits
    /// stays as it is: 0. The font is the one selected into the device context.
    static int ShortenString(HDC dc, CString& text, int available);
    static void RemoveTrailingChar(CString& text);

    // --- drawing -------------------------------------------------------------------------------------------------
    void DrawItem(DRAWITEMSTRUCT* item) override;
    void MeasureItem(MEASUREITEMSTRUCT* item) override;
    /// A row goes: frees its data. A derived class frees its user data first.
    void DeleteItem(DELETEITEMSTRUCT* item) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    virtual void DrawLBitmap(HDC dc, const RECT& row, int index, int disabled);
    virtual void DrawLIcon(HDC dc, const RECT& row, int index);
    virtual void DrawLText(HDC dc, const RECT& row, int index, int disabled);
    virtual void DrawLBorder(HDC dc, const RECT& row, int index, int selected);
    virtual void DrawItemBorder(HDC dc, const RECT& row, int pressed, int hot);
    /// The shell's icon for a row that shows it instead of a picture, owned by the caller; null: the picture shows. The
    /// default has none.
    virtual HICON GetSystemIcon(int index);
    HICON GetSystemIconIfApplicable(BLBItemDataTag& data, int index);

    // --- dragging ------------------------------------------------------------------------------------------------
    /// The mouse button went down at a point: nonzero when a row is there that DragLoop() may drag.
    virtual int DragInit(POINT point);
    /// Follows the mouse until the button goes up. 1: a row was dragged and has been moved; 0: it was a click; -1:
    /// given up (Escape, or another window took the mouse).
    virtual int DragLoop(POINT point);
    /// The line that shows where a dragged row goes: before row `index`.
    void DrawIndicator(int index);
    void DrawInd(HDC dc, int index);
    void EraseIndicator();

    // --- pointing ------------------------------------------------------------------------------------------------
    void StartHighlightTimer(UINT period);
    void StopHighlightTimer();
    void StartPositionTimer(UINT period);
    void StopPositionTimer();
    void OnTimer(UINT_PTR timer);

    int OnGetTipSupport() override;
    int OnGetTipRect(const POINT& point, RECT& area) override;
    int OnGetTipText(const POINT& point, CString& text) override;

    /// Tells the dialog that the user chose a row.
    void NotifyChosen();

private:
    int insertRow(int index, std::unique_ptr<BLBItemDataTag> data);
    std::unique_ptr<Gdiplus::Bitmap> pictureFrom(const wchar_t* resource, HBITMAP bitmap, HINSTANCE module) const;
    void showPicture(BLBItemDataTag& data, std::unique_ptr<Gdiplus::Bitmap> picture) const;
    void fixRowHeight(const BLBItemDataTag& first);
    int labelHeight() const;
    bool isHot(int index) const;
    bool isPressed(int index) const;
    RECT pictureRect(const RECT& row, int index) const;
    void fillRow(HDC dc, const RECT& row, int index) const;
    void invalidateRow(int index) const;
    void eraseBelowRows(HDC dc) const;
    RECT indicatorRect(int index) const;
    void press(POINT point);
    void dragTo(POINT point);
    void scrollTowards(POINT point);
    int dragMessage(const MSG& message);

    std::unique_ptr<knav::GdiPlusSession> m_session;
    std::vector<std::unique_ptr<BLBItemDataTag>> m_rows;  // in no order; the list box has the order
    int m_rowHeight = 0;
    COLORREF m_textColor = 0;
    COLORREF m_backgroundColor = 0;
    int m_pointedAt = -1;
    int m_pressedRow = -1;
    std::unique_ptr<knav::PlaceDrag> m_drag;
};
