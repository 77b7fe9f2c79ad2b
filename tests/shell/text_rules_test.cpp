#include "shell/TextRules.h"

#include <gtest/gtest.h>
#include <knav/NavUrl.h>

#include "support/Printers.h"

namespace {

TEST(IsUrl, DecidesByTheSchemeOfTheTrimmedText) {
    struct Row {
        const wchar_t* text;
        bool isUrl;
    };
    constexpr Row rows[] = {
        {nullptr, false},
        {L"", false},
        {L"http:", false},
        {L"http://host", true},
        {L"HTTPS://host/plan.dwg", true},
        {L"  FTP://host/plan.dwg", true},
        {L"\t ftp://host", true},
        {L"file:///C:/plan.dwg", true},
        {L"mailto:", false},
        {L"mailto:a@b", true},
        {L"gopher://host", true},
        {L"news:some.group", false},
        {L"C:\\plan.dwg", false},
        {L"\\\\server\\share", false},
        {L"plan http://host", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NavIsURL(row.text) != 0, row.isUrl) << (row.text != nullptr ? knav::test::utf8(row.text) : "null");
    }
}

TEST(IsUncPath, BeginsWithExactlyTwoBackslashes) {
    struct Row {
        const wchar_t* text;
        bool isUnc;
    };
    constexpr Row rows[] = {
        {nullptr, false},       {L"", false},        {L"  ", false},
        {L"\\\\", true},        {L"\\\\s", true},    {L"  \\\\server\\share ", true},
        {L"\\\\\\", false},     {L"\\\\\\s", false}, {L"\\server", false},
        {L"//server/s", false}, {L"C:\\\\", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NavIsUNCPath(row.text) != 0, row.isUnc)
            << (row.text != nullptr ? knav::test::utf8(row.text) : "null");
    }
}

TEST(DecodeUrl, ReadableTextOrACopyOfTheInput) {
    const CString longUrl = L"http://host/" + CString(L'x', 400);
    struct Row {
        CString in;
        CString out;
        bool decoded;
    };
    const Row rows[] = {
        {L"ftp://host/a%20b", L"ftp://host/a b", true},
        {L"ftp://host/plain", L"ftp://host/plain", true},
        {L"C:\\a%20b", L"C:\\a%20b", false},
        {L"", L"", false},
        {longUrl, longUrl, false},
    };
    for (const Row& row : rows) {
        CString in = row.in;
        CString out = L"old";
        EXPECT_EQ(NavDecodeURL(in, out) != 0, row.decoded) << knav::test::utf8(row.in.view());
        EXPECT_EQ(out, row.out);
        EXPECT_EQ(in, row.in);
        EXPECT_EQ(NavDecodeURL(in, in) != 0, row.decoded);
        EXPECT_EQ(in, row.out) << "one object for both";
    }
}

}  // namespace
