#include "zoui/PathText.h"

#include <algorithm>
#include <array>
#include <cwctype>
#include <vector>

namespace zoui {
namespace {

constexpr std::size_t kMaxPath = MAX_PATH - 1;
constexpr std::size_t kMaxName = 255;
constexpr wchar_t kSeparator = L'\\';
constexpr std::wstring_view kBlanks = L" \t\r\n\v\f\x00A0\x3000";

using Names = std::vector<std::wstring>;

bool isLetter(wchar_t c) noexcept {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}

bool beginsWithDrive(std::wstring_view text) noexcept {
    return text.size() >= 2 && text[1] == L':' && isLetter(text[0]);
}

std::wstring_view trimmed(std::wstring_view text, std::wstring_view characters) noexcept {
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::wstring_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

// Blanks, and quotes of which one may be missing, taken off both ends.
std::wstring_view unquoted(std::wstring_view text) {
    std::wstring_view inner = trimmed(text, kBlanks);
    if (inner.starts_with(L'"')) {
        inner.remove_prefix(1);
    }
    if (inner.ends_with(L'"')) {
        inner.remove_suffix(1);
    }
    return trimmed(inner, kBlanks);
}

bool isUrlOrShellName(std::wstring_view text) noexcept {
    const std::size_t colon = text.find(L':');
    if (colon == std::wstring_view::npos || colon == 1) {
        return false;
    }
    const std::wstring_view scheme = text.substr(0, colon);
    return text.substr(colon).starts_with(L"://") || text.starts_with(L"::") || scheme == L"shell" || scheme == L"file";
}

bool isInvalidCharacter(wchar_t c) noexcept {
    return c < L' ' || std::wstring_view(L"<>\"|:").find(c) != std::wstring_view::npos;
}

// Where a path begins, and the rest that is still to be followed from there.
struct Start {
    std::wstring root;  // "C:\" or "\\server\share\"
    Names names;        // the folders below the root that the path starts from
    std::wstring_view rest;
};

void appendNames(Names& names, std::wstring_view path) {
    while (!path.empty()) {
        const std::size_t end = path.find(kSeparator);
        if (end != 0) {
            names.emplace_back(path.substr(0, end));
        }
        path.remove_prefix(end == std::wstring_view::npos ? path.size() : end + 1);
    }
}

// The length of the root of a full path, as in Start; 0 for a path that is not full or names a bare server.
std::size_t rootLength(std::wstring_view path) noexcept {
    if (beginsWithDrive(path)) {
        return path.size() > 2 && path[2] == kSeparator ? 3 : 0;
    }
    if (!path.starts_with(L"\\\\")) {
        return 0;
    }
    const std::size_t share = path.find_first_of(kSeparator, 2) + 1;
    if (share <= 3 || share >= path.size() || path[share] == kSeparator) {
        return 0;
    }
    return std::min(path.find(kSeparator, share), path.size());
}

Start startOfFullPath(std::wstring_view path) {
    const std::size_t length = rootLength(path);
    return {std::wstring(path.substr(0, length)), {}, path.substr(length)};
}

std::wstring systemFullPath(const wchar_t* path) {
    std::wstring full(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetFullPathNameW(path, static_cast<DWORD>(full.size()), full.data(), nullptr);
        if (length < full.size()) {
            full.resize(length);
            return full;
        }
        full.resize(length + std::size_t{1});
    }
}

// As the start of further names: `folder` is a full path.
Start startInFolder(std::wstring_view folder, std::wstring_view rest) {
    Start start = startOfFullPath(folder);
    appendNames(start.names, start.rest);
    start.rest = rest;
    return start;
}

Start startOnDrive(std::wstring_view text, const std::wstring& base) {
    const std::wstring drive{static_cast<wchar_t>(std::towupper(text[0])), L':'};
    const std::wstring_view rest = text.substr(2);
    if (rest.empty() || rest.front() == kSeparator) {
        return {drive + kSeparator, {}, rest};
    }
    const bool onBase = beginsWithDrive(base) && std::towupper(base[0]) == static_cast<wint_t>(drive[0]);
    return startInFolder(onBase ? base : systemFullPath(drive.c_str()), rest);
}

// Follows "." and ".." and cuts what the system would not keep of a name. False: a name was nothing but dots.
bool followNames(Start& start) {
    Names given;
    appendNames(given, start.rest);
    for (std::wstring& name : given) {
        if (name == L"..") {
            if (!start.names.empty()) {
                start.names.pop_back();
            }
        } else if (name != L".") {
            if (!hasWildcard(name)) {
                name.erase(name.find_last_not_of(L". ") + 1);
            }
            if (name.empty()) {
                return false;
            }
            start.names.push_back(std::move(name));
        }
    }
    return true;
}

PathErr checkNames(const Names& names, bool allowWildcards) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool mayBePattern = allowWildcards && i + 1 == names.size();
        if (std::ranges::any_of(names[i], isInvalidCharacter) || (hasWildcard(names[i]) && !mayBePattern)) {
            return PathErr::InvalidCharacter;
        }
        if (names[i].size() > kMaxName) {
            return PathErr::TooLong;
        }
    }
    return PathErr::None;
}

void endWithSeparator(std::wstring& path) {
    if (!endsInSeparator(path)) {
        path += kSeparator;
    }
}

std::wstring joined(const Start& start, bool withSlash) {
    std::wstring path = start.root;
    for (const std::wstring& name : start.names) {
        endWithSeparator(path);
        path += name;
    }
    if (withSlash) {
        endWithSeparator(path);
    }
    return path;
}

bool isInvalidRoot(std::wstring_view root) noexcept {
    return std::ranges::any_of(root.substr(beginsWithDrive(root) ? 2 : 0), [](wchar_t c) {
        return isInvalidCharacter(c) || hasWildcard({&c, 1});
    });
}

// The text without the prefix that turns the system's own parsing off. Device names keep theirs.
std::wstring withoutVerbatimPrefix(std::wstring text) {
    if (text.starts_with(L"\\\\?\\UNC\\")) {
        return L"\\\\" + text.substr(8);
    }
    if (text.starts_with(L"\\\\?\\") && beginsWithDrive(std::wstring_view(text).substr(4))) {
        return text.substr(4);
    }
    return text;
}

Start startOf(std::wstring_view text, const std::wstring& base) {
    if (text.starts_with(L"\\\\")) {
        return startOfFullPath(text);
    }
    if (beginsWithDrive(text)) {
        return startOnDrive(text, base);
    }
    if (text.front() == kSeparator) {
        return {startOfFullPath(base).root, {}, text};
    }
    return startInFolder(base, text);
}

}  // namespace

