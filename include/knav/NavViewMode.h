#pragma once

/// How the view shows its items; the values that CNavDialog and CNavCommDlgBrowser take, return and store as the view
/// mode. They are the shell's own folder view modes.
enum NavViewMode : unsigned int {
    NavViewLargeIcons = 1,
    NavViewSmallIcons = 2,
    NavViewList = 3,
    NavViewDetails = 4,
    NavViewThumbnails = 5,
    NavViewTiles = 6,
};
