// The running dialog as it looks: nothing clipped or covered in any size, and known to assistive tools. The language
// and the resolution are those of the environment: KNAV_TEST_LANGUAGE (one of the built modules) and KNAV_TEST_DPI.
#include <knav/CNavHostApplication.h>
#include <knav/CNavListBox.h>
#include <oleacc.h>

#include <cstdlib>

#include "controls/Accessible.h"
#include "dialog/DialogUser.h"
#include "shell/ComPtr.h"
#include "support/Controls.h"

namespace knav::test {
namespace {

class DialogFit : public DialogTest {
protected:
    DialogFit() {
        if (const char* language = std::getenv("KNAV_TEST_LANGUAGE")) {
            const std::string name(language);
            KNavSetLanguage(std::wstring(name.begin(), name.end()).c_str());
        }
        folder.addFile(L"plan.dwg");
    }
};

std::vector<HWND> visibleControls() {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(DialogDriver::dialog(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsWindowVisible(child) && classOf(child) != L"ScrollBar") {  // the grip lies in the corner on purpose
            controls.push_back(child);
        }
    }
    return controls;
}

/// Room that a control needs for its text: what a push button has around it, with the arrow of the one with a menu.
SIZE neededBy(HWND control) {
    const UINT dpi = GetDpiForWindow(control);
    const SIZE text = extentOf(control);
    if (classOf(control) == L"Static") {
        return text;
    }
    const int id = GetDlgCtrlID(control);
    if (id == IDOK || id == IDCANCEL) {
        return {text.cx + MulDiv(id == IDOK ? 28 : 10, static_cast<int>(dpi), 96), text.cy};
    }
    const int picture = MulDiv(16, static_cast<int>(dpi), 96);
    return classOf(control) == L"Button" ? SIZE{picture, picture} : SIZE{};
}

void expectEverythingFits(const char* when) {
    SCOPED_TRACE(when);
    const HWND dialog = DialogDriver::dialog();
    RECT area{};
    GetClientRect(dialog, &area);
    std::vector<std::pair<RECT, std::string>> placed;
    for (HWND control : visibleControls()) {
        const std::string name = std::to_string(GetDlgCtrlID(control)) + " " + utf8(textOf(control));
        const RECT at = rectIn(dialog, control);
        const SIZE needed = neededBy(control);
        EXPECT_LE(needed.cx, at.right - at.left) << name;
        EXPECT_LE(needed.cy, at.bottom - at.top) << name;
        EXPECT_TRUE(at.left >= 0 && at.top >= 0 && at.right <= area.right && at.bottom <= area.bottom)
            << name << " at " << at.left << "," << at.top << "," << at.right << "," << at.bottom;
        for (const auto& [other, otherName] : placed) {
            RECT common{};
            EXPECT_FALSE(IntersectRect(&common, &at, &other)) << name << " covers " << otherName;
        }
        placed.emplace_back(at, name);
    }
    EXPECT_GE(placed.size(), 13u);
}

/// Fields, whose height is the system's, stand in the middle of their rows.
void expectRowsLevel() {
    for (const auto& [field, button] : {std::pair{IDC_KNAV_LOOK_IN, IDC_KNAV_UP}, std::pair{IDC_KNAV_FILE_NAME, IDOK},
                                        std::pair{IDC_KNAV_FILE_TYPE, IDCANCEL}}) {
        const RECT left = rectIn(DialogDriver::dialog(), DialogDriver::control(static_cast<UINT>(field)));
        const RECT right = rectIn(DialogDriver::dialog(), DialogDriver::control(static_cast<UINT>(button)));
        EXPECT_NEAR((left.top + left.bottom) / 2.0, (right.top + right.bottom) / 2.0, 1.0)
            << field << " " << left.top << "-" << left.bottom;
    }
}

/// The labels of the places, which the list cuts when they are too long.
void expectPlacesFit(CNavListBox& places) {
    const HDC dc = GetDC(places);
    const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(places, WM_GETFONT, 0, 0)));
    for (int row = 0; row < places.GetCount(); ++row) {
        const CString text = places.GetItemDisplayText(row);
        SIZE size{};
        GetTextExtentPoint32W(dc, text, text.GetLength(), &size);
        EXPECT_LE(size.cx, places.GetAvailableWidth(row)) << utf8(text.view());
    }
    SelectObject(dc, old);
    ReleaseDC(places, dc);
}

