#include "data/NamePattern.h"

#include <platform/Windows.h>

#include <array>
#include <optional>
#include <string>

namespace {

constexpr wchar_t lowered(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character | 0x20) : character;
}

constexpr bool isPlain(wchar_t character) {
    const wchar_t lower = lowered(character);
    return (lower >= L'a' && lower <= L'z') || (character >= L'0' && character <= L'9') || character == L'_';
}

// The ".ext" of a pattern "*.ext" whose extension consists of plain characters only; empty for any other pattern.
std::wstring_view plainSuffix(const wchar_t* pattern) {
    if (pattern[0] != L'*' || pattern[1] != L'.') {
        return {};
    }
    std::size_t end = 2;
    while (isPlain(pattern[end])) {
        ++end;
    }
    return pattern[end] == L'\0' && end > 2 ? std::wstring_view(pattern + 1, end - 1) : std::wstring_view();
}

// Whether `name` ends in `suffix`, or no answer when a character that decides it has a case rule of its own: which
// ones equal a plain letter (as the Kelvin sign may equal "k") only the system knows.
std::optional<bool> endsIn(std::wstring_view name, std::wstring_view suffix) {
    if (name.size() < suffix.size()) {
        return false;
    }
    const wchar_t* const tail = name.data() + (name.size() - suffix.size());
    for (std::size_t index = suffix.size(); index-- > 0;) {
        if (tail[index] > 0x7F) {
            return std::nullopt;
        }
        if (lowered(tail[index]) != lowered(suffix[index])) {
            return false;
        }
    }
    return true;
}

bool hasDoubleStar(const wchar_t* pattern) {
    for (; *pattern != L'\0'; ++pattern) {
        if (pattern[0] == L'*' && pattern[1] == L'*') {
            return true;
        }
    }
    return false;
}

// Writes `pattern` without "**" and returns the end: of each run of stars, one is left or none.
wchar_t* writeWithoutDoubleStars(const wchar_t* pattern, wchar_t* out) {
    for (; *pattern != L'\0'; ++pattern) {
        if (pattern[0] == L'*' && pattern[1] == L'*') {
            ++pattern;
        } else {
            *out++ = *pattern;
        }
    }
    *out = L'\0';
    return out;
}

bool matchesWithoutDoubleStars(const wchar_t* name, const wchar_t* pattern) {
    std::array<wchar_t, 521> small;
    const std::wstring_view text(pattern);
    if (text.size() < small.size()) {
        writeWithoutDoubleStars(pattern, small.data());
        return PathMatchSpecW(name, small.data()) != FALSE;
    }
    std::wstring large(text.size(), L'\0');
    writeWithoutDoubleStars(pattern, large.data());
    return PathMatchSpecW(name, large.c_str()) != FALSE;
}

}  // namespace

bool knav::matchesPattern(const wchar_t* name, const wchar_t* pattern) {
    if (const std::wstring_view suffix = plainSuffix(pattern); !suffix.empty()) {
        if (const std::optional<bool> verdict = endsIn(name, suffix)) {
            return *verdict;
        }
    }
    return hasDoubleStar(pattern) ? matchesWithoutDoubleStars(name, pattern) : PathMatchSpecW(name, pattern) != FALSE;
}
