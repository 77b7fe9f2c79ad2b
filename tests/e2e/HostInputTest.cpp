// A person at the sample host: its window is operated from outside by keyboard and mouse, and its log is read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/driver/HostWindow.h"
#include "demo/driver/Input.h"
#include "demo/driver/NavDialogWindow.h"
#include "demo/driver/WindowSearch.h"
#include "support/Printers.h"
#include "support/ScopedTempFolder.h"

using knav::input::HostWindow;
using knav::input::NavDialogWindow;
using knav::input::pressKey;
using knav::input::typeText;
using knav::test::ScopedTempFolder;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

class HostInput : public testing::Test {
protected:
    HostInput() {
        m_folder.addFile(L"plan.dwg");
        m_folder.addFile(L"site plan.dwg");
    }

    static void cancel(const NavDialogWindow& dialog) {
        dialog.pressEscape();
        EXPECT_TRUE(dialog.waitUntilClosed());
    }

    ScopedTempFolder m_folder;
    const HostWindow m_host{L"--window --folder \"" + std::wstring(m_folder.path()) + L"\""};
};

}  // namespace

TEST_F(HostInput, LogTellsTheHooksOfACancelledAndOfAnAcceptedDialogAndWhatItReturned) {
    m_host.choose(L'F', L'O');
    cancel(NavDialogWindow::waitFor(m_host.process()));
    EXPECT_THAT(m_host.log(), AllOf(HasSubstr(L"Open:\r\nOnInitDialog()"), HasSubstr(L"OnCancel()"),
                                    HasSubstr(L"Open ended with IDCANCEL"), Not(HasSubstr(L"OnOK()"))));

    // Nothing to close: Escape in the log, which would close any other dialog, leaves the window alone.
    pressKey(L'L', VK_MENU);
    pressKey(VK_ESCAPE);
    m_host.choose(L'F', L'I');
    const NavDialogWindow dialog = NavDialogWindow::waitFor(m_host.process());
    dialog.select({L"plan.dwg", L"site plan.dwg"});
    dialog.pressOk();
    EXPECT_TRUE(dialog.waitUntilClosed());
    const std::wstring log = m_host.log();
    EXPECT_THAT(log, AllOf(HasSubstr(L"Insert:\r\n"), HasSubstr(L"OnFolderItemChange()"),
                           HasSubstr(L"item 0: kind 1, " + std::wstring(m_folder.path(L"plan.dwg"))),
                           HasSubstr(L"item 1: kind 1, " + std::wstring(m_folder.path(L"site plan.dwg")))));
    // Each call is inside of the one that made it, and stands before what came later.
    std::size_t at = 0;
    for (const wchar_t* line :
         {L"\r\nOnOK()", L"\r\n    PreprocessData(2 items)", L"\r\n        CombineDataTextWithFolderName(\"",
          L"\r\n    OnFileNameOK()", L"\r\nInsert ended with IDOK"}) {
        const std::size_t next = log.find(line, at);
        ASSERT_NE(next, std::wstring::npos) << testing::PrintToString(line) << " is missing or too early in\n"
                                            << testing::PrintToString(log);
        at = next;
    }
    EXPECT_EQ(m_host.close(), 0);
}

TEST_F(HostInput, OptionsOfACommandHoldForItsDialogOnly) {
    m_host.choose(L'E', L'O');
    const HWND options = m_host.waitForWindow(L"Options of the File Dialogs");
    pressKey(L'D', VK_MENU);
    typeText(L"Pick One");
    pressKey(VK_RETURN);
    EXPECT_TRUE(knav::input::waitUntil([&] { return !IsWindow(options); }));

    m_host.choose(L'F', L'O');
    const NavDialogWindow open = NavDialogWindow::waitFor(m_host.process());
    EXPECT_EQ(knav::input::textOf(open.window()), L"Pick One");
    cancel(open);
    m_host.choose(L'F', L'A');
    const NavDialogWindow save = NavDialogWindow::waitFor(m_host.process());
    EXPECT_EQ(knav::input::textOf(save.window()), L"Save Drawing As");
    cancel(save);
}
