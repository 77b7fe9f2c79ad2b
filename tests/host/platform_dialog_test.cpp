// Modal dialogs, driven by messages that they post to themselves.
#include <platform/CButton.h>
#include <platform/CDialog.h>
#include <platform/CEdit.h>

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>
#include <vector>

#include "support/DialogTemplate.h"

namespace {

using knav::test::DialogTemplate;
using testing::ElementsAre;

constexpr WORD kEditId = 10;
constexpr UINT WM_STEP = WM_APP + 1;

const DialogTemplate& sampleTemplate() {
    static const DialogTemplate made =
        DialogTemplate(L"sample").control(WC_EDITW, L"", kEditId, WS_TABSTOP, 5).okAndCancel();
    return made;
}

class OwnerWindow : public CWnd {
public:
    OwnerWindow() {
        CreateEx(0, nullptr, L"owner", WS_POPUP | WS_VISIBLE, RECT{0, 0, 200, 100}, nullptr, 0);
        m_field.Create(WS_VISIBLE, RECT{0, 0, 50, 20}, this, 1);
        SetActiveWindow(m_hWnd);
        m_field.SetFocus();
    }
    CEdit m_field;
};

// Consumes Escape when told to.
class EscapeEdit : public CEdit {
public:
    bool m_consume = false;
    int m_consumed = 0;
    BOOL PreTranslateMessage(MSG* message) override {
        const bool escape = message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE;
        m_consumed += escape && m_consume;
        return escape && m_consume;
    }
};

class SampleDialog : public CDialog {
public:
    explicit SampleDialog(CWnd* parent = nullptr) { InitModalIndirect(sampleTemplate().get(), parent); }

    std::function<void()> onInit = [] {};
    std::function<void()> onStep = [] {};
    std::function<bool(LPARAM)> onIdle = [](LPARAM) { return false; };
    EscapeEdit m_edit;
    CString m_text;
    bool m_refuseText = false;

