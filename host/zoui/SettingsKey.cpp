#include "zoui/SettingsKey.h"

#include <cstdint>
#include <cwctype>

namespace zoui {
namespace {

constexpr int kLongestName = 200;  // a key's name may have 255 characters

bool needsEscape(wchar_t c) noexcept {
    return c < L' ' || c == L'\\' || c == L'%';
}

// FNV-1a over the letters as the registry compares them.
std::uint32_t checksum(std::wstring_view text) noexcept {
    std::uint32_t sum = 2166136261u;
    for (const wchar_t c : text) {
        sum = (sum ^ static_cast<std::uint32_t>(std::towupper(c))) * 16777619u;
    }
    return sum;
}

}  // namespace

CString settingsKeyName(const CString& dialogName) {
    CString key;
    for (const wchar_t c : dialogName.view()) {
        if (needsEscape(c)) {
            CString escaped;
            escaped.Format(L"%%%04X", static_cast<unsigned int>(c));
            key += escaped;
        } else {
            key += c;
        }
    }
    if (key.GetLength() > kLongestName) {
        CString number;
        number.Format(L"~%08X", checksum(key.view()));
        key = key.Left(kLongestName) + number;
    }
    return key;
}

}  // namespace zoui
