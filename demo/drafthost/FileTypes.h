#pragma once

#include <knav/CNavFilterArray.h>
#include <platform/CString.h>

/// Fills `filters` from description and patterns in turn, parted by "|".
inline void setFileTypes(CNavFilterArray& filters, const CString& types) {
    CString list = types + L"||";
    list.Replace(L'|', L'\0');
    filters.SetFrom(list, 1);
}
