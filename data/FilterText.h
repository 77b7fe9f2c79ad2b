// How a filter list text (pairs of description and patterns, each ended by a zero, one more zero at the end) is read.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace knav {

/// Characters of a pair that are looked at; the character behind them is taken for its end.
inline constexpr std::size_t kFilterPairLimit = 520;

/// What follows the description of a pair, as a view into the text it was read from.
struct FilterPair {
    std::wstring_view patterns;  ///< separated by ";"; empty when there are none
    std::size_t consumed;        ///< characters up to the start of the next pair
};

/// Reads the pair at the start of `text`, which ends in two zeros.
FilterPair readFilterPair(const wchar_t* text) noexcept;

/// The patterns of a pair one by one, as written. Every ";" starts another one, so one at the end gives an empty
/// pattern. No patterns, and "*.*" alone, give none.
std::vector<std::wstring_view> splitPatterns(std::wstring_view patterns);

/// A copy of a list up to and with its two final zeros, of at most `limit` (at least 2) characters: a list that is
/// longer is cut and its last two characters are made zeros. Null is an empty list.
std::vector<wchar_t> copyFilterList(const wchar_t* list, std::size_t limit);

}  // namespace knav
