// A person at the dialog: real keyboard and mouse input, from a second thread, into the dialog that the first one runs.
#include <knav/knav.h>

#include <exception>
#include <thread>

#include "demo/driver/Input.h"
#include "demo/driver/NavDialogWindow.h"
#include "support/Printers.h"
#include "support/RegistryRedirect.h"
#include "support/ScopedTempFolder.h"
#include "support/ScriptedPrompts.h"

using knav::input::NavDialogWindow;
using knav::input::pressKey;
using knav::input::waitUntil;
using knav::test::ScopedTempFolder;

namespace {

class DialogInput : public testing::Test {
protected:
    DialogInput() {
        m_folder.addFile(L"plan.dwg");
        m_folder.addFile(L"site plan.dwg");
        m_folder.addFile(L"notes.txt");
        m_folder.addFile(L"Details\\door.dwg");
        m_filters.SetFrom(L"Drawings\0*.dwg\0Texts\0*.txt\0", 1);
        m_dialog.SetForceInitialFolder(m_folder.path());
        m_dialog.SetNoURLsAllowed(1);
    }

    // Runs the dialog; `person` operates it meanwhile. A dialog left open is cancelled.
    template <class Person>
    INT_PTR run(Person person) {
        std::thread operating([&person] {
            try {
                const NavDialogWindow window = NavDialogWindow::waitFor(GetCurrentProcessId());
                person(window);
                if (!window.waitUntilClosed()) {
                    ADD_FAILURE() << "the dialog stays open";
                    PostMessageW(window.window(), WM_COMMAND, IDCANCEL, 0);
                }
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
                cancelAll();
            }
        });
        const INT_PTR result = m_dialog.DoModal();
        operating.join();
        return result;
    }

    CString chosen(int index) const {
        const CNavData* const item = m_data.GetData(index);
        return item == nullptr ? L"" : item->GetText();
    }

    ScopedTempFolder m_folder;
    CNavDataArray m_data;
    CNavFilterArray m_filters;
    CNavDialog m_dialog{m_data, m_filters};

private:
    static void cancelAll() {
        const auto cancel = [](HWND window, LPARAM) -> BOOL {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == GetCurrentProcessId()) {
                PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
            }
            return TRUE;
        };
        EnumWindows(cancel, 0);
    }

    knav::test::RegistryRedirect m_registry;
    knav::test::ScriptedPrompts m_prompts;
};

}  // namespace

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

TEST_F(DialogInput, FileTypeChosenByKeyboardFiltersTheFolder) {
    const auto person = [](const NavDialogWindow& window) {
        window.focusFileType();
        pressKey(VK_DOWN);
        window.open(L"notes.txt");
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(chosen(0), m_folder.path(L"notes.txt"));
}

TEST_F(DialogInput, ClicksWithCtrlPickSeveralInOrder) {
    m_dialog.SetMultiSelectAllowed(1);
    const auto person = [](const NavDialogWindow& window) {
        window.select({L"site plan.dwg", L"plan.dwg"});
        window.pressOk();
    };
    EXPECT_EQ(run(person), IDOK);
    EXPECT_EQ(m_data.GetCount(), 2);
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
