#include "support/DialogDriver.h"

#include <gtest/gtest-spi.h>

#include "support/DialogTemplate.h"
#include "support/ScriptedPrompts.h"

using knav::test::DialogDriver;
using knav::test::DialogTemplate;
using knav::test::ScriptedPrompts;

namespace {

INT_PTR CALLBACK endWithItsCommand(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    return message == WM_INITDIALOG || (message == WM_COMMAND && EndDialog(dialog, LOWORD(wParam)));
}

INT_PTR show() {
    const DialogTemplate dialog(L"Driven", WS_VISIBLE | DS_MODALFRAME);
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialog.get(), nullptr, &endWithItsCommand, 0);
}

}  // namespace

TEST(DialogDriver, StepThatNeverGetsReadyFailsAndCancelsTheDialog) {
    INT_PTR ended = 0;
    const auto drive = [&] {
        DialogDriver driver(100);
        driver.click(4711);
        ended = driver.run(show);
    };
    EXPECT_NONFATAL_FAILURE(drive(), "step 1 of 1 (click 4711): not ready after 100 ms; dialog in front: Driven");
    EXPECT_EQ(ended, IDCANCEL);
}

TEST(DialogDriver, StepLeftOverWhenTheDialogEndsFails) {
    const auto drive = [] {
        DialogDriver driver;
        driver.click(IDOK).click(IDCANCEL);
        driver.run(show);
    };
    EXPECT_NONFATAL_FAILURE(drive(), "the dialog ended before step 2 of 2");
}

TEST(ScriptedPrompts, UnexpectedPromptsAndUnusedAnswersFail) {
    EXPECT_NONFATAL_FAILURE(
        {
            const ScriptedPrompts prompts;
            AfxMessageBox(L"Surprise", MB_OK);
        },
        "unexpected prompt: Surprise");
    EXPECT_NONFATAL_FAILURE(ScriptedPrompts().answer(IDOK), "1 scripted answers were not asked for");
}
