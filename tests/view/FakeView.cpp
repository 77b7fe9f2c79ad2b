#include "view/FakeView.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

namespace knav::test {
namespace {

constexpr ViewCall after(ViewCall call, int steps) {
    return static_cast<ViewCall>(static_cast<int>(call) + steps);
}

// `First` is the object's QueryInterface; AddRef and Release follow it.
template <ViewCall First, class... Interfaces>
class Counted : public Interfaces... {
public:
    explicit Counted(ViewScript& script) : m_script(script) { ++script.liveObjects; }
    ULONG WINAPI AddRef() override {
        m_script.enter(after(First, 1));
        return ++m_references;
    }
    ULONG WINAPI Release() override {
        m_script.enter(after(First, 2));
        const ULONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return left;
    }

protected:
    virtual ~Counted() { --m_script.liveObjects; }
    HRESULT give(IUnknown* object, void** result) {
        *result = nullptr;
        if (const HRESULT entered = m_script.enter(First); FAILED(entered)) {
            return entered;
        }
        if (object == nullptr) {
            return E_NOINTERFACE;
        }
        ++m_references;
        *result = object;
        return S_OK;
    }
    HRESULT answer(ViewCall call, HRESULT worked = E_NOTIMPL) { return m_script.enter(call, worked); }
    static HRESULT uncalled() {
        ADD_FAILURE() << "a method that is not among those that a test lets misbehave";
        return E_NOTIMPL;
    }
    ViewScript& m_script;

private:
    ULONG m_references = 1;
};

class FakeData final : public Counted<ViewCall::DataQueryInterface, IDataObject> {
public:
    using Counted::Counted;
    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
        return give(iid == IID_IDataObject || iid == IID_IUnknown ? this : nullptr, object);
    }
    HRESULT WINAPI GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (const HRESULT result = m_script.enter(ViewCall::GetData); FAILED(result)) {
            return result;
        }
        wchar_t name[80] = L"";
        GetClipboardFormatNameW(format->cfFormat, name, 80);
        if (std::wstring_view(name) != CFSTR_SHELLIDLIST || format->lindex != -1 || format->tymed != TYMED_HGLOBAL) {
            return DV_E_FORMATETC;
        }
        const auto bytes = array();
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(GlobalLock(medium->hGlobal), bytes.data(), bytes.size());
        GlobalUnlock(medium->hGlobal);
        return S_OK;
    }
    HRESULT WINAPI GetDataHere(FORMATETC*, STGMEDIUM*) override { return uncalled(); }
    HRESULT WINAPI QueryGetData(FORMATETC*) override { return uncalled(); }
    HRESULT WINAPI GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return uncalled(); }
    HRESULT WINAPI SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return uncalled(); }
    HRESULT WINAPI EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return uncalled(); }
    HRESULT WINAPI DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return uncalled(); }
    HRESULT WINAPI DUnadvise(DWORD) override { return uncalled(); }
    HRESULT WINAPI EnumDAdvise(IEnumSTATDATA**) override { return uncalled(); }

private:
    std::vector<BYTE> array() const {
        const std::size_t count = m_script.selection.size();
        std::vector<BYTE> bytes(sizeof(UINT) * (count + 2));
        const auto put = [&bytes](std::size_t index, std::size_t value) {
            const auto number = static_cast<UINT>(value);
            std::memcpy(bytes.data() + sizeof(UINT) * index, &number, sizeof(number));
        };
        put(0, count);
        put(1, bytes.size());
        bytes.insert(bytes.end(), {0, 0});
        for (std::size_t i = 0; i < count; ++i) {
            put(i + 2, bytes.size());
            const std::wstring& name = m_script.selection[i];
            const std::size_t size = sizeof(USHORT) + sizeof(wchar_t) * (name.size() + 1);
            bytes.push_back(static_cast<BYTE>(size));
            bytes.push_back(0);
            const auto* const text = reinterpret_cast<const BYTE*>(name.c_str());
            bytes.insert(bytes.end(), text, text + size - sizeof(USHORT));
            bytes.insert(bytes.end(), {0, 0});
        }
        return bytes;
    }
};

