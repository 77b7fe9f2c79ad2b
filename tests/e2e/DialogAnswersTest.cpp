// What the dialog answers to what a person types, with its boxes on the screen.
#include <knav/FileDialogAllowReturnFolderEnabler.h>
#include <platform/ScopedHandle.h>

#include "e2e/DialogInput.h"
#include "resources/ids.h"

namespace knav::test {
namespace {

std::wstring nameIn(const NavDialogWindow& window) {
    wchar_t text[300] = L"";
    GetDlgItemTextW(window.window(), IDC_KNAV_FILE_NAME, text, ARRAYSIZE(text));
    return text;
}

void expectName(const NavDialogWindow& window, const std::wstring& text) {
    EXPECT_TRUE(waitUntil([&] { return nameIn(window) == text; }, 3000))
        << utf8(nameIn(window)) << " instead of " << utf8(text);
}

/// The text of the box that comes up over the dialog.
std::wstring boxOver(const NavDialogWindow& window) {
    if (!waitUntil([&] { return !window.boxText().empty(); })) {
        throw std::runtime_error("no box comes up");
    }
    const HWND box = GetLastActivePopup(window.window());
    waitUntil([&] { return GetForegroundWindow() == box; }, 3000);
    return window.boxText();
}

/// Whether the box in front has its middle where the dialog has it.
bool standsOver(const NavDialogWindow& window) {
    RECT box{};
    RECT dialog{};
    GetWindowRect(GetLastActivePopup(window.window()), &box);
    GetWindowRect(window.window(), &dialog);
    return std::abs(box.left + box.right - dialog.left - dialog.right) <= 4;
}

TEST_F(DialogInput, NamesThatCannotBeUsedAreToldOnTheScreenAndCanBeRetyped) {
    showBoxes();
    const std::wstring longName(240, L'n');
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"a|b", L"|"},
        {L"q:\\x.dwg", L"Q:"},
        {L"nowhere\\plan.dwg", L"nowhere"},
        {longName.c_str(), L"long"},
    };
    const auto person = [&rows](const NavDialogWindow& window) {
        window.typeName(L"");
        for (const auto& [typed, said] : rows) {
            SCOPED_TRACE(utf8(typed));
            // The whole name is selected after a refusal, so that typing replaces it.
            typeText(typed);
            expectName(window, typed);
            window.pressEnter();
            EXPECT_NE(boxOver(window).find(said), std::wstring::npos) << utf8(window.boxText());
            EXPECT_TRUE(waitUntil([&] { return standsOver(window); }, 3000));
            window.dismissBox();
            expectName(window, typed);
        }
        typeText(L"plan");
        window.pressEnter();
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"plan.dwg"));
}

TEST_F(DialogInput, SavingOverAFileAsksAndNoLeadsBackToTheName) {
    showBoxes();
    m_dialog.SetCreatingFile(1);
    m_dialog.SetConfirmReplace(1);
    m_dialog.SetDialogCaption(L"Save Plan");
    const auto person = [this](const NavDialogWindow& window) {
        window.typeName(L"plan");
        window.pressEnter();
        EXPECT_NE(boxOver(window).find(m_folder.path(L"plan.dwg")), std::wstring::npos) << utf8(window.boxText());
        window.dismissBox();  // Enter: No is the default
        typeText(L"site plan");
        expectName(window, L"site plan");  // typed over the refused name, which was selected
        window.pressEnter();
        boxOver(window);
        pressKey(L'Y', VK_MENU);
        waitUntil([&] { return window.boxText().empty(); });
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"site plan.dwg"));
}

