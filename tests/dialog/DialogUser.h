// The real dialog, and a user in front of it.
#pragma once

#include <gmock/gmock.h>
#include <knav/CNavDataArray.h>
#include <knav/CNavDialog.h>
#include <knav/CNavFilterArray.h>

#include <string>
#include <vector>

#include "resources/ids.h"
#include "support/DialogDriver.h"
#include "support/Printers.h"
#include "support/RegistryRedirect.h"
#include "support/ScopedTempFolder.h"
#include "support/ScriptedPrompts.h"

namespace knav::test {

/// Drawings (*.dwg), texts (*.txt), all files.
inline constexpr wchar_t kFileTypes[] = L"Drawings\0*.dwg\0Texts\0*.txt\0All files\0*.*\0";
inline constexpr int kDrawings = 0;
inline constexpr int kTexts = 1;
inline constexpr int kAllFiles = 2;

/// The name for parsing of the folder with the drives, which has no path.
inline constexpr wchar_t kMyComputer[] = L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}";

struct ResultArrays {
    ResultArrays() { filters.SetFrom(kFileTypes, 1); }

    CNavDataArray data;
    CNavFilterArray filters;
};

/// A dialog over arrays of its own, with a name, so that it remembers.
class TestDialog : public ResultArrays, public CNavDialog {
public:
    TestDialog() : CNavDialog(data, filters) { SetDialogName(L"TestDialog"); }
    explicit TestDialog(const wchar_t* folder) : TestDialog() { SetDefaultInitialFolder(folder); }

    CString shownFolder() const;
    /// Texts of the chosen items.
    std::vector<std::wstring> chosen() const;
};

/// Runs a dialog and does in it what it was told, step by step; each step waits until it can be done.
class DialogUser {
public:
    explicit DialogUser(TestDialog& dialog) : m_dialog(dialog) {}

    /// Types a name in place of what the file name field holds.
    DialogUser& type(std::wstring name);
    /// Presses a key in the file name field.
    DialogUser& press(WORD virtualKey);
    /// Selects these items of the view, and waits until the file name field knows.
    DialogUser& pick(std::vector<std::wstring> names);
    DialogUser& doubleClick(std::wstring name);
    /// Chooses an entry of a list or combo box.
    DialogUser& choose(UINT id, int index);
    DialogUser& chooseType(int index) { return choose(IDC_KNAV_FILE_TYPE, index); }
    DialogUser& click(UINT id);
    DialogUser& command(UINT id);
    DialogUser& ok() { return click(IDOK); }
    DialogUser& cancel() { return click(IDCANCEL); }

    DialogUser& until(std::string what, std::function<bool()> condition);
    /// Until the view shows exactly these names, given in order of their characters.
    DialogUser& untilShown(std::vector<std::wstring> names);
    /// Until the folder is shown and the Look-in list says so.
    DialogUser& untilFolder(const CString& path);
    DialogUser& untilName(std::wstring text);
    DialogUser& untilAsked(const ScriptedPrompts& prompts, std::size_t count = 1);
    /// Lets what was posted arrive.
    DialogUser& settle();
    DialogUser& check(std::function<void()> look);

    /// Returns what DoModal returned.
    INT_PTR run();

private:
    TestDialog& m_dialog;
    DialogDriver m_driver;
};

// --- what the user sees; while the dialog runs ------------------------------------------------------------------

HWND viewList();
/// Names in the view, sorted.
std::vector<std::wstring> shownNames();
std::wstring fileNameText();
std::wstring lookInText();
bool isEnabled(UINT id);
/// The file name field holds `text`, all of it is selected, it has the focus, and Enter is for OK.
void expectNameReadyToRetype(const std::wstring& text);
void expectTextSelected();

/// Settings, files and answers of one test. The process is moved back to where it was.
class DialogTest : public testing::Test {
protected:
    DialogTest();
    ~DialogTest() override;

    /// Full paths of names in the folder.
    std::vector<std::wstring> paths(std::initializer_list<const wchar_t*> names) const;

    RegistryRedirect registry;
    ScopedTempFolder folder;
    ScriptedPrompts prompts;

private:
    wchar_t m_directory[MAX_PATH];
};

std::wstring wide(const CString& text);

}  // namespace knav::test
