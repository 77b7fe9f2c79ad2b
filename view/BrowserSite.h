// The object that the shell's views hold: it translates their calls into calls of the browser host.
#pragma once

#include <platform/Windows.h>

class CNavCommDlgBrowser;

namespace knav {

/// Counted on its own, because a view may keep it after the dialog has gone: once detached, every call fails.
class BrowserSite final : public IShellBrowser, public ICommDlgBrowser {
public:
    /// Starts with one reference.
    explicit BrowserSite(CNavCommDlgBrowser& browser) : m_browser(&browser) {}
    BrowserSite(const BrowserSite&) = delete;
    BrowserSite& operator=(const BrowserSite&) = delete;

    void detach() { m_browser = nullptr; }
    /// Its interface for `iid` without a reference added; null when it has none.
    IUnknown* find(REFIID iid);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
    HRESULT STDMETHODCALLTYPE InsertMenusSB(HMENU menu, OLEMENUGROUPWIDTHS* widths) override;
    HRESULT STDMETHODCALLTYPE SetMenuSB(HMENU menu, HOLEMENU oleMenu, HWND active) override;
    HRESULT STDMETHODCALLTYPE RemoveMenusSB(HMENU menu) override;
    HRESULT STDMETHODCALLTYPE SetStatusTextSB(LPCWSTR text) override;
    HRESULT STDMETHODCALLTYPE EnableModelessSB(BOOL enable) override;
    HRESULT STDMETHODCALLTYPE TranslateAcceleratorSB(MSG* message, WORD id) override;
    HRESULT STDMETHODCALLTYPE BrowseObject(PCUIDLIST_RELATIVE list, UINT flags) override;
    HRESULT STDMETHODCALLTYPE GetViewStateStream(DWORD mode, IStream** stream) override;
    HRESULT STDMETHODCALLTYPE GetControlWindow(UINT id, HWND* window) override;
    HRESULT STDMETHODCALLTYPE SendControlMsg(UINT id, UINT message, WPARAM wParam, LPARAM lParam,
                                             LRESULT* result) override;
    HRESULT STDMETHODCALLTYPE QueryActiveShellView(IShellView** view) override;
    HRESULT STDMETHODCALLTYPE OnViewWindowActive(IShellView* view) override;
    HRESULT STDMETHODCALLTYPE SetToolbarItems(LPTBBUTTONSB buttons, UINT count, UINT flags) override;

    HRESULT STDMETHODCALLTYPE OnDefaultCommand(IShellView* view) override;
    HRESULT STDMETHODCALLTYPE OnStateChange(IShellView* view, ULONG change) override;
    HRESULT STDMETHODCALLTYPE IncludeObject(IShellView* view, PCUITEMID_CHILD item) override;

private:
    ~BrowserSite() = default;
    template <class Body>
    HRESULT attached(Body&& body) noexcept;

    CNavCommDlgBrowser* m_browser;
    LONG m_references = 1;
};

}  // namespace knav
