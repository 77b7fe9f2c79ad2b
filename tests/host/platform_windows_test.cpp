// Which of a window and its object may end first, and what is left of the other then.
#include <platform/CEdit.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

constexpr RECT kPlace{0, 0, 100, 50};

// A plain window made without the framework.
class RawWindow {
public:
    RawWindow()
        : m_window(CreateWindowExW(0, L"Static", L"raw", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr)) {}
    ~RawWindow() { DestroyWindow(m_window); }
    RawWindow(const RawWindow&) = delete;
    RawWindow& operator=(const RawWindow&) = delete;
    operator HWND() const { return m_window; }

private:
    HWND m_window;
};

// Runs a function for WM_APP.
class Probe : public CWnd {
public:
    std::function<void()> action = [] {};

    LRESULT onAction(WPARAM, LPARAM) {
        const auto run = action;  // a copy: it may delete this object
        run();
        return 5;
    }

    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Probe, CWnd)
ON_MESSAGE(WM_APP, &Probe::onAction)
END_MESSAGE_MAP()

BOOL createPopup(CWnd& window) {
    return window.CreateEx(0, nullptr, L"", WS_POPUP, kPlace, nullptr, 0);
}

TEST(WindowLifetime, WindowEndsWithTheObjectThatMadeItAndWithNoOther) {
    HWND made = nullptr;
    {
        CWnd window;
        ASSERT_TRUE(createPopup(window));
        made = window.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(made));
    const RawWindow raw;
    {
        Probe probe;
        ASSERT_TRUE(probe.SubclassWindow(raw));
        EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 5);
    }
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 0);
    EXPECT_EQ(CWnd::FromHandlePermanent(raw), nullptr);
    EXPECT_TRUE(IsWindow(raw));
}

TEST(WindowLifetime, ObjectMayBeDeletedInItsOwnHandler) {
    const RawWindow raw;
    auto subclassing = std::make_unique<Probe>();
    subclassing->SubclassWindow(raw);
    subclassing->action = [&object = subclassing] { object.reset(); };
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 5);
    EXPECT_EQ(subclassing, nullptr);
    EXPECT_TRUE(IsWindow(raw));
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 0);
}

TEST(Subclassing, IsRefusedForTakenDeadAndForeignWindows) {
    const RawWindow raw;
    CWnd first;
    CWnd second;
    ASSERT_TRUE(first.SubclassWindow(raw));
    EXPECT_FALSE(second.SubclassWindow(raw));
    EXPECT_EQ(CWnd::FromHandlePermanent(raw), &first);
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_FALSE(second.SubclassWindow(nullptr));

    first.UnsubclassWindow();
    BOOL fromOtherThread = TRUE;
    std::thread([&] { fromOtherThread = second.SubclassWindow(raw); }).join();
    EXPECT_FALSE(fromOtherThread);
    EXPECT_TRUE(second.SubclassWindow(raw));
}

LRESULT CALLBACK addToResult(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR added) {
    return DefSubclassProc(window, message, wParam, lParam) + (message == WM_APP ? static_cast<LRESULT>(added) : 0);
}

TEST(Subclassing, EndsInTheMiddleOfOthers) {
    const RawWindow raw;
    SetWindowSubclass(raw, addToResult, 1, 10);
    Probe probe;
    probe.SubclassWindow(raw);
    SetWindowSubclass(raw, addToResult, 2, 100);
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 105);
    EXPECT_EQ(probe.UnsubclassWindow(), static_cast<HWND>(raw));
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 110);
}

WNDPROC g_procedureBelow = nullptr;

LRESULT CALLBACK addTen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(g_procedureBelow, window, message, wParam, lParam) + (message == WM_APP ? 10 : 0);
}

TEST(Subclassing, EndsAndBeginsAnewBelowAnotherProcedure) {
    const RawWindow raw;
    Probe probe;
    ASSERT_TRUE(probe.SubclassWindow(raw));
    g_procedureBelow =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(raw, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&addTen)));
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 15);
    EXPECT_EQ(probe.UnsubclassWindow(), static_cast<HWND>(raw));
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 10);
    Probe second;
    ASSERT_TRUE(second.SubclassWindow(raw));
    EXPECT_EQ(SendMessageW(raw, WM_APP, 0, 0), 15);
    ::DestroyWindow(raw);
    EXPECT_EQ(second.m_hWnd, nullptr);
}

TEST(WindowFromHandle, GivesTheObjectOrOneTemporary) {
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    HWND ended = nullptr;
    {
        const RawWindow raw;
        ended = raw;
        CWnd* const temporary = CWnd::FromHandle(raw);
        EXPECT_EQ(temporary->m_hWnd, static_cast<HWND>(raw));
        EXPECT_EQ(CWnd::FromHandlePermanent(raw), nullptr);
        for (int i = 0; i < 300; ++i) {  // the temporaries of ended windows are cleared in between
            const RawWindow other;
            CWnd::FromHandle(other);
        }
        EXPECT_EQ(CWnd::FromHandle(raw), temporary);
        CWnd object;
        object.SubclassWindow(raw);
        EXPECT_EQ(CWnd::FromHandle(raw), &object);
    }
    EXPECT_EQ(CWnd::FromHandlePermanent(ended), nullptr);
}

class Translator : public CWnd {
public:
    std::function<BOOL()> answer = [] { return FALSE; };
    BOOL PreTranslateMessage(MSG*) override { return answer(); }
};

TEST(PreTranslate, WindowMayThrowOrEndOnTheWayUp) {
    CWnd top;
    Translator outer;
    Translator inner;
    createPopup(top);
    outer.Create(nullptr, L"", 0, kPlace, &top, 1);
    inner.Create(nullptr, L"", 0, kPlace, &outer, 2);
    MSG message{inner, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    inner.answer = []() -> BOOL { throw std::runtime_error("broken"); };
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(top, &message));
    inner.answer = [&] { return outer.DestroyWindow() ? FALSE : TRUE; };
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(top, &message));
}

TEST(MessageMap, HandlerThatThrowsLeavesTheWindowUsable) {
    Probe probe;
    createPopup(probe);
    probe.action = [] { throw std::runtime_error("handler"); };
    EXPECT_EQ(probe.SendMessage(WM_APP), 0);
    EXPECT_EQ(probe.GetCurrentMessage().message, UINT{WM_NULL});
    probe.action = [&] {
        probe.GetWindowTextLength();
        EXPECT_EQ(probe.GetCurrentMessage().message, UINT{WM_APP}) << "what Default() passes on, after a nested one";
    };
    EXPECT_EQ(probe.SendMessage(WM_APP), 5);
}

}  // namespace