    // Runs the dialog and calls `step` from a posted message when it is up.
    INT_PTR runWith(std::function<void()> step) {
        onStep = std::move(step);
        onInit = [this] { PostMessage(WM_STEP); };
        return DoModal();
    }
    void press(WPARAM key) {
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
        ::PostMessageW(::GetFocus(), WM_KEYUP, key, 0xC0000001);
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        onInit();
        return TRUE;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        DDX_Control(exchange, kEditId, m_edit);
        DDX_Text(exchange, kEditId, m_text);
        if (exchange->m_bSaveAndValidate && m_refuseText) {
            exchange->Fail(kEditId);
        }
    }
    LRESULT onStepMessage(WPARAM, LPARAM) {
        onStep();
        return 0;
    }
    LRESULT onKickIdle(WPARAM, LPARAM count) { return onIdle(count); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(SampleDialog, CDialog)
ON_MESSAGE(WM_STEP, &SampleDialog::onStepMessage)
ON_MESSAGE(WM_KICKIDLE, &SampleDialog::onKickIdle)
END_MESSAGE_MAP()

TEST(ModalDialog, DisablesItsOwnerAndPutsEverythingBack) {
    OwnerWindow owner;
    ASSERT_EQ(::GetFocus(), owner.m_field.m_hWnd);
    SampleDialog dialog(&owner.m_field);  // a child as parent stands for its top-level window
    const INT_PTR result = dialog.runWith([&] {
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_EQ(dialog.GetOwner(), &owner);
        dialog.PostMessage(WM_COMMAND, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
    EXPECT_EQ(::GetFocus(), owner.m_field.m_hWnd);
}

TEST(ModalDialog, LeavesADisabledOwnerDisabled) {
    OwnerWindow owner;
    owner.EnableWindow(FALSE);
    SampleDialog dialog(&owner);
    EXPECT_EQ(dialog.runWith([&] { dialog.EndDialog(33); }), 33);
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(ModalDialog, RunsAgain) {
    SampleDialog dialog;
    EXPECT_EQ(dialog.runWith([&] { dialog.PostMessage(WM_COMMAND, IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(dialog.runWith([&] { dialog.PostMessage(WM_CLOSE); }), IDCANCEL);
    EXPECT_EQ(dialog.runWith([&] {
        EXPECT_EQ(dialog.DoModal(), kDialogFailed);
        dialog.EndDialog(IDOK);
    }),
              IDOK);
}

TEST(ModalDialog, WithoutATemplateFailsAndLeavesTheOwnerAlone) {
    OwnerWindow owner;
    CDialog dialog(4711, &owner);
    EXPECT_EQ(dialog.DoModal(), kDialogFailed);
    EXPECT_TRUE(owner.IsWindowEnabled());
    CDialog fromModule(4711, &owner, GetModuleHandleW(L"user32.dll"));
    EXPECT_EQ(fromModule.DoModal(), kDialogFailed);
}

TEST(ModalDialog, EndedWhileInitialisingIsNeverShown) {
    OwnerWindow owner;
    SampleDialog dialog(&owner);
    bool shown = false;
    dialog.onIdle = [&](LPARAM) { return shown = true; };
    dialog.onInit = [&] { dialog.EndDialog(12); };
    EXPECT_EQ(dialog.DoModal(), 12);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, FailsWhenItsWindowIsDestroyedByOthers) {
    OwnerWindow owner;
    SampleDialog dialog(&owner);
    EXPECT_EQ(dialog.runWith([&] { ::DestroyWindow(dialog.m_hWnd); }), kDialogFailed);
    EXPECT_TRUE(owner.IsWindowEnabled());
    dialog.onInit = [&] { ::DestroyWindow(dialog.m_hWnd); };
    EXPECT_EQ(dialog.DoModal(), kDialogFailed);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, SurvivesTheEndOfItsOwner) {
    auto owner = std::make_unique<OwnerWindow>();
    SampleDialog dialog(owner.get());
    EXPECT_EQ(dialog.runWith([&] { owner.reset(); }), kDialogFailed);
}

TEST(ModalDialog, FailsWhenInitialisingThrows) {
    OwnerWindow owner;
    SampleDialog dialog(&owner);
    dialog.onInit = [] { throw std::runtime_error("no data"); };
    EXPECT_EQ(dialog.DoModal(), kDialogFailed);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, KicksIdleUntilThereIsNothingToDo) {
    SampleDialog dialog;
    std::vector<LPARAM> counts;
    bool visibleFirst = true;
    dialog.onIdle = [&](LPARAM count) {
        counts.push_back(count);
        visibleFirst = visibleFirst && dialog.IsWindowVisible();
        if (counts.size() == 3) {
            dialog.PostMessage(WM_STEP);  // a message starts the count anew
        }
        return count < 2;
    };
    dialog.onStep = [&] {
        if (counts.size() >= 3) {
            dialog.onIdle = [&](LPARAM count) {
                counts.push_back(count);
                dialog.EndDialog(IDOK);
                return false;
            };
        }
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_THAT(counts, ElementsAre(0, 1, 2, 0));
    EXPECT_TRUE(visibleFirst);
}

TEST(ModalDialog, TranslatesKeysUnlessAControlConsumesThem) {
    SampleDialog dialog;
    EXPECT_EQ(dialog.runWith([&] { dialog.press(VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(dialog.runWith([&] { dialog.press(VK_RETURN); }), IDOK);

    dialog.m_edit.m_consume = true;
    const INT_PTR result = dialog.runWith([&] {
        ASSERT_EQ(::GetFocus(), dialog.m_edit.m_hWnd);
        dialog.press(VK_ESCAPE);
        dialog.press(VK_TAB);
        dialog.onStep = [&] { dialog.EndDialog(::GetDlgCtrlID(::GetFocus()) + 100); };
        dialog.PostMessage(WM_STEP);
    });
    EXPECT_EQ(result, IDOK + 100);
    EXPECT_EQ(dialog.m_edit.m_consumed, 1);
}

TEST(ModalDialog, LetsTheQuitMessageThrough) {
    OwnerWindow owner;
    SampleDialog dialog(&owner);
    EXPECT_EQ(dialog.runWith([] { PostQuitMessage(3); }), kDialogFailed);
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, OwnsTheDialogRunFromIt) {
    OwnerWindow owner;
    SampleDialog outer(&owner);
    SampleDialog inner;  // no parent given: the active window owns it
    HWND innerOwner = nullptr;
    bool outerDisabled = false;
    bool outerEnabledAgain = false;
    const INT_PTR result = outer.runWith([&] {
        inner.runWith([&] {
            innerOwner = ::GetWindow(inner, GW_OWNER);
            outerDisabled = !outer.IsWindowEnabled();
            inner.EndDialog(IDOK);
        });
        outerEnabledAgain = outer.IsWindowEnabled() && !owner.IsWindowEnabled() && innerOwner == outer.m_hWnd;
        outer.EndDialog(IDYES);
    });
    EXPECT_EQ(result, IDYES);
    EXPECT_TRUE(outerDisabled);
    EXPECT_TRUE(outerEnabledAgain);
}

TEST(DialogData, MovesBetweenControlsAndMembers) {
    SampleDialog dialog;
    dialog.m_text = L"before";
    dialog.runWith([&] {
        CString shown;
        dialog.m_edit.GetWindowText(shown);
        EXPECT_STREQ(shown, L"before");
        dialog.m_edit.SetWindowText(L"after");
        dialog.PostMessage(WM_COMMAND, IDOK);
    });
    EXPECT_STREQ(dialog.m_text, L"after");
}

TEST(DialogData, RefusedValueKeepsTheDialogOpenWithTheFocusOnIt) {
    SampleDialog dialog;
    dialog.m_refuseText = true;
    const INT_PTR result = dialog.runWith([&] {
        dialog.GotoDlgCtrl(dialog.GetDlgItem(IDOK));
        dialog.SendMessage(WM_COMMAND, IDOK);
        EXPECT_EQ(::GetFocus(), dialog.m_edit.m_hWnd);
        dialog.EndDialog(77);
    });
    EXPECT_EQ(result, 77);
}

TEST(ModelessDialog, LivesUntilItIsDestroyed) {
    OwnerWindow owner;
    SampleDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(sampleTemplate().get(), &owner));
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_FALSE(dialog.CreateIndirect(sampleTemplate().get(), &owner));
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(dialog.m_edit.m_hWnd, nullptr);
    EXPECT_FALSE(dialog.Create(4711, &owner));
}

}  // namespace
