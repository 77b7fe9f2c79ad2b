#include "dialog/StringEnumerator.h"

namespace knav {

HRESULT StringEnumerator::QueryInterface(REFIID iid, void** object) {
    if (!object) {
        return E_POINTER;
    }
    if (iid != IID_IUnknown && iid != IID_IEnumString) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    *object = static_cast<IEnumString*>(this);
    AddRef();
    return S_OK;
}

ULONG StringEnumerator::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&m_references));
}

ULONG StringEnumerator::Release() {
    const LONG left = InterlockedDecrement(&m_references);
    if (left == 0) {
        delete this;
    }
    return static_cast<ULONG>(left);
}

HRESULT StringEnumerator::Next(ULONG count, LPOLESTR* strings, ULONG* fetched) {
    if (!strings || (count > 1 && !fetched)) {
        return E_POINTER;
    }
    ULONG done = 0;
    HRESULT result = S_OK;
    try {
        while (result == S_OK && done < count) {
            result = fetch(strings[done]);
            done += result == S_OK ? 1 : 0;
        }
    } catch (...) {
        result = E_OUTOFMEMORY;
    }
    if (fetched) {
        *fetched = done;
    }
    return result;
}

}  // namespace knav
