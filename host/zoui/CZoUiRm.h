// Pictures of the resource modules, by id or by name.
#pragma once

#include <platform/CString.h>
#include <platform/GdiOwners.h>
#include <platform/export.h>

/// Names a resource: by number, or by a text such as "IDB_APP_NEW_16" (case does not matter). A value type.
class ZOUI_API CZoUiRmId {
public:
    CZoUiRmId(UINT id) noexcept : m_id(id) {}
    CZoUiRmId(const wchar_t* name) : m_name(name) {}

    /// As the system's functions take it; valid as long as this object.
    const wchar_t* GetResourceName() const noexcept { return m_id != 0 ? MAKEINTRESOURCEW(m_id) : m_name.GetString(); }

private:
    UINT m_id = 0;
    CString m_name;
};

class ZOUI_API CZoUiRm {
public:
    CZoUiRm() = delete;

    /// The icon of that name in the resource modules, or null. `size` is the width and height in pixels; 0 takes the
    /// system's small icon size.
    static zoui::UniqueIcon Icon(const CZoUiRmId& id, int size = 0);
};
