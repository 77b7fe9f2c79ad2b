#include <platform/CString.h>

#include <gtest/gtest.h>

namespace {

TEST(String, FindAnswersThePositionOrMinusOne) {
    const CString text(L"abcabc");
    EXPECT_EQ(text.Find(L"bc"), 1);
    EXPECT_EQ(text.Find(L"bc", 4), 4);
    EXPECT_EQ(text.Find(L"B"), -1);
    EXPECT_EQ(text.Find(L"a", -5), 0) << "a negative start is the beginning";
    EXPECT_EQ(text.Find(L"c", 9), -1) << "behind the end";
    EXPECT_EQ(text.Find(L'c', 6), -1);
    EXPECT_EQ(text.Find(L"", 2), 2) << "empty text is found where the search starts";
    EXPECT_EQ(text.Find(nullptr), 0) << "null is empty text";
    EXPECT_EQ(text.ReverseFind(L'b'), 4);
    EXPECT_EQ(text.ReverseFind(L'.'), -1);
}

TEST(String, ReplaceCountsAndDoesNotSearchWhatItInserted) {
    CString text(L"aaa");
    EXPECT_EQ(text.Replace(L"aa", L"b"), 1) << "occurrences do not overlap";
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L"a", L"aa"), 1);
    EXPECT_STREQ(text, L"baa");
    EXPECT_EQ(text.Replace(L"a", nullptr), 2) << "null removes";
    EXPECT_STREQ(text, L"b");
    text = L"a|b|";
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
    EXPECT_STREQ(CString(L" \t\r\na b\u00A0 ").TrimLeft(), L"a b\u00A0 ");
    EXPECT_STREQ(CString(L" \t\r\na b\u00A0 ").TrimRight(), L" \t\r\na b");
    EXPECT_STREQ(CString(L"x.ya.x").TrimLeft(L".xy"), L"a.x");
    EXPECT_STREQ(CString(L"x.ya.x").TrimRight(L".xy"), L"x.ya");
    EXPECT_STREQ(CString(L" a ").TrimLeft(L""), L" a ");
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
    const wchar_t* const null = nullptr;
    EXPECT_TRUE(CString() == null && null == CString() && CString(L"b") != null);
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
