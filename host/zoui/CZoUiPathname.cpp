#include <zoui/CZoUiPathname.h>

#include "zoui/PathText.h"

namespace {

constexpr std::size_t kMaxPath = MAX_PATH - 1;

using Type = CZoUiPathname::Type;

bool isThere(const std::wstring& path) noexcept {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool isFolder(const std::wstring& path) noexcept {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Of a path that cannot be found for the reason `error`. All but "file not found" mean that a folder on the way is
// missing or out of reach; that one is also the answer of some systems when it is the drive that is missing.
Type typeOfMissing(const zoui::SplitPath& split, DWORD error) {
    const bool isInRoot = zoui::splitPath(split.folder).name.empty();
    const bool folderExists = error == ERROR_FILE_NOT_FOUND && (!isInRoot || isThere(split.folder));
    return folderExists ? CZoUiPathname::NewFile : CZoUiPathname::Invalid;
}

// What a full path is on the disk.
Type typeOnDisk(const std::wstring& path) {
    const zoui::SplitPath split = zoui::splitPath(path);
    if (zoui::namesDevice(path)) {
        return CZoUiPathname::Invalid;
    }
    if (zoui::hasWildcard(split.name)) {
        return isFolder(split.folder) ? CZoUiPathname::Wildcard : CZoUiPathname::Invalid;
    }
    const DWORD attributes = GetFileAttributesW(zoui::withoutSlash(path).c_str());
    const DWORD error = GetLastError();
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return CZoUiPathname::Directory;
    }
    if (split.name.empty() || zoui::endsInSeparator(path)) {
        return CZoUiPathname::Invalid;  // a folder was asked for
    }
    return exists ? CZoUiPathname::ExistingFile : typeOfMissing(split, error);
}

}  // namespace

CZoUiPathname& CZoUiPathname::operator=(const CZoUiPathname& other) {
    AssignCopy(other);
    return *this;
}

void CZoUiPathname::AssignCopy(const CZoUiPathname& other) {
    m_path = other.m_path;
    m_type = other.m_type;
    m_hasPath = other.m_hasPath;
    m_wasAbsolute = other.m_wasAbsolute;
}

PathErr CZoUiPathname::Parse(const wchar_t* text, bool allowWildcards) {
    return parseFrom(text, nullptr, allowWildcards);
}

PathErr CZoUiPathname::ParseRelative(const wchar_t* text, const CZoUiPathname* base, bool allowWildcards) {
    if (base == nullptr || !base->m_hasPath) {
        return parseFrom(text, nullptr, allowWildcards);
    }
    const std::wstring path(base->m_path.view());
    const bool isInFolder = base->m_type != Directory && base->m_type != Invalid;
    return parseFrom(text, (isInFolder ? zoui::splitPath(path).folder : path).c_str(), allowWildcards);
}

PathErr CZoUiPathname::parseFrom(const wchar_t* text, const wchar_t* base, bool allowWildcards) {
    m_type = Invalid;
    m_hasPath = false;
    m_path.Empty();
    const zoui::ResolvedPath resolved = zoui::resolvePath(text != nullptr ? text : L"", base, allowWildcards);
    m_wasAbsolute = resolved.wasAbsolute;
    if (resolved.error != PathErr::None) {
        return resolved.error;
    }
    m_path = resolved.path;
    m_hasPath = true;
    m_type = typeOnDisk(resolved.path);
    return PathErr::None;
}

int CZoUiPathname::GetFullPath(RyString& path) const {
    path = zoui::withoutSlash(std::wstring(m_path.view()));
    return m_hasPath;
}

void CZoUiPathname::GetBasename(RyString& name) const {
    name = zoui::splitPath(std::wstring(m_path.view())).name;
}

void CZoUiPathname::GetFilename(RyString& name) const {
    const std::wstring whole = zoui::splitPath(std::wstring(m_path.view())).name;
    name = whole.substr(0, whole.find_last_of(L'.'));
}

void CZoUiPathname::GetExtension(RyString& extension) const {
    const std::wstring whole = zoui::splitPath(std::wstring(m_path.view())).name;
    const std::size_t dot = whole.find_last_of(L'.');
    extension = dot == std::wstring::npos ? std::wstring() : whole.substr(dot + 1);
}

int CZoUiPathname::GetParent(CZoUiPathname& parent) const {
    const zoui::SplitPath split = zoui::splitPath(std::wstring(m_path.view()));
    if (!m_hasPath || split.name.empty()) {
        return 0;
    }
    CZoUiPathname folder;
    folder.m_path = split.folder;
    folder.m_hasPath = true;
    folder.m_wasAbsolute = true;
    // Parsing has already seen to it that the folder exists, unless the path is invalid for that or another reason.
    folder.m_type = m_type != Invalid ? Directory : typeOnDisk(split.folder);
    parent.CZoUiPathname::AssignCopy(folder);
    return 1;
}

int CZoUiPathname::Exists() const {
    if (!m_hasPath) {
        return 0;
    }
    const Type type = typeOnDisk(std::wstring(m_path.view()));
    return type == ExistingFile || type == Directory;
}

void CZoUiPathname::AddExtensionAlways(const wchar_t* extension) {
    const std::wstring_view given = extension != nullptr ? extension : L"";
    const std::wstring_view bare = given.starts_with(L'.') ? given.substr(1) : given;
    const bool takesExtension = m_hasPath && m_type != Directory && m_type != Wildcard;
    if (!takesExtension || bare.empty()) {
        return;
    }
    const std::wstring longer = zoui::withoutSlash(std::wstring(m_path.view())) + L'.' + std::wstring(bare);
    if (longer.size() <= kMaxPath) {
        m_path = longer;
        m_type = typeOnDisk(longer);
    }
}

void CZoUiPathname::TrimSlash() {
    m_path = zoui::withoutSlash(std::wstring(m_path.view()));
}
