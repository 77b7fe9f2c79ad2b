#include "view/FakeView.h"

#include <gtest/gtest.h>

namespace knav::test {
namespace {

HRESULT uncalled() {
    ADD_FAILURE() << "a method that is not among those that a test lets misbehave";
    return E_NOTIMPL;
}

class FakeData final : public FakeObject<FolderCall::DataQueryInterface, IDataObject> {
public:
    FakeData(Conducts& conducts, const std::vector<std::wstring>& names) : FakeObject(conducts), m_names(names) {}
    HRESULT WINAPI GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (const HRESULT result = enter(FolderCall::GetData); FAILED(result)) {
            return result;
        }
        EXPECT_EQ(format->lindex, -1);
        EXPECT_EQ(format->tymed, TYMED_HGLOBAL);
        std::vector<ItemList> items;
        std::vector<const ITEMIDLIST*> lists;
        for (const std::wstring& name : m_names) {
            lists.push_back(items.emplace_back(FakeFolder::item(name)).get());
        }
        const ItemList folder = makeList({});
        const auto data = ComPtr<IDataObject>::from([&](IDataObject** made) {
            return CIDLData_CreateFromIDArray(folder.get(), static_cast<UINT>(lists.size()), lists.data(), made);
        });
        return data->GetData(format, medium);
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
    const std::vector<std::wstring>& m_names;
};

class FakeView final : public FakeObject<FolderCall::ViewQueryInterface, IShellView2, IFolderView> {
public:
    FakeView(Conducts& conducts, ViewScript& script) : FakeObject(conducts), m_script(script) {}
    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
        const bool refused =
            (iid == IID_IShellView2 && !m_script.offersView2) || (iid == IID_IFolderView && !m_script.offersFolderView);
        return FakeObject::QueryInterface(refused ? GUID_NULL : iid == IID_IShellView ? IID_IUnknown : iid, object);
    }

    HRESULT WINAPI GetWindow(HWND* window) override {
        const HRESULT result = enter(FolderCall::GetWindow);
        *window = m_window;
        return result;
    }
    HRESULT WINAPI ContextSensitiveHelp(BOOL) override { return uncalled(); }
    HRESULT WINAPI TranslateAccelerator(MSG*) override { return enter(FolderCall::TranslateAccelerator, S_FALSE); }
    HRESULT WINAPI EnableModeless(BOOL) override { return uncalled(); }
    HRESULT WINAPI UIActivate(UINT) override { return uncalled(); }
    HRESULT WINAPI Refresh() override { return enter(FolderCall::Refresh); }
    HRESULT WINAPI CreateViewWindow(IShellView* previous, LPCFOLDERSETTINGS settings, IShellBrowser* browser,
                                    RECT* place, HWND* window) override {
        if (m_script.breaksAfterwards) {
            create(previous, *settings, browser, *place, window);
            return enter(FolderCall::CreateViewWindow);
        }
        const HRESULT result = enter(FolderCall::CreateViewWindow);
        return SUCCEEDED(result) ? create(previous, *settings, browser, *place, window) : result;
    }
    HRESULT WINAPI DestroyViewWindow() override {
        const HRESULT result = enter(FolderCall::DestroyViewWindow);
        DestroyWindow(m_window);
        return result;
    }
    HRESULT WINAPI GetCurrentInfo(LPFOLDERSETTINGS settings) override {
        *settings = {9, ~0U};
        const HRESULT result = enter(FolderCall::GetCurrentInfo);
        if (SUCCEEDED(result)) {
            *settings = m_script.settings;
        }
        return result;
    }
    HRESULT WINAPI AddPropertySheetPages(DWORD, LPFNSVADDPROPSHEETPAGE, LPARAM) override { return uncalled(); }
    HRESULT WINAPI SaveViewState() override { return enter(FolderCall::SaveViewState); }
    HRESULT WINAPI SelectItem(PCUITEMID_CHILD, SVSIF) override { return enter(FolderCall::SelectItem); }
    HRESULT WINAPI GetItemObject(UINT, REFIID, void** object) override {
        if (const HRESULT result = enter(FolderCall::GetItemObject); FAILED(result)) {
            return result;
        }
        *object = new FakeData(conducts(), m_script.selection);
        return S_OK;
    }

    HRESULT WINAPI GetView(SHELLVIEWID*, ULONG) override { return uncalled(); }
    HRESULT WINAPI CreateViewWindow2(LPSV2CVW2_PARAMS params) override {
        const HRESULT result = m_script.breaksAfterwards ? S_OK : enter(FolderCall::CreateViewWindow2);
        if (FAILED(result)) {
            return result;
        }
        m_script.paramsSize = params->cbSize;
        m_script.viewId = *params->pvid;
        create(params->psvPrev, *params->pfs, params->psbOwner, *params->prcView, &params->hwndView);
        return m_script.breaksAfterwards ? enter(FolderCall::CreateViewWindow2) : S_OK;
    }
    HRESULT WINAPI HandleRename(PCUITEMID_CHILD) override { return uncalled(); }
    HRESULT WINAPI SelectAndPositionItem(PCUITEMID_CHILD, UINT, POINT*) override { return uncalled(); }

    HRESULT WINAPI GetCurrentViewMode(UINT*) override { return uncalled(); }
    HRESULT WINAPI SetCurrentViewMode(UINT) override { return uncalled(); }
    HRESULT WINAPI GetFolder(REFIID, void**) override { return uncalled(); }
    HRESULT WINAPI Item(int, PITEMID_CHILD*) override { return enter(FolderCall::Item, E_NOTIMPL); }
    HRESULT WINAPI ItemCount(UINT, int*) override { return uncalled(); }
    HRESULT WINAPI Items(UINT, REFIID, void**) override { return uncalled(); }
    HRESULT WINAPI GetSelectionMarkedItem(int*) override { return uncalled(); }
    HRESULT WINAPI GetFocusedItem(int* item) override {
        *item = m_script.focusedItem;
        return enter(FolderCall::GetFocusedItem);
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

    ViewScript& m_script;
    HWND m_window = nullptr;
};

}  // namespace

IShellView* makeFakeView(Conducts& conducts, ViewScript& script) {
    return new FakeView(conducts, script);
}

}  // namespace knav::test
