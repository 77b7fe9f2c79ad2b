// Modal dialogs, driven by messages that they post to themselves.
#include <platform/CDialog.h>
#include <platform/CEdit.h>

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>
#include <vector>

#include "support/DialogTemplate.h"

namespace {

using knav::test::DialogTemplate;

constexpr UINT WM_STEP = WM_APP + 1;

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

class SampleDialog : public CDialog {
public:
    explicit SampleDialog(CWnd* parent = nullptr) { InitModalIndirect(m_template.get(), parent); }

    std::function<void()> onInit = [] {};
    std::function<void()> onStep = [] {};
    std::function<bool(LPARAM)> onIdle = [](LPARAM) { return false; };

    // Runs the dialog and calls `step` from a posted message when it is up.
    INT_PTR runWith(std::function<void()> step) {
        onStep = std::move(step);
        onInit = [this] { PostMessage(WM_STEP); };
        return DoModal();
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        onInit();
        return TRUE;
    }
    LRESULT onStepMessage(WPARAM, LPARAM) {
        onStep();
        return 0;
    }
    LRESULT onKickIdle(WPARAM, LPARAM count) { return onIdle(count); }
    DECLARE_MESSAGE_MAP()

private:
    const DialogTemplate m_template{L"sample"};
};
BEGIN_MESSAGE_MAP(SampleDialog, CDialog)
ON_MESSAGE(WM_STEP, &SampleDialog::onStepMessage)
ON_MESSAGE(WM_KICKIDLE, &SampleDialog::onKickIdle)
END_MESSAGE_MAP()

TEST(ModalDialog, DisablesItsOwnerAndPutsEverythingBack) {
    OwnerWindow owner;
    SampleDialog dialog(&owner.m_field);  // a child as parent stands for its top-level window
    const INT_PTR result = dialog.runWith([&] {
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_EQ(dialog.GetOwner(), &owner);
        EXPECT_EQ(dialog.DoModal(), kDialogFailed) << "it runs already";
        SampleDialog inner;  // no parent given: the active window owns it
        inner.runWith([&] {
            EXPECT_EQ(inner.GetOwner(), &dialog);
            EXPECT_FALSE(dialog.IsWindowEnabled());
            inner.EndDialog(IDOK);
        });
        EXPECT_TRUE(dialog.IsWindowEnabled());
        EXPECT_FALSE(owner.IsWindowEnabled());
        dialog.PostMessage(WM_COMMAND, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
    EXPECT_EQ(::GetFocus(), owner.m_field.m_hWnd);
    owner.EnableWindow(FALSE);
    EXPECT_EQ(dialog.runWith([&] { dialog.EndDialog(33); }), 33);
    EXPECT_FALSE(owner.IsWindowEnabled()) << "as it was";
}

TEST(ModalDialog, HoweverItEndsTheOwnerIsLeftEnabled) {
    struct Row {
        const char* why;
        std::function<void(SampleDialog&)> atInit;
        std::function<void(SampleDialog&)> whenShown;
        INT_PTR result = kDialogFailed;
    };
    const Row rows[] = {
        {"initialising throws", [](SampleDialog&) { throw std::runtime_error("no data"); }, nullptr},
        {"destroyed by others", nullptr, [](SampleDialog& dialog) { ::DestroyWindow(dialog.m_hWnd); }},
        {"destroyed at once", [](SampleDialog& dialog) { ::DestroyWindow(dialog.m_hWnd); }, nullptr},
        {"ended at once", [](SampleDialog& dialog) { dialog.EndDialog(12); }, nullptr, 12},
        {"the program is to end", nullptr, [](SampleDialog&) { PostQuitMessage(3); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        OwnerWindow owner;
        SampleDialog dialog(&owner);
        dialog.onStep = [&] { row.whenShown(dialog); };
        dialog.onInit = [&] { row.atInit ? row.atInit(dialog) : void(dialog.PostMessage(WM_STEP)); };
        EXPECT_EQ(dialog.DoModal(), row.result);
        EXPECT_TRUE(owner.IsWindowEnabled());
    }
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "is let through";
    EXPECT_EQ(message.wParam, 3u);

    OwnerWindow owner;
    EXPECT_EQ(CDialog(4711, &owner).DoModal(), kDialogFailed) << "no template";
    EXPECT_EQ(CDialog(4711, &owner, GetModuleHandleW(L"user32.dll")).DoModal(), kDialogFailed);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, KicksIdleUntilThereIsNothingToDo) {
    SampleDialog dialog;
    std::vector<LPARAM> counts;
    dialog.onIdle = [&](LPARAM count) {
        counts.push_back(count);
        EXPECT_TRUE(dialog.IsWindowVisible());
        if (counts.size() == 3) {
            dialog.SetTimer(1, 20);  // its message starts the count anew, and not at once
        } else if (counts.size() == 4) {
            dialog.EndDialog(IDOK);
        }
        return count < 2;
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_THAT(counts, testing::ElementsAre(0, 1, 2, 0));
}

TEST(ModalDialog, SurvivesTheEndOfItsOwner) {
    auto owner = std::make_unique<OwnerWindow>();
    SampleDialog dialog(owner.get());
    EXPECT_EQ(dialog.runWith([&] { owner.reset(); }), kDialogFailed);
}

}  // namespace
