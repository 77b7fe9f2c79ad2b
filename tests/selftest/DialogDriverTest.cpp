#include "support/DialogDriver.h"

#include <gtest/gtest-spi.h>

#include <cstring>

#include "support/DialogTemplate.h"
#include "support/ScriptedPrompts.h"

using knav::test::DialogDriver;
using knav::test::DialogTemplate;
using knav::test::ScriptedPrompts;

namespace {

constexpr WORD kEdit = 100;
constexpr WORD kCombo = 101;

// An edit field, a drop-down list, OK and Cancel.
DialogTemplate drivenTemplate() {
    return DialogTemplate(L"Driven", WS_VISIBLE | DS_MODALFRAME)
        .control(WC_EDITW, L"", kEdit, WS_BORDER | WS_TABSTOP, 10)
        .control(WC_COMBOBOXW, L"", kCombo, CBS_DROPDOWNLIST | WS_TABSTOP, 30)
        .okAndCancel();
}

struct Result {
    std::wstring text;
    int index = -1;
    int boxAnswer = 0;
};

INT_PTR CALLBACK dialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        SendDlgItemMessageW(dialog, kCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"one"));
        SendDlgItemMessageW(dialog, kCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"two"));
        return TRUE;
    }
    auto* const result = reinterpret_cast<Result*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (message != WM_COMMAND || result == nullptr) {
        return FALSE;
    }
    if (wParam == MAKEWPARAM(kEdit, EN_CHANGE)) {
        result->text = DialogDriver::text(kEdit);
    } else if (wParam == MAKEWPARAM(kCombo, CBN_SELCHANGE)) {
        result->index = static_cast<int>(SendDlgItemMessageW(dialog, kCombo, CB_GETCURSEL, 0, 0));
    } else if (LOWORD(wParam) == IDOK) {
        result->boxAnswer = MessageBoxW(dialog, L"Sure?", L"Box", MB_OKCANCEL);
        EndDialog(dialog, IDOK);
    } else if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, IDCANCEL);
    }
    return TRUE;
}

INT_PTR show(Result& result) {
    const DialogTemplate dialog = drivenTemplate();
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialog.get(), nullptr, &dialogProc,
                                   reinterpret_cast<LPARAM>(&result));
}

}  // namespace

TEST(DialogDriver, StepsReachTheDialogAndTheBoxItOpens) {
    Result result;
    DialogDriver driver;
    driver.setText(kEdit, L"plan").select(kCombo, 1).click(IDOK);
    driver.wait("the box", [] { return DialogDriver::control(kEdit) == nullptr && DialogDriver::control(IDOK); });
    driver.click(IDOK);

    EXPECT_EQ(driver.run([&] { return show(result); }), IDOK);
    EXPECT_EQ(result.text, L"plan");
    EXPECT_EQ(result.index, 1);
    EXPECT_EQ(result.boxAnswer, IDOK);
}

TEST(DialogDriver, EnterInAFieldPressesTheDefaultButton) {
    Result result;
    DialogDriver driver;
    driver.press(kEdit, VK_RETURN);
    driver.wait("the box", [] { return DialogDriver::control(kEdit) == nullptr && DialogDriver::control(IDOK); });
    driver.command(IDCANCEL);

    EXPECT_EQ(driver.run([&] { return show(result); }), IDOK);
    EXPECT_EQ(result.boxAnswer, IDCANCEL);
}

TEST(DialogDriver, StepThatNeverGetsReadyFailsAndCancelsTheDialog) {
    Result result;
    INT_PTR ended = 0;
    const auto drive = [&] {
        DialogDriver driver(100);
        driver.click(4711);
        ended = driver.run([&] { return show(result); });
    };
    EXPECT_NONFATAL_FAILURE(drive(), "step 1 of 1 (click 4711): not ready after 100 ms; dialog in front: Driven");
    EXPECT_EQ(ended, IDCANCEL);
}

TEST(DialogDriver, StepLeftOverWhenTheDialogEndsFails) {
    Result result;
    const auto drive = [&] {
        DialogDriver driver;
        driver.click(IDCANCEL).click(kEdit);
        driver.run([&] { return show(result); });
    };
    EXPECT_NONFATAL_FAILURE(drive(), "the dialog ended before step 2 of 2");
}

TEST(ScriptedPrompts, AnswersInOrderAndRecordsWhatWasAsked) {
    ScriptedPrompts prompts;
    prompts.answer(IDNO).answer(IDYES);
    EXPECT_EQ(AfxMessageBox(L"Replace it?", MB_YESNO), IDNO);
    EXPECT_EQ(AfxMessageBox(L"Really?", MB_YESNO), IDYES);
    ASSERT_EQ(prompts.seen().size(), 2u);
    EXPECT_EQ(prompts.seen()[0].text, L"Replace it?");
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
