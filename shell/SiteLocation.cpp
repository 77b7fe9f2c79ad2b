#include "shell/SiteLocation.h"

#include <platform/Windows.h>

#include <algorithm>
#include <span>

#include <wininet.h>

#include "shell/TextRules.h"

namespace {

constexpr std::wstring_view kSchemeEnd = L"://";
constexpr std::wstring_view kSeparators = L"/\\";
constexpr std::wstring_view kFakeRoot = L"x:\\site";  // what a site looks like to the path functions

bool isSeparator(wchar_t character) {
    return kSeparators.find(character) != std::wstring_view::npos;
}

std::wstring_view withoutEndSeparators(std::wstring_view place) {
    return place.substr(0, place.find_last_not_of(kSeparators) + 1);
}

// `location` is `place` or lies below it.
bool liesIn(std::wstring_view location, std::wstring_view place) {
    place = withoutEndSeparators(place);
    return knav::startsWithNoCase(location, place) &&
           (location.size() == place.size() || isSeparator(location[place.size()]));
}

}  // namespace

namespace knav {

bool isUrlLocation(std::wstring_view text) noexcept {
    return text.starts_with(L"ftp://") || text.starts_with(L"http://") || text.starts_with(L"https://");
}

std::wstring withLowerScheme(std::wstring_view url) {
    std::wstring result(url);
    const auto end = std::ranges::find(result, L':');
    std::transform(result.begin(), end, result.begin(), [](wchar_t character) {
        return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character | 0x20) : character;
    });
    return result;
}

std::optional<std::wstring> decodedUrl(const wchar_t* url) {
    wchar_t decoded[MAX_PATH];
    DWORD size = MAX_PATH;
    if (!InternetCanonicalizeUrlW(url, decoded, &size, ICU_DECODE | ICU_NO_ENCODE)) {
        return std::nullopt;
    }
    return decoded;
}

std::wstring_view sitePrefix(std::wstring_view location) noexcept {
    const std::size_t scheme = location.find(kSchemeEnd);
    if (scheme == std::wstring_view::npos || scheme + kSchemeEnd.size() == location.size()) {
        return {};
    }
    const std::size_t host = scheme + kSchemeEnd.size();
    const std::size_t slash = location.find(L'/', host);
    return location.substr(0, slash != std::wstring_view::npos ? slash : location.find(L'\\', host));
}

std::wstring_view serverName(std::wstring_view sitePrefix) noexcept {
    const std::size_t scheme = sitePrefix.find(kSchemeEnd);
    return scheme != std::wstring_view::npos ? sitePrefix.substr(scheme + kSchemeEnd.size()) : std::wstring_view();
}

std::wstring_view lastName(std::wstring_view location) noexcept {
    const std::size_t slash = location.rfind(L'/');
    const std::size_t end = slash != std::wstring_view::npos ? slash : location.rfind(L'\\');
    return end != std::wstring_view::npos ? location.substr(end + 1) : location;
}

std::optional<std::wstring> canonicalLocation(std::wstring_view location, std::wstring_view site) {
    const std::wstring_view prefix = sitePrefix(location);
    const std::wstring_view root = prefix.empty() ? location.substr(0, withoutEndSeparators(site).size()) : prefix;
    if (prefix.empty() && site.empty()) {
        return std::nullopt;
    }
    std::wstring path(kFakeRoot);
    path += location.substr(root.size());
    std::ranges::replace(path, L'/', L'\\');
    wchar_t canonical[MAX_PATH];
    if (path.size() >= MAX_PATH || !PathCanonicalizeW(canonical, path.c_str())) {
        return std::nullopt;
    }
    // ".." may have led out of the fake root's folder but not out of its drive, which is then the site's root too.
    std::wstring_view rest(canonical);
    rest.remove_prefix(liesIn(rest, kFakeRoot) ? kFakeRoot.size() : std::min(rest.size(), kFakeRoot.find(L'\\')));
    if (!rest.empty() && rest.front() != L'\\') {
        return std::nullopt;  // names of three dots and more can confuse the path functions; the host must not change
    }
    std::wstring result(root);
    result += rest;
    std::ranges::replace(std::span(result).subspan(prefix.empty() ? root.size() : 0), L'\\', L'/');
    return result.size() < MAX_PATH ? std::optional(std::move(result)) : std::nullopt;
}

std::optional<std::wstring> locationInSite(std::wstring_view site, std::wstring_view text) {
    const std::wstring_view prefix = sitePrefix(site);
    if (liesIn(text, prefix.empty() ? site : prefix)) {
        return std::wstring(text);
    }
    if (!sitePrefix(text).empty()) {
        return std::nullopt;
    }
    const bool fromRoot = !text.empty() && isSeparator(text.front());
    std::wstring location(withoutEndSeparators(fromRoot && !prefix.empty() ? prefix : site));
    if (!fromRoot) {
        location += L'/';
    }
    location += text;
    return location;
}

std::wstring_view nameBelowSite(std::wstring_view site, std::wstring_view location) noexcept {
    if (!liesIn(location, site)) {
        return location;
    }
    std::wstring_view name = location.substr(std::min(location.size(), site.size()));
    const std::size_t first = name.find_first_not_of(kSeparators);
    if (first == std::wstring_view::npos) {
        return {};
    }
    return name.substr(first, name.find_last_not_of(kSeparators) - first + 1);
}

}  // namespace knav
