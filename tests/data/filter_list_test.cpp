#include <knav/CNavFilterArray.h>

#include <psapi.h>
#include <random>

#include "data/FilterText.h"
#include "support/MemoryEnd.h"
#include "support/Printers.h"

namespace {

using Strings = std::vector<std::wstring>;

// "|" stands for the zero that ends an element.
std::wstring listText(std::wstring text) {
    std::ranges::replace(text, L'|', L'\0');
    text += L'\0';
    return text;
}

std::wstring describe(const CNavFilter& filter) {
    std::wstring text = filter.GetDescription();
    for (const CString& pattern : filter) {
        text += L'|';
        text += pattern.view();
    }
    return text;
}

Strings describe(const CNavFilterArray& filters) {
    Strings all;
    for (int i = 0; i < filters.GetCount(); ++i) {
        all.push_back(describe(*filters[i]));
    }
    return all;
}

TEST(CNavFilterArray, MayReadATextOfItsOwn) {
    CNavFilterArray filters;
    const std::wstring text = listText(L"Text|*.txt|");
    filters.AddData();
    filters[0]->SetDescription(L"x");
    filters[0]->Add(CString(text));  // a zero inside: the pattern holds a whole list
    filters.SetFrom(filters[0]->GetAt(0), 0);
    EXPECT_EQ(describe(filters), Strings{L"Text|*.txt"});
    filters.SetFrom(nullptr, 1);
    EXPECT_EQ(describe(filters), Strings{L""});
    EXPECT_EQ(filters[0]->IsAllowed(L"any.thing"), 1);
}

TEST(CNavFilterArray, FindsPatterns) {
    CNavFilterArray filters;
    EXPECT_EQ(filters.Find(L"*.txt"), -1);
    filters.SetFrom(listText(L"Any|*.*|Texts|*.csv;*.TXT|Text|*.txt|Log|*.log|").c_str(), 0);
    EXPECT_EQ(filters.Find(L"*.txt"), 1);
    EXPECT_EQ(filters.FindExact(L"*.txt"), -1) << "the first that has it has others too";
    EXPECT_EQ(filters.FindExact(L"*.Log"), 3);
    EXPECT_EQ(filters.Find(L"*.*"), -1);
    EXPECT_EQ(filters.Find(nullptr), -1);
    EXPECT_EQ(filters.FindExact(nullptr), -1);
    EXPECT_EQ(filters[1]->Find(L"*.txt"), 1);
    EXPECT_EQ(filters[1]->Find(nullptr), -1);
    EXPECT_EQ(filters[0]->Find(L""), -1);
}

TEST(CNavFilter, ShowsPatternsUnlessTheDescriptionIsFull) {
    CNavFilter filter;
    const auto shown = [&] {
        CString text;
        filter.GetFullDescription(text);
        return text;
    };
    std::wstring pair = listText(L"Text|*.txt;*.csv|");
    EXPECT_EQ(filter.SetFrom(pair.data(), 0), nullptr);
    EXPECT_EQ(shown(), L"Text (*.txt, *.csv)");
    filter.SetFullDescription(L"Tables");
    EXPECT_EQ(shown(), L"Tables");
    filter.SetDescription(L"Tables");
    EXPECT_EQ(shown(), L"Tables (*.txt, *.csv)");
    filter.SetFrom(pair.data(), 1);
    EXPECT_EQ(shown(), L"Text");
    EXPECT_EQ(filter.SetFrom(nullptr, 0), nullptr);
    EXPECT_EQ(shown(), L"") << "null empties it";
    filter.SetDescription(L"All");
    EXPECT_EQ(shown(), L"All");
}

TEST(CNavFilter, KeepsMultiSelectionPerObject) {
    alignas(CNavFilter) std::byte place[sizeof(CNavFilter)];
    auto* filter = new (place) CNavFilter;
    CNavFilter other;
    EXPECT_EQ(filter->GetMultiSelectAllowed(), 0);
    filter->SetMultiSelectAllowed(1);
    EXPECT_EQ(filter->GetMultiSelectAllowed(), 1);
    EXPECT_EQ(other.GetMultiSelectAllowed(), 0);
    filter->~CNavFilter();
    filter = new (place) CNavFilter;
    EXPECT_EQ(filter->GetMultiSelectAllowed(), 0) << "a new one in the same place";
    filter->~CNavFilter();
}

TEST(FilterText, EndsAListThatIsTooLong) {
    const std::wstring list = listText(L"A|*.aaa|");
    const auto copied = [&](std::size_t limit) {
        const std::vector<wchar_t> copy = knav::copyFilterList(list.c_str(), limit);
        return std::wstring(copy.begin(), copy.end());
    };
    EXPECT_EQ(copied(100), list);
    EXPECT_EQ(copied(list.size()), list);
    EXPECT_EQ(copied(6), std::wstring(L"A\0*.\0\0", 6));
}

// A list that may be cut anywhere. Short ones are full of separators; long ones reach the limit of a pair, a few times.
std::wstring randomList(std::mt19937& random) {
    constexpr std::wstring_view letters = L"|||;;**..?ab Ä";
    const bool isLong = random() % 16 == 0;
    const std::size_t length = isLong ? random() % 2000 : random() % 40;
    std::wstring text;
    while (text.size() < length) {
        if (isLong) {
            text.append(random() % 300, L'x');
        }
        text += letters[random() % letters.size()];
    }
    text = listText(text + L'|');
    text.resize(text.find(std::wstring(2, L'\0')) + 2);
    return text;
}

struct Pair {
    const wchar_t* description;
    Strings patterns;
    std::size_t consumed;
};

// The rule in its plainest form: the pair is copied up to its second zero, and cut when that is too far away.
Pair readByTheRule(const wchar_t* text) {
    constexpr std::size_t room = 521;
    std::wstring copy;
    for (int zeros = 0; zeros < 2 && copy.size() < room; zeros += copy.back() == L'\0') {
        copy += text[copy.size()];
    }
    if (copy.size() == room) {
        copy.back() = L'\0';
    }
    Pair pair{text, {}, std::wcslen(copy.c_str()) + 1};
    const std::wstring patterns = pair.consumed < copy.size() ? copy.c_str() + pair.consumed : L"";
    if (patterns.empty()) {
        return pair;
    }
    pair.consumed += patterns.size() + 1;
    if (patterns != L"*.*") {
        std::size_t start = 0;
        for (std::size_t end = patterns.find(L';'); end != std::wstring::npos; end = patterns.find(L';', start)) {
            pair.patterns.push_back(patterns.substr(start, end - start));
            start = end + 1;
        }
        pair.patterns.push_back(patterns.substr(start));
    }
    return pair;
}

bool isEqual(const CNavFilter& filter, const Pair& pair) {
    const auto sameText = [](const CString& a, const std::wstring& b) { return a.view() == b; };
    return std::wcscmp(filter.GetDescription(), pair.description) == 0 &&
           std::ranges::equal(filter, pair.patterns, sameText);
}

std::size_t privateBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

TEST(CNavFilterArrayFuzz, ReadsAnyListWithinItsBounds) {
    constexpr int warmUp = 10'000;
    std::mt19937 random(20);
    knav::test::MemoryEnd memory;
    CNavFilterArray filters;
    CNavFilter filter;
    std::size_t before = 0;
    for (int round = 0; round < 1'000'000; ++round) {
        const std::wstring list = randomList(random);
        wchar_t* next = memory.put(list.data(), list.size());
        filters.SetFrom(next, 0);
        int index = 0;
        for (std::size_t at = 0; next != nullptr; ++index) {
            const Pair pair = readByTheRule(list.c_str() + at);
            wchar_t* const from = next;
            next = filter.SetFrom(next, 0);
            at += pair.consumed;
            ASSERT_TRUE(isEqual(filter, pair)) << knav::test::utf8(list);
            ASSERT_TRUE(index < filters.GetCount() && isEqual(*filters[index], pair)) << knav::test::utf8(list);
            ASSERT_EQ(filters[index]->GetTagIndex(), index + 1);
            ASSERT_EQ(next, list[at] != L'\0' ? from + pair.consumed : nullptr) << knav::test::utf8(list);
        }
        ASSERT_EQ(index, filters.GetCount()) << knav::test::utf8(list);
        before = round == warmUp ? privateBytes() : before;
    }
    EXPECT_LT(privateBytes(), before + 4'000'000) << "a few bytes of each list are left behind";
}

}  // namespace
