// The reference count and IUnknown of a command target; also its IDispatch, which has no members.
#pragma once

#include <platform/CCmdTarget.h>

namespace zoui {

// Lives until the target has ended and the last reference is released, whichever is later. The count includes one
// reference of the target's creator.
class ComIdentity final : public IDispatch {
public:
    explicit ComIdentity(CCmdTarget& target) noexcept : m_target(&target) {}

    void targetEnded() noexcept;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) override;

private:
    IUnknown* interfaceOfTarget(REFIID iid);

    CCmdTarget* m_target;  // null when it has ended
    LONG m_count = 1;
    bool m_wasAutomated = false;  // what was an IDispatch stays one when the target has ended
    bool m_inFinalRelease = false;
};

}  // namespace zoui
