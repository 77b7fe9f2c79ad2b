#include <knav/CNavFileNameComboBox.h>

#include "controls/FileNameContext.h"
#include "controls/QuotedNames.h"
#include "data/ApiEdge.h"
#include "shell/TextRules.h"

#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/CNavPathname.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>

BEGIN_MESSAGE_MAP(CNavFileNameComboBox, CNavComboBox)
ON_CONTROL_REFLECT_EX(CBN_EDITCHANGE, &CNavFileNameComboBox::OnEditChange)
ON_CONTROL_REFLECT_EX(CBN_SELCHANGE, &CNavFileNameComboBox::OnSelChange)
END_MESSAGE_MAP()

namespace {

NAV_DATA_TYPE typeOf(const CString& name, const CNavNode* folder) {
    if (NavIsUNCPath(name)) {
        return NAV_DATA_NETWORK;
    }
    if (folder != nullptr && folder->IsWebFoldersType()) {
        return NAV_DATA_FTP;
    }
    if (folder != nullptr && folder->IsExtensionType()) {
        return NAV_DATA_EXTENSION;
    }
    return NavIsURL(name) ? NAV_DATA_URL : NAV_DATA_FILE;
}

bool addName(CNavDataArray& data, const CString& name, const CNavNode* folder) {
    CNavData* const item = data.AddData();
    if (item == nullptr) {
        return false;
    }
    item->SetText(name);
    item->SetDataType(typeOf(name, folder));
    if (item->GetDataType() == NAV_DATA_EXTENSION) {
        item->SetExtensionName(folder->GetExtensionName());
    }
    return true;
}

// A file is named; where a folder may be the result, so is everything else that a path can be.
bool isNamed(const CNavPathname& pathname, bool returnFolders) {
    const auto type = pathname.GetType();
    return type == CZoUiPathname::ExistingFile ||
           (returnFolders && type >= CZoUiPathname::NewFile && type <= CZoUiPathname::Directory);
}

CString namesOf(CNavDataArray& data, bool returnFolders) {
    const bool quoted = data.GetCount() > 1;
    CString text;
    for (int index = 0; index < data.GetCount(); ++index) {
        const CNavData& item = *data.GetData(index);
        const CNavPathname* const pathname = item.GetPathname();
        if (pathname == nullptr || !isNamed(*pathname, returnFolders)) {
            continue;
        }
        if (quoted) {
            text += text.IsEmpty() ? L"\"" : L" \"";
            text += item.GetTextInFolder();
            text += L'"';
        } else if (!pathname->isShortCut()) {
            text = item.GetTextInFolder();
        }
    }
    return text;
}

}  // namespace

CNavFileNameComboBox::CNavFileNameComboBox() {
    m_flags &= ~static_cast<unsigned>(AllFlags);
    m_itemIndex = -1;
}

BOOL CNavFileNameComboBox::OnEditChange() {
    m_dirty = 1;
    return FALSE;
}

BOOL CNavFileNameComboBox::OnSelChange() {
    m_dirty = 1;
    return FALSE;
}

int CNavFileNameComboBox::GetEditBoxStrings(CStringArray& names) {
    names.RemoveAll();
    return knav::atApiEdge(0, [&] {
        CString text;
        GetWindowText(text);
        const bool severalAllowed = m_context != nullptr && m_context->multiSelectAllowed();
        for (const std::wstring_view name : knav::splitNames(text.view(), severalAllowed)) {
            names.Add(name);
        }
        return static_cast<int>(names.GetSize());
    });
}

int CNavFileNameComboBox::SendFileNameToData(CNavDataArray& data) {
    return knav::atApiEdge(0, [&] {
        data.RemoveAllData();
        const CNavNode* const folder = m_context != nullptr ? m_context->lookInNode() : nullptr;
        CStringArray names;
        GetEditBoxStrings(names);
        for (const CString& name : names) {
            if (!addName(data, name, folder)) {
                return 0;
            }
        }
        return 1;
    });
}

int CNavFileNameComboBox::SyncToData(CNavDataArray& data) {
    knav::atApiEdge([&] {
        const bool returnFolders = FileDialogAllowReturnFolderEnabler::status();
        const CString text = namesOf(data, returnFolders);
        if (!text.IsEmpty() || returnFolders) {
            SetWindowText(text);
        }
    });
    return 1;
}

BOOL CNavFileNameComboBox::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && (message->wParam == VK_UP || message->wParam == VK_DOWN)) {
        if (!GetDroppedState() && GetWindowTextLength() == 0) {
            ShowDropDown();
            return TRUE;
        }
    } else if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN) {
        SendMessage(WM_KEYDOWN, VK_ESCAPE);  // what is open closes without choosing; the Enter is for the dialog
        SetEditSel(0, -1);
    }
    return CNavComboBox::PreTranslateMessage(message);
}

int CNavFileNameComboBox::CompareItem(COMPAREITEMSTRUCT*) {
    return 0;
}

void CNavFileNameComboBox::DeleteItem(DELETEITEMSTRUCT*) {
}

void CNavFileNameComboBox::DrawItem(DRAWITEMSTRUCT*) {
}

void CNavFileNameComboBox::MeasureItem(MEASUREITEMSTRUCT*) {
}
