// What a browser host holds.
#pragma once

#include "shell/ComPtr.h"
#include "shell/ItemList.h"
#include "view/Admission.h"
#include "view/ArrivalFilter.h"
#include "view/BrowserSite.h"
#include "view/RetiredViews.h"
#include "view/ViewModes.h"

#include <knav/IKNavUI.h>

class CNavCommDlgBuddy;
class CNavCommDlgView;
class CNavFilter;
class CNavListCtrl;
class CWnd;

namespace knav {

class BrowseOwner;

struct BrowserState {
    explicit BrowserState(CNavCommDlgBrowser& browser)
        : site(ComPtr<BrowserSite>::adopt(new BrowserSite(browser))), arrivals(browser) {}

    /// The owner window's handle; null when there is none.
    HWND ownerHandle() const;
    /// Makes `id` the current object id; `boundFolder`, when it is known already, is that folder.
    void setObjectId(ItemList id, ComPtr<IShellFolder> boundFolder = nullptr);

    ComPtr<BrowserSite> site;
    unsigned viewMode = NavViewList;
    int multiSelectAllowed = 0;
    int foldersOnly = 0;
    int forceBrowse = 0;
    UINT browseFlags = 0;
    FOLDERSETTINGS folderSettings{};
    RECT viewRect{};

    ComPtr<IKNavUI> callback;
    BrowseOwner* browseOwner = nullptr;
    CNavFilter* filter = nullptr;
    CWnd* owner = nullptr;
    CNavCommDlgView* viewWindow = nullptr;
    CNavListCtrl* listCtrl = nullptr;
    CNavCommDlgBuddy* buddy = nullptr;

    ItemList objectId;
    ComPtr<IShellView> view;
    HWND viewHandle = nullptr;  // the view's window, so that the view need not be asked again
    ComPtr<IShellFolder> folder;
    Admission admission;
    ArrivalFilter arrivals;
    RetiredViews retired;
    bool browsing = false;  // guards re-entry where there is no browse owner to do it
};

}  // namespace knav
