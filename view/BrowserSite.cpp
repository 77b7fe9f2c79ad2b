#include "view/BrowserSite.h"

#include "view/BrowserState.h"
#include "view/ViewStateStream.h"

#include <knav/CNavCommDlgBrowser.h>

#include <platform/CWnd.h>
#include <new>

namespace knav {

// The edge to the shell: a call on a detached site fails, nothing is thrown across it, and while a call is under way no
// view is destroyed, because its caller is one of them.
template <class Body>
HRESULT BrowserSite::attached(Body&& body) noexcept {
    if (m_browser == nullptr) {
        return E_FAIL;
    }
    try {
        const RetiredViews::CallFromView call(m_browser->state().retired);
        return body(*m_browser);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

IUnknown* BrowserSite::find(REFIID iid) {
    if (iid == IID_IUnknown || iid == IID_IOleWindow || iid == IID_IShellBrowser) {
        return static_cast<IShellBrowser*>(this);
    }
    return iid == IID_ICommDlgBrowser ? static_cast<ICommDlgBrowser*>(this) : nullptr;
}

// A class derived from the browser host may offer more interfaces to the view.
HRESULT BrowserSite::QueryInterface(REFIID iid, void** result) {
    if (result == nullptr) {
        return E_POINTER;
    }
    *result = nullptr;
    if (IUnknown* const own = find(iid)) {
        AddRef();
        *result = own;
        return S_OK;
    }
    return m_browser != nullptr ? m_browser->ExternalQueryInterface(iid, result) : E_NOINTERFACE;
}

ULONG BrowserSite::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&m_references));
}

ULONG BrowserSite::Release() {
    const LONG left = InterlockedDecrement(&m_references);
    if (left == 0) {
        delete this;
    }
    return static_cast<ULONG>(left);
}

HRESULT BrowserSite::GetWindow(HWND* window) {
    if (window == nullptr) {
        return E_POINTER;
    }
    *window = nullptr;
    return attached([window](CNavCommDlgBrowser& browser) {
        *window = browser.state().ownerHandle();
        return *window != nullptr ? S_OK : E_FAIL;
    });
}

HRESULT BrowserSite::ContextSensitiveHelp(BOOL) {
    return attached([](CNavCommDlgBrowser&) { return S_OK; });
}

HRESULT BrowserSite::InsertMenusSB(HMENU, OLEMENUGROUPWIDTHS*) {
    return E_NOTIMPL;
}

HRESULT BrowserSite::SetMenuSB(HMENU, HOLEMENU, HWND) {
    return E_NOTIMPL;
}

HRESULT BrowserSite::RemoveMenusSB(HMENU) {
    return E_NOTIMPL;
}

HRESULT BrowserSite::SetStatusTextSB(LPCWSTR) {
    return E_NOTIMPL;
}

HRESULT BrowserSite::EnableModelessSB(BOOL) {
    return E_NOTIMPL;
}

HRESULT BrowserSite::TranslateAcceleratorSB(MSG*, WORD) {
    return attached([](CNavCommDlgBrowser&) { return S_OK; });
}

HRESULT BrowserSite::BrowseObject(PCUIDLIST_RELATIVE list, UINT flags) {
    return attached([list, flags](CNavCommDlgBrowser& browser) {
        return browser.BrowseObject(listArgument(list), flags) != 0 ? S_OK : E_FAIL;
    });
}

HRESULT BrowserSite::GetViewStateStream(DWORD, IStream** stream) {
    if (stream == nullptr) {
        return E_POINTER;
    }
    *stream = nullptr;
    return attached([stream](CNavCommDlgBrowser&) { return makeViewStateStream(stream); });
}

HRESULT BrowserSite::GetControlWindow(UINT, HWND* window) {
    if (window == nullptr) {
        return E_POINTER;
    }
    *window = nullptr;
    return attached([](CNavCommDlgBrowser&) { return S_OK; });
}

HRESULT BrowserSite::SendControlMsg(UINT, UINT, WPARAM, LPARAM, LRESULT* result) {
    if (result != nullptr) {
        *result = 0;
    }
    return E_NOTIMPL;
}

HRESULT BrowserSite::QueryActiveShellView(IShellView** view) {
    if (view == nullptr) {
        return E_POINTER;
    }
    *view = nullptr;
    return attached([view](CNavCommDlgBrowser& browser) {
        *view = ComPtr<IShellView>(browser.state().view).release();
        return *view != nullptr ? S_OK : E_FAIL;
    });
}

HRESULT BrowserSite::OnViewWindowActive(IShellView*) {
    return attached([](CNavCommDlgBrowser&) { return S_OK; });
}

HRESULT BrowserSite::SetToolbarItems(LPTBBUTTONSB, UINT, UINT) {
    return E_NOTIMPL;
}

HRESULT BrowserSite::OnDefaultCommand(IShellView*) {
    return attached([](CNavCommDlgBrowser& browser) { return browser.OnDefaultCommand() != 0 ? S_OK : S_FALSE; });
}

HRESULT BrowserSite::OnStateChange(IShellView* view, ULONG change) {
    return attached([view, change](CNavCommDlgBrowser& browser) {
        if (change == CDBOSC_SELCHANGE) {
            browser.OnItemSelectionChange(view);
        } else if (change == CDBOSC_RENAME) {
            browser.OnItemNameChange(view);
        }
        return S_OK;
    });
}

HRESULT BrowserSite::IncludeObject(IShellView*, PCUITEMID_CHILD item) {
    return attached([item](CNavCommDlgBrowser& browser) {
        const bool allowed = browser.IsAllowed(listArgument(item)) != 0;
        browser.state().arrivals.decided(allowed);
        return allowed ? S_OK : S_FALSE;
    });
}

}  // namespace knav
