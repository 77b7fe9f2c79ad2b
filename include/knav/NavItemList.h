// Building, copying and splitting shell item identifier lists.
//
// A list is a sequence of elements, each starting with a 16-bit byte count that includes the count itself, and ends
// with a count of 0. The empty list stands for the desktop. A list is qualified when it is relative to the desktop, and
// relative when it belongs to some folder. Lists are read with care: memory that cannot be read ends a list as if it
// were terminated there. Lists passed in are never freed or changed; lists returned by the functions that build or copy
// are new, belong to the caller and are freed with NavFreeItemList. An element pointer points into the list that was
// passed in. Nothing throws; failure is null or 0.
//
// Any thread may call them, but NavFreeItemList, which shares the allocator as CNavShell does, only one at a time.
#pragma once

#include <knav/export.h>
#include <platform/Windows.h>

/// Bytes of the first element, its count included. 0 for null, for the empty list and when it cannot be read.
KNAV_API int NavGetItemElementSize(ITEMIDLIST* list);

/// The part of `list` that starts at the second element; null when there is none.
KNAV_API ITEMIDLIST* NavGetNextItemElement(ITEMIDLIST* list);

/// A new list with the first element alone; null when there is none.
KNAV_API ITEMIDLIST* NavExtractItemElement(IMalloc* allocator, ITEMIDLIST* list);

/// A new list with the elements of `lists[0]` to `lists[count - 1]`, one after the other. Null entries add nothing;
/// when all are null the result is null, and when all others are empty it is a new empty list. Null also when one of
/// several lists has an element of one byte: what stands behind it would become part of its count.
KNAV_API ITEMIDLIST* NavBuildItemList(IMalloc* allocator, ITEMIDLIST** lists, int count);

/// A new list without the last element; null when nothing would be left.
KNAV_API ITEMIDLIST* NavBuildParentList(IMalloc* allocator, ITEMIDLIST* list);

/// A new list equal to `list`; null for null.
KNAV_API ITEMIDLIST* NavCopyItemList(IMalloc* allocator, ITEMIDLIST* list);

/// Nonzero when the list has more than one element.
KNAV_API int NavIsItemListQualified(ITEMIDLIST* list);

/// Frees `list` with the shell's task allocator and sets it to null. Null is fine.
KNAV_API void NavFreeItemList(ITEMIDLIST*& list);
