#include <zoui/CZoUiComboBox.h>
#include <zoui/CZoUiDialog.h>
#include <zoui/CZoUiTabMainDialog.h>
#include <zoui/CZoUiTabPage.h>

#include <gtest/gtest.h>

#include "support/DialogDriver.h"
#include "support/DialogTemplate.h"
#include "support/Printers.h"
#include "support/RegistryRedirect.h"

using knav::test::DialogDriver;
using knav::test::DialogTemplate;

std::ostream& operator<<(std::ostream& out, const RECT& rect) {
    return out << '(' << rect.left << ',' << rect.top << ' ' << rect.right - rect.left << 'x' << rect.bottom - rect.top
               << ')';
}
bool operator==(const RECT& a, const RECT& b) {
    return EqualRect(&a, &b) != FALSE;
}

namespace {

RECT rectOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

RECT workArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

void place(HWND window, const RECT& rect) {
    SetWindowPos(window, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, SWP_NOZORDER);
}

// --- place ---------------------------------------------------------------------------------------------------------

class PlacedDialog : public CZoUiDialog {
public:
    explicit PlacedDialog(DWORD style = WS_THICKFRAME) : CZoUiDialog(0), m_template(L"Place", style) {
        m_template.okAndCancel();
        InitModalIndirect(m_template.get());
    }
    // Named as late as this by a class that takes its name from its caption.
    BOOL OnInitDialog() override {
        SetDialogName(L"Placed");
        m_atInit = rectOf(m_hWnd);
        return CZoUiDialog::OnInitDialog();
    }

    // Runs the dialog, reports where it is, and closes it with `button` after moving it.
    RECT run(UINT button, std::optional<RECT> moveTo = std::nullopt) {
        RECT opened{};
        DialogDriver driver;
        driver.then("look", [&] {
            opened = rectOf(m_hWnd);
            if (moveTo) {
                place(m_hWnd, *moveTo);
            }
        });
        driver.click(button);
        driver.run([this] { return DoModal(); });
        return opened;
    }

    RECT m_atInit{};

private:
    DialogTemplate m_template;
};

class DialogPlaceTest : public testing::Test {
protected:
    static void store(const wchar_t* text) {
        CZoUiDialog dialog(0);
        dialog.SetDialogName(L"Placed");
        dialog.SetDialogData(L"WindowPlacement", CString(text));
    }
    static UINT dpi() { return GetDpiForSystem(); }

