// The rules of the Places list that need no window.
#pragma once

#include <knav/PlacesItemType.h>
#include <platform/CString.h>

#include <functional>
#include <span>

namespace knav {

/// A place that every list offers, with its resources.
struct StandardPlace {
    const wchar_t* name;
    PlacesItemType type;
    UINT picture;
    UINT tip;
    UINT label;
};
std::span<const StandardPlace> standardPlaces();

/// By keyword, ignoring case, or by kind; null when there is none.
const StandardPlace* findStandardPlace(const wchar_t* name);
const StandardPlace* findStandardPlace(PlacesItemType type);

/// The value that keeps a row: "PlacesOrder" + row + suffix.
CString orderValue(int row, const wchar_t* suffix = L"");
inline constexpr wchar_t kOrderDisplay[] = L"Display";
inline constexpr wchar_t kOrderExtension[] = L"Ext";
/// The extension name that stands for Web Folders.
inline constexpr wchar_t kWebFolders[] = L"WebFolders";

/// The label of a folder inside an extension when none is given: what follows its last "/", else its last "\".
CString folderLabel(const wchar_t* folderName);

/// The measures of a row, in pixels at these dots per inch: the margin at each side, and the gap between its parts.
struct RowMeasures {
    int margin;
    int gap;
};
RowMeasures rowMeasures(UINT dpi);

/// The height of every row.
int rowHeight(const RowMeasures& measures, int characterHeight, int pictureHeight);

/// How far from the row's left edge a picture stands that is centred in the available width.
int pictureOffset(const RowMeasures& measures, int available, int pictureWidth);

/// Shortens a text to `available` less the margins and ends it with "..."; false, and the text whole, when it fits.
bool shortenLabel(CString& text, int available, int margin, const std::function<int(const CString&)>& widthOf);

/// Where a row goes that is dropped at `y` (client coordinates): before the row of that index.
int insertionIndex(int y, int rowHeight, int topIndex, int count);

/// Where a row taken out at `from` must be inserted to stand before what was row `before`.
int indexAfterRemoval(int from, int before);

}  // namespace knav
