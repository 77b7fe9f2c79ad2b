#include <knav/CNavFilter.h>

#include <random>

#include "data/NamePattern.h"
#include "support/Printers.h"

namespace {

struct NameRow {
    const char* why;
    std::vector<const wchar_t*> patterns;
    const wchar_t* name;
    int allowed;
};

TEST(CNavFilter, AllowsNamesByItsPatterns) {
    const NameRow rows[] = {
        {"no patterns allow all", {}, L"a", 1},
        {"null is never allowed", {}, nullptr, 0},
        {"second pattern", {L"*.dwg", L"*.dxf"}, L"plan.dxf", 1},
        {"a blank before a pattern is skipped", {L" *.dwg"}, L"plan.dwg", 1},
        {"added patterns may be lists", {L"*.a;*.b"}, L"x.b", 1},
    };
    for (const NameRow& row : rows) {
        SCOPED_TRACE(row.why);
        CNavFilter filter;
        for (const wchar_t* const pattern : row.patterns) {
            filter.Add(pattern);
        }
        EXPECT_EQ(filter.IsAllowed(row.name), row.allowed);
    }
}

TEST(CNavFilter, FollowsChangesThroughTheBaseArray) {
    CNavFilter filter;
    filter.Add(L"*.dwg");
    EXPECT_EQ(filter.IsAllowed(L"a.dwg"), 1);
    filter[0].SetAt(4, L'f');
    EXPECT_EQ(filter.IsAllowed(L"a.dwg"), 0);
    EXPECT_EQ(filter.IsAllowed(L"a.dwf"), 1);
    filter.SetAt(0, L"*.txt");
    EXPECT_EQ(filter.IsAllowed(L"a.txt"), 1);
    filter.RemoveAll();
    EXPECT_EQ(filter.IsAllowed(L"a.pdf"), 1);
}

TEST(CNavFilter, MatchesPatternsOfAnyLength) {
    const std::wstring body(519, L'a');
    for (const std::wstring& longer : {body, body + L"a", body + std::wstring(5000, L'a')}) {
        CNavFilter filter;
        filter.Add(CString(L"**" + longer));
        EXPECT_EQ(filter.IsAllowed(longer.c_str()), 1) << longer.size();
        EXPECT_EQ(filter.IsAllowed((longer + L"a").c_str()), 0) << longer.size();
    }
}

// The rule in its plainest form.
bool allowedByTheRule(const std::wstring& name, std::wstring pattern) {
    for (std::size_t at = pattern.find(L"**"); at != std::wstring::npos; at = pattern.find(L"**")) {
        pattern.erase(at, 2);
    }
    return PathMatchSpecW(name.c_str(), pattern.c_str()) != FALSE;
}

// Letters with surprising case partners among them: dotless and dotted i, long s, Kelvin and Angstrom signs, sharp s.
constexpr std::wstring_view kLetters =
    L"abikszABIKSZ09_. ;Ä\u00E4\u00E5\u0130\u0131\u017F\u212A\u212B\u00DF\u03C3\u03C2\u03A3-[~\xD83D";

class Generator {
public:
    std::wstring text(std::size_t longest) {
        std::wstring made;
        for (std::size_t length = pick(longest + 1); made.size() < length;) {
            made += kLetters[pick(kLetters.size())];
        }
        return made;
    }

    std::wstring pattern() {
        std::wstring made = pick(3) == 0 ? text(4) : L"*." + text(4);
        const std::size_t wildcards = pick(4) == 0 ? pick(5) : 0;  // few: matching takes exponential time
        for (std::size_t i = 0; i < wildcards; ++i) {
            made.insert(pick(made.size() + 1), pick(3) == 0 ? L"?" : L"*");
        }
        return made;
    }

    // Often one that ends as the pattern does, in another case or with one character changed.
    std::wstring nameFor(const std::wstring& pattern) {
        std::wstring tail = pattern.starts_with(L'*') && pick(8) != 0 ? pattern.substr(1) : text(5);
        for (wchar_t& character : tail) {
            const std::size_t change = pick(6);
            character = change == 0 ? kLetters[pick(kLetters.size())] : change < 3 ? otherCase(character) : character;
        }
        return text(6) + tail;
    }

private:
    static wchar_t otherCase(wchar_t character) {
        wchar_t changed[] = {character, 0};
        return CharUpperBuffW(changed, 1) == 1 && changed[0] != character ? changed[0]
               : CharLowerBuffW(changed, 1) == 1                          ? changed[0]
                                                                          : character;
    }
    std::size_t pick(std::size_t count) { return m_random() % count; }

    std::mt19937 m_random{1905};
};

TEST(NamePatternFuzz, AgreesWithTheSystemsMatcher) {
    Generator generate;
    int matches = 0;
    for (int round = 0; round < 1'000'000; ++round) {
        const std::wstring pattern = generate.pattern();
        const std::wstring name = generate.nameFor(pattern);
        const bool expected = allowedByTheRule(name, pattern);
        ASSERT_EQ(knav::matchesPattern(name.c_str(), pattern.c_str()), expected)
            << '"' << knav::test::utf8(name) << "\" against \"" << knav::test::utf8(pattern) << '"';
        matches += expected;
    }
    EXPECT_GT(matches, 200'000) << "too few matches to mean anything";
    EXPECT_LT(matches, 800'000);
}

}  // namespace
