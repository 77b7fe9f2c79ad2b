#include "support/DialogDriver.h"

#include <gtest/gtest-spi.h>

#include <cstring>

#include "support/ScriptedPrompts.h"

using knav::test::DialogDriver;
using knav::test::ScriptedPrompts;

namespace {

constexpr UINT kEdit = 100;
constexpr UINT kCombo = 101;

// A dialog template in memory: an edit field, a drop-down list, OK and Cancel.
class Template {
public:
    Template() {
        put(DLGTEMPLATE{WS_POPUP | WS_CAPTION | WS_VISIBLE | DS_MODALFRAME, 0, 4, 10, 10, 120, 80});
        text(L"");
        text(L"");
        text(L"Driven");
        control(0x0081, kEdit, WS_BORDER, 10);
        control(0x0085, kCombo, CBS_DROPDOWNLIST, 30);
        control(0x0080, IDOK, BS_DEFPUSHBUTTON, 50);
        control(0x0080, IDCANCEL, BS_PUSHBUTTON, 65);
    }
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_bytes.data()); }

private:
    template <class Value>
    void put(const Value& value) {
        const auto* const bytes = reinterpret_cast<const char*>(&value);
        m_bytes.insert(m_bytes.end(), bytes, bytes + sizeof value);
    }
    void text(std::wstring_view content) {
        for (const wchar_t character : content) {
            put(character);
        }
        put(L'\0');
    }
    void control(WORD windowClass, UINT id, DWORD style, short top) {
        m_bytes.resize((m_bytes.size() + 3) / 4 * 4);
        put(DLGITEMTEMPLATE{WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 5, top, 60, 14, static_cast<WORD>(id)});
        put(WORD{0xFFFF});
        put(windowClass);
        text(L"");
        put(WORD{0});
    }

    std::vector<char> m_bytes;
};

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
    const Template dialog;
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
