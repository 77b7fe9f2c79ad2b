#include "controls/QuotedNames.h"

#include "shell/TextRules.h"

namespace knav {
namespace {

constexpr std::wstring_view kSeparator = L"\" \"";

// `rest` begins behind an opening quote. Quotes that are not set as a pair around one blank still separate names, so
// that a list somebody typed by hand is understood as far as it can be.
std::vector<std::wstring_view> splitQuoted(std::wstring_view rest) {
    std::vector<std::wstring_view> names;
    while (!rest.empty()) {
        const auto quote = rest.find(L'"');
        if (quote == std::wstring_view::npos) {
            break;
        }
        if (quote == rest.size() - 1) {
            names.push_back(rest.substr(0, quote));
            break;
        }
        auto end = rest.find(kSeparator);
        auto consumed = kSeparator.size();
        if (end == std::wstring_view::npos || end == 0) {
            end = quote;
            consumed = 1;
        }
        if (end == 0) {
            break;
        }
        names.push_back(rest.substr(0, end));
        rest.remove_prefix(end + consumed);
    }
    return names;
}

}  // namespace

std::vector<std::wstring_view> splitNames(std::wstring_view text, bool severalAllowed) {
    text = trimmed(text);
    if (text.empty()) {
        return {};
    }
    return text.front() == L'"' && severalAllowed ? splitQuoted(text.substr(1)) : std::vector{text};
}

}  // namespace knav
