#include "dialog/NavLayout.h"

#include "resources/ids.h"

namespace knav {

std::span<const GrowRow> navLayoutRows() {
    static constexpr GrowRow rows[] = {
        {IDC_KNAV_PLACES, Grow::Stay, Grow::Stretch},
        {IDC_KNAV_PLACES_LABEL, Grow::Stay, Grow::Stay},
        {IDC_KNAV_LOOK_IN_LABEL, Grow::Stay, Grow::Stay},
        {IDC_KNAV_LOOK_IN, Grow::Stretch, Grow::Stay},
        {IDC_KNAV_BACK, Grow::Move, Grow::Stay},
        {IDC_KNAV_UP, Grow::Move, Grow::Stay},
        {IDC_KNAV_REFRESH, Grow::Move, Grow::Stay},
        {IDC_KNAV_WEB, Grow::Move, Grow::Stay},
        {IDC_KNAV_DELETE, Grow::Move, Grow::Stay},
        {IDC_KNAV_NEW_FOLDER, Grow::Move, Grow::Stay},
        {IDC_KNAV_VIEWS, Grow::Move, Grow::Stay},
        {IDC_KNAV_TOOLS, Grow::Move, Grow::Stay},
        {IDC_KNAV_VIEW_LABEL, Grow::Stay, Grow::Stay},
        {IDC_KNAV_VIEW, Grow::Stretch, Grow::Stretch},
        {IDC_KNAV_FILE_NAME_LABEL, Grow::Stay, Grow::Move},
        {IDC_KNAV_FILE_NAME, Grow::Stretch, Grow::Move},
        {IDC_KNAV_FILE_TYPE_LABEL, Grow::Stay, Grow::Move},
        {IDC_KNAV_FILE_TYPE, Grow::Stretch, Grow::Move},
        {IDOK, Grow::Move, Grow::Move},
        {IDCANCEL, Grow::Move, Grow::Move},
    };
    return rows;
}

}  // namespace knav
