#include <knav/CNavNode.h>
#include <knav/CNavPathname.h>
#include <knav/NavNames.h>

#include "data/ApiEdge.h"
#include "shell/FolderCalls.h"
#include "shell/ItemList.h"
#include "shell/SiteLocation.h"

namespace {

// A text that starts with one separator is absolute to the file system, but inside a site it means the site's root.
bool startsAtRoot(const wchar_t* text) {
    const auto isSeparator = [](wchar_t character) { return character == L'/' || character == L'\\'; };
    return isSeparator(text[0]) && !isSeparator(text[1]);
}

bool isRoot(const CNavNode& node) {
    const NavNodeType type = node.GetType();
    return type == NavNodeExtensionRoot || type == NavNodeInternetRoot || type == NavNodeWebFoldersRoot;
}

// The location text of a site: its name as its own folder gives it, or else the desktop, which knows no extension.
CString locationOf(CNavNode& site, const knav::ItemList& qualified) {
    CString location;
    if (!site.GetNameForParsing(location) && !site.IsExtensionType()) {
        NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, qualified.get(), location);
    }
    return location;
}

}  // namespace

PathErr CNavPathname::ParseRelative(const wchar_t* text, const CNavPathname* base, CNavNode* node, int allowWildcards) {
    return knav::atApiEdge(PathErr::NotFileSystem, [&] {
        m_isExtension = node != nullptr && node->IsExtensionType();
        m_isUrl = node != nullptr && (node->IsInternetType() || node->IsWebFoldersType());
        m_location.Empty();
        dropOwnedID();
        if (!isText()) {
            return parseAbsolute(text, base, allowWildcards != 0);
        }
        const std::wstring_view typed(text != nullptr ? text : L"");
        if (typed.empty()) {
            return PathErr::Empty;
        }
        if (typed.size() >= MAX_PATH) {
            return PathErr::TooLong;
        }
        if (CNavNode* const site = node->GetSiteNode()) {
            return parseInSite(text, base, *site, allowWildcards != 0);
        }
        return isRoot(*node) && parseAtRoot(text, *node) ? PathErr::None
                                                         : parseAbsolute(text, base, allowWildcards != 0);
    });
}

// Takes an absolute path; only then the flags are cleared.
PathErr CNavPathname::parseAbsolute(const wchar_t* text, const CNavPathname* base, bool allowWildcards) {
    CZoUiPathname path;
    if (path.Parse(text, allowWildcards) != PathErr::None || !path.WasAbsolute()) {
        return PathErr::NotFileSystem;
    }
    m_isExtension = false;
    m_isUrl = false;
    return CZoUiPathname::ParseRelative(text, base, allowWildcards);
}

PathErr CNavPathname::parseInSite(const wchar_t* text, const CNavPathname* base, CNavNode& site, bool allowWildcards) {
    if (!startsAtRoot(text)) {
        const PathErr result = parseAbsolute(text, base, allowWildcards);
        if (!isText()) {
            return result;
        }
    }
    const auto qualified = knav::ItemList::adopt(site.CalculateQualifiedItemList());
    std::optional<std::wstring> place(locationOf(site, qualified).view());
    std::optional<std::wstring> location = knav::locationInSite(*place, text);
    if (place->empty() || !location) {
        return PathErr::NotFileSystem;
    }
    location = knav::canonicalLocation(*location, *place);
    if (location && site.IsWebFoldersType()) {  // they hand out escaped URLs; people read and store plain ones
        location = knav::decodedUrl(location->c_str());
        place = knav::decodedUrl(place->c_str());
    }
    if (!location || !place || location->size() >= MAX_PATH) {
        return PathErr::TooLong;
    }
    m_location = CString(*location);
    findInSite(site, qualified.get(), std::wstring(knav::nameBelowSite(*place, *location)).c_str());
    return PathErr::None;
}

// Asks the site's folder about `name`; what it does not know is taken for a file, which may be about to be saved.
void CNavPathname::findInSite(CNavNode& site, ITEMIDLIST* siteList, const wchar_t* name) {
    DWORD attributes = 0;
    const knav::ItemList found = knav::parseName(site.GetFolder(), name, SFGAO_FOLDER | SFGAO_FILESYSTEM, &attributes);
    if (found || name[0] == L'\0') {
        ownID(knav::ItemList::join(siteList, found.get()).release());
    }
    const bool isFolder = name[0] == L'\0' || (attributes & SFGAO_FOLDER) != 0;
    m_type = isFolder ? Directory : ExistingFile;
}

// Asks a root's folder for the site of that name; false when it knows none.
bool CNavPathname::parseAtRoot(const wchar_t* text, CNavNode& root) {
    const knav::ItemList site = knav::parseName(root.GetFolder(), text);
    if (!site) {
        return false;
    }
    const auto qualified = knav::ItemList::adopt(root.CalculateQualifiedItemList());
    if (!NavGetItemDisplayName(SHGDN_FORPARSING, root.GetFolder(), site.get(), m_location)) {
        m_location = text;
    }
    ownID(knav::ItemList::join(qualified.get(), site.get()).release());
    m_type = Directory;
    return true;
}