ResolvedPath resolvePath(std::wstring_view given, const wchar_t* base, bool allowWildcards) {
    ResolvedPath result;
    std::wstring text(unquoted(given));
    if (text.empty()) {
        result.error = PathErr::Empty;
        return result;
    }
    if (isUrlOrShellName(text)) {
        result.error = PathErr::NotFileSystem;
        return result;
    }
    std::ranges::replace(text, L'/', kSeparator);
    text = withoutVerbatimPrefix(std::move(text));
    result.wasAbsolute = text.front() == kSeparator || beginsWithDrive(text);

    Start start = startOf(text, base != nullptr ? std::wstring(base) : systemFullPath(L"."));
    if (start.root.empty() || start.root.starts_with(L"\\\\.\\") || start.root.starts_with(L"\\\\?\\")) {
        result.error = PathErr::NotFileSystem;
        return result;
    }
    const bool dotsOnly = !followNames(start);
    result.error =
        dotsOnly || isInvalidRoot(start.root) ? PathErr::InvalidCharacter : checkNames(start.names, allowWildcards);
    if (result.error != PathErr::None) {
        return result;
    }
    std::wstring path = joined(start, endsInSeparator(text));
    if (path.size() > kMaxPath) {
        result.error = PathErr::TooLong;
        return result;
    }
    result.path = std::move(path);
    return result;
}

SplitPath splitPath(const std::wstring& path) {
    const std::wstring plain = withoutSlash(path);
    const std::size_t root = rootLength(plain);
    if (plain.size() <= root) {
        return {plain, {}};
    }
    const std::size_t name = plain.find_last_of(kSeparator) + 1;
    return {plain.substr(0, name > root ? name - 1 : name), plain.substr(name)};
}

std::wstring withoutSlash(const std::wstring& path) {
    const std::size_t root = rootLength(path);
    return endsInSeparator(path) && path.size() > root ? path.substr(0, path.size() - 1) : path;
}

bool endsInSeparator(std::wstring_view path) noexcept {
    return path.ends_with(kSeparator);
}

bool hasWildcard(std::wstring_view name) noexcept {
    return name.find_first_of(L"*?") != std::wstring_view::npos;
}

bool namesDevice(const std::wstring& path) {
    static constexpr std::array<std::wstring_view, 6> kDevices = {L"CON", L"PRN",    L"AUX",
                                                                  L"NUL", L"CONIN$", L"CONOUT$"};
    static constexpr std::wstring_view kPortDigits = L"123456789\x00B9\x00B2\x00B3";
    Names names;
    appendNames(names, std::wstring_view(path).substr(rootLength(path)));
    return std::ranges::any_of(names, [](const std::wstring& name) {
        std::wstring bare(trimmed(std::wstring_view(name).substr(0, name.find(L'.')), L" "));
        std::ranges::transform(bare, bare.begin(), [](wchar_t c) { return static_cast<wchar_t>(std::towupper(c)); });
        const bool isPort = bare.size() == 4 && (bare.starts_with(L"COM") || bare.starts_with(L"LPT")) &&
                            kPortDigits.find(bare[3]) != std::wstring_view::npos;
        return isPort || std::ranges::find(kDevices, bare) != kDevices.end();
    });
}

}  // namespace zoui
