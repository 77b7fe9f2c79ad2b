#pragma once

#include <knav/export.h>
#include <platform/Arrays.h>

/// One file type: a description and the name patterns that belong to it.
///
/// The patterns are the elements of the base array and may be changed through it at any time. A file type without
/// patterns allows every name. Null texts are accepted everywhere. Nothing here throws: what runs out of memory gives
/// the failure value, and a setter leaves the old value. Used on the dialog's thread.
class KNAV_API CNavFilter : public CStringArray {
public:
    /// A file type without description and patterns, which allows every name.
    CNavFilter();
    /// Forgets whether several items may be chosen with it, too.
    ~CNavFilter() override;

    /// Takes description and patterns from the pair at `text`: a description, a zero, patterns separated by ";", a
    /// zero. Patterns are kept as written, blanks and empty ones included; the single pattern "*.*" is stored as none.
    /// A pair of more than 520 characters is cut there, and what follows is read as the next pair.
    ///
    /// Returns the start of the next pair, or null when another zero ends the list, so `text` has to end in two zeros.
    /// With `fullDescription` the description is shown as it stands, else with the patterns appended. A null `text`
    /// empties the file type and returns null.
    wchar_t* SetFrom(wchar_t* text, int fullDescription);

    /// Number of patterns.
    int GetCount() const;
    /// Index of the first pattern equal to `pattern`, ignoring case; -1 when there is none.
    int Find(const wchar_t* pattern) const;

    /// 1 when the name matches one of the patterns, or there are no patterns; 0 otherwise and for null. Each pattern
    /// is matched by PathMatchSpecW after every "**" has been taken out of it.
    int IsAllowed(const wchar_t* name) const;

    /// The description without the patterns; valid until the next change of it.
    const wchar_t* GetDescription() const { return m_description; }
    /// Sets a description that is shown followed by the patterns.
    void SetDescription(const wchar_t* description);
    /// Sets a description that is shown as it stands.
    void SetFullDescription(const wchar_t* description);
    /// The text to show: the description, where wanted followed by the patterns as in "Text (*.txt, *.csv)". Empty when
    /// memory is short.
    void GetFullDescription(CString& text) const;

    /// Position in the list of file types, counted from 1; 0 for one that was not made from a list.
    __int64 GetTagIndex() const { return m_tagIndex; }
    void SetTagIndex(__int64 index) { m_tagIndex = index; }

    /// Whether several items may be chosen while this file type is in force. 0 unless set; kept outside of the object,
    /// for the object at this address.
    int GetMultiSelectAllowed() const;
    void SetMultiSelectAllowed(int allowed);

private:
    int m_fullDescription = 0;
    CString m_description;
    __int64 m_tagIndex = 0;
};
