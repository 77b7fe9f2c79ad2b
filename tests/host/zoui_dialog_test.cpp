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

class PlacedDialog : public CZoUiDialog {
public:
    explicit PlacedDialog(DWORD style = WS_THICKFRAME) : CZoUiDialog(0), m_template(L"Place", style) {
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

constexpr UINT kTabs = 200;
constexpr UINT kField = 201;

// Refuses one text of its field.
class TextPage : public CZoUiTabPage {
public:
    TextPage() : CZoUiTabPage(9002) {}
    CString m_text;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        DDX_Text(exchange, kField, m_text);
        if (exchange->m_bSaveAndValidate && m_text == L"refused") {
            exchange->Fail(kField);
        }
    }
};

class TabbedDialog : public CZoUiTabMainDialog {
public:
    TabbedDialog() : CZoUiTabMainDialog(9001, kTabs) {}
    BOOL OnInitDialog() override {
        EXPECT_EQ(AddPage(m_first, L"First"), 0);
        EXPECT_EQ(AddPage(m_second, L"Second"), 1);
        return CZoUiTabMainDialog::OnInitDialog();
    }
    // The one that the user sees; -1 for none or both.
    int pageInFront() const {
        const BOOL second = m_second.IsWindowVisible();
        return m_first.IsWindowVisible() != second ? second : -1;
    }
    int chooseTab(int index) {
        SendDlgItemMessage(kTabs, TCM_SETCURFOCUS, static_cast<WPARAM>(index));
        EXPECT_EQ(SendDlgItemMessage(kTabs, TCM_GETCURSEL), pageInFront());
        return pageInFront();
    }

    TextPage m_first;
    TextPage m_second;
};

TEST(TabDialog, PagesChangeAndOkEndsUnlessAPageRefuses) {
    TabbedDialog dialog;
    TextPage& page = dialog.m_second;
    for (int round = 0; round < 2; ++round) {  // it can be run again with the same pages
        page.m_text = L"before";
        DialogDriver driver;
        driver.then("tabs", [&] {
            EXPECT_EQ(dialog.pageInFront(), 0);
            EXPECT_EQ(dialog.chooseTab(1), 1);
            EXPECT_TRUE(isInside(rectOf(page), rectOf(*dialog.GetDlgItem(kTabs))));
            CString shown;
            page.GetDlgItemText(kField, shown);
            EXPECT_STREQ(shown, L"before");
            page.SetDlgItemText(kField, L"refused");
            EXPECT_EQ(dialog.chooseTab(0), 1);
            EXPECT_EQ(GetFocus(), page.GetDlgItem(kField)->m_hWnd);
            page.SetDlgItemText(kField, L"after");
            EXPECT_EQ(dialog.chooseTab(0), 0);
            EXPECT_STREQ(page.m_text, L"after");
            page.SetDlgItemText(kField, L"refused");
        });
        driver.click(IDOK);
        driver.wait("the page that refuses", [&] { return dialog.pageInFront() == 1; });
        driver.then("enter in a page's field is the dialog's OK", [&] {
            page.SetDlgItemText(kField, L"after");
            page.GetDlgItem(kField)->PostMessage(WM_KEYDOWN, VK_RETURN, 1);
        });
        EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDOK);
    }
}

}  // namespace