class FakeView final : public Counted<ViewCall::QueryInterface, IShellView2, IFolderView> {
public:
    using Counted::Counted;
    ULONG WINAPI AddRef() override { return Counted::AddRef(); }
    ULONG WINAPI Release() override { return Counted::Release(); }
    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IFolderView) {
            return give(m_script.offersFolderView ? static_cast<IFolderView*>(this) : nullptr, object);
        }
        const bool known =
            iid == IID_IUnknown || iid == IID_IShellView || (iid == IID_IShellView2 && m_script.offersView2);
        return give(known ? static_cast<IShellView2*>(this) : nullptr, object);
    }

    HRESULT WINAPI GetWindow(HWND* window) override {
        const HRESULT result = m_script.enter(ViewCall::GetWindow);
        *window = m_window;
        return result;
    }
    HRESULT WINAPI ContextSensitiveHelp(BOOL) override { return uncalled(); }
    HRESULT WINAPI TranslateAccelerator(MSG*) override { return answer(ViewCall::TranslateAccelerator, S_FALSE); }
    HRESULT WINAPI EnableModeless(BOOL) override { return uncalled(); }
    HRESULT WINAPI UIActivate(UINT) override { return uncalled(); }
    HRESULT WINAPI Refresh() override { return answer(ViewCall::Refresh, S_OK); }
    HRESULT WINAPI CreateViewWindow(IShellView* previous, LPCFOLDERSETTINGS settings, IShellBrowser* browser,
                                    RECT* place, HWND* window) override {
        if (m_script.breaksAfterwards) {
            create(previous, *settings, browser, *place, window);
            return m_script.enter(ViewCall::CreateViewWindow);
        }
        const HRESULT result = m_script.enter(ViewCall::CreateViewWindow);
        return SUCCEEDED(result) ? create(previous, *settings, browser, *place, window) : result;
    }
    HRESULT WINAPI DestroyViewWindow() override {
        const HRESULT result = m_script.enter(ViewCall::DestroyViewWindow);
        DestroyWindow(m_window);
        return result;
    }
    HRESULT WINAPI GetCurrentInfo(LPFOLDERSETTINGS settings) override {
        *settings =
            m_script.of(ViewCall::GetCurrentInfo) == Conduct::Works ? m_script.settings : FOLDERSETTINGS{9, ~0U};
        return m_script.enter(ViewCall::GetCurrentInfo);
    }
    HRESULT WINAPI AddPropertySheetPages(DWORD, LPFNSVADDPROPSHEETPAGE, LPARAM) override { return uncalled(); }
    HRESULT WINAPI SaveViewState() override { return m_script.enter(ViewCall::SaveViewState); }
    HRESULT WINAPI SelectItem(PCUITEMID_CHILD item, SVSIF flags) override {
        m_script.selected.emplace_back(item, flags);
        return m_script.enter(ViewCall::SelectItem);
    }
    HRESULT WINAPI GetItemObject(UINT, REFIID, void** object) override {
        if (const HRESULT result = m_script.enter(ViewCall::GetItemObject); FAILED(result)) {
            return result;
        }
        *object = new FakeData(m_script);
        return S_OK;
    }

    HRESULT WINAPI GetView(SHELLVIEWID*, ULONG) override { return uncalled(); }
    HRESULT WINAPI CreateViewWindow2(LPSV2CVW2_PARAMS params) override {
        const HRESULT result = m_script.breaksAfterwards ? S_OK : m_script.enter(ViewCall::CreateViewWindow2);
        if (FAILED(result)) {
            return result;
        }
        m_script.paramsSize = params->cbSize;
        m_script.viewId = *params->pvid;
        create(params->psvPrev, *params->pfs, params->psbOwner, *params->prcView, &params->hwndView);
        return m_script.breaksAfterwards ? m_script.enter(ViewCall::CreateViewWindow2) : S_OK;
    }
    HRESULT WINAPI HandleRename(PCUITEMID_CHILD) override { return uncalled(); }
    HRESULT WINAPI SelectAndPositionItem(PCUITEMID_CHILD, UINT, POINT*) override { return uncalled(); }

    HRESULT WINAPI GetCurrentViewMode(UINT*) override { return uncalled(); }
    HRESULT WINAPI SetCurrentViewMode(UINT) override { return uncalled(); }
    HRESULT WINAPI GetFolder(REFIID, void**) override { return uncalled(); }
    HRESULT WINAPI Item(int, PITEMID_CHILD*) override { return answer(ViewCall::Item); }
    HRESULT WINAPI ItemCount(UINT, int*) override { return uncalled(); }
    HRESULT WINAPI Items(UINT, REFIID, void**) override { return uncalled(); }
    HRESULT WINAPI GetSelectionMarkedItem(int*) override { return uncalled(); }
    HRESULT WINAPI GetFocusedItem(int* item) override {
        *item = m_script.focusedItem;
        return m_script.enter(ViewCall::GetFocusedItem);
    }
    HRESULT WINAPI GetItemPosition(PCUITEMID_CHILD, POINT*) override { return uncalled(); }
    HRESULT WINAPI GetSpacing(POINT*) override { return uncalled(); }
    HRESULT WINAPI GetDefaultSpacing(POINT*) override { return uncalled(); }
    HRESULT WINAPI GetAutoArrange() override { return uncalled(); }
    HRESULT WINAPI SelectItem(int, DWORD) override { return uncalled(); }
    HRESULT WINAPI SelectAndPositionItems(UINT, PCUITEMID_CHILD_ARRAY, POINT*, DWORD) override { return uncalled(); }