TEST_F(DialogInput, PdfThatIsOpenElsewhereIsNotReplaced) {
    showBoxes();
    const CString sheet = m_folder.addFile(L"sheet.pdf");
    const ScopedHandle held(CreateFileW(sheet, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    m_filters.SetFrom(L"Sheets\0*.pdf\0", 1);
    m_dialog.SetCreatingFile(1);
    m_dialog.SetConfirmReplace(1);
    const auto person = [&sheet](const NavDialogWindow& window) {
        window.typeName(L"sheet");
        window.pressEnter();
        EXPECT_NE(boxOver(window).find(sheet), std::wstring::npos) << utf8(window.boxText());
        window.dismissBox();
        window.typeName(L"other");
        window.pressEnter();
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"other.pdf"));
}

TEST_F(DialogInput, ThreeFilesClickedAreNamedInQuotes) {
    m_folder.addFile(L"roof.dwg");
    m_dialog.SetMultiSelectAllowed(1);
    const auto person = [](const NavDialogWindow& window) {
        window.select({L"plan.dwg", L"roof.dwg", L"site plan.dwg"});
        EXPECT_TRUE(waitUntil([&] { return std::ranges::count(nameIn(window), L'"') == 6; })) << utf8(nameIn(window));
        EXPECT_NE(nameIn(window).find(L"\"site plan.dwg\""), std::wstring::npos);
        window.pressOk();
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(m_data.GetCount(), 3);
}

TEST_F(DialogInput, PatternsRelativePathsAndVariablesAreUnderstood) {
    SetEnvironmentVariableW(L"KNAV_E2E", m_folder.path(L"Details"));
    const auto person = [](const NavDialogWindow& window) {
        window.typeName(L"*.txt");
        window.pressEnter();
        window.select({L"notes.txt"});
        window.typeName(L"Details\\..\\Details");
        window.pressEnter();
        expectName(window, L"");
        window.typeName(L"%KNAV_E2E%\\door.dwg");
        window.pressEnter();
    };
    m_filters.SetFrom(L"Drawings\0*.dwg\0", 1);
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"Details\\door.dwg"));
}

TEST_F(DialogInput, NextDialogStartsWhereTheLastOneWasAccepted) {
    m_dialog.SetForceInitialFolder(L"");
    m_dialog.SetDefaultInitialFolder(m_folder.path());
    const auto goAndType = [](const NavDialogWindow& window) {
        window.open(L"Details");
        pressKey(L'1', VK_CONTROL);
        window.focusFileType();
        pressKey(VK_DOWN);
        window.typeName(L"door.dwg");
    };
    const auto expectStart = [this](const NavDialogWindow& window, LRESULT type, unsigned mode, LRESULT remembered) {
        EXPECT_EQ(SendDlgItemMessageW(window.window(), IDC_KNAV_FILE_TYPE, CB_GETCURSEL, 0, 0), type);
        EXPECT_EQ(m_dialog.GetViewMode(), mode);
        EXPECT_EQ(SendDlgItemMessageW(window.window(), IDC_KNAV_FILE_NAME, CB_GETCOUNT, 0, 0), remembered);
    };
    const auto cancel = [&](const NavDialogWindow& window) {
        goAndType(window);
        window.pressEscape();
    };
    EXPECT_EQ(run(cancel), IDCANCEL);
    const auto accept = [&](const NavDialogWindow& window) {
        expectStart(window, 0, 4, 0);  // nothing is left of the cancelled one
        window.select({L"plan.dwg"});
        goAndType(window);
        window.pressEnter();
    };
    EXPECT_EQ(run(accept), IDOK);
    const auto look = [&](const NavDialogWindow& window) {
        expectStart(window, 1, 3, 1);
        window.typeName(L"");
        pressKey(VK_DOWN);  // the history drops down
        pressKey(VK_DOWN);
        expectName(window, std::wstring(m_folder.path(L"Details\\door.dwg").view()));
        window.typeName(L"door.dwg");
        window.pressEnter();
    };
    EXPECT_EQ(run(look), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"Details\\door.dwg"));
}

TEST_F(DialogInput, FoldersAreChosenWhereTheHostWantsFolders) {
    m_dialog.SetFoldersOnly(1);
    const auto pickFolder = [](const NavDialogWindow& window) {
        window.select({L"Details"});
        window.pressOk();
    };
    EXPECT_EQ(run(pickFolder), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"Details"));

    const FileDialogAllowReturnFolderEnabler folders;
    CNavDialog either(m_data, m_filters);
    setUp(either);
    EXPECT_EQ(run(either, [](const NavDialogWindow& window) { window.pressOk(); }), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path());
}

}  // namespace
}  // namespace knav::test