    knav::test::RegistryRedirect m_redirect;
};

TEST_F(DialogPlaceTest, PlaceAndSizeAreRememberedHoweverTheDialogIsClosed) {
    const RECT first{40, 50, 440, 350};
    const RECT second{60, 30, 560, 330};
    PlacedDialog dialog;
    EXPECT_EQ(dialog.run(IDOK, first), dialog.m_atInit) << "nothing remembered yet";
    EXPECT_EQ(dialog.run(IDCANCEL, second), first);
    EXPECT_EQ(dialog.run(IDCANCEL), second);
}

TEST_F(DialogPlaceTest, DialogOfFixedSizeKeepsItsSize) {
    const RECT moved{40, 50, 440, 350};
    PlacedDialog resizable;
    resizable.run(IDOK, moved);
    PlacedDialog fixed(0);
    const RECT opened = fixed.run(IDCANCEL);
    EXPECT_EQ(opened.left, moved.left);
    EXPECT_EQ(opened.top, moved.top);
    EXPECT_EQ(opened.right - opened.left, fixed.m_atInit.right - fixed.m_atInit.left);
    EXPECT_EQ(opened.bottom - opened.top, fixed.m_atInit.bottom - fixed.m_atInit.top);
}

TEST_F(DialogPlaceTest, PlaceOutsideEveryMonitorComesBackIntoTheWorkArea) {
    const RECT room = workArea();
    for (const wchar_t* text : {L"-5000 -5000 400 300 96", L"20000 20000 400 300 96", L"0 0 30000 30000 96"}) {
        store(text);
        PlacedDialog dialog;
        const RECT opened = dialog.run(IDCANCEL);
        RECT inside{};
        IntersectRect(&inside, &opened, &room);
        EXPECT_EQ(opened, inside) << knav::test::utf8(text);
    }
}

TEST_F(DialogPlaceTest, SizeFollowsTheDotsPerInch) {
    CString text;
    text.Format(L"10 10 200 150 %u", dpi() / 2);
    store(text);
    PlacedDialog dialog;
    EXPECT_EQ(dialog.run(IDCANCEL), (RECT{10, 10, 410, 310}));
}

TEST_F(DialogPlaceTest, SenselessPlaceIsIgnored) {
    for (const wchar_t* text : {L"", L"10 10 200 150", L"10 10 200 150 96 1", L"10 10 0 150 96", L"10 10 -5 150 96",
                                L"10 10 200 150 0", L"99999999999 10 200 150 96", L"a b c d e"}) {
        store(text);
        PlacedDialog dialog;
        EXPECT_EQ(dialog.run(IDCANCEL), dialog.m_atInit) << knav::test::utf8(text);
    }
}

// --- notifications and controls --------------------------------------------------------------------------------------

constexpr UINT kCombo = 100;

class LoadingCombo : public CZoUiComboBox {
public:
    int OnAutoLoad() override {
        AddString(L"one");
        AddString(L"two");
        return 1;
    }
};

class NotifiedDialog : public CZoUiDialog {
public:
    NotifiedDialog() : CZoUiDialog(0), m_template(L"Notified") {
        m_template.control(WC_COMBOBOXW, L"", kCombo, CBS_DROPDOWNLIST | WS_TABSTOP, 5, 60).okAndCancel();
        InitModalIndirect(m_template.get());
    }
    void DoDataExchange(CDataExchange* exchange) override { DDX_Control(exchange, kCombo, m_combo); }
    BOOL OnInitDialog() override {
        EXPECT_EQ(AutoLoadControl(m_combo), 0) << "without a window there is nothing to load";
        const BOOL result = CZoUiDialog::OnInitDialog();
        EXPECT_EQ(AutoLoadControl(m_combo), 1);
        EXPECT_EQ(m_combo.GetZoUiParent(), this);
        CWnd plain;
        EXPECT_EQ(AutoLoadControl(plain), 0);
        return result;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_plainNotices += wParam == MAKEWPARAM(kCombo, CBN_SELCHANGE);
        return CZoUiDialog::OnCommand(wParam, lParam);
    }
    ZOUI_REPLY OnNotifyControlChange(unsigned int id, __int64 code) override {
        m_changes.emplace_back(id, code);
        return m_reply;
    }
    ZOUI_REPLY OnNotifyGeneric(unsigned int code, __int64 parameter) override {
        m_changes.emplace_back(code, parameter);
        return ZOUI_REPLY_HANDLED;
    }

    std::vector<std::pair<unsigned int, __int64>> m_changes;
    int m_plainNotices = 0;
    ZOUI_REPLY m_reply = ZOUI_REPLY_NOT_HANDLED;
    LoadingCombo m_combo;

private:
    DialogTemplate m_template;
};

TEST(DialogNotify, NewSelectionReachesTheDialogOnceAndEndsThereWhenHandled) {
    NotifiedDialog dialog;
    DialogDriver driver;
    driver.select(kCombo, 1);
    driver.then("handle the next", [&] {
        EXPECT_EQ(dialog.m_plainNotices, 1);
        dialog.m_reply = ZOUI_REPLY_HANDLED;
    });
    driver.select(kCombo, 0).click(IDCANCEL);
    driver.run([&] { return dialog.DoModal(); });
    using Change = std::pair<unsigned int, __int64>;
    EXPECT_EQ(dialog.m_changes, (std::vector<Change>{{kCombo, CBN_SELCHANGE}, {kCombo, CBN_SELCHANGE}}));
    EXPECT_EQ(dialog.m_combo.GetCurSel(), 0);
}

TEST(DialogNotify, GenericNotificationKeepsItsWholeParameter) {
    NotifiedDialog dialog;
    EXPECT_EQ(ZoUiNotify(&dialog, 16), ZOUI_REPLY_NOT_HANDLED) << "no window yet";
    EXPECT_EQ(ZoUiNotify(nullptr, 16), ZOUI_REPLY_NOT_HANDLED);
    DialogDriver driver;
    driver.then("notify", [&] {
        EXPECT_EQ(ZoUiNotify(&dialog, 0xFFFFFFF0u, 0x123456789ABCDEF0), ZOUI_REPLY_HANDLED);
        EXPECT_EQ(ZoUiNotify(dialog.GetDlgItem(IDOK), 16), ZOUI_REPLY_NOT_HANDLED) << "any other window";
    });
    driver.click(IDCANCEL);
    driver.run([&] { return dialog.DoModal(); });
    ASSERT_EQ(dialog.m_changes.size(), 1u);
    EXPECT_EQ(dialog.m_changes[0].first, 0xFFFFFFF0u);
    EXPECT_EQ(dialog.m_changes[0].second, 0x123456789ABCDEF0);
}

// --- tabs ------------------------------------------------------------------------------------------------------------

constexpr UINT kTabs = 200;

class Page : public CZoUiTabPage {
public:
    explicit Page(WORD editId) : CZoUiTabPage(0), m_template(L"", WS_CHILD | DS_CONTROL, 100, 30) {
        m_template.control(WC_EDITW, L"", editId, WS_BORDER | WS_TABSTOP, 2);
    }
    BOOL OnLeave() override {
        ++m_leaves;
        return m_mayLeave && CZoUiTabPage::OnLeave();
    }
    DialogTemplate m_template;
    bool m_mayLeave = true;
    int m_leaves = 0;
};

class TabbedDialog : public CZoUiTabMainDialog {
public:
    TabbedDialog() : CZoUiTabMainDialog(0, kTabs), m_template(L"Tabbed") {
        m_template.control(WC_TABCONTROLW, L"", kTabs, WS_TABSTOP | WS_CLIPSIBLINGS, 5, 50).okAndCancel();
        InitModalIndirect(m_template.get());
    }
    BOOL OnInitDialog() override {
        m_first.CreateIndirect(m_first.m_template.get(), this);
        m_second.CreateIndirect(m_second.m_template.get(), this);
        EXPECT_EQ(AddPage(m_first, L"First"), 0);
        EXPECT_EQ(AddPage(m_second, L"Second"), 1);
        return CZoUiTabMainDialog::OnInitDialog();
    }
    // What is in front, by what the user sees.
    int visiblePage() { return m_first.IsWindowVisible() ? (m_second.IsWindowVisible() ? -2 : 0) : 1; }

