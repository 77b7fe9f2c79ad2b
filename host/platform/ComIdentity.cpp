#include "platform/ComIdentity.h"

namespace zoui {

void ComIdentity::targetEnded() noexcept {
    m_wasAutomated = m_target->m_automated;
    m_target = nullptr;
    if (!m_inFinalRelease) {
        Release();
    }
}

IUnknown* ComIdentity::interfaceOfTarget(REFIID iid) {
    const bool automated = m_target != nullptr ? m_target->m_automated : m_wasAutomated;
    if (IsEqualIID(iid, IID_IUnknown) || (automated && IsEqualIID(iid, IID_IDispatch))) {
        return this;
    }
    return m_target != nullptr ? m_target->GetInterfaceHook(iid) : nullptr;
}

STDMETHODIMP ComIdentity::QueryInterface(REFIID iid, void** object) try {
    if (object == nullptr) {
        return E_POINTER;
    }
    IUnknown* const found = interfaceOfTarget(iid);
    *object = found;
    if (found == nullptr) {
        return E_NOINTERFACE;
    }
    found->AddRef();
    return S_OK;
} catch (...) {
    *object = nullptr;
    return E_UNEXPECTED;
}

STDMETHODIMP_(ULONG) ComIdentity::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&m_count));
}

STDMETHODIMP_(ULONG) ComIdentity::Release() {
    const LONG left = InterlockedDecrement(&m_count);
    if (left > 0) {
        return static_cast<ULONG>(left);
    }
    if (m_target != nullptr) {
        m_inFinalRelease = true;
        try {
            m_target->OnFinalRelease();
        } catch (...) {
            // The releasing side is foreign code and cannot do anything about it.
        }
        m_inFinalRelease = false;
    }
    if (m_target != nullptr) {
        m_count = 1;  // it lives on elsewhere, and its end gives this reference back
    } else {
        delete this;
    }
    return 0;
}

STDMETHODIMP ComIdentity::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP ComIdentity::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info != nullptr) {
        *info = nullptr;
    }
    return DISP_E_BADINDEX;
}

STDMETHODIMP ComIdentity::GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) {
    for (UINT index = 0; ids != nullptr && index < count; ++index) {
        ids[index] = DISPID_UNKNOWN;
    }
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP ComIdentity::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    return m_target != nullptr ? DISP_E_MEMBERNOTFOUND : RPC_E_DISCONNECTED;
}

}  // namespace zoui
