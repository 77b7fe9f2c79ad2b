// A person at the dialog: real keyboard and mouse input, from a second thread, into the dialog that the first one runs.
#include "e2e/DialogInput.h"

namespace knav::test {
namespace {

TEST_F(DialogInput, DoubleClickPicksAFile) {
    EXPECT_EQ(run([](const NavDialogWindow& window) { window.open(L"plan.dwg"); }), IDOK);
    EXPECT_EQ(m_data.GetCount(), 1);
    EXPECT_EQ(chosen(0), m_folder.path(L"plan.dwg"));
}

TEST_F(DialogInput, TypedNameAndEnterPicksAFileAndAddsTheExtension) {
    const auto person = [](const NavDialogWindow& window) {
        window.typeName(L"site plan");
        window.pressEnter();
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"site plan.dwg"));
}

TEST_F(DialogInput, TypedFolderIsEnteredAndAFilePickedThere) {
    const auto person = [](const NavDialogWindow& window) {
        window.typeName(L"Details");
        window.pressEnter();
        window.open(L"door.dwg");
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"Details\\door.dwg"));
}

TEST_F(DialogInput, FileTypeChosenByKeyboardFiltersTheFolderAndGivesTheExtension) {
    const auto person = [](const NavDialogWindow& window) {
        window.focusFileType();
        pressKey(VK_DOWN);
        window.select({L"notes.txt"});
        window.typeName(L"notes");
        window.pressEnter();
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"notes.txt"));
}

TEST_F(DialogInput, EscapeCancelsAndChoosesNothing) {
    const auto person = [](const NavDialogWindow& window) {
        window.typeName(L"plan.dwg");
        window.pressEscape();
    };
    EXPECT_EQ(run(person), IDCANCEL);
    EXPECT_EQ(m_data.GetCount(), 0);
}

TEST_F(DialogInput, BackspaceInTheListGoesUpAndEnterOpensTheSelectedFolder) {
    const auto person = [](const NavDialogWindow& window) {
        window.select({L"Details"});
        pressKey(VK_RETURN);
        window.select({L"door.dwg"});
        pressKey(VK_BACK);
        window.open(L"plan.dwg");
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"plan.dwg"));
}

}  // namespace
}  // namespace knav::test
