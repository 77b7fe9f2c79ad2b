#include "dialog/DialogLayout.h"

#include <gtest/gtest.h>

namespace knav {
namespace {

constexpr UINT kBody = 1;
constexpr UINT kCombo = 2;
constexpr UINT kRight = 3;

constexpr GrowRow kRows[] = {{kCombo, Grow::Stretch, Grow::Move}, {kRight, Grow::Move, Grow::Stay}};

/// A window with a body, a combo box below it and a button at its right, laid out by its own WM_SIZE.
class LayoutWindow : public testing::TestWithParam<DWORD> {
protected:
    LayoutWindow() {
        m_window = CreateWindowExW(GetParam(), L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                                   nullptr, nullptr, nullptr, nullptr);
        add(L"STATIC", 0, kBody, {10, 10, 250, 150});
        m_combo = add(L"COMBOBOX", CBS_DROPDOWN, kCombo, {10, 170, 250, 300});
        m_right = add(L"BUTTON", 0, kRight, {260, 10, 330, 34});
        m_layout.capture(m_window, kRows, kBody);
    }
    ~LayoutWindow() override { DestroyWindow(m_window); }

    HWND add(const wchar_t* className, DWORD style, UINT id, RECT at) {
        return CreateWindowExW(0, className, L"text", WS_CHILD | WS_VISIBLE | style, at.left, at.top,
                               at.right - at.left, at.bottom - at.top, m_window,
                               reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    }

    static void expectRect(const RECT& expected, const RECT& actual) {
        EXPECT_TRUE(EqualRect(&expected, &actual)) << actual.left << "," << actual.top << "," << actual.right;
    }

    RECT at(HWND control) {
        RECT place{};
        GetWindowRect(control, &place);
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    void grow(int across, int down) {
        SetWindowPos(m_window, nullptr, 0, 0, 400 + across, 300 + down, SWP_NOMOVE | SWP_NOZORDER);
        RECT client{};
        GetClientRect(m_window, &client);
        m_layout.apply(client.right, client.bottom);
    }

    HWND m_window;
    HWND m_combo;
    HWND m_right;
    DialogLayout m_layout;
};

TEST_P(LayoutWindow, grown_movesAndStretchesItsControls) {
    const RECT body = m_layout.bodyRect();
    const RECT combo = at(m_combo);
    const RECT right = at(m_right);
    grow(100, 60);
    expectRect({body.left, body.top, body.right + 100, body.bottom + 60}, m_layout.bodyRect());
    expectRect({combo.left, combo.top + 60, combo.right + 100, combo.bottom + 60}, at(m_combo));
    expectRect({right.left + 100, right.top, right.right + 100, right.bottom}, at(m_right));
    grow(0, 0);
    expectRect(combo, at(m_combo));
    m_layout.apply(0, 0);  // as when it is minimised
    expectRect(combo, at(m_combo));
}

TEST_P(LayoutWindow, comboBox_keepsItsListAndItsSelection) {
    const auto droppedHeight = [this] {
        RECT dropped{};
        SendMessageW(m_combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        return dropped.bottom - dropped.top;
    };
    const LONG height = droppedHeight();
    SetWindowTextW(m_combo, L"plan.dwg");
    SendMessageW(m_combo, CB_SETEDITSEL, 0, MAKELPARAM(2, 4));
    grow(50, 0);
    EXPECT_EQ(height, droppedHeight());
    EXPECT_EQ(MAKELONG(2, 4), SendMessageW(m_combo, CB_GETEDITSEL, 0, 0));
}

TEST_P(LayoutWindow, smallestSize_leavesHalfOfTheBody_andTheLargestFitsTheScreen) {
    const RECT body = m_layout.bodyRect();
    const SIZE least = m_layout.minTrack();
    EXPECT_EQ(400 - (body.right - body.left) / 2, least.cx);
    EXPECT_EQ(300 - (body.bottom - body.top) / 2, least.cy);
    grow(least.cx - 400, least.cy - 300);
    EXPECT_LE(m_layout.bodyRect().right, at(m_right).left);
    grow(5000, 5000);
    m_layout.fitScreen();
    RECT window{};
    GetWindowRect(m_window, &window);
    EXPECT_LE(window.right - window.left, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(window.bottom - window.top, GetSystemMetrics(SM_CYSCREEN));
}

TEST_P(LayoutWindow, grip_staysInTheCornerAndGoesWhenMaximised) {
    HWND grip = FindWindowExW(m_window, nullptr, L"SCROLLBAR", nullptr);
    ASSERT_NE(nullptr, grip);
    grow(70, 70);
    RECT client{};
    GetClientRect(m_window, &client);
    EXPECT_EQ(client.right, at(grip).right);
    EXPECT_EQ(client.bottom, at(grip).bottom);
    ShowWindow(m_window, SW_MAXIMIZE);
    m_layout.apply(2000, 1000);
    EXPECT_FALSE(IsWindowVisible(grip));
}

INSTANTIATE_TEST_SUITE_P(Directions, LayoutWindow, testing::Values(DWORD{0}, DWORD{WS_EX_LAYOUTRTL}),
                         [](const auto& row) { return row.param ? "Mirrored" : "LeftToRight"; });

}  // namespace
}  // namespace knav
