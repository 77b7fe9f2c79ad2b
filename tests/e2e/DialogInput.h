// A dialog of the library as it is shipped, and a person at it who works from a second thread.
#pragma once

#include <knav/knav.h>

#include <exception>
#include <optional>
#include <thread>

#include "demo/driver/Input.h"
#include "demo/driver/NavDialogWindow.h"
#include "support/Printers.h"
#include "support/RegistryRedirect.h"
#include "support/ScopedTempFolder.h"
#include "support/ScriptedPrompts.h"

namespace knav::test {

using input::NavDialogWindow;
using input::pressKey;
using input::typeText;
using input::waitUntil;

class DialogInput : public testing::Test {
protected:
    DialogInput() {
        input::parkPointer();
        m_prompts.emplace();
        m_folder.addFile(L"plan.dwg");
        m_folder.addFile(L"site plan.dwg");
        m_folder.addFile(L"notes.txt");
        m_folder.addFile(L"Details\\door.dwg");
        m_filters.SetFrom(L"Drawings\0*.dwg\0Texts\0*.txt\0", 1);
        setUp(m_dialog);
    }

    void setUp(CNavDialog& dialog) const {
        dialog.SetDialogName(L"DialogInput");
        dialog.SetForceInitialFolder(m_folder.path());
        dialog.SetNoURLsAllowed(1);
    }

    // From here on message boxes come up on the screen.
    void showBoxes() { m_prompts.reset(); }

    // Runs the dialog; `person` operates it meanwhile. A dialog left open is cancelled.
    template <class Person>
    INT_PTR run(Person person) {
        return run(m_dialog, person);
    }
    template <class Person>
    INT_PTR run(CNavDialog& dialog, Person person) {
        std::thread operating([&person] {
            try {
                const NavDialogWindow window = NavDialogWindow::waitFor(GetCurrentProcessId());
                person(window);
                if (!window.waitUntilClosed()) {
                    ADD_FAILURE() << "the dialog stays open: " << utf8(window.boxText());
                    cancelAll();
                }
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
                cancelAll();
            }
        });
        const INT_PTR result = dialog.DoModal();
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

    RegistryRedirect m_registry;
    std::optional<ScriptedPrompts> m_prompts;
};

}  // namespace knav::test
