#include "places/PlacesDropTarget.h"

#include <atomic>

#include "data/ApiEdge.h"
#include "view/ShellIdList.h"

namespace knav {

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
        m_wanted = atApiEdge(false, [&] { return m_accept && object && offersShellIdList(object); });
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
        const ShellIdList dropped = shellIdListOf(object);
        bool taken = false;
        for (auto item = dropped.items.begin(); dropped.folder && item != dropped.items.end() && m_accept; ++item)
            taken = m_accept(ItemList::join(dropped.folder.get(), item->get()).get(), screen) || taken;
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
