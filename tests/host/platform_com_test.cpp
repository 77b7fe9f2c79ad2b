// The COM side of a command target: what fails there, and what is left when it ends first.
#include <platform/CCmdTarget.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

class Target : public CCmdTarget, public IPersist {
public:
    bool m_throws = false;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override { return ExternalQueryInterface(iid, object); }
    STDMETHODIMP_(ULONG) AddRef() override { return ExternalAddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return ExternalRelease(); }
    STDMETHODIMP GetClassID(CLSID*) override { return E_NOTIMPL; }

protected:
    IUnknown* GetInterfaceHook(REFIID iid) override {
        if (m_throws) {
            throw std::runtime_error("hook");
        }
        return IsEqualIID(iid, IID_IPersist) ? static_cast<IPersist*>(this) : nullptr;
    }
};

TEST(ComIdentity, FailingHookIsAFailedQuery) {
    Target target;
    target.m_throws = true;
    void* found = &target;
    EXPECT_EQ(target.ExternalQueryInterface(IID_IPersist, &found), E_UNEXPECTED);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(target.ExternalQueryInterface(IID_IPersist, nullptr), E_POINTER);
}

TEST(ComIdentity, OutlivesAnObjectThatItsOwnerDeletes) {
    auto target = std::make_unique<Target>();
    target->EnableAutomation();
    IDispatch* const dispatch = target->GetIDispatch(TRUE);
    target.reset();
    void* found = nullptr;
    EXPECT_EQ(dispatch->QueryInterface(IID_IPersist, &found), E_NOINTERFACE);
    DISPPARAMS none{};
    EXPECT_EQ(dispatch->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr), RPC_E_DISCONNECTED);
    EXPECT_EQ(dispatch->Release(), 0u);
}

}  // namespace
