// The COM side of a command target: identity, counting, and the order in which it and its references end.
#include <platform/CCmdTarget.h>
#include <platform/OleScope.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

class Target : public CCmdTarget, public IPersist {
public:
    explicit Target(int* deleted = nullptr) : m_deleted(deleted) {}
    ~Target() override {
        if (m_deleted != nullptr) {
            ++*m_deleted;
        }
    }
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

private:
    int* m_deleted;
};

template <class Interface>
Interface* query(IUnknown* object, REFIID iid) {
    void* found = nullptr;
    return SUCCEEDED(object->QueryInterface(iid, &found)) ? static_cast<Interface*>(found) : nullptr;
}

TEST(ComIdentity, IsOneForAllInterfaces) {
    Target target;
    EXPECT_EQ(target.GetIDispatch(FALSE), nullptr);
    EXPECT_EQ(query<IDispatch>(&target, IID_IDispatch), nullptr) << "not automated yet";
    target.EnableAutomation();
    IDispatch* const dispatch = target.GetIDispatch(FALSE);
    IPersist* const persist = query<IPersist>(dispatch, IID_IPersist);
    ASSERT_EQ(persist, &target);
    IUnknown* const fromPersist = query<IUnknown>(persist, IID_IUnknown);
    IUnknown* const fromDispatch = query<IUnknown>(dispatch, IID_IUnknown);
    EXPECT_EQ(fromPersist, fromDispatch);
    EXPECT_EQ(query<IStream>(dispatch, IID_IStream), nullptr);
    fromPersist->Release();
    fromDispatch->Release();
    EXPECT_EQ(persist->Release(), 1u);  // the owner's
}

TEST(ComIdentity, FailingHookIsAFailedQuery) {
    Target target;
    target.m_throws = true;
    void* found = &target;
    EXPECT_EQ(target.ExternalQueryInterface(IID_IPersist, &found), E_UNEXPECTED);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(target.ExternalQueryInterface(IID_IPersist, nullptr), E_POINTER);
}

TEST(ComIdentity, LastReleaseDeletesTheObjectOnce) {
    int deleted = 0;
    auto* const target = new Target(&deleted);
    target->AddRef();
    EXPECT_EQ(target->Release(), 1u);
    EXPECT_EQ(deleted, 0);
    target->Release();
    EXPECT_EQ(deleted, 1);
}

TEST(ComIdentity, OutlivesAnObjectThatItsOwnerDeletes) {
    auto target = std::make_unique<Target>();
    target->EnableAutomation();
    IDispatch* const dispatch = target->GetIDispatch(TRUE);
    target.reset();
    EXPECT_EQ(query<IPersist>(dispatch, IID_IPersist), nullptr);
    DISPPARAMS none{};
    EXPECT_EQ(dispatch->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr), RPC_E_DISCONNECTED);
    EXPECT_EQ(query<IDispatch>(dispatch, IID_IDispatch), dispatch);
    EXPECT_EQ(dispatch->Release(), 1u);
    EXPECT_EQ(dispatch->Release(), 0u);
}

}  // namespace
