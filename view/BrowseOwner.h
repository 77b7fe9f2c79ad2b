// What the browser host needs from the dialog around it. The dialog implements it; the view layer knows nothing else
// of the dialog.
#pragma once

#include <platform/CString.h>
#include <platform/Windows.h>

namespace knav {

/// Called on the user-interface thread only. The owner outlives its registration (CNavCommDlgBrowser::SetBrowseOwner);
/// it is not reference counted. No call may destroy the browser.
class BrowseOwner {
public:
    /// A browse wants to start. Answer false while another one is under way: the new one then reports success and does
    /// nothing. After true, leaveBrowse follows exactly once, whatever the browse comes to.
    virtual bool enterBrowse() = 0;
    virtual void leaveBrowse() = 0;

    /// The view now shows another folder (or the same one again). Called inside the enter/leave pair, after the old
    /// view has gone, so that the Look-in combo and the history can follow; a browse started from here does nothing.
    /// `folder` is the qualified list of the folder shown; it stays the browser's.
    virtual void browsed(ITEMIDLIST* folder, UINT flags) = 0;

    /// The columns, widths and sort order of `view` are about to be lost, or may be put back. Each is called once per
    /// browse: save before the new view is made, restore after the new list has been taken over.
    virtual void saveListState(IShellView* view) = 0;
    virtual void restoreListState(IShellView* view) = 0;

    /// The login stored for a site. False (and both texts empty) when none is known.
    virtual bool findLogin(const CString& siteName, CString& user, CString& password) = 0;

protected:
    ~BrowseOwner() = default;
};

}  // namespace knav
