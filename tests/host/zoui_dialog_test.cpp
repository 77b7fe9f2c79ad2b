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

bool isInside(const RECT& inner, const RECT& outer) {
    RECT common{};
    IntersectRect(&common, &inner, &outer);
    return common == inner;
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

    // Runs the dialog, reports where it is, and ends it with `button` after moving it.
    RECT run(UINT button = IDCANCEL, const RECT* moveTo = nullptr) {
        RECT opened{};
        DialogDriver driver;
        driver.then("look", [&] {
            opened = rectOf(m_hWnd);
            if (moveTo != nullptr) {
                MoveWindow(*moveTo);
            }
        });
        driver.command(button);
        driver.run([this] { return DoModal(); });
        return opened;
    }

    RECT m_atInit{};

protected:
    void onEnd(UINT result) { EndDialog(static_cast<INT_PTR>(result)); }
    DECLARE_MESSAGE_MAP()

private:
    DialogTemplate m_template;
};
BEGIN_MESSAGE_MAP(PlacedDialog, CZoUiDialog)
ON_COMMAND_RANGE(100, 200, &PlacedDialog::onEnd)
END_MESSAGE_MAP()

class DialogPlaceTest : public testing::Test {
    knav::test::RegistryRedirect m_redirect;
};

TEST_F(DialogPlaceTest, PlaceAndSizeAreRememberedUnlessTheDialogIsCancelled) {
    const RECT first{40, 50, 440, 350};
    const RECT second{60, 30, 560, 330};
    const RECT third{80, 70, 480, 370};
    PlacedDialog dialog;
    EXPECT_EQ(dialog.run(IDCANCEL, &first), dialog.m_atInit) << "nothing remembered yet";
    EXPECT_EQ(dialog.run(IDOK, &first), dialog.m_atInit) << "nor after Cancel";
    EXPECT_EQ(dialog.run(IDCANCEL, &second), first);
    EXPECT_EQ(dialog.run(150, &third), first);
    EXPECT_EQ(dialog.run(), third) << "ended with a result of its own";

    PlacedDialog fixed(0);
    const RECT opened = fixed.run();
    EXPECT_EQ(opened.left, third.left);
    EXPECT_EQ(opened.top, third.top);
    EXPECT_EQ(opened.right - opened.left, fixed.m_atInit.right - fixed.m_atInit.left) << "a fixed size stays";
}

