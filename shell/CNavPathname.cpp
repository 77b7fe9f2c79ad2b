#include <knav/CNavPathname.h>

#include <algorithm>
#include <cstring>
#include <cwchar>

#include <intshcut.h>

#include "data/ApiEdge.h"
#include "shell/ComPtr.h"
#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/ListWalk.h"
#include "shell/SiteLocation.h"
#include "shell/SpecialItems.h"

namespace {

// `item` as its folder knows it: callers give it with or without `parent`, the list of the folder, in front.
const ITEMIDLIST* itemInFolder(const ITEMIDLIST* item, const ITEMIDLIST* parent) {
    const std::size_t skipped = knav::measureList(parent).bytes;
    const bool hasParent =
        skipped > 0 && knav::measureList(item).bytes > skipped && std::memcmp(item, parent, skipped) == 0;
    return hasParent ? reinterpret_cast<const ITEMIDLIST*>(reinterpret_cast<const BYTE*>(item) + skipped) : item;
}

// Whether an item has `attribute`, one of the `asked` ones; no without a folder.
bool hasAttribute(IShellFolder* folder, const ITEMIDLIST* item, DWORD asked, DWORD attribute) {
    return folder != nullptr && (knav::attributesOf(folder, item, asked).value_or(0) & attribute) != 0;
}

}  // namespace

void CNavPathname::FreeItemList::operator()(ITEMIDLIST* list) const noexcept {
    NavFreeItemList(list);
}

void CNavPathname::ReleaseObject::operator()(IUnknown* object) const noexcept {
    knav::ComPtr<IUnknown>::adopt(object).reset();
}

CNavPathname::CNavPathname() = default;
CNavPathname::~CNavPathname() = default;

CNavPathname::CNavPathname(const CNavPathname& other)
    : CZoUiPathname(other),
      m_isExtension(other.m_isExtension),
      m_isUrl(other.m_isUrl),
      m_isShortCut(other.m_isShortCut),
      m_location(other.m_location),
      m_id(other.m_id),
      m_attached(other.m_attached) {
}

CNavPathname& CNavPathname::operator=(const CNavPathname& other) {
    AssignCopy(other);
    m_isExtension = other.m_isExtension;
    m_isUrl = other.m_isUrl;
    m_location = other.m_location;
    return *this;
}

CNavPathname& CNavPathname::operator=(const CNavPathname* other) {
    return other != nullptr ? *this = *other : *this;
}

PathErr CNavPathname::Parse(const wchar_t* text, bool allowWildcards) {
    return knav::atApiEdge(PathErr::NotFileSystem, [&] {
        m_location.Empty();
        if (text != nullptr && knav::isUrlLocation(text)) {
            setLocation(text);
            return PathErr::NotFileSystem;
        }
        return CZoUiPathname::Parse(text, allowWildcards);
    });
}

PathErr CNavPathname::Parse(ITEMIDLIST* item, IShellFolder* folder, ITEMIDLIST* parent, CString& displayName) {
    return knav::atApiEdge(PathErr::NotFileSystem, [&] {
        const ITEMIDLIST* const child = itemInFolder(item, parent);
        if (NavIsExtensionItem(item)) {
            m_isExtension = true;
            return takeItem(child, folder, displayName);
        }
        if (NavIsExtensionRootItem(parent)) {
            m_isExtension = true;
            m_location = displayName;
            m_type = Directory;
            return PathErr::None;
        }
        if (NavIsInternetSiteItem(item) || NavIsWebFoldersItem(item)) {
            m_isUrl = true;
            return takeItem(child, folder, displayName);
        }
        const PathErr result = Parse(displayName, false);
        if (result == PathErr::None && hasAttribute(folder, child, SFGAO_LINK, SFGAO_LINK)) {
            m_isShortCut = true;
        }
        return result;
    });
}

// Takes an item that is no path: its name is the location, and its folder says what it is.
PathErr CNavPathname::takeItem(const ITEMIDLIST* item, IShellFolder* folder, const CString& displayName) {
    m_location = displayName;
    const bool isFolder = hasAttribute(folder, item, SFGAO_FOLDER | SFGAO_FILESYSTEM, SFGAO_FOLDER);
    m_type = isFolder ? Directory : ExistingFile;
    return PathErr::None;
}

