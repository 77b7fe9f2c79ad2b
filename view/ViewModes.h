// The dialog's view modes and what they mean to the shell's view and to its list control.
#pragma once

#include <platform/Windows.h>

#include <knav/NavViewMode.h>

namespace knav {

/// The view id that makes IShellView2 show a mode; thumbnails for an unknown one.
const GUID& viewIdOf(unsigned mode);

/// The list control's own view (LVM_SETVIEW) for a mode; list for an unknown one.
DWORD listViewOf(unsigned mode);

/// What a list control tells about its view.
struct ListViewFacts {
    DWORD view;           // LVM_GETVIEW
    int itemSpacing;      // horizontal spacing of large icons, in pixels
    int iconSpacing;      // the system's icon spacing
    LONG_PTR windowData;  // the window's user data
};

/// The mode that such a list shows. Wide-spaced icons are thumbnails, and a list marked as such stays one whatever view
/// it reports: not every platform's list can show them.
unsigned modeOfList(const ListViewFacts& facts);

/// Puts a list into a mode, marks it with its list view and keeps its selection visible without the focus.
void applyModeToList(HWND list, unsigned mode);

/// Reads a list's facts and decides.
unsigned readModeOfList(HWND list);

}  // namespace knav
