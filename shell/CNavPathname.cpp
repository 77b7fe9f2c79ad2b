#include <knav/CNavPathname.h>
#include <knav/NavNames.h>

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
#include "shell/TextRules.h"

namespace {

// Both lists start with the same bytes. The counts of a damaged list can promise more than there is.
bool startAlike(const ITEMIDLIST* a, const ITEMIDLIST* b, std::size_t bytes) {
    return knav::guardedTrue([=] { return std::memcmp(a, b, bytes) == 0; });
}

// `item` as its folder knows it: callers give it with or without `parent`, the list of the folder, in front.
const ITEMIDLIST* itemInFolder(const ITEMIDLIST* item, const ITEMIDLIST* parent) {
    const std::size_t skipped = knav::measureList(parent).bytes;
    const bool hasParent = skipped > 0 && knav::measureList(item).bytes > skipped && startAlike(item, parent, skipped);
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
    : CZoUiPathname(),
      m_isExtension(other.m_isExtension),
      m_isUrl(other.m_isUrl),
      m_isShortCut(other.m_isShortCut),
      m_id(other.m_id),
      m_attached(other.m_attached) {
    knav::atApiEdge([&] {
        CZoUiPathname::AssignCopy(other);
        m_location = other.m_location;
    });
}

CNavPathname& CNavPathname::operator=(const CNavPathname& other) {
    knav::atApiEdge([&] {
        CString location = other.m_location;
        AssignCopy(other);
        std::swap(m_location, location);
        m_isExtension = other.m_isExtension;
        m_isUrl = other.m_isUrl;
    });
    return *this;
}

CNavPathname& CNavPathname::operator=(const CNavPathname* other) {
    return other != nullptr ? *this = *other : *this;
}

PathErr CNavPathname::Parse(const wchar_t* text, bool allowWildcards) {
    return knav::atApiEdge(PathErr::NotFileSystem, [&] {
        m_location.Empty();
        if (text != nullptr && knav::isUrlLocation(text)) {
            m_location = text;
            m_isExtension = true;
            m_isUrl = true;
            return PathErr::NotFileSystem;
        }
        return CZoUiPathname::Parse(text, allowWildcards);
    });
}

int CNavPathname::SetURL(const wchar_t* url) {
    if (!NavIsURL(url)) {
        return 0;
    }
    return knav::atApiEdge(0, [&] {
        m_location = knav::withLowerScheme(knav::trimmed(url));
        m_isExtension = true;
        m_isUrl = true;
        return 1;
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
    STRRET url{STRRET_WSTR, {}};
    const bool hasUrl = locator && SUCCEEDED(knav::guarded([&] { return locator->GetURL(&url.pOleStr); }));
    return hasUrl ? NavConvertToString(nullptr, url, prefix) : 0;
}

void CNavPathname::ExtractString(const wchar_t* text, unsigned long count, CString& out) {
    if (text != nullptr && count > 0 && count < MAX_PATH) {
        knav::atApiEdge([&] { out = CString(std::wstring_view(text, wcsnlen(text, count))); });
    }
}
