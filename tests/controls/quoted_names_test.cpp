#include "controls/QuotedNames.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Row {
    const char* why;
    const wchar_t* text;
    bool severalAllowed;
    std::vector<std::wstring> names;
};

const Row kRows[] = {
    {"nothing typed", L"", true, {}},
    {"blanks only", L" \t  ", true, {}},
    {"one plain name is trimmed outside", L"  a b.dwg ", true, {L"a b.dwg"}},
    {"one quoted name loses its quotes", L"\"a b.dwg\"", true, {L"a b.dwg"}},
    {"and keeps them where one name is all there is", L"\"a.dwg\"", false, {L"\"a.dwg\""}},
    {"two quoted names with one blank between", L"\"a\" \"b\"", true, {L"a", L"b"}},
    {"two names are one where one is all there is", L"\"a\" \"b\"", false, {L"\"a\" \"b\""}},
    {"names are not trimmed inside the quotes", L"\" a \" \"b \"", true, {L" a ", L"b "}},
    {"quotes touching separate too", L"\"a\"b\"", true, {L"a", L"b"}},
    {"a quote inside a name before a separator stays", L"\"a\"b\" \"c\"", true, {L"a\"b", L"c"}},
    {"an unquoted tail is dropped", L"\"a\" b", true, {L"a"}},
    {"a missing last quote drops the last name", L"\"a\" \"b", true, {L"a"}},
    {"two blanks between are taken for a name", L"\"a\"  \"b\"", true, {L"a", L"  ", L"b"}},
    {"nothing between two quotes is an empty name", L"\"\"", true, {L""}},
    {"one quote alone is nothing", L"\"", true, {}},
    {"an empty name in front stops the rest", L"\"\" \"b\"", true, {}},
    {"quotes later in the text are part of one name", L"a \"b\"", true, {L"a \"b\""}},
};

TEST(SplitNames, TypedText_GivesNames) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.why);
        const auto names = knav::splitNames(row.text, row.severalAllowed);
        EXPECT_EQ(std::vector<std::wstring>(names.begin(), names.end()), row.names);
    }
}

}  // namespace
