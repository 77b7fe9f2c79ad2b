#include <platform/CString.h>

#include <gtest/gtest.h>

namespace {

TEST(String, PartsAreClampedToTheText) {
    const CString text(L"abcde");
    EXPECT_EQ(text.Left(2) + L"|" + text.Left(-1) + L"|" + text.Left(9), L"ab||abcde");
    EXPECT_EQ(text.Mid(3) + L"|" + text.Mid(-2) + L"|" + text.Mid(9), L"de|abcde|");
    EXPECT_EQ(text.Mid(1, 2) + L"|" + text.Mid(4, 9) + L"|" + text.Mid(1, -1), L"bc|e|");
    EXPECT_EQ(text[4], L'e');
    EXPECT_EQ(text.GetAt(5), L'\0');
    EXPECT_EQ(text.GetAt(-1), L'\0');
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
    text.Replace(text, L"xx");
    EXPECT_STREQ(text, L"xx") << "what was inserted is not searched";
    text.TrimLeft(text);
    EXPECT_TRUE(text.IsEmpty());
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
