// Drives a real modal dialog from inside its own modal loop.
#pragma once

#include <platform/Windows.h>

#include <functional>
#include <string>
#include <vector>

namespace knav::test {

/// A queue of steps that a timer of the user-interface thread works off while a modal dialog (or a menu, or a box on
/// top of it) runs. Each step waits until it is ready, then acts. Steps address controls by id in the dialog in front:
/// the topmost visible, enabled dialog of the thread. A step that does not become ready in time fails the test, as does
/// a dialog that stays open after the last step; all dialogs are then cancelled.
///
///     DialogDriver driver;
///     driver.setText(kFileName, L"plan.dwg").click(IDOK);
///     EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDOK);
class DialogDriver {
public:
    using Condition = std::function<bool()>;
    using Action = std::function<void()>;

    explicit DialogDriver(DWORD stepLimitMs = 10'000) : m_stepLimitMs(stepLimitMs) {}
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    // --- steps ---------------------------------------------------------------------------------------------------

    /// The general step; `what` is shown when it fails.
    DialogDriver& step(std::string what, Condition ready, Action act);
    DialogDriver& wait(std::string what, Condition ready);
    /// As soon as a dialog is in front and no message waits.
    DialogDriver& then(std::string what, Action act);

    /// When the control is visible and enabled: click it as a button.
    DialogDriver& click(UINT id);
    /// Replace the text of an edit or combo box as typing would, with its change notification.
    DialogDriver& setText(UINT id, std::wstring text);
    /// Choose an entry of a combo box as the user would, with its notifications.
    DialogDriver& select(UINT id, int index);
    /// Give the control (for a combo box its edit field) the focus and press a key in it.
    DialogDriver& press(UINT id, WORD virtualKey);
    /// Send the dialog a command, as a menu or accelerator does.
    DialogDriver& command(UINT id);

    // --- for conditions and actions, and afterwards ----------------------------------------------------------------

    /// The dialog in front, or null.
    static HWND dialog();
    /// A control of it, or null.
    static HWND control(UINT id);
    static std::wstring text(UINT id);

    /// Runs `show`, which shows the dialog and returns when it has ended, and returns its result. All steps must have
    /// been done by then.
    template <class Show>
    auto run(Show&& show) {
        const Session session(*this);
        return std::forward<Show>(show)();
    }

private:
    struct Step {
        std::string what;
        Condition ready;
        Action act;
    };

    class Session {
    public:
        explicit Session(DialogDriver& driver);
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;
        ~Session();

    private:
        DialogDriver& m_driver;
        DialogDriver* m_outer;
        UINT_PTR m_timer;
    };

    DialogDriver& inControl(const char* verb, UINT id, std::function<void(HWND)> act);
    static void CALLBACK onTimer(HWND window, UINT message, UINT_PTR id, DWORD time) noexcept;
    void tick();
    void fail(const std::string& why);
    std::string describe(std::size_t index) const;

    const DWORD m_stepLimitMs;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    ULONGLONG m_waitingSince = 0;
    bool m_failed = false;
};

}  // namespace knav::test
