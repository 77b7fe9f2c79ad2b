// The page on which a person plays with the options of the file dialog.
#pragma once

#include <zoui/CZoUiTabMainDialog.h>

#include <vector>

#include "HostCommands.h"
#include "OptionPage.h"

/// Changes the options of every command; a combo box at the top chooses whose are shown. With OK `commands` gets them.
class OptionsDialog : public CZoUiTabMainDialog {
public:
    /// `shown` is the index of the command whose options are shown first.
    OptionsDialog(std::vector<HostCommand>& commands, int shown, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()

private:
    void onChooseCommand();
    void onReset();
    bool readPages();
    void showOptions();
    HostCommand& shownCommand() { return m_edited[static_cast<std::size_t>(m_shown)]; }

    std::vector<HostCommand>& m_commands;
    std::vector<HostCommand> m_edited;
    int m_shown;
    OptionPage m_general{IDD_OPTIONS_GENERAL};
    OptionPage m_names{IDD_OPTIONS_NAMES};
    OptionPage m_folders{IDD_OPTIONS_FOLDERS};
    OptionPage m_places{IDD_OPTIONS_PLACES};
    OptionPage* const m_pages[4] = {&m_general, &m_names, &m_folders, &m_places};
};
