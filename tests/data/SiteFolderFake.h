// The folder of a site that does not exist: it knows some names.
#pragma once

#include <platform/Windows.h>

#include <map>
#include <string>

namespace knav::test {

/// Lives on the stack of a test; reference counts are only counted.
class SiteFolderFake final : public IShellFolder {
public:
    /// `prefix` is put before an item's name to make its parsing name.
    explicit SiteFolderFake(std::wstring prefix) : m_prefix(std::move(prefix)) {}
    virtual ~SiteFolderFake() = default;

    void add(std::wstring name, ULONG attributes) { m_items[std::move(name)] = attributes; }
    /// From now on, parsing faults.
    void breakDown() { m_broken = true; }
    const std::wstring& lastParsed() const { return m_lastParsed; }
    LONG references() const { return m_references; }

    /// A new list of one element, which the caller frees.
    static ITEMIDLIST* itemOf(std::wstring_view name);

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++m_references); }
    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--m_references); }

    STDMETHODIMP ParseDisplayName(HWND, IBindCtx*, LPWSTR name, ULONG* eaten, LPITEMIDLIST* list,
                                  ULONG* attributes) override;
    STDMETHODIMP GetAttributesOf(UINT count, LPCITEMIDLIST* items, ULONG* attributes) override;
    STDMETHODIMP GetDisplayNameOf(LPCITEMIDLIST item, SHGDNF flags, STRRET* name) override;

    STDMETHODIMP EnumObjects(HWND, SHCONTF, IEnumIDList**) override { return E_NOTIMPL; }
    STDMETHODIMP BindToObject(LPCITEMIDLIST, IBindCtx*, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP BindToStorage(LPCITEMIDLIST, IBindCtx*, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP CompareIDs(LPARAM, LPCITEMIDLIST, LPCITEMIDLIST) override { return E_NOTIMPL; }
    STDMETHODIMP CreateViewObject(HWND, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP GetUIObjectOf(HWND, UINT, LPCITEMIDLIST*, REFIID, UINT*, void**) override { return E_NOTIMPL; }
    STDMETHODIMP SetNameOf(HWND, LPCITEMIDLIST, LPCOLESTR, SHGDNF, LPITEMIDLIST*) override { return E_NOTIMPL; }

private:
    static std::wstring nameOf(const ITEMIDLIST* item);

    std::wstring m_prefix;
    std::map<std::wstring, ULONG> m_items;
    std::wstring m_lastParsed;
    bool m_broken = false;
    LONG m_references = 0;
};

}  // namespace knav::test
