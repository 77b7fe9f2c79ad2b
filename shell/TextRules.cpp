#include "shell/TextRules.h"

#include <platform/CString.h>
#include <platform/Url.h>

#include <algorithm>
#include <cwctype>

#include "data/ApiEdge.h"

namespace {

constexpr std::size_t kShortScheme = 6;
constexpr std::size_t kLongScheme = 7;
constexpr std::wstring_view kShortSchemes[] = {L"ftp://", L"http:/", L"https:", L"file:/"};
constexpr std::wstring_view kLongSchemes[] = {L"mailto:", L"gopher:"};

bool isSpace(wchar_t character) noexcept {
    return std::iswspace(character) != 0;
}

bool hasKnownScheme(std::wstring_view text) noexcept {
    const auto begins = [text](std::wstring_view scheme) { return knav::startsWithNoCase(text, scheme); };
    return (text.size() >= kShortScheme && std::ranges::any_of(kShortSchemes, begins)) ||
           (text.size() > kLongScheme && std::ranges::any_of(kLongSchemes, begins));
}

bool isUrlSyntax(const wchar_t* text) {
    DWORD service = 0;
    CString server;
    CString object;
    WORD port = 0;
    return AfxParseURL(text, service, server, object, port) != FALSE;
}

}  // namespace

namespace knav {

std::wstring_view trimmedLeft(std::wstring_view text) noexcept {
    return {std::ranges::find_if_not(text, isSpace), text.end()};
}

std::wstring_view trimmed(std::wstring_view text) noexcept {
    text = trimmedLeft(text);
    return {text.begin(), std::find_if_not(text.rbegin(), text.rend(), isSpace).base()};
}

int compareNoCase(const wchar_t* a, const wchar_t* b) noexcept {
    return CompareStringOrdinal(a != nullptr ? a : L"", -1, b != nullptr ? b : L"", -1, TRUE) - CSTR_EQUAL;
}

bool equalNoCase(std::wstring_view a, std::wstring_view b) noexcept {
    const auto length = static_cast<int>(a.size());
    return a.size() == b.size() &&
           (a.empty() || CompareStringOrdinal(a.data(), length, b.data(), length, TRUE) == CSTR_EQUAL);
}

bool startsWithNoCase(std::wstring_view text, std::wstring_view prefix) noexcept {
    return equalNoCase(text.substr(0, prefix.size()), prefix);
}

}  // namespace knav

int NavIsURL(const wchar_t* text) {
    return text != nullptr && hasKnownScheme(knav::trimmed(text)) &&
           knav::atApiEdge(false, [text] { return isUrlSyntax(text); });
}

int NavIsUNCPath(const wchar_t* text) {
    const std::wstring_view path = text != nullptr ? knav::trimmed(text) : std::wstring_view();
    return path.starts_with(L"\\\\") && !path.starts_with(L"\\\\\\");
}
