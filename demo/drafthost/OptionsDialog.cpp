#include "OptionsDialog.h"

BEGIN_MESSAGE_MAP(OptionsDialog, CZoUiTabMainDialog)
ON_CBN_SELCHANGE(IDC_OPTIONS_COMMAND, &OptionsDialog::onChooseCommand)
ON_BN_CLICKED(IDC_OPTIONS_RESET, &OptionsDialog::onReset)
END_MESSAGE_MAP()

OptionsDialog::OptionsDialog(std::vector<HostCommand>& commands, int shown, CWnd* parent)
    : CZoUiTabMainDialog(IDD_OPTIONS, IDC_OPTIONS_TABS, parent),
      m_commands(commands),
      m_edited(commands),
      m_shown(shown) {
    for (OptionPage* page : m_pages) {
        page->setOptions(shownCommand().options);
    }
}

BOOL OptionsDialog::OnInitDialog() {
    CZoUiTabMainDialog::OnInitDialog();
    AddPage(m_general, L"General");
    AddPage(m_names, L"Names and Types");
    AddPage(m_folders, L"Folders and View");
    AddPage(m_places, L"Places and Internet");
    for (const HostCommand& command : m_edited) {
        SendDlgItemMessage(IDC_OPTIONS_COMMAND, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(command.name.GetString()));
    }
    SendDlgItemMessage(IDC_OPTIONS_COMMAND, CB_SETCURSEL, static_cast<WPARAM>(m_shown));
    return TRUE;
}

// The texts of the fields go into the options. False, with the field in front, when one of them cannot.
bool OptionsDialog::readPages() {
    for (int i = 0; i < static_cast<int>(std::size(m_pages)); ++i) {
        if (!m_pages[i]->UpdateData(TRUE)) {
            SetActivePage(i);
            return false;
        }
    }
    return true;
}

void OptionsDialog::showOptions() {
    for (OptionPage* page : m_pages) {
        page->setOptions(shownCommand().options);
        page->UpdateData(FALSE);
    }
}

void OptionsDialog::onChooseCommand() {
    const auto chosen = static_cast<int>(SendDlgItemMessage(IDC_OPTIONS_COMMAND, CB_GETCURSEL));
    if (!readPages()) {
        SendDlgItemMessage(IDC_OPTIONS_COMMAND, CB_SETCURSEL, static_cast<WPARAM>(m_shown));
        return;
    }
    m_shown = chosen;
    showOptions();
}

void OptionsDialog::onReset() {
    shownCommand().options = standardCommands()[static_cast<std::size_t>(m_shown)].options;
    showOptions();
}

void OptionsDialog::OnOK() {
    if (readPages()) {
        m_commands = m_edited;
        CZoUiTabMainDialog::OnOK();
    }
}
