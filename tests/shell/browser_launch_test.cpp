#include "shell/BrowserLaunch.h"

#include <gtest/gtest.h>
#include <knav/NavUrl.h>

#include "support/Printers.h"
#include "support/RegistryRedirect.h"

namespace {

using namespace knav;
using knav::test::RegistryRedirect;

class BrowserLaunch : public testing::Test {
protected:
    void setDefault(const wchar_t* key, const CString& value) { m_classes.set(key, nullptr, value); }

    // The command line that would be started; empty when none would.
    static CString started(const wchar_t* url) {
        CString line;
        launchBrowser(url, [&](wchar_t* commandLine) {
            line = commandLine;
            return true;
        });
        return line;
    }

    RegistryRedirect m_classes{HKEY_CLASSES_ROOT};
};

TEST_F(BrowserLaunch, CommandOfTheDocumentClassStartsWithoutItsPlaceholder) {
    setDefault(L"htmlfile\\shell\\open\\command", L"\"C:\\plain.exe\" -new \"%1\" -x \"%1\"");
    EXPECT_EQ(started(L"http://host/a b"), L"\"C:\\plain.exe\" -new  -x   \"http://host/a b\"");
    setDefault(L".html", L"");
    EXPECT_EQ(started(L"http://h"), L"\"C:\\plain.exe\" -new  -x   \"http://h\"");
    setDefault(L".html", L"other");
    EXPECT_EQ(started(L"http://h"), L"");
    setDefault(L"other\\shell\\open\\command", L"other.exe %1");
    EXPECT_EQ(started(L"http://h"), L"other.exe %1  \"http://h\"");
}

TEST_F(BrowserLaunch, NothingIsStartedWithoutAUsableCommand) {
    EXPECT_EQ(started(L"http://h"), L"");
    setDefault(L"htmlfile\\shell\\open\\command", L"");
    EXPECT_EQ(started(L"http://h"), L"");
    setDefault(L"htmlfile\\shell\\open\\command", CString(L'x', 260));
    EXPECT_EQ(started(L"http://h"), L"") << "longer than its limit";
    setDefault(L"htmlfile\\shell\\open\\command", CString(L'x', 259));
    EXPECT_NE(started(L"http://h"), L"");
    EXPECT_EQ(started(nullptr), L"");
    EXPECT_EQ(NavLaunchBrowserWith(nullptr), 0);
}

TEST(BrowserCommandLine, UrlIsAlwaysOneArgument) {
    struct Row {
        const wchar_t* url;
        const wchar_t* argument;
    };
    constexpr Row rows[] = {
        {L"http://host/a b", L"http://host/a b"},
        {L"http://h\" -evil \"", L"http://h%22 -evil %22"},
        {L"http://h\\", L"http://h%5C"},
        {L"http://h\\\\\" -evil", L"http://h\\\\%22 -evil"},
        {L"http://h\r\n-evil\t\x7f", L"http://h%0D%0A-evil%09%7F"},
        {L"http://h/%1\"%1\"", L"http://h/%1%22%1%22"},
        {L"", L""},
    };
    for (const Row& row : rows) {
        int count = 0;
        const CString line = browserCommandLine(L"browser.exe \"%1\"", row.url);
        wchar_t** const arguments = CommandLineToArgvW(line, &count);
        ASSERT_EQ(count, 2) << test::utf8(line.view());
        EXPECT_EQ(CString(arguments[1]), row.argument);
        LocalFree(arguments);
    }
}

TEST(StartProcess, TellsWhetherItStarted) {
    CString good = L"cmd.exe /c exit 0";
    CString bad = L"knav-no-such-program.exe";
    EXPECT_TRUE(startProcess(good.GetBuffer()));
    EXPECT_FALSE(startProcess(bad.GetBuffer()));
}

}  // namespace
