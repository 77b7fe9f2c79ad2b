#include "data/FilterText.h"

#include <algorithm>

namespace {

// Length of the pair up to the zero that ends its patterns, or up to the limit.
std::size_t pairLength(const wchar_t* text) {
    std::size_t length = 0;
    for (int zeros = 0; length < knav::kFilterPairLimit; ++length) {
        if (text[length] == L'\0' && ++zeros == 2) {
            break;
        }
    }
    return length;
}

}  // namespace

knav::FilterPair knav::readFilterPair(const wchar_t* text) noexcept {
    const std::wstring_view pair(text, pairLength(text));
    const std::size_t start = std::min(pair.find(L'\0'), pair.size()) + 1;
    if (start >= pair.size()) {
        return {{}, start};
    }
    return {pair.substr(start), pair.size() + 1};
}

std::vector<std::wstring_view> knav::splitPatterns(std::wstring_view patterns) {
    std::vector<std::wstring_view> split;
    if (patterns.empty() || patterns == L"*.*") {
        return split;
    }
    for (;;) {
        const std::size_t end = patterns.find(L';');
        split.push_back(patterns.substr(0, end));
        if (end == std::wstring_view::npos) {
            return split;
        }
        patterns.remove_prefix(end + 1);
    }
}

std::vector<wchar_t> knav::copyFilterList(const wchar_t* list, std::size_t limit) {
    if (list == nullptr) {
        return {L'\0', L'\0'};
    }
    std::size_t length = 2;
    while (length < limit && (list[length - 2] != L'\0' || list[length - 1] != L'\0')) {
        ++length;
    }
    std::vector<wchar_t> copy(length);  // zeros
    std::copy_n(list, length - 2, copy.begin());
    return copy;
}
