#include "support/DialogDriver.h"

#include <gtest/gtest.h>

#include <exception>
#include <utility>

#include "support/Printers.h"

namespace {

using knav::test::DialogDriver;

constexpr UINT kTickMs = 10;

DialogDriver* g_current = nullptr;

bool isClass(HWND window, const wchar_t* name) {
    wchar_t className[64] = L"";
    GetClassNameW(window, className, ARRAYSIZE(className));
    return lstrcmpiW(className, name) == 0;
}

bool usable(HWND window) {
    return window != nullptr && IsWindowVisible(window) && IsWindowEnabled(window);
}

// Where text goes: the edit field of a combo box, otherwise the control itself.
HWND editOf(HWND control) {
    const HWND edit = FindWindowExW(control, nullptr, WC_EDITW, nullptr);
    return edit != nullptr ? edit : control;
}

void replaceText(HWND control, const std::wstring& text) {
    const HWND edit = editOf(control);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void chooseEntry(HWND combo, int index) {
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    for (const WORD code : {CBN_SELENDOK, CBN_SELCHANGE}) {
        const WPARAM what = MAKEWPARAM(GetDlgCtrlID(combo), code);
        SendMessageW(GetParent(combo), WM_COMMAND, what, reinterpret_cast<LPARAM>(combo));
    }
}

}  // namespace

DialogDriver& knav::test::DialogDriver::step(std::string what, Condition ready, Action act) {
    m_steps.push_back({std::move(what), std::move(ready), std::move(act)});
    return *this;
}

DialogDriver& knav::test::DialogDriver::wait(std::string what, Condition ready) {
    return step(std::move(what), std::move(ready), [] {});
}

DialogDriver& knav::test::DialogDriver::then(std::string what, Action act) {
    return step(
        std::move(what), [] { return dialog() != nullptr; }, std::move(act));
}

DialogDriver& knav::test::DialogDriver::inControl(const char* verb, UINT id, std::function<void(HWND)> act) {
    return step(
        verb + std::to_string(id), [id] { return usable(control(id)); },
        [id, act = std::move(act)] { act(control(id)); });
}

DialogDriver& knav::test::DialogDriver::click(UINT id) {
    // Posted: the click may end the dialog, or open a box that later steps answer.
    return inControl("click ", id, [](HWND button) { PostMessageW(button, BM_CLICK, 0, 0); });
}

DialogDriver& knav::test::DialogDriver::setText(UINT id, std::wstring text) {
    return inControl("text into ", id, [text = std::move(text)](HWND control) { replaceText(control, text); });
}

DialogDriver& knav::test::DialogDriver::select(UINT id, int index) {
    return inControl("select in ", id, [index](HWND combo) { chooseEntry(combo, index); });
}

DialogDriver& knav::test::DialogDriver::press(UINT id, WORD virtualKey) {
    return inControl("key in ", id, [virtualKey](HWND control) {
        const HWND target = editOf(control);
        SetFocus(target);
        PostMessageW(target, WM_KEYDOWN, virtualKey, 1);
        PostMessageW(target, WM_KEYUP, virtualKey, static_cast<LPARAM>(0xC0000001));
    });
}

DialogDriver& knav::test::DialogDriver::command(UINT id) {
    return then("command " + std::to_string(id), [id] { PostMessageW(dialog(), WM_COMMAND, id, 0); });
}

HWND knav::test::DialogDriver::dialog() {
    HWND found = nullptr;
    const auto look = [](HWND window, LPARAM result) -> BOOL {
        if (!usable(window) || !isClass(window, L"#32770")) {
            return TRUE;
        }
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
    };
    EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND knav::test::DialogDriver::control(UINT id) {
    return GetDlgItem(dialog(), static_cast<int>(id));
}

std::wstring knav::test::DialogDriver::text(UINT id) {
    const HWND window = control(id);
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void CALLBACK knav::test::DialogDriver::onTimer(HWND, UINT, UINT_PTR, DWORD) noexcept {
    if (g_current == nullptr) {
        return;
    }
    try {
        g_current->tick();
    } catch (const std::exception& error) {
        g_current->fail(error.what());
    }
}

void knav::test::DialogDriver::tick() {
    if (m_failed) {
        if (const HWND window = dialog()) {
            PostMessageW(window, WM_CANCELMODE, 0, 0);
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        }
        return;
    }
    const bool done = m_next == m_steps.size();
    if (done || !m_steps[m_next].ready()) {
        if (GetTickCount64() - m_waitingSince > m_stepLimitMs) {
            fail((done ? "still open after " : "not ready after ") + std::to_string(m_stepLimitMs) + " ms");
        }
        return;
    }
    // The step counts as done before it acts: what it opens may run a loop of its own, whose ticks go on from here.
    const std::size_t current = m_next++;
    m_waitingSince = GetTickCount64();
    m_steps[current].act();
    m_waitingSince = GetTickCount64();
}

void knav::test::DialogDriver::fail(const std::string& why) {
    m_failed = true;
    wchar_t title[128] = L"(none)";
    GetWindowTextW(dialog(), title, ARRAYSIZE(title));
    ADD_FAILURE() << describe(std::min(m_next, m_steps.size() - 1)) << ": " << why
                  << "; dialog in front: " << utf8(title);
}

std::string knav::test::DialogDriver::describe(std::size_t index) const {
    return "step " + std::to_string(index + 1) + " of " + std::to_string(m_steps.size()) + " (" + m_steps[index].what +
           ")";
}

knav::test::DialogDriver::Session::Session(DialogDriver& driver)
    : m_driver(driver), m_outer(std::exchange(g_current, &driver)), m_timer(SetTimer(nullptr, 0, kTickMs, &onTimer)) {
    m_driver.m_waitingSince = GetTickCount64();
}

knav::test::DialogDriver::Session::~Session() {
    KillTimer(nullptr, m_timer);
    g_current = m_outer;
    if (!m_driver.m_failed && m_driver.m_next < m_driver.m_steps.size()) {
        ADD_FAILURE() << "the dialog ended before " << m_driver.describe(m_driver.m_next);
    }
}
