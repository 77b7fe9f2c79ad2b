// The view's selection and the result items.
#include <knav/CNavCommDlgBrowser.h>

#include "data/ApiEdge.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"
#include "shell/TextRules.h"
#include "view/BrowserState.h"
#include "view/ShellIdList.h"
#include "view/SiteLogin.h"

#include <knav/CNavDataArray.h>
#include <knav/CNavListCtrl.h>
#include <knav/CNavPathname.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

namespace knav {
namespace {

// Some views answer success and -1 where nothing has the focus.
bool hasFocusedItem(IShellView* view) {
    const auto folderView = ComPtr<IShellView>::retain(view).as<IFolderView>();
    int index = -1;
    return !folderView || (SUCCEEDED(guarded([&] { return folderView->GetFocusedItem(&index); })) && index >= 0);
}

std::vector<ItemList> selectedItems(const BrowserState& state) {
    const auto view = state.view;
    if (!view || !hasFocusedItem(view.get())) {
        return {};
    }
    const auto object = ComPtr<IDataObject>::from([&view](IDataObject** result) {
        return view->GetItemObject(SVGIO_SELECTION, IID_IDataObject, reinterpret_cast<void**>(result));
    });
    return object ? shellIdListOf(object.get()).items : std::vector<ItemList>();
}

NAV_DATA_TYPE typeOf(SiteKind location, const CString& parsingName) {
    switch (location) {
        case SiteKind::Extension:
            return NAV_DATA_EXTENSION;
        case SiteKind::WebFolders:
            return NAV_DATA_FTP;
        default:
            return NavIsURL(parsingName) ? NAV_DATA_URL : NAV_DATA_FILE;
    }
}

class SelectionReader {
public:
    SelectionReader(const BrowserState& state, CNavDataArray& data)
        : m_folderId(state.objectId.get()),
          m_folder(ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(m_folderId))),
          m_location(siteKindOf(m_folderId)),
          m_data(data) {
        if (m_location != SiteKind::None) {
            findSiteLogin(state, m_user, m_password);
        }
    }

    bool hasFolder() const { return static_cast<bool>(m_folder); }

    void add(const ItemList& item) {
        CNavData* const entry = m_data.AddData();
        if (entry == nullptr) {
            return;
        }
        CString text;
        NavGetItemNameInFolder(m_folder.get(), item.get(), text);
        entry->SetTextInFolder(text);
        NavGetItemNameForParsing(m_folder.get(), item.get(), text);
        entry->SetText(text);
        entry->SetDataType(typeOf(m_location, text));
        entry->SetUserName(m_user);
        entry->SetPassword(m_password);
        auto qualified = ItemList::join(m_folderId, item.get());
        if (CNavPathname* const pathname = entry->GetPathname()) {
            pathname->Parse(qualified.get(), m_folder.get(), m_folderId, text);
        }
        entry->SetID(qualified.release());
    }

private:
    ITEMIDLIST* m_folderId;
    ComPtr<IShellFolder> m_folder;
    SiteKind m_location;
    CNavDataArray& m_data;
    CString m_user;
    CString m_password;
};

bool readSelection(const BrowserState& state, CNavDataArray& data) {
    data.RemoveAllData();
    const auto items = selectedItems(state);
    if (items.empty()) {
        return false;
    }
    SelectionReader reader(state, data);
    if (reader.hasFolder()) {
        for (const ItemList& item : items) {
            reader.add(item);
        }
    }
    return data.GetCount() > 0;
}

// The part of an item's list that the view knows it by: what follows the folder shown. A list that is elsewhere is
// given as it is, and the view finds nothing.
const ITEMIDLIST* inFolder(const ITEMIDLIST* list, ITEMIDLIST* folderId) {
    const auto measure = measureList(list);
    if (measure.count < 2) {
        return list;
    }
    const auto parent = ItemList::parentOf(list);
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    return NavCompareFolderItems(desktop.get(), parent.get(), folderId) == 0 ? measure.last : list;
}

// Not every view deselects for a null item, so the list is told too. Some go through all their rows for it, which takes
// as long as filling the list; most of the time nothing is selected.
void deselectAll(IShellView* view, HWND list) {
    if (list != nullptr && ListView_GetSelectedCount(list) == 0) {
        return;
    }
    guarded([view] { return view->SelectItem(nullptr, SVSI_DESELECTOTHERS); });
    if (list != nullptr) {
        ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
    }
}

}  // namespace
}  // namespace knav

int CNavCommDlgBrowser::SendSelectionToData(CNavDataArray& data) {
    return knav::atApiEdge(0, [&] { return knav::readSelection(*m_state, data) ? 1 : 0; });
}

void CNavCommDlgBrowser::SyncToData(CNavDataArray& data) {
    knav::atApiEdge([&] {
        const auto view = m_state->view;
        if (!view) {
            return;
        }
        knav::deselectAll(view.get(), SafeHwnd(m_state->listCtrl));
        for (INT_PTR index = 0; index < data.GetSize(); ++index) {
            if (ITEMIDLIST* const list = data.GetAt(index)->GetID()) {
                const auto* const item = knav::inFolder(list, m_state->objectId.get());
                knav::guarded([&] { return view->SelectItem(item, SVSI_SELECT); });
            }
        }
    });
}

int CNavCommDlgBrowser::GetCurrentLogin(CString& user, CString& password) {
    return knav::atApiEdge(0, [&] { return knav::findSiteLogin(*m_state, user, password) ? 1 : 0; });
}