private:
    static const wchar_t* standardClass() {
        static const ATOM registered = [] {
            WNDCLASSW look{};
            look.lpfnWndProc = DefWindowProcW;
            look.hInstance = GetModuleHandleW(nullptr);
            look.lpszClassName = L"SHELLDLL_DefView";
            return RegisterClassW(&look);
        }();
        return MAKEINTATOM(registered);
    }

    HRESULT create(IShellView* previous, const FOLDERSETTINGS& settings, IShellBrowser* browser, const RECT& place,
                   HWND* window) {
        m_script.previous = previous;
        m_script.settings = settings;
        m_script.place = place;
        HWND parent = nullptr;
        browser->GetWindow(&parent);
        *window = nullptr;
        if (!m_script.makesWindow) {
            return S_OK;
        }
        const auto make = [&place, parent](const wchar_t* kind) {
            return CreateWindowExW(0, kind, L"", WS_CHILD | WS_VISIBLE, place.left, place.top, place.right - place.left,
                                   place.bottom - place.top, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
        };
        if (m_script.hidesWindow) {
            make(WC_STATICW);
        }
        m_window = make(m_script.standardWindow ? standardClass() : WC_STATICW);
        if (m_script.standardWindow) {
            CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_LIST, 0, 0, 100, 100, m_window, nullptr,
                            nullptr, nullptr);
        }
        if (m_script.hidesWindow) {
            make(WC_STATICW);
        } else {
            *window = m_window;
        }
        return S_OK;
    }

    HWND m_window = nullptr;
};

class ViewFolder final : public Counted<ViewCall::FolderQueryInterface, IShellFolder> {
public:
    using Counted::Counted;
    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
        return give(iid == IID_IShellFolder || iid == IID_IUnknown ? this : nullptr, object);
    }
    HRESULT WINAPI ParseDisplayName(HWND, IBindCtx*, LPWSTR, ULONG*, PIDLIST_RELATIVE*, ULONG*) override {
        return answer(ViewCall::FolderParseDisplayName);
    }
    /// It has nothing to list, which is no failure.
    HRESULT WINAPI EnumObjects(HWND, SHCONTF, IEnumIDList** items) override {
        *items = nullptr;
        return answer(ViewCall::FolderEnumObjects, S_FALSE);
    }
    HRESULT WINAPI BindToObject(PCUIDLIST_RELATIVE, IBindCtx*, REFIID iid, void** object) override {
        *object = nullptr;
        const HRESULT entered = answer(ViewCall::FolderBindToObject, S_OK);
        return SUCCEEDED(entered) ? QueryInterface(iid, object) : entered;
    }
    HRESULT WINAPI BindToStorage(PCUIDLIST_RELATIVE, IBindCtx*, REFIID, void**) override { return uncalled(); }
    HRESULT WINAPI CompareIDs(LPARAM, PCUIDLIST_RELATIVE, PCUIDLIST_RELATIVE) override {
        return answer(ViewCall::FolderCompareIDs, S_OK);
    }
    HRESULT WINAPI CreateViewObject(HWND, REFIID, void** object) override {
        const HRESULT result = m_script.enter(ViewCall::CreateViewObject);
        if (SUCCEEDED(result)) {
            *object = static_cast<IShellView2*>(new FakeView(m_script));
        }
        return result;
    }
    HRESULT WINAPI GetAttributesOf(UINT, PCUITEMID_CHILD_ARRAY, SFGAOF* attributes) override {
        *attributes = m_script.attributes;
        return answer(ViewCall::FolderGetAttributesOf, S_OK);
    }
    HRESULT WINAPI GetUIObjectOf(HWND, UINT, PCUITEMID_CHILD_ARRAY, REFIID, UINT*, void**) override {
        return answer(ViewCall::FolderGetUIObjectOf);
    }
    // The element's payload is its name; the empty list stands for the folder.
    HRESULT WINAPI GetDisplayNameOf(PCUITEMID_CHILD item, SHGDNF, STRRET* name) override {
        if (const HRESULT entered = answer(ViewCall::FolderGetDisplayNameOf, S_OK); FAILED(entered)) {
            return entered;
        }
        name->uType = STRRET_WSTR;
        const bool isFolder = item->mkid.cb == 0;
        return SHStrDupW(isFolder ? L"Store" : reinterpret_cast<const wchar_t*>(item->mkid.abID), &name->pOleStr);
    }
    HRESULT WINAPI SetNameOf(HWND, PCUITEMID_CHILD, LPCWSTR, SHGDNF, PITEMID_CHILD*) override { return uncalled(); }
};

}  // namespace

HRESULT ViewScript::enter(ViewCall call, HRESULT worked) {
    ++calls[call];
    switch (of(call)) {
        case Conduct::Fails:
            return E_FAIL;
        case Conduct::Faults:
            RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);
            return E_FAIL;
        case Conduct::Throws:
            throw std::runtime_error("view");
        default:
            return worked;
    }
}

ComPtr<IShellFolder> makeViewFolder(ViewScript& script) {
    return ComPtr<IShellFolder>::adopt(new ViewFolder(script));
}

}  // namespace knav::test
