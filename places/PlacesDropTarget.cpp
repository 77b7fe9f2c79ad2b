#include "places/PlacesDropTarget.h"

#include <atomic>

#include "data/ApiEdge.h"
#include "shell/ComPtr.h"
#include "shell/ItemList.h"

namespace knav {
namespace {

FORMATETC itemListFormat() {
    static const auto format = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(CFSTR_SHELLIDLIST));
    FORMATETC wanted{};
    wanted.cfFormat = format;
    wanted.dwAspect = DVASPECT_CONTENT;
    wanted.lindex = -1;
    wanted.tymed = TYMED_HGLOBAL;
    return wanted;
}

/// The data of an object in the form of the shell's item lists; freed at the end of the scope.
class ItemListData {
public:
    explicit ItemListData(IDataObject* object) {
        FORMATETC format = itemListFormat();
        if (FAILED(guarded([&] { return object->GetData(&format, &m_medium); })))
            m_medium = {};
        if (m_medium.tymed == TYMED_HGLOBAL && m_medium.hGlobal)
            m_items = static_cast<const CIDA*>(GlobalLock(m_medium.hGlobal));
    }
    ~ItemListData() {
        if (m_items)
            GlobalUnlock(m_medium.hGlobal);
        guardedRun([this] { ReleaseStgMedium(&m_medium); });
    }
    ItemListData(const ItemListData&) = delete;
    ItemListData& operator=(const ItemListData&) = delete;

    UINT count() const { return m_items && fits(m_items->cidl) ? m_items->cidl : 0; }
    ItemList at(UINT index) const { return ItemList::join(part(0), part(index + 1)); }

private:
    bool fits(UINT items) const {
        const SIZE_T size = GlobalSize(m_medium.hGlobal);
        if (size < sizeof(CIDA) || items > size / sizeof(UINT) || size < (items + 2) * sizeof(UINT))
            return false;
        for (UINT i = 0; i <= items; ++i) {
            if (m_items->aoffset[i] + sizeof(USHORT) > size)
                return false;
        }
        return true;
    }
    const ITEMIDLIST* part(UINT index) const {
        return reinterpret_cast<const ITEMIDLIST*>(reinterpret_cast<const BYTE*>(m_items) + m_items->aoffset[index]);
    }

    STGMEDIUM m_medium{};
    const CIDA* m_items = nullptr;
};

bool holdsItems(IDataObject* object) {
    FORMATETC format = itemListFormat();
    return object && guarded([&] { return object->QueryGetData(&format); }) == S_OK;
}

}  // namespace

class PlacesDropScope::Target final : public IDropTarget {
public:
    explicit Target(AcceptDroppedFolder accept) : m_accept(std::move(accept)) {}

    /// The list is gone: nothing is accepted any more.
    void detach() { m_accept = nullptr; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        *object = iid == IID_IUnknown || iid == IID_IDropTarget ? static_cast<IDropTarget*>(this) : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP DragEnter(IDataObject* object, DWORD, POINTL, DWORD* effect) override {
        m_wanted = atApiEdge(false, [&] { return m_accept && holdsItems(object); });
        return DragOver(0, {}, effect);
    }
    STDMETHODIMP DragOver(DWORD, POINTL, DWORD* effect) override {
        if (!effect)
            return E_INVALIDARG;
        *effect = m_wanted ? *effect & DROPEFFECT_LINK ? DROPEFFECT_LINK : *effect & DROPEFFECT_COPY : DROPEFFECT_NONE;
        return S_OK;
    }
    STDMETHODIMP DragLeave() override {
        m_wanted = false;
        return S_OK;
    }
    STDMETHODIMP Drop(IDataObject* object, DWORD, POINTL point, DWORD* effect) override {
        DragOver(0, point, effect);
        const bool taken = m_wanted && atApiEdge(false, [&] { return takeAll(object, {point.x, point.y}); });
        m_wanted = false;
        // Whatever the source would do with a moved or copied original, it stays where it is.
        if (effect && !taken)
            *effect = DROPEFFECT_NONE;
        return S_OK;
    }

private:
    ~Target() = default;

    bool takeAll(IDataObject* object, POINT screen) {
        const ItemListData items(object);
        bool taken = false;
        for (UINT i = 0; i < items.count() && m_accept; ++i)
            taken = m_accept(items.at(i).get(), screen) || taken;
        return taken;
    }

    AcceptDroppedFolder m_accept;
    bool m_wanted = false;
    std::atomic<ULONG> m_references = 1;
};

PlacesDropScope::PlacesDropScope(HWND window, AcceptDroppedFolder accept)
    : m_window(window), m_target(new Target(std::move(accept))) {
    m_registered = SUCCEEDED(RegisterDragDrop(window, m_target));
}

PlacesDropScope::~PlacesDropScope() {
    if (m_registered)
        RevokeDragDrop(m_window);
    m_target->detach();
    m_target->Release();
}

}  // namespace knav
