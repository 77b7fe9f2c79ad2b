// Finding files without opening a dialog first.
#pragma once

#include <knav/export.h>
#include <platform/CString.h>

class CWnd;

/// Shows the Find dialog over `parent` (may be null): file types `filter` ("Text (*.txt)|*.txt|"), options
/// `findOptions`, the pattern `startText` to start with. When the user chose a file that was found: its name in
/// `fileName`, its folder in `folder`, and 1. Otherwise 0, and the two are as they were. The library has no Find dialog
/// yet, so the answer is always 0 for now. User-interface thread only. Nothing throws.
extern "C" KNAV_API int BrowseFiles(CString& filter, UINT findOptions, const CString& startText, CWnd* parent,
                                    CString& folder, CString& fileName);
