#include <knav/CNavData.h>

#include <knav/CNavPathname.h>
#include <knav/NavItemList.h>

#include "data/ApiEdge.h"

namespace {

void assign(CString& target, const wchar_t* text) {
    knav::atApiEdge([&] { target = CString(text); });
}

}  // namespace

void CNavData::FreeItemList::operator()(ITEMIDLIST* list) const noexcept {
    NavFreeItemList(list);
}

CNavData::CNavData() : m_pathname(new (std::nothrow) CNavPathname) {
}
CNavData::~CNavData() = default;

void CNavData::SetID(ITEMIDLIST* id) {
    if (id != m_id.get()) {
        m_id.reset(id);
    }
}

void CNavData::SetText(const wchar_t* text) {
    knav::atApiEdge([&] { m_text = CString(text).TrimLeft(); });
}

void CNavData::SetTextInFolder(const wchar_t* text) {
    knav::atApiEdge([&] { m_textInFolder = CString(text).Trim(); });
}

void CNavData::SetPathname(CNavPathname* pathname) {
    if (m_pathname != nullptr && pathname != nullptr) {
        knav::atApiEdge([&] { *m_pathname = *pathname; });
    }
}

void CNavData::SetUserName(const wchar_t* name) {
    assign(m_userName, name);
}

void CNavData::SetPassword(const wchar_t* password) {
    assign(m_password, password);
}

void CNavData::SetExtensionName(const wchar_t* name) {
    assign(m_extensionName, name);
}

int CNavData::IsRemote() const {
    return m_type == NAV_DATA_URL || m_type == NAV_DATA_EXTENSION || m_type == NAV_DATA_FTP ? 1 : 0;
}

int CNavData::IsExtension() const {
    return m_type == NAV_DATA_EXTENSION ? 1 : 0;
}

int CNavData::GetURL(CString& url) const {
    url.Empty();
    if (IsRemote() == 0) {
        return 0;
    }
    if (m_pathname != nullptr) {
        m_pathname->GetFullPath(url);
    }
    return 1;
}
