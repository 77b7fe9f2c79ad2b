#include <platform/CString.h>

#include <gtest/gtest.h>

namespace {

TEST(String, FindAnswersThePositionOrMinusOne) {
    struct Row {
        const char* why;
        const wchar_t* text;
        const wchar_t* searched;
        int start;
        int expected;
    };
    constexpr Row kRows[] = {
        {"first of several", L"abcabc", L"bc", 0, 1},  {"at the start position", L"abcabc", L"bc", 4, 4},
        {"case counts", L"abc", L"B", 0, -1},          {"negative start is the beginning", L"abc", L"a", -5, 0},
        {"start behind the end", L"abc", L"c", 9, -1}, {"empty text is found at the start position", L"abc", L"", 2, 2},
        {"null is empty text", L"abc", nullptr, 0, 0}, {"in empty text", L"", L"a", 0, -1},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(CString(row.text).Find(row.searched, row.start), row.expected) << row.why;
    }
    EXPECT_EQ(CString(L"a.b.c").ReverseFind(L'.'), 3);
    EXPECT_EQ(CString(L"abc").ReverseFind(L'.'), -1);
    EXPECT_EQ(CString(L"abc").Find(L'c', 3), -1);
}

TEST(String, ReplaceCountsAndDoesNotSearchWhatItInserted) {
    struct Row {
        const char* why;
        const wchar_t* text;
        const wchar_t* from;
        const wchar_t* to;
        int count;
        const wchar_t* expected;
    };
    constexpr Row kRows[] = {
        {"replacement contains the searched text", L"aa", L"a", L"aa", 2, L"aaaa"},
        {"null removes", L"xaxb", L"x", nullptr, 2, L"ab"},
        {"empty searched text", L"abc", L"", L"x", 0, L"abc"},
        {"occurrences do not overlap", L"aaa", L"aa", L"b", 1, L"ba"},
        {"whole text", L"abc", L"abc", L"", 1, L""},
    };
    for (const Row& row : kRows) {
        CString text(row.text);
        EXPECT_EQ(text.Replace(row.from, row.to), row.count) << row.why;
        EXPECT_STREQ(text, row.expected) << row.why;
    }
    CString text(L"a|b|");
    EXPECT_EQ(text.Replace(L'|', L'\0'), 2);
    EXPECT_EQ(text.GetLength(), 4);
    EXPECT_EQ(text.Remove(L'\0'), 2);
    EXPECT_STREQ(text, L"ab");
}

TEST(String, PartsAreClampedToTheText) {
    const CString text(L"abcde");
    EXPECT_EQ(text.Left(2) + L"|" + text.Left(-1) + L"|" + text.Left(9), L"ab||abcde");
    EXPECT_EQ(text.Mid(3) + L"|" + text.Mid(-2) + L"|" + text.Mid(9), L"de|abcde|");
    EXPECT_EQ(text.Mid(1, 2) + L"|" + text.Mid(4, 9) + L"|" + text.Mid(1, -1), L"bc|e|");
    EXPECT_EQ(text[4], L'e');
    EXPECT_EQ(text.GetAt(5), L'\0');
    EXPECT_EQ(text.GetAt(-1), L'\0');
}

TEST(String, TrimCutsWhatBelongsToTheSetOnly) {
    struct Row {
        const char* why;
        const wchar_t* text;
        const wchar_t* set;  // null: white space
        const wchar_t* left;
        const wchar_t* right;
    };
    constexpr Row kRows[] = {
        {"white space of every kind", L" \t\r\na b\u00A0 ", nullptr, L"a b\u00A0 ", L" \t\r\na b"},
        {"any character of a set", L"x.ya.x", L".xy", L"a.x", L"x.ya"},
        {"empty set", L" a ", L"", L" a ", L" a "},
    };
    for (const Row& row : kRows) {
        CString left(row.text);
        CString right(row.text);
        EXPECT_STREQ(row.set ? left.TrimLeft(row.set) : left.TrimLeft(), row.left) << row.why;
        EXPECT_STREQ(row.set ? right.TrimRight(row.set) : right.TrimRight(), row.right) << row.why;
    }
    EXPECT_STREQ(CString(L" a ").Trim(), L"a");
    EXPECT_STREQ(CString(L"00100").Trim(L'0'), L"1");
}

TEST(String, OperationsMayReferToTheStringItself) {
    CString text(L"ab");
    text += text;
    EXPECT_STREQ(text, L"abab");
    text = text.GetString() + 1;
    EXPECT_STREQ(text, L"bab");
    EXPECT_EQ(text.Insert(1, text), 6);
    EXPECT_STREQ(text, L"bbabab");
    EXPECT_EQ(text.Insert(99, L'e') + text.Insert(-3, L"_"), 7 + 8);
    EXPECT_EQ(text.Delete(0) + text.Delete(2, 99) + text.Delete(9), 7 + 2 + 2);
    EXPECT_STREQ(text, L"bb");
    text.Format(L"<%s%s>", text, text);
    EXPECT_STREQ(text, L"<bbbb>");
    text.Replace(text, L"x");
    EXPECT_STREQ(text, L"x");
    text.TrimLeft(text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, FormatTakesWideTextStringsAndNumbers) {
    CString text;
    const wchar_t array[] = L"array";
    text.Format(L"%s %s %d %u %I64d %c %%", CString(L"string"), array, -1, 0xFFFFFFFFu, INT64_C(1) << 40, L'c');
    EXPECT_STREQ(text, L"string array -1 4294967295 1099511627776 c %");
    text.Format(L"%s!", CString(L'x', 5000));
    EXPECT_EQ(text, CString(L'x', 5000) + L"!");
    text.Format(0xFFFFu, 1);  // no such string resource
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, ComparesWithAndWithoutCase) {
    EXPECT_EQ(CString(L"ZEICHNUNG\u00C4").CompareNoCase(L"zeichnung\u00E4"), 0);
    EXPECT_LT(CString(L"abc").CompareNoCase(L"ABD"), 0);
    EXPECT_GT(CString(L"abc").CompareNoCase(L"AB"), 0);
    EXPECT_EQ(CString().CompareNoCase(nullptr), 0);
    EXPECT_LT(CString(L"B").Compare(L"a"), 0);
    EXPECT_STREQ(CString(L"\u00E4b").MakeUpper(), L"\u00C4B");
    EXPECT_STREQ(CString(L"\u00C4B").MakeLower(), L"\u00E4b");

    const CString text(L"b");
    const wchar_t* const null = nullptr;
    EXPECT_TRUE(text == L"b" && L"b" == text && text != L"B" && L"B" != text);
    EXPECT_TRUE(text < L"c" && L"a" < text && text < CString(L"ba") && text >= L"b");
    EXPECT_TRUE(CString() == null && null == CString() && text != null);
    EXPECT_STREQ(L"a" + text + L'c' + CString(L"d") + L"e", L"abcde");
}

TEST(String, BufferIsCutWhereTheWriterStopped) {
    CString text(L"old text");
    wchar_t* buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, L"old text");
    wcscpy(buffer, L"new");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 3);

    buffer = text.GetBufferSetLength(4);
    std::copy_n(L"a\0bc", 4, buffer);
    text.ReleaseBuffer(3);
    EXPECT_EQ(text.view(), std::wstring_view(L"a\0b", 3));
    text.GetBuffer(2);
    text.ReleaseBuffer(99);  // never beyond the buffer
    EXPECT_EQ(text.GetLength(), 3);
}

}  // namespace