    Page m_first{301};
    Page m_second{302};

private:
    DialogTemplate m_template;
};

void chooseTab(HWND dialog, int index) {
    SendDlgItemMessageW(dialog, kTabs, TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
    NMHDR header{GetDlgItem(dialog, kTabs), kTabs, static_cast<UINT>(TCN_SELCHANGE)};
    SendMessageW(dialog, WM_NOTIFY, kTabs, reinterpret_cast<LPARAM>(&header));
}

TEST(TabDialog, PagesChangeUnlessTheOneInFrontRefuses) {
    TabbedDialog dialog;
    DialogDriver driver;
    driver.then("tabs", [&] {
        EXPECT_EQ(dialog.visiblePage(), 0);
        chooseTab(dialog.m_hWnd, 1);
        EXPECT_EQ(dialog.visiblePage(), 1);
        dialog.m_second.m_mayLeave = false;
        chooseTab(dialog.m_hWnd, 0);
        EXPECT_EQ(dialog.visiblePage(), 1);
        EXPECT_EQ(SendDlgItemMessageW(dialog.m_hWnd, kTabs, TCM_GETCURSEL, 0, 0), 1) << "the tab goes back";
        EXPECT_FALSE(dialog.SetActivePage(2));
        EXPECT_EQ(dialog.GetActivePage(), 1);
        RECT tabs = rectOf(GetDlgItem(dialog.m_hWnd, kTabs));
        const RECT page = rectOf(dialog.m_second.m_hWnd);
        RECT common{};
        IntersectRect(&common, &tabs, &page);
        EXPECT_EQ(common, page) << "a page lies in its tab control";
    });
    driver.click(IDCANCEL);
    EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDCANCEL);
}

TEST(TabDialog, OkAsksEveryPageAndShowsTheOneThatRefuses) {
    TabbedDialog dialog;
    dialog.m_second.m_mayLeave = false;
    DialogDriver driver;
    driver.click(IDOK);
    driver.wait("the page that refuses", [&] { return dialog.visiblePage() == 1; });
    driver.then("let it", [&] { dialog.m_second.m_mayLeave = true; });
    // Enter in a field of a page is the main dialog's.
    driver.then("enter", [&] {
        const HWND edit = GetDlgItem(dialog.m_second.m_hWnd, 302);
        SetFocus(edit);
        PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
    });
    EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.m_first.m_leaves, 2);
}

TEST(TabDialog, DialogCanBeRunAgainWithTheSamePages) {
    TabbedDialog dialog;
    for (int i = 0; i < 2; ++i) {
        DialogDriver driver;
        driver.then("look", [&] { EXPECT_EQ(dialog.visiblePage(), 0); }).click(IDOK);
        EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDOK);
    }
}

}  // namespace
