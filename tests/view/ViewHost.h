// A hidden dialog around a browser host: owner window, placeholder, and the objects that take over the view's windows.
#pragma once

#include "view/BrowseOwner.h"

#include <knav/CNavCommDlgBrowser.h>
#include <knav/CNavCommDlgBuddy.h>
#include <knav/CNavCommDlgView.h>
#include <knav/CNavListCtrl.h>

#include <platform/CWnd.h>
#include <functional>
#include <string>
#include <vector>

namespace knav::test {

/// Records what the browser tells its dialog, as words in the order of the calls.
class RecordingOwner : public BrowseOwner {
public:
    bool enterBrowse() override;
    void leaveBrowse() override;
    void browsed(ITEMIDLIST* folder, UINT flags) override;
    void saveListState(IShellView* view) override;
    void restoreListState(IShellView* view) override;
    bool findLogin(const CString& siteName, CString& user, CString& password) override;

    std::vector<std::string> log;
    std::wstring askedSite;
    std::function<void()> onBrowsed;
    bool browsing = false;
};

class ViewHost {
public:
    ViewHost();
    ViewHost(const ViewHost&) = delete;
    ViewHost& operator=(const ViewHost&) = delete;
    ~ViewHost();

    /// Gives another browser the owner, the placeholder and what takes over the view's windows.
    void lendWindowsTo(CNavCommDlgBrowser& other);
    /// Shows a folder of the file system, "" for the desktop.
    int browse(const wchar_t* path);
    HWND list() const { return listCtrl.GetSafeHwnd(); }
    HWND viewHandle() const { return viewWindow.GetSafeHwnd(); }
    /// Names in the list, sorted.
    std::vector<std::wstring> rows() const;
    int rowOf(const wchar_t* name) const;
    void select(std::initializer_list<const wchar_t*> names);
    /// Full path of the folder shown.
    CString shownPath() const;
    /// Where the view lies in the owner.
    RECT viewPlace() const;
    /// How many windows the owner has in it.
    int children() const;

    /// Notes where the view asks it to move the focus, as a dialog would.
    class Owner : public CWnd {
    public:
        HWND nextControl = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    } owner;
    CNavCommDlgBuddy buddy;
    CNavCommDlgView viewWindow;
    CNavListCtrl listCtrl;
    RecordingOwner browseOwner;
    CNavCommDlgBrowser browser;
};

/// Dispatches messages until `done`, for at most two seconds.
bool pumpUntil(const std::function<bool()>& done);

}  // namespace knav::test
