#include "data/SiteFolderFake.h"

#include <cstring>

namespace knav::test {

ITEMIDLIST* SiteFolderFake::itemOf(std::wstring_view name) {
    const std::size_t bytes = sizeof(USHORT) + name.size() * sizeof(wchar_t);
    auto* const list = static_cast<BYTE*>(CoTaskMemAlloc(bytes + sizeof(USHORT)));
    const auto size = static_cast<USHORT>(bytes);
    const USHORT end = 0;
    std::memcpy(list, &size, sizeof size);
    std::memcpy(list + sizeof size, name.data(), name.size() * sizeof(wchar_t));
    std::memcpy(list + bytes, &end, sizeof end);
    return reinterpret_cast<ITEMIDLIST*>(list);
}

std::wstring SiteFolderFake::nameOf(const ITEMIDLIST* item) {
    std::wstring name((item->mkid.cb - sizeof(USHORT)) / sizeof(wchar_t), L'\0');
    std::memcpy(name.data(), item->mkid.abID, name.size() * sizeof(wchar_t));
    return name;
}

STDMETHODIMP SiteFolderFake::QueryInterface(REFIID id, void** object) {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IShellFolder);
    *object = known ? this : nullptr;
    return known ? (AddRef(), S_OK) : E_NOINTERFACE;
}

STDMETHODIMP SiteFolderFake::ParseDisplayName(HWND, IBindCtx*, LPWSTR name, ULONG*, LPITEMIDLIST* list,
                                              ULONG* attributes) {
    m_lastParsed = name;
    if (m_broken) {
        RaiseException(static_cast<DWORD>(STATUS_ACCESS_VIOLATION), 0, 0, nullptr);
    }
    const auto item = m_items.find(name);
    if (item == m_items.end()) {
        return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    }
    if (attributes != nullptr) {
        *attributes &= item->second;
    }
    *list = itemOf(name);
    return S_OK;
}

STDMETHODIMP SiteFolderFake::GetAttributesOf(UINT count, LPCITEMIDLIST* items, ULONG* attributes) {
    for (UINT i = 0; i < count; ++i) {
        const auto item = m_items.find(nameOf(items[i]));
        *attributes &= item != m_items.end() ? item->second : 0;
    }
    return S_OK;
}

STDMETHODIMP SiteFolderFake::GetDisplayNameOf(LPCITEMIDLIST item, SHGDNF, STRRET* name) {
    name->uType = STRRET_WSTR;
    return SHStrDupW((m_prefix + nameOf(item)).c_str(), &name->pOleStr);
}

}  // namespace knav::test