// Stores a location text; that of a URL sets both flags.
void CNavPathname::setLocation(const CString& location) {
    m_location = location;
    if (knav::isUrlLocation(location.view())) {
        m_isExtension = true;
        m_isUrl = true;
    }
}

void CNavPathname::ownID(ITEMIDLIST* id) {
    m_ownedId.reset(id);
    m_id = id;
}

void CNavPathname::dropOwnedID() {
    if (m_id == m_ownedId.get()) {
        m_id = nullptr;
    }
    m_ownedId.reset();
}

int CNavPathname::GetFullPath(CString& path) const {
    return knav::atApiEdge(0, [&] {
        if (!isText()) {
            return CZoUiPathname::GetFullPath(path);
        }
        path = m_location;
        return 1;
    });
}

void CNavPathname::GetBasename(CString& name) const {
    knav::atApiEdge([&] {
        if (isText()) {
            name = CString(knav::lastName(m_location.view()));
        } else {
            CZoUiPathname::GetBasename(name);
        }
    });
}

int CNavPathname::Exists() const {
    return knav::atApiEdge(0, [&] {
        return isText() ? static_cast<int>(m_type == ExistingFile || m_type == Directory) : CZoUiPathname::Exists();
    });
}

int CNavPathname::GetSitePrefix(CString& prefix) const {
    return knav::atApiEdge(0, [&] {
        CString location;
        GetFullPath(location);
        const std::wstring_view found = knav::sitePrefix(location.view());
        if (found.empty()) {
            return 0;
        }
        prefix = CString(found);
        return 1;
    });
}

void CNavPathname::GetServerName(CString& name) const {
    name.Empty();
    knav::atApiEdge([&] {
        CString prefix;
        if (GetSitePrefix(prefix) != 0) {
            name = CString(knav::serverName(prefix.view()));
        }
    });
}

int CNavPathname::NavPathCanonicalize(wchar_t* out, const wchar_t* in) {
    if (out == nullptr || in == nullptr) {
        return 0;
    }
    return knav::atApiEdge(0, [&] {
        Parse(in, true);
        if (!isText()) {
            return std::wstring_view(in).size() < MAX_PATH && PathCanonicalizeW(out, in) ? 1 : 0;
        }
        const std::optional<std::wstring> canonical = knav::canonicalLocation(in);
        if (!canonical) {
            return 0;
        }
        std::copy_n(canonical->c_str(), canonical->size() + 1, out);
        return 1;
    });
}

bool CNavPathname::hasTrailingSlash() const {
    const wchar_t* const path = GetPathString();
    if (m_type < NewFile || m_type > Directory || path == nullptr) {
        return false;
    }
    const std::wstring_view text(path);
    return text.empty() || text.back() != GetSeparator();
}

void CNavPathname::SetAttachedObject(IUnknown* object) {
    m_ownedAttached.reset(knav::ComPtr<IUnknown>::retain(object).release());
    m_attached = m_ownedAttached.get();
}

int CNavPathname::GetAttachedPrefix(CString& prefix) const {
    prefix.Empty();
    const auto locator = knav::ComPtr<IUniformResourceLocatorW>::from([this](IUniformResourceLocatorW** object) {
        return m_attached != nullptr
                   ? m_attached->QueryInterface(IID_IUniformResourceLocatorW, reinterpret_cast<void**>(object))
                   : E_NOINTERFACE;
    });
    wchar_t* url = nullptr;
    if (!locator || FAILED(knav::guarded([&] { return locator->GetURL(&url); }))) {
        return 0;
    }
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(url, &CoTaskMemFree);
    return knav::atApiEdge(0, [&] {
        prefix = CString(url);
        return prefix.IsEmpty() ? 0 : 1;
    });
}

void CNavPathname::ExtractString(const wchar_t* text, unsigned long count, CString& out) {
    if (text != nullptr && count > 0 && count < MAX_PATH) {
        knav::atApiEdge([&] { out = CString(std::wstring_view(text, wcsnlen(text, count))); });
    }
}
