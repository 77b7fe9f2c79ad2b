#pragma once

#include <knav/CNavArray.h>
#include <knav/CNavFilter.h>
#include <knav/export.h>

/// The file types that a dialog offers, in their order. The array owns them.
///
/// Made by the host, which keeps it alive as long as the dialog. Nothing here throws. Used on the dialog's thread.
class KNAV_API CNavFilterArray : public CNavArray<CNavFilter> {
public:
    /// No file types.
    CNavFilterArray();
    ~CNavFilterArray() override;

    /// Replaces all file types by those of `list`: pairs as CNavFilter::SetFrom describes them, one after the other,
    /// and one more zero at the end, for example L"Text\0*.txt;*.csv\0All files\0*.*\0". They are tagged 1, 2, 3 ... An
    /// empty list, or null, gives one file type that allows every name. What cannot be made for lack of memory is
    /// left out together with all that follow; the last file type then may lack patterns.
    void SetFrom(const wchar_t* list, int fullDescription);

    /// Index of the first file type that has a pattern equal to `pattern`, ignoring case; -1 when there is none, and
    /// for null.
    int Find(const wchar_t* pattern) const;
    /// The same, but -1 when the file type found has other patterns too.
    int FindExact(const wchar_t* pattern) const;
};
