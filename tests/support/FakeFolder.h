// A shell folder made by a test: it shows what the test put into it, and each of its methods can fail, fault or throw.
//
// Header only, because it needs the library's namespace model, which not every test program has.
#pragma once

#include <platform/Windows.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "shell/ComPtr.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"
#include "support/FakeObject.h"
#include "support/ItemLists.h"

namespace knav::test {

class FakeItems final : public FakeObject<FolderCall::QueryInterface, IEnumIDList> {
public:
    FakeItems(Conducts& conducts, std::vector<ItemList> items) : FakeObject(conducts), m_items(std::move(items)) {}

    HRESULT WINAPI Next(ULONG, ITEMIDLIST** lists, ULONG* fetched) override {
        const HRESULT entered = enter(FolderCall::Next);
        const bool given = SUCCEEDED(entered) && m_next < m_items.size();
        *lists = given ? m_items[m_next++].release() : nullptr;
        if (fetched != nullptr) {
            *fetched = given;
        }
        return FAILED(entered) ? entered : given ? S_OK : S_FALSE;
    }
    HRESULT WINAPI Skip(ULONG) override { return E_NOTIMPL; }
    HRESULT WINAPI Reset() override { return E_NOTIMPL; }
    HRESULT WINAPI Clone(IEnumIDList**) override { return E_NOTIMPL; }

private:
    std::vector<ItemList> m_items;
    std::size_t m_next = 0;
};

/// The icon of a module; Extract gives the system's icon of an application when `extracted` is S_OK.
struct FakeIcon {
    std::wstring module;
    int index = 0;
    HRESULT extracted = E_FAIL;
};

class FakeExtractor final : public FakeObject<FolderCall::QueryInterface, IExtractIconW> {
public:
    FakeExtractor(Conducts& conducts, FakeIcon icon) : FakeObject(conducts), m_icon(std::move(icon)) {}

    HRESULT WINAPI GetIconLocation(UINT, wchar_t* module, UINT room, int* iconIndex, UINT* flags) override {
        *iconIndex = m_icon.index;
        *flags = 0;
        lstrcpynW(module, m_icon.module.c_str(), static_cast<int>(room));
        return enter(FolderCall::GetIconLocation);
    }
    HRESULT WINAPI Extract(const wchar_t*, UINT, HICON* large, HICON* small, UINT) override {
        if (FAILED(enter(FolderCall::Extract))) {
            return E_FAIL;
        }
        if (m_icon.extracted == S_OK) {
            *large = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
            *small = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
        }
        return m_icon.extracted;
    }

private:
    FakeIcon m_icon;
};

/// Items are lists with one element for each level, whose payload is the name. A parsing name is the folder's own name
/// and the names below it, joined by "/". Whoever makes a folder holds its first reference.
class FakeFolder final : public Conducts, public FakeObject<FolderCall::QueryInterface, IShellFolder> {
public:
    static ComPtr<FakeFolder> make(std::wstring name) {
        return ComPtr<FakeFolder>::adopt(new FakeFolder(std::move(name)));
    }

    /// A new list for a path of names below a folder, as for example L"site/folder".
    static ItemList item(std::wstring_view path) {
        std::vector<std::string_view> payloads;
        while (!path.empty()) {
            const std::wstring_view name = path.substr(0, path.find(L'/'));
            payloads.emplace_back(reinterpret_cast<const char*>(name.data()), name.size() * sizeof(wchar_t));
            path.remove_prefix(std::min(path.size(), name.size() + 1));
        }
        return makeList(payloads);
    }

    /// Adds an item; `folder`, when given, is what binding to it gives. Of two with one name the later one counts.
    FakeFolder& add(std::wstring name, DWORD attributes, ComPtr<FakeFolder> folder = {}) {
        m_items.push_back({std::move(name), attributes, std::move(folder)});
        return *this;
    }
    /// Takes the items out. A folder that holds itself is only freed after this.
    void clear() { m_items.clear(); }
    using Conducts::enter;
    /// What it calls itself, when that is not what the parsing names of its items begin with.
    void setOwnName(std::wstring name) { m_ownName = std::move(name); }
    /// What makes its view; without it there is none.
    void setView(std::function<IShellView*(Conducts&)> make) { m_makeView = std::move(make); }
    /// BindToObject refuses; the folder of an item comes from GetUIObjectOf.
    void setBindThroughUiObject(bool through) { m_bindThroughUiObject = through; }
    /// The icon that every item, and the folder itself, extracts.
    void setIcon(FakeIcon icon) { m_icon = std::move(icon); }
    /// What ParseDisplayName was last asked for.
    const std::wstring& lastParsed() const { return m_lastParsed; }
    /// The list that GetUIObjectOf was last asked for was null.
    bool askedForItself() const { return m_askedForItself; }

