// Names and roles of the controls for assistive tools.
#include <oleacc.h>

#include "controls/Accessible.h"
#include "dialog/CNavDialogImp.h"
#include "resources/ids.h"

void CNavDialogImp::startAccessibility() {
    struct Row {
        UINT id;
        long role;
        UINT label;
        bool dropsMenu;
    };
    const bool okDropsMenu = m_okButton.GetMenuExists() != 0;
    const Row rows[] = {
        {IDC_KNAV_PLACES, ROLE_SYSTEM_LIST, IDC_KNAV_PLACES_LABEL, false},
        {IDC_KNAV_LOOK_IN, ROLE_SYSTEM_COMBOBOX, IDC_KNAV_LOOK_IN_LABEL, false},
        {IDC_KNAV_FILE_NAME, ROLE_SYSTEM_COMBOBOX, IDC_KNAV_FILE_NAME_LABEL, false},
        {IDC_KNAV_FILE_TYPE, ROLE_SYSTEM_COMBOBOX, IDC_KNAV_FILE_TYPE_LABEL, false},
        {IDOK, okDropsMenu ? ROLE_SYSTEM_SPLITBUTTON : ROLE_SYSTEM_PUSHBUTTON, 0, okDropsMenu},
        {IDCANCEL, ROLE_SYSTEM_PUSHBUTTON, 0, false},
    };
    const HWND dialog = m_facade.GetSafeHwnd();
    for (const Row& row : rows) {
        const HWND label = row.label != 0 ? ::GetDlgItem(dialog, static_cast<int>(row.label)) : nullptr;
        knav::makeAccessible(::GetDlgItem(dialog, static_cast<int>(row.id)), {row.role, label, row.dropsMenu, {}});
    }
    for (CNavBitmapButton* button :
         {&m_backButton, &m_upButton, &m_webButton, &m_refreshButton, &m_deleteButton, &m_newFolderButton,
          static_cast<CNavBitmapButton*>(&m_toolsButton), static_cast<CNavBitmapButton*>(&m_viewsButton)}) {
        const bool drops = button == &m_toolsButton || button == &m_viewsButton;
        knav::makeAccessible(button->GetSafeHwnd(), {drops ? ROLE_SYSTEM_BUTTONMENU : ROLE_SYSTEM_PUSHBUTTON, nullptr,
                                                     drops, [button] { return std::wstring(button->GetTipText()); }});
    }
}

/// The list of a view has a name of the system's own making, or none.
void CNavDialogImp::nameView() {
    const HWND label = ::GetDlgItem(m_facade.GetSafeHwnd(), IDC_KNAV_VIEW_LABEL);
    const HWND list = m_listInUse->GetSafeHwnd();
    if (label && list) {
        CString name;
        m_facade.GetDlgItemText(IDC_KNAV_VIEW_LABEL, name);
        ::SetWindowTextW(list, knav::plainName(name.view()).c_str());
    }
}
