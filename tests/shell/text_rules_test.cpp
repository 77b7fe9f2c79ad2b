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
        {L"http://host", Url},
        {L"HTTPS://host/plan.dwg", Url},
        {L"\t FTP://host/plan.dwg", Url},
        {L"file:///C:/plan.dwg", Url},
        {L"mailto:a@b", Url},
        {L"news:some.group", Neither},
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

}  // namespace
