#include "places/PlacesRules.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "resources/ids.h"
#include "shell/TextRules.h"

namespace knav {
namespace {

constexpr std::array kStandardPlaces{
    StandardPlace{L"History", PlacesItemHistory, IDB_KNAV_HISTORY, IDS_KNAV_HISTORY_TIP, IDS_KNAV_HISTORY},
    StandardPlace{L"Personal", PlacesItemPersonal, IDB_KNAV_PERSONAL, IDS_KNAV_PERSONAL_TIP, IDS_KNAV_PERSONAL},
    StandardPlace{L"Favorites", PlacesItemFavorites, IDB_KNAV_FAVORITES, IDS_KNAV_FAVORITES_TIP, IDS_KNAV_FAVORITES},
    StandardPlace{L"Desktop", PlacesItemDesktop, IDB_KNAV_DESKTOP, IDS_KNAV_DESKTOP_TIP, IDS_KNAV_DESKTOP},
};

const StandardPlace* found(const StandardPlace* place) {
    return place == kStandardPlaces.end() ? nullptr : place;
}

}  // namespace

std::span<const StandardPlace> standardPlaces() {
    return kStandardPlaces;
}

const StandardPlace* findStandardPlace(const wchar_t* name) {
    return found(std::ranges::find_if(kStandardPlaces,
                                      [name](const auto& place) { return compareNoCase(place.name, name) == 0; }));
}

const StandardPlace* findStandardPlace(PlacesItemType type) {
    return found(std::ranges::find(kStandardPlaces, type, &StandardPlace::type));
}

CString orderValue(int row, const wchar_t* suffix) {
    CString name;
    name.Format(L"PlacesOrder%d%s", row, suffix);
    return name;
}

CString folderLabel(const wchar_t* folderName) {
    const CString name(folderName);
    const int slash = name.ReverseFind(L'/');
    return name.Mid((slash >= 0 ? slash : name.ReverseFind(L'\\')) + 1);
}

RowMeasures rowMeasures(UINT dpi) {
    const double scale = dpi / static_cast<double>(USER_DEFAULT_SCREEN_DPI);
    return {static_cast<int>(std::lround(8 * scale)), static_cast<int>(std::lround(4 * scale))};
}

int rowHeight(const RowMeasures& measures, int characterHeight, int pictureHeight) {
    return measures.gap + 2 * measures.gap + characterHeight + pictureHeight;
}

int pictureOffset(const RowMeasures& measures, int available, int pictureWidth) {
    return pictureWidth >= available ? measures.margin : measures.margin + (available - pictureWidth) / 2;
}

bool shortenLabel(CString& text, int available, int margin, const std::function<int(const CString&)>& widthOf) {
    const int room = available - 2 * margin;
    CString kept = text;
    while (!kept.IsEmpty() && widthOf(kept) > room)
        kept.Delete(kept.GetLength() - 1);
    if (kept.GetLength() == text.GetLength())
        return false;
    text = kept.Left(std::max(kept.GetLength() - 3, 0)) + L"...";
    return true;
}

int insertionIndex(int y, int rowHeight, int topIndex, int count) {
    if (rowHeight <= 0)
        return count;
    return std::clamp((y + rowHeight / 2) / rowHeight + topIndex, 0, count);
}

int indexAfterRemoval(int from, int before) {
    return before > from ? before - 1 : before;
}

}  // namespace knav
