#pragma once

#include <knav/export.h>
#include <platform/CCmdTarget.h>
#include <platform/CString.h>
#include <platform/Windows.h>

#include <memory>

class CNavCommDlgBuddy;
class CNavCommDlgView;
class CNavDataArray;
class CNavFilter;
class CNavListCtrl;
class CWnd;
struct IKNavUI;

namespace knav {
class BrowseOwner;
struct BrowserState;
}  // namespace knav

/// Hosts the shell's folder view in a dialog: makes and replaces the view when the dialog moves to another folder,
/// decides what the view may show, reports selection changes to the dialog, and turns the selection into result items.
///
/// The shell talks to it through IShellBrowser and ICommDlgBrowser. Those are served by a small object of their own
/// that the shell may keep for as long as it likes; once the browser is gone, late calls on it fail.
///
/// Windows, controls, the filter and the owner are not owned and outlive their registration here. User-interface
/// thread only. Nothing here throws; shell calls that fail, throw or fault count as failed, and a failed browse leaves
/// the previous view, folder and id in place.
class KNAV_API CNavCommDlgBrowser : public CCmdTarget {
public:
    CNavCommDlgBrowser();
    CNavCommDlgBrowser(const CNavCommDlgBrowser&) = delete;
    CNavCommDlgBrowser& operator=(const CNavCommDlgBrowser&) = delete;
    ~CNavCommDlgBrowser() override;

    /// Whether the view may show an item of the current folder: the current filter and the folders-only option decide.
    /// `item` is relative to that folder. Nonzero: it is shown.
    virtual int IsAllowed(ITEMIDLIST* item);
    /// Double-click or Enter in the view. The default asks the IKNavUI callback; nonzero: it was handled.
    virtual int OnDefaultCommand();
    /// An item was renamed in the view. The default does what a selection change does.
    virtual void OnItemNameChange(IShellView* view);
    /// The view's selection changed, item by item. The default sends notification 16 to the owner window.
    virtual void OnItemSelectionChange(IShellView* view);

    /// The interfaces handed to the shell, without a reference added. Never null.
    IShellBrowser* GetIShellBrowser();
    ICommDlgBrowser* GetICommDlgBrowser();

    /// Shows a folder. `flags` are SBSP_ABSOLUTE (qualified list), SBSP_RELATIVE (relative to the current folder) or
    /// SBSP_PARENT (the parent of the list, or of the current folder for null). A shortcut shows its target. Nonzero on
    /// success, and while another browse is under way, when nothing is done. Needs an owner and a buddy window.
    int BrowseObject(ITEMIDLIST* list, UINT flags);
    /// Shows the current folder anew; after changes of the view mode, the filter or the options. Zero without one.
    int BrowseCurrentObject();
    /// Has the current view read its folder again. Zero without a view and when it fails.
    int RefreshView();
    /// Destroys the current view; nonzero `saveState` first saves its columns as a browse would. The current folder
    /// stays known, so BrowseCurrentObject makes a new view. Safe to call without a view.
    void DestroyViewWindow(int saveState);

    /// Replaces the contents of `data` by one item for each selected item, in selection order. Nonzero when there is
    /// at least one. Zero and no items when no item has the focus.
    int SendSelectionToData(CNavDataArray& data);
    /// Selects exactly those items of the view that `data` holds with an item list.
    void SyncToData(CNavDataArray& data);
    /// User name and password of the FTP or Web Folders site shown; zero and empty texts when there is none.
    int GetCurrentLogin(CString& user, CString& password);

    /// View mode, a NavViewMode. Get asks the list that is shown. Set with another mode switches the list and shows the
    /// folder anew; StoreViewMode only keeps the value, for a caller that switches the list itself.
    unsigned int GetViewMode();
    void SetViewMode(unsigned int mode);
    void StoreViewMode(unsigned int mode);
    /// Puts the list that is shown into `mode` without making a new view. Nothing without a list.
    void ApplyViewModeToList(unsigned int mode);

    /// The filter in force; null shows everything. It may change between items.
    CNavFilter* GetCurrentFilter() const;
    void SetCurrentFilter(CNavFilter* filter);
    /// Qualified list of the folder shown; null before the first browse. Set takes a copy.
    ITEMIDLIST* GetCurrentObjectID() const;
    void SetCurrentObjectID(ITEMIDLIST* list);
    /// View and folder shown, without a reference added; null before the first browse. Set adds a reference.
    IShellView* GetCurrentShellView() const;
    void SetCurrentShellView(IShellView* view);
    IShellFolder* GetCurrentFolder() const;
    const FOLDERSETTINGS& GetCurrentFolderSettings() const;
    UINT GetBrowseFlags() const;
    const RECT& GetViewRect() const;

    /// Options; they take effect with the next browse. Default 0.
    int GetMultiSelectAllowed() const;
    void SetMultiSelectAllowed(int allowed);
    int GetFoldersOnly() const;
    void SetFoldersOnly(int foldersOnly);
    /// Kept for the host; every browse makes a new view whatever its value.
    int GetForceBrowse() const;
    void SetForceBrowse(int force);

    /// The dialog, and the command target whose dispatch interface offers IKNavUI (may be null). Null for both lets go
    /// of the callback; call it so before the target is destroyed.
    CWnd* GetViewOwnerWindow() const;
    void SetViewOwnerWindow(CWnd* window, CCmdTarget* target);
    IKNavUI* GetKNavUI() const;
    void SetKNavUI(IKNavUI* callback);
    void SetBrowseOwner(knav::BrowseOwner* owner);
    /// Window objects that take over the view's window, the list in it, and the placeholder at whose place it is shown.
    CNavCommDlgView* GetViewWindow() const;
    void SetViewWindow(CNavCommDlgView* window);
    CNavListCtrl* GetListCtrl() const;
    void SetListCtrl(CNavListCtrl* list);
    CNavCommDlgBuddy* GetBuddyWindow() const;
    void SetBuddyWindow(CNavCommDlgBuddy* buddy);

    /// Let the view window object take over the window of a view of the shell's own kind, and the list control the list
    /// in it, after giving back the one it holds. Every browse does so.
    void SubclassView(HWND window);
    void SubclassListCtrl(HWND viewWindow);
    /// Have the owner keep the columns of the current view and put them back; nothing without a view.
    void SaveListCtrlState();
    void RestoreListCtrlState();

    /// Internal: the window and list objects report to the browser that took them over.
    knav::BrowserState& state() { return *m_state; }

protected:
    IUnknown* GetInterfaceHook(REFIID iid) override;

private:
    std::unique_ptr<knav::BrowserState> m_state;
};
