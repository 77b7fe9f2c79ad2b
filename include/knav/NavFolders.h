// Special locations and the folders behind item lists.
//
// Folders returned carry one reference, released with NavReleaseFolder; lists returned belong to the caller and are
// freed with NavFreeItemList. Nothing is cached: each call asks the shell afresh. Nothing throws; failure is null or 0,
// also when a foreign folder faults. User-interface thread.
#pragma once

#include <knav/export.h>
#include <platform/Windows.h>

/// The qualified list of a special location (CSIDL_...); null when the system has none. `owner` may be null.
KNAV_API ITEMIDLIST* NavGetSpecialFolderItem(HWND owner, int csidl);

/// The list of the desktop, which is the empty list.
KNAV_API ITEMIDLIST* NavGetDesktopFolderItem(HWND owner);

/// The list of My Computer.
KNAV_API ITEMIDLIST* NavGetDrivesFolderItem(HWND owner);

/// The root of the namespace.
KNAV_API IShellFolder* NavGetDesktopFolder();

/// The folder that `list` names in `parent`. For the root item of a navigation extension, or an item below one,
/// `parent` is not used and may be null.
KNAV_API IShellFolder* NavGetFolderFromItem(IShellFolder* parent, ITEMIDLIST* list);

/// The folder of a qualified list; the desktop folder for the empty list.
KNAV_API IShellFolder* NavGetFolderFromDesktop(ITEMIDLIST* list);

/// The My Computer folder.
KNAV_API IShellFolder* NavGetDrivesFolder();

/// The internet root folder; null on systems that have none.
KNAV_API IShellFolder* NavGetInternetRootFolder();

/// Gives up the caller's reference. Null is fine.
KNAV_API void NavReleaseFolder(IShellFolder* folder);

/// Nonzero for the empty list and for any list that the shell considers equal to the desktop's; 0 for null.
KNAV_API int NavIsDesktop(ITEMIDLIST* list);

/// Nonzero when the shell considers the qualified list equal to that of My Computer, of the network or of the internet
/// root. Where the system has no such location, nonzero for null only.
KNAV_API int NavIsDrives(ITEMIDLIST* list);
KNAV_API int NavIsNetwork(ITEMIDLIST* list);
KNAV_API int NavIsInternetRoot(ITEMIDLIST* list);

/// The system image list of small icons. It belongs to the system: never destroy it.
KNAV_API HIMAGELIST NavGetSystemImageList();

/// Makes the shell look again at the drives: free space, labels, media.
KNAV_API void NavUpdateShellCache();
