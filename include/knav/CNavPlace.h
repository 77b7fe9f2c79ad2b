#pragma once

#include <knav/CNavArray.h>
#include <knav/export.h>
#include <platform/CString.h>

/// A place that a host program asked for: its label and its full folder path.
class KNAV_API CNavPlace {
public:
    CNavPlace() = default;

    const wchar_t* GetName() const { return m_name; }
    void SetName(const wchar_t* name) { m_name = name; }
    const wchar_t* GetPath() const { return m_path; }
    void SetPath(const wchar_t* path) { m_path = path; }

private:
    CString m_name;
    CString m_path;
};

/// Places that wait for the next Places list; owns them.
class CNavPlacesArray : public CNavArray<CNavPlace> {};
