#include "dialog/NameRules.h"

#include <knav/CNavPathname.h>
#include <platform/Windows.h>

#include <algorithm>
#include <cwctype>

#include "resources/ids.h"
#include "shell/TextRules.h"

namespace knav {
namespace {

constexpr std::wstring_view kSeparators = L"\\/";
constexpr std::wstring_view kWildcards = L"*?";

std::optional<std::wstring> environmentVariable(const std::wstring& name) {
    wchar_t value[260];
    SetLastError(ERROR_SUCCESS);
    const DWORD length = GetEnvironmentVariableW(name.c_str(), value, 260);
    if (length >= 260 || (length == 0 && GetLastError() != ERROR_SUCCESS)) {
        return std::nullopt;
    }
    return std::wstring(value, length);
}

std::wstring cutToPath(std::wstring name) {
    if (name.size() > kLongestPath) {
        name.resize(kLongestPath);
    }
    return name;
}

}  // namespace

NAV_DATA_TYPE kindOfPath(const wchar_t* path) {
    return NavIsUNCPath(path) ? NAV_DATA_NETWORK : NAV_DATA_FILE;
}

bool isPickedFile(const CNavData& item) {
    const CNavPathname* path = item.GetID() ? item.GetPathname() : nullptr;
    CString full;
    return path && path->GetType() == CZoUiPathname::ExistingFile && !path->GetIsExtension() && !path->GetIsURL() &&
           path->GetFullPath(full) && full == item.GetText();
}

std::optional<std::size_t> extensionDot(std::wstring_view name) {
    const std::size_t dot = name.rfind(L'.');
    const std::size_t separator = name.find_last_of(kSeparators);
    const bool behind = separator == std::wstring_view::npos || (dot != std::wstring_view::npos && dot > separator);
    if (dot == std::wstring_view::npos || !behind || dot + 1 == name.size()) {
        return std::nullopt;
    }
    return dot;
}

std::wstring trimName(std::wstring_view name, bool trimBaseEnd) {
    name = trimmed(name);
    const auto dot = extensionDot(name);
    if (name.find(L' ') == std::wstring_view::npos || !dot) {
        return std::wstring(name);
    }
    const std::size_t separator = name.find_last_of(kSeparators);
    const std::size_t baseStart = separator == std::wstring_view::npos ? 0 : separator + 1;
    const std::wstring_view base = name.substr(baseStart, *dot - baseStart);
    std::wstring result(name.substr(0, baseStart));
    result += trimBaseEnd ? trimmed(base) : trimmedLeft(base);
    result += L'.';
    result += trimmedLeft(name.substr(*dot + 1));
    return result;
}

Expansion expandEnvironment(std::wstring_view text) {
    Expansion result;
    while (true) {
        const std::size_t open = text.find(L'%');
        result.text += text.substr(0, open);
        if (open == std::wstring_view::npos) {
            return result;
        }
        const std::size_t close = text.find(L'%', open + 1);
        if (close == std::wstring_view::npos) {
            result.text += text.substr(open);
            return result;
        }
        const std::wstring name(text.substr(open + 1, close - open - 1));
        if (const auto value = name.empty() ? std::nullopt : environmentVariable(name)) {
            result.text += *value;
            ++result.replaced;
        } else {
            result.text += L'%' + name + L'%';
        }
        text.remove_prefix(close + 1);
    }
}

std::optional<std::wstring> pathOfFileUrl(std::wstring_view url) {
    constexpr std::wstring_view scheme = L"file://";
    if (!url.starts_with(scheme)) {
        return std::nullopt;
    }
    std::wstring_view rest = url.substr(scheme.size(), 260);
    while (rest.starts_with(L'/')) {
        rest.remove_prefix(1);
    }
    if (rest.size() > 1 && rest[0] == L'\\' && std::iswalpha(rest[1])) {
        rest.remove_prefix(1);
    }
    std::wstring path(rest);
    std::ranges::replace(path, L'|', L':');
    std::ranges::replace(path, L'/', L'\\');
    return path;
}

bool namesOneExtension(std::wstring_view pattern) {
    return pattern.starts_with(L"*.") && pattern.size() > 2 &&
           pattern.find_first_of(kWildcards, 1) == std::wstring_view::npos;
}

ExtensionOutcome withFilterExtension(std::wstring_view name, const ExtensionFacts& facts) {
    const std::wstring_view pattern = facts.filterPattern;
    ExtensionOutcome unchanged{std::wstring(name), 1};
    const bool wild = name.find_first_of(kWildcards) != std::wstring_view::npos;
    if (wild || name.empty() || !namesOneExtension(pattern)) {
        return unchanged;
    }
    const std::wstring_view extension = pattern.substr(1);
    const auto append = [&] { return ExtensionOutcome{cutToPath(std::wstring(name) + std::wstring(extension)), 1}; };

    const auto dot = extensionDot(name);
    if (!dot) {
        const bool endsInSeparator = kSeparators.find(name.back()) != std::wstring_view::npos;
        return endsInSeparator ? unchanged : append();
    }
    const std::wstring typed = L"*" + std::wstring(name.substr(*dot));
    if (facts.acceptAnyExtension || equalNoCase(typed, pattern)) {
        return unchanged;
    }
    if (!facts.isKnown(typed)) {
        return facts.replace || facts.creatingFile ? append() : ExtensionOutcome{std::wstring(name), 0};
    }
    if (!facts.replace) {
        return unchanged;
    }
    return {cutToPath(std::wstring(name.substr(0, *dot + 1)) + std::wstring(pattern.substr(2))), 1};
}

std::wstring_view withoutQuotes(std::wstring_view name) {
    const bool quoted = name.size() > 2 && name.front() == L'"' && name.back() == L'"';
    return quoted ? name.substr(1, name.size() - 2) : name;
}

std::wstring withoutAccelerator(std::wstring_view caption) {
    constexpr auto npos = std::wstring_view::npos;
    std::size_t start = 0;
    while (true) {
        const std::size_t group = caption.find(L"(&", start);
        const std::size_t close = caption.find(L')', start);
        if (group != npos && group >= 1 && close == group + 3) {
            std::wstring shortened(caption);
            shortened.erase(group, 4);
            start = close + 1;
            // A group that is followed by more text belongs to the words, so only one at the very end goes.
            if (start + 1 >= caption.size()) {
                return shortened;
            }
            continue;
        }
        const std::size_t mark = caption.find(L'&', start);
        if (mark == npos) {
            return std::wstring(caption);
        }
        if (caption.substr(mark).starts_with(L"&&")) {
            start = mark + 2;
            continue;
        }
        std::wstring unmarked(caption);
        unmarked.erase(mark, 1);
        return unmarked;
    }
}

std::wstring joinUrl(std::wstring_view folder, std::wstring_view name) {
    std::wstring result(folder);
    if (!folder.ends_with(L'/') && !name.starts_with(L'/') && !name.starts_with(L'\\')) {
        result += L'/';
    }
    std::wstring tail(name);
    std::ranges::replace(tail, L'\\', L'/');
    return result + tail;
}

bool appendPath(CString& name, const CString& folder) {
    wchar_t buffer[kLongestPath + 1];
    if (folder.GetLength() > static_cast<int>(kLongestPath)) {
        return false;
    }
    lstrcpyW(buffer, folder);
    if (!PathAppendW(buffer, name)) {
        return false;
    }
    name = buffer;
    return true;
}

std::optional<std::wstring> driveOf(std::wstring_view name) {
    if (name.size() < 2 || name[1] != L':') {
        return std::nullopt;
    }
    const wchar_t letter = static_cast<wchar_t>(std::towupper(name[0]));
    if (letter < L'A' || letter > L'Z') {
        return std::nullopt;
    }
    return std::wstring{letter, L':'};
}

UINT driveProblem(UINT type) {
    switch (type) {
        case DRIVE_UNKNOWN:
        case DRIVE_NO_ROOT_DIR:
            return IDS_KNAV_NO_DRIVE;
        case DRIVE_REMOVABLE:
        case DRIVE_CDROM:
            return IDS_KNAV_DRIVE_NOT_READY;
        default:
            return 0;
    }
}

std::wstring withExtensionOf(std::wstring_view name, std::wstring_view pattern) {
    const std::size_t nameDot = name.rfind(L'.');
    const std::wstring_view extension = pattern.substr(pattern.rfind(L'.') + 1);
    const bool isPlain = !extension.empty() && extension.find_first_of(L"*?") == std::wstring_view::npos;
    if (nameDot == std::wstring_view::npos || !isPlain) {
        return std::wstring(name);
    }
    return std::wstring(name.substr(0, nameDot + 1)) + std::wstring(extension);
}

}  // namespace knav
