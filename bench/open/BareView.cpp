// The shell's folder view in a plain window, and among controls that do nothing.
#include "bench/open/Dialogs.h"

#include "resources/ids.h"
#include "shell/ComPtr.h"
#include "shell/InterfaceIds.h"

namespace {

constexpr wchar_t kClass[] = L"BenchBareView";
// What the view has in this dialog as it first opens: what a view costs to paint depends on the rows that it shows.
constexpr SIZE kViewSize{682, 410};

/// The least that a view needs. It lives on the stack and outlives the view, so references are not counted.
class Browser final : public IShellBrowser, public ICommDlgBrowser {
public:
    Browser(HWND window, IShellFolder* folder) : m_window(window), m_folder(folder) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override {
        if (iid == IID_ICommDlgBrowser) {
            *result = static_cast<ICommDlgBrowser*>(this);
            return S_OK;
        }
        const bool browser = iid == IID_IUnknown || iid == IID_IOleWindow || iid == IID_IShellBrowser;
        *result = browser ? static_cast<IShellBrowser*>(this) : nullptr;
        return browser ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
        *window = m_window;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InsertMenusSB(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenuSB(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveMenusSB(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusTextSB(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnableModelessSB(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAcceleratorSB(MSG*, WORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE BrowseObject(PCUIDLIST_RELATIVE, UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetViewStateStream(DWORD, IStream**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetControlWindow(UINT, HWND*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SendControlMsg(UINT, UINT, WPARAM, LPARAM, LRESULT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryActiveShellView(IShellView**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnViewWindowActive(IShellView*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetToolbarItems(LPTBBUTTONSB, UINT, UINT) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE OnDefaultCommand(IShellView*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnStateChange(IShellView*, ULONG) override { return E_NOTIMPL; }
    /// Folders, and files whose name fits.
    HRESULT STDMETHODCALLTYPE IncludeObject(IShellView*, PCUITEMID_CHILD item) override {
        SFGAOF attributes = SFGAO_FOLDER;
        if (FAILED(m_folder->GetAttributesOf(1, &item, &attributes)) || (attributes & SFGAO_FOLDER) != 0) {
            return S_OK;
        }
        STRRET name{};
        wchar_t text[MAX_PATH] = L"";
        m_folder->GetDisplayNameOf(item, SHGDN_INFOLDER | SHGDN_FORPARSING, &name);
        StrRetToBufW(&name, item, text, MAX_PATH);
        return PathMatchSpecW(text, bench::kPattern) ? S_OK : S_FALSE;
    }

private:
    HWND m_window;
    IShellFolder* m_folder;
};

bool isCancel(UINT message, WPARAM wParam) {
    return message == WM_COMMAND && LOWORD(wParam) == IDCANCEL;
}

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (isCancel(message, wParam)) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

INT_PTR CALLBACK onFrameMessage(HWND, UINT message, WPARAM wParam, LPARAM) {
    if (isCancel(message, wParam)) {
        PostQuitMessage(0);
        return TRUE;
    }
    return message == WM_INITDIALOG;
}

HWND makeWindow() {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.lpfnWndProc = &onMessage;
    type.hInstance = GetModuleHandleW(nullptr);
    type.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    type.lpszClassName = kClass;
    RegisterClassExW(&type);
    RECT place{0, 0, kViewSize.cx, kViewSize.cy};
    AdjustWindowRect(&place, WS_OVERLAPPEDWINDOW, FALSE);
    return CreateWindowExW(0, kClass, bench::kCaption, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                           place.right - place.left, place.bottom - place.top, nullptr, nullptr, type.hInstance,
                           nullptr);
}

/// The library's own template, whose controls nobody fills or draws.
HWND makeFrame() {
    static const HMODULE resources = LoadLibraryW(L"KnavRes.dll");
    return CreateDialogParamW(resources, MAKEINTRESOURCEW(IDD_KNAV), nullptr, &onFrameMessage, 0);
}

RECT placeIn(HWND window) {
    RECT place;
    if (const HWND view = GetDlgItem(window, IDC_KNAV_VIEW)) {
        GetWindowRect(view, &place);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    } else {
        GetClientRect(window, &place);
    }
    return place;
}

knav::ComPtr<IShellFolder> bindFolder(const wchar_t* path) {
    knav::ComPtr<IShellFolder> desktop;
    knav::ComPtr<IShellFolder> folder;
    ITEMIDLIST* list = nullptr;
    SHGetDesktopFolder(desktop.put());
    if (SUCCEEDED(SHParseDisplayName(path, nullptr, &list, 0, nullptr))) {
        desktop->BindToObject(list, nullptr, IID_IShellFolder, reinterpret_cast<void**>(folder.put()));
        ILFree(list);
    }
    return folder;
}

void runUntilCancelled() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void showView(const wchar_t* path, HWND window) {
    const auto folder = bindFolder(path);
    Browser browser(window, folder.get());
    knav::ComPtr<IShellView> view;
    folder->CreateViewObject(window, IID_IShellView, reinterpret_cast<void**>(view.put()));

    RECT place = placeIn(window);
    FOLDERSETTINGS settings{FVM_DETAILS, 0};
    HWND viewWindow = nullptr;
    view->CreateViewWindow(nullptr, &settings, &browser, &place, &viewWindow);
    view->UIActivate(SVUIA_ACTIVATE_FOCUS);
    ShowWindow(window, SW_SHOW);
    runUntilCancelled();
    view->UIActivate(SVUIA_DEACTIVATE);
    view->DestroyViewWindow();
    view.reset();
    DestroyWindow(window);
}

}  // namespace

void bench::showBareView(const wchar_t* folder) {
    showView(folder, makeWindow());
}

void bench::showFramedView(const wchar_t* folder) {
    showView(folder, makeFrame());
}