TEST_F(DialogPlaceTest, StoredPlaceIsFittedAndASenselessOneIgnored) {
    RECT room{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
    CString halfTheDots;
    halfTheDots.Format(L"10 10 200 150 %u", GetDpiForSystem() / 2);
    struct Row {
        const wchar_t* text;
        std::optional<RECT> opened;  // none: where it is by itself, or moved as far as it must be
        bool ignored = false;
    };
    const Row rows[] = {
        {halfTheDots, RECT{10, 10, 410, 310}},
        {L"-5000 -5000 400 300 96", {}},
        {L"20000 20000 400 300 96", {}},
        {L"0 0 30000 30000 96", {}},
        {L"", {}, true},
        {L"10 10 200 150", {}, true},
        {L"10 10 200 150 96 1", {}, true},
        {L"10 10 0 150 96", {}, true},
        {L"10 10 -5 150 96", {}, true},
        {L"10 10 200 150 0", {}, true},
        {L"99999999999 10 200 150 96", {}, true},
        {L"a b c d e", {}, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(knav::test::utf8(row.text));
        PlacedDialog dialog;
        dialog.SetDialogName(L"Placed");
        dialog.SetDialogData(L"WindowPlacement", CString(row.text));
        const RECT opened = dialog.run();
        EXPECT_TRUE(isInside(opened, room)) << opened;
        EXPECT_EQ(opened == dialog.m_atInit, row.ignored) << opened;
        EXPECT_EQ(opened, row.opened.value_or(opened));
    }
}

// --- notifications ---------------------------------------------------------------------------------------------------

class NotifiedDialog : public CZoUiDialog {
public:
    NotifiedDialog() : CZoUiDialog(0) { CreateIndirect(m_template.get()); }
    ZOUI_REPLY OnNotifyControlChange(unsigned int id, __int64 code) override {
        m_notes.emplace_back(id, code);
        return m_reply;
    }
    ZOUI_REPLY OnNotifyGeneric(unsigned int code, __int64 parameter) override {
        return OnNotifyControlChange(code, parameter);
    }

    std::vector<std::pair<unsigned int, __int64>> m_notes;
    ZOUI_REPLY m_reply = ZOUI_REPLY_NOT_HANDLED;

private:
    const DialogTemplate m_template{L"Notified"};
};

TEST(DialogNotify, EachReachesTheDialogOnceAndEndsThereWhenHandled) {
    NotifiedDialog dialog;
    CZoUiComboBox combo;
    combo.Create(CBS_DROPDOWN, RECT{0, 0, 50, 50}, &dialog, 100);
    EXPECT_EQ(dialog.AutoLoadControl(combo), 0) << "has nothing to load";
    EXPECT_EQ(combo.GetZoUiParent(), &dialog);
    const WPARAM change = MAKEWPARAM(100, CBN_SELCHANGE);
    for (const ZOUI_REPLY reply : {ZOUI_REPLY_NOT_HANDLED, ZOUI_REPLY_HANDLED}) {
        dialog.m_reply = reply;
        LRESULT result = 0;
        EXPECT_EQ(CWnd::ReflectMessage(combo, WM_COMMAND, change, 0, &result) != FALSE, reply == ZOUI_REPLY_HANDLED);
        EXPECT_EQ(ZoUiNotify(&dialog, 0xFFFFFFF0u, 0x123456789ABCDEF0), reply);
    }
    using Note = std::pair<unsigned int, __int64>;
    const Note selection{100, CBN_SELCHANGE};
    const Note other{0xFFFFFFF0u, 0x123456789ABCDEF0};
    EXPECT_EQ(dialog.m_notes, (std::vector<Note>{selection, other, selection, other}));
    EXPECT_EQ(ZoUiNotify(&combo, 16), ZOUI_REPLY_NOT_HANDLED) << "any other window";
    EXPECT_EQ(ZoUiNotify(nullptr, 16), ZOUI_REPLY_NOT_HANDLED);
}

// --- tabs ------------------------------------------------------------------------------------------------------------

constexpr UINT kTabs = 200;

class Page : public CZoUiTabPage {
public:
    explicit Page(WORD editId) : CZoUiTabPage(0), m_template(L"", WS_CHILD | DS_CONTROL, 100, 30) {
        m_template.control(WC_EDITW, L"", editId, WS_BORDER | WS_TABSTOP, 2);
    }
    BOOL OnLeave() override { return m_mayLeave && CZoUiTabPage::OnLeave(); }
    DialogTemplate m_template;
    bool m_mayLeave = true;
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
    void chooseTab(int index) {
        SendDlgItemMessage(kTabs, TCM_SETCURSEL, static_cast<WPARAM>(index));
        NMHDR header{GetDlgItem(kTabs)->m_hWnd, kTabs, static_cast<UINT>(TCN_SELCHANGE)};
        SendMessage(WM_NOTIFY, kTabs, reinterpret_cast<LPARAM>(&header));
    }

    Page m_first{301};
    Page m_second{302};

private:
    DialogTemplate m_template;
};

TEST(TabDialog, PagesChangeAndOkEndsUnlessAPageRefuses) {
    TabbedDialog dialog;
    for (int round = 0; round < 2; ++round) {  // it can be run again with the same pages
        DialogDriver driver;
        driver.then("tabs", [&] {
            EXPECT_EQ(dialog.visiblePage(), 0);
            dialog.chooseTab(1);
            EXPECT_EQ(dialog.visiblePage(), 1);
            EXPECT_TRUE(isInside(rectOf(dialog.m_second), rectOf(*dialog.GetDlgItem(kTabs))));
            dialog.m_second.m_mayLeave = false;
            dialog.chooseTab(0);
            EXPECT_EQ(dialog.visiblePage(), 1);
            EXPECT_EQ(dialog.SendDlgItemMessage(kTabs, TCM_GETCURSEL), 1) << "the tab goes back";
            dialog.m_second.m_mayLeave = true;
            EXPECT_FALSE(dialog.SetActivePage(2));
            EXPECT_TRUE(dialog.SetActivePage(0));
            dialog.m_second.m_mayLeave = false;
        });
        driver.click(IDOK);
        driver.wait("the page that refuses", [&] { return dialog.visiblePage() == 1; });
        // Enter in a field of a page is the main dialog's.
        driver.then("enter", [&] {
            dialog.m_second.m_mayLeave = true;
            const HWND edit = *dialog.m_second.GetDlgItem(302);
            SetFocus(edit);
            PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
        });
        EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDOK);
    }
}

}  // namespace
