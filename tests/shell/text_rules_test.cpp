#include "shell/TextRules.h"

#include <gtest/gtest.h>
#include <knav/NavUrl.h>

#include "support/Printers.h"

namespace {

TEST(IsUrl, DecidesByTheSchemeOfTheTrimmedTextAndUncByTwoBackslashes) {
    enum Kind { Neither, Url, Unc };
    struct Row {
        const wchar_t* text;
        Kind kind;
    };
    constexpr Row rows[] = {
        {nullptr, Neither},
        {L"", Neither},
        {L"  ", Neither},
        {L"http:", Neither},
        {L"http://host", Url},
        {L"HTTPS://host/plan.dwg", Url},
        {L"\t FTP://host/plan.dwg", Url},
        {L"file:///C:/plan.dwg", Url},
        {L"mailto:", Neither},
        {L"mailto:a@b", Url},
        {L"gopher://host", Url},
        {L"news:some.group", Neither},
        {L"plan http://host", Neither},
        {L"C:\\plan.dwg", Neither},
        {L"C:\\\\", Neither},
        {L"\\\\", Unc},
        {L"\\\\s", Unc},
        {L"  \\\\server\\share ", Unc},
        {L"\\\\\\", Neither},
        {L"\\\\\\s", Neither},
        {L"\\server", Neither},
        {L"//server/s", Neither},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? knav::test::utf8(row.text) : "null");
        EXPECT_EQ(NavIsURL(row.text) != 0, row.kind == Url);
        EXPECT_EQ(NavIsUNCPath(row.text) != 0, row.kind == Unc);
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