    HRESULT WINAPI ParseDisplayName(HWND, IBindCtx*, wchar_t* name, ULONG*, ITEMIDLIST** list,
                                    ULONG* attributes) override {
        *list = nullptr;
        m_lastParsed = name;
        if (FAILED(enter(FolderCall::ParseDisplayName))) {
            return E_FAIL;
        }
        ItemList parsed = item(name);
        const Item* const found = find(parsed.get());
        if (found == nullptr) {
            return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
        }
        if (attributes != nullptr) {
            *attributes &= found->attributes;
        }
        *list = parsed.release();
        return S_OK;
    }
    HRESULT WINAPI EnumObjects(HWND, SHCONTF, IEnumIDList** items) override {
        *items = nullptr;
        if (FAILED(enter(FolderCall::EnumObjects))) {
            return E_FAIL;
        }
        std::vector<ItemList> lists;
        for (const Item& each : m_items) {
            lists.push_back(item(each.name));
        }
        *items = new FakeItems(*this, std::move(lists));
        return S_OK;
    }
    HRESULT WINAPI BindToObject(const ITEMIDLIST* list, IBindCtx*, REFIID iid, void** object) override {
        *object = nullptr;
        const bool works = SUCCEEDED(enter(FolderCall::BindToObject)) && !m_bindThroughUiObject;
        return works ? folderOf(list, iid, object) : E_FAIL;
    }
    HRESULT WINAPI BindToStorage(const ITEMIDLIST*, IBindCtx*, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT WINAPI CompareIDs(LPARAM, const ITEMIDLIST* a, const ITEMIDLIST* b) override {
        if (FAILED(enter(FolderCall::CompareIDs))) {
            return E_FAIL;
        }
        const auto order = namesOf(a) <=> namesOf(b);
        return MAKE_HRESULT(SEVERITY_SUCCESS, 0, static_cast<USHORT>(order < 0 ? -1 : order > 0 ? 1 : 0));
    }
    HRESULT WINAPI CreateViewObject(HWND, REFIID, void** view) override {
        const HRESULT entered = enter(FolderCall::CreateViewObject, m_makeView ? S_OK : E_NOTIMPL);
        *view = SUCCEEDED(entered) ? m_makeView(*this) : nullptr;
        return entered;
    }
    HRESULT WINAPI GetAttributesOf(UINT count, const ITEMIDLIST** lists, SFGAOF* attributes) override {
        if (FAILED(enter(FolderCall::GetAttributesOf))) {
            return E_FAIL;
        }
        // Bits that nobody asked for are left in the answer, as the system's own folders do.
        for (UINT index = 0; index < count; ++index) {
            const Item* const found = find(lists[index]);
            *attributes = found != nullptr ? found->attributes : SFGAO_FOLDER;
        }
        return S_OK;
    }
    HRESULT WINAPI GetUIObjectOf(HWND, UINT, const ITEMIDLIST** lists, REFIID iid, UINT*, void** object) override {
        *object = nullptr;
        m_askedForItself = lists[0] == nullptr;
        if (FAILED(enter(FolderCall::GetUIObjectOf))) {
            return E_FAIL;
        }
        if (iid == IID_IExtractIconW) {
            *object = static_cast<IExtractIconW*>(new FakeExtractor(*this, m_icon));
            return S_OK;
        }
        return m_bindThroughUiObject ? folderOf(lists[0], iid, object) : E_NOINTERFACE;
    }
    HRESULT WINAPI GetDisplayNameOf(const ITEMIDLIST* list, SHGDNF flags, STRRET* name) override {
        if (FAILED(enter(FolderCall::GetDisplayNameOf))) {
            return E_FAIL;
        }
        std::wstring text = (flags & SHGDN_FORPARSING) != 0 && (flags & SHGDN_INFOLDER) == 0 ? m_name : L"";
        const std::vector<std::wstring> names = namesOf(list);
        if (names.empty()) {
            text = m_ownName;
        }
        for (const std::wstring& each : names) {
            text += (text.empty() ? L"" : L"/") + each;
        }
        name->uType = STRRET_WSTR;
        return SHStrDupW(text.c_str(), &name->pOleStr);
    }
    HRESULT WINAPI SetNameOf(HWND, const ITEMIDLIST*, const wchar_t*, SHGDNF, ITEMIDLIST**) override {
        return E_NOTIMPL;
    }

private:
    struct Item {
        std::wstring name;
        DWORD attributes;
        ComPtr<FakeFolder> folder;
    };

    explicit FakeFolder(std::wstring name) : FakeObject(static_cast<Conducts&>(*this)), m_name(std::move(name)) {}

    static std::vector<std::wstring> namesOf(const ITEMIDLIST* list) {
        std::vector<std::wstring> names;
        for (const ITEMIDLIST* element = list; element != nullptr && elementSize(element) > 0;
             element = nextElement(element)) {
            std::wstring name((static_cast<std::size_t>(elementSize(element)) - sizeof(USHORT)) / sizeof(wchar_t), 0);
            std::memcpy(name.data(), element->mkid.abID, name.size() * sizeof(wchar_t));
            names.push_back(std::move(name));
        }
        return names;
    }
    const Item* find(const ITEMIDLIST* list) const {
        const Item* found = nullptr;
        const FakeFolder* folder = this;
        for (const std::wstring& name : namesOf(list)) {
            if (folder == nullptr) {
                return nullptr;
            }
            const auto& items = folder->m_items;
            const auto isNamed = [&name](const Item& each) { return each.name == name; };
            const auto at = std::find_if(items.rbegin(), items.rend(), isNamed);  // the newest first
            if (at == items.rend()) {
                return nullptr;
            }
            found = &*at;
            folder = at->folder.get();
        }
        return found;
    }
    HRESULT folderOf(const ITEMIDLIST* list, REFIID iid, void** object) const {
        const Item* const found = find(list);
        return found != nullptr && found->folder ? found->folder->QueryInterface(iid, object) : E_INVALIDARG;
    }

    std::wstring m_name;
    std::wstring m_ownName = m_name;
    std::vector<Item> m_items;
    std::wstring m_lastParsed;
    bool m_bindThroughUiObject = false;
    bool m_askedForItself = false;
    FakeIcon m_icon;
    std::function<IShellView*(Conducts&)> m_makeView;
};

}  // namespace knav::test