TEST_F(DialogFit, EveryTextHasRoom_AsOpenedAndAtItsSmallestAndLarge) {
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilShown({L"plan.dwg"}).check([&dialog] {
        expectPlacesFit(*knaviGetPlacesList(&dialog));
        const HWND window = DialogDriver::dialog();
        if (const char* dpi = std::getenv("KNAV_TEST_DPI")) {
            EXPECT_EQ(std::to_string(GetDpiForWindow(window)), dpi);
        }
        RECT whole{};
        GetWindowRect(window, &whole);
        EXPECT_LE(whole.bottom - whole.top, GetSystemMetrics(SM_CYSCREEN));
        expectEverythingFits("as opened");
        expectRowsLevel();
        SetWindowPos(window, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
        expectEverythingFits("at the smallest size");
        RECT least{};
        GetWindowRect(window, &least);
        EXPECT_LT(least.right - least.left, whole.right - whole.left) << "it can be made smaller";
        EXPECT_GT(least.right - least.left, 100);
        SetWindowPos(window, nullptr, 0, 0, 3000, 2000, SWP_NOMOVE | SWP_NOZORDER);
        expectEverythingFits("large");
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogFit, FoldersOnly_HasOneRowBelowTheView) {
    TestDialog dialog(folder.path());
    dialog.SetFoldersOnly(1);
    DialogUser user(dialog);
    user.untilShown({}).check([] {
        expectEverythingFits("as opened");
        const HWND window = DialogDriver::dialog();
        const RECT ok = rectIn(window, DialogDriver::control(IDOK));
        const RECT cancel = rectIn(window, DialogDriver::control(IDCANCEL));
        EXPECT_EQ(ok.top, cancel.top);
        EXPECT_LT(ok.right, cancel.left);
        EXPECT_LT(ok.top - rectIn(window, GetParent(viewList())).bottom, ok.bottom - ok.top) << "and little between";
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogFit, LanguageReadFromTheRight_MirrorsTheDialog) {
    const char* language = std::getenv("KNAV_TEST_LANGUAGE");
    const bool mirrored = language && language == std::string("xr");
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilShown({L"plan.dwg"}).check([mirrored] {
        const auto leftOf = [](UINT id) {
            RECT at{};
            GetWindowRect(DialogDriver::control(id), &at);
            return at.left;
        };
        EXPECT_EQ(leftOf(IDC_KNAV_PLACES) > leftOf(IDC_KNAV_FILE_NAME), mirrored);
        EXPECT_EQ(leftOf(IDOK) < leftOf(IDC_KNAV_FILE_NAME), mirrored);
        EXPECT_EQ(leftOf(IDC_KNAV_BACK) > leftOf(IDC_KNAV_TOOLS), mirrored);
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        GetComboBoxInfo(DialogDriver::control(IDC_KNAV_FILE_NAME), &info);
        EXPECT_FALSE(GetWindowLongW(info.hwndItem, GWL_EXSTYLE) & (WS_EX_LAYOUTRTL | WS_EX_RTLREADING))
            << "names are read from the left all the same";
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

// --- assistive tools -------------------------------------------------------------------------------------------

/// What the window's accessible object says, as an assistive tool reads it.
class Told {
public:
    explicit Told(HWND window) {
        AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                   reinterpret_cast<void**>(m_object.put()));
        m_self.vt = VT_I4;
    }
    std::string name() const { return text(&IAccessible::get_accName); }
    std::string shortcut() const { return text(&IAccessible::get_accKeyboardShortcut); }
    std::string description() const { return text(&IAccessible::get_accDescription); }
    long role() const { return number(&IAccessible::get_accRole); }
    long state() const { return number(&IAccessible::get_accState); }

private:
    std::string text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) const {
        BSTR answer = nullptr;
        const bool told = m_object && (m_object.get()->*get)(m_self, &answer) == S_OK && answer;
        const std::string taken = told ? utf8(answer) : "";
        SysFreeString(answer);
        return taken;
    }
    long number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, VARIANT*)) const {
        VARIANT answer{};
        return m_object && (m_object.get()->*get)(m_self, &answer) == S_OK ? answer.lVal : 0;
    }
    ComPtr<IAccessible> m_object;
    VARIANT m_self{};
};

/// From each control that can have the focus Tab goes to the next one of these; the view lies between two of them.
void expectTabOrder(const std::vector<UINT>& order) {
    const HWND dialog = DialogDriver::dialog();
    const HWND view = GetParent(viewList());
    HWND next = DialogDriver::control(order.front());
    for (const UINT id : order) {
        if (isEnabled(id)) {
            EXPECT_EQ(GetDlgCtrlID(next), static_cast<int>(id));
            next = GetNextDlgTabItem(dialog, DialogDriver::control(id), FALSE);
        }
        if (next == view || IsChild(view, next)) {
            EXPECT_EQ(id, IDC_KNAV_PLACES) << "the view comes after the places";
            next = GetNextDlgTabItem(dialog, next, FALSE);
        }
    }
    EXPECT_EQ(next, DialogDriver::control(order.front())) << "and round again";
}

TEST_F(DialogFit, EveryControl_TellsItsNameAndRole_AndTabGoesThroughThem) {
    if (std::getenv("KNAV_TEST_LANGUAGE")) {
        GTEST_SKIP() << "in English only";
    }
    struct Row {
        UINT id;
        const wchar_t* name;
        long role;
        const wchar_t* shortcut;
    };
    constexpr Row rows[] = {
        {IDC_KNAV_LOOK_IN, L"Look in", ROLE_SYSTEM_COMBOBOX, L"Alt+I"},
        {IDC_KNAV_BACK, L"Back", ROLE_SYSTEM_PUSHBUTTON, L""},
        {IDC_KNAV_UP, L"Up One Level", ROLE_SYSTEM_PUSHBUTTON, L""},
        {IDC_KNAV_REFRESH, L"Refresh", ROLE_SYSTEM_PUSHBUTTON, L""},
        {IDC_KNAV_WEB, L"Browse the Web", ROLE_SYSTEM_PUSHBUTTON, L"Alt+W"},
        {IDC_KNAV_DELETE, L"Delete", ROLE_SYSTEM_PUSHBUTTON, L""},
        {IDC_KNAV_NEW_FOLDER, L"New Folder", ROLE_SYSTEM_PUSHBUTTON, L""},
        {IDC_KNAV_VIEWS, L"Views", ROLE_SYSTEM_BUTTONMENU, L"Alt+V"},
        {IDC_KNAV_TOOLS, L"Tools", ROLE_SYSTEM_BUTTONMENU, L"Alt+L"},
        {IDC_KNAV_PLACES, L"Places", ROLE_SYSTEM_LIST, L""},
        {IDC_KNAV_FILE_NAME, L"File name", ROLE_SYSTEM_COMBOBOX, L"Alt+N"},
        {IDC_KNAV_FILE_TYPE, L"Files of type", ROLE_SYSTEM_COMBOBOX, L"Alt+T"},
        {IDOK, L"Open", ROLE_SYSTEM_SPLITBUTTON, L"Alt+O"},
        {IDCANCEL, L"Cancel", ROLE_SYSTEM_PUSHBUTTON, L""},
    };
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    // Names are given once the dialog has been painted.
    const auto named = [] { return Told(DialogDriver::control(IDC_KNAV_LOOK_IN)).name() == "Look in"; };
    user.untilShown({L"plan.dwg"}).until("names of the controls", named).check([&rows] {
        for (const Row& row : rows) {
            const Told told(DialogDriver::control(row.id));
            EXPECT_EQ(told.name(), utf8(row.name));
            EXPECT_EQ(told.role(), row.role) << utf8(row.name);
            EXPECT_EQ(told.shortcut(), utf8(row.shortcut)) << utf8(row.name);
        }
        std::vector<UINT> order;
        std::ranges::transform(rows, std::back_inserter(order), [](const Row& row) { return row.id; });
        expectTabOrder(order);
        EXPECT_EQ(Told(viewList()).name(), "Contents");
        EXPECT_EQ(Told(DialogDriver::control(IDC_KNAV_REFRESH)).description(), "Refresh (F5)");
        EXPECT_TRUE(Told(DialogDriver::control(IDC_KNAV_TOOLS)).state() & STATE_SYSTEM_HASPOPUP);
        EXPECT_TRUE(Told(DialogDriver::control(IDC_KNAV_BACK)).state() & STATE_SYSTEM_UNAVAILABLE);
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST(AccessibleNames, MarksAndColonsAreLeftOut) {
    constexpr std::tuple<const wchar_t*, const wchar_t*, const wchar_t*> rows[] = {
        {L"File &name:", L"File name", L"Alt+N"},
        {L"Save && &close", L"Save & close", L"Alt+C"},
        {L"", L"", L""},
        {L"Odd&", L"Odd&", L""},
    };
    for (const auto& [caption, name, shortcut] : rows) {
        EXPECT_EQ(plainName(caption), name);
        EXPECT_EQ(shortcutOf(caption), shortcut) << utf8(caption);
    }
}

}  // namespace
}  // namespace knav::test
