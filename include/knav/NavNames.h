// Comparing, naming and qualifying items.
//
// Lists passed in are neither freed nor changed; lists returned belong to the caller and are freed with
// NavFreeItemList. Name functions empty `name` first and return nonzero when they produced a non-empty name. Nothing
// throws; a folder that fails or faults yields failure. Call them on the thread that the folder belongs to, those that
// take none on a thread where COM is initialised.
#pragma once

#include <knav/export.h>
#include <platform/CString.h>

/// Negative, 0 or positive: the order of two items of `folder`. 0 for a null folder and for the same pointer; null
/// sorts first. Items of a navigation extension are compared by their names there.
KNAV_API int NavCompareFolderItems(IShellFolder* folder, ITEMIDLIST* a, ITEMIDLIST* b);

/// The name of an item of `folder` under SHGDN_... flags. The root item of a navigation extension has its own name and
/// needs no folder.
KNAV_API int NavGetItemDisplayName(DWORD shgdn, IShellFolder* folder, ITEMIDLIST* list, CString& name);

/// The same for a qualified list.
KNAV_API int NavGetItemDisplayNameInDesktop(DWORD shgdn, ITEMIDLIST* list, CString& name);

/// The name that the shell shows for an item inside its folder. A null folder means the desktop, here and below.
KNAV_API int NavGetItemNameInFolder(IShellFolder* folder, ITEMIDLIST* list, CString& name);

/// The name inside the folder that always has its file extension.
KNAV_API int NavGetItemNameWithExtensionInFolder(IShellFolder* folder, ITEMIDLIST* list, CString& name);

/// The full name, which the shell can parse again: the path of a file.
KNAV_API int NavGetItemNameForParsing(IShellFolder* folder, ITEMIDLIST* list, CString& name);

/// Turns a STRRET that `list`'s folder filled into text and frees what it holds. `list` is needed for STRRET_OFFSET.
KNAV_API int NavConvertToString(ITEMIDLIST* list, STRRET& strret, CString& text);

/// A new qualified list for an item of `folder`: its parsing name parsed from the desktop, or, when there is no such
/// name, a copy of `list`. Null without allocator, folder or list.
KNAV_API ITEMIDLIST* NavGetQualifiedItemList(IMalloc* allocator, IShellFolder* folder, ITEMIDLIST* list);

/// The qualified list of a path of at most 259 characters; null when the shell cannot parse it.
KNAV_API ITEMIDLIST* NavGetQualifiedItemListFromFolderFullPath(const wchar_t* path);
