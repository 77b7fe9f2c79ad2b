#include "support/AllocationSpy.h"

namespace {

LONG g_live = 0;

// A block counts when it is allocated under the spy (`spyed` is FALSE for one from before).
class Spy final : public IMallocSpy {
public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IMallocSpy);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP_(SIZE_T) PreAlloc(SIZE_T size) override { return size; }
    STDMETHODIMP_(void*) PostAlloc(void* block) override {
        if (block != nullptr) {
            InterlockedIncrement(&g_live);
        }
        return block;
    }
    STDMETHODIMP_(void*) PreFree(void* block, BOOL spyed) override {
        if (block != nullptr && spyed) {
            InterlockedDecrement(&g_live);
        }
        return block;
    }
    STDMETHODIMP_(void) PostFree(BOOL) override {}
    STDMETHODIMP_(SIZE_T) PreRealloc(void* block, SIZE_T size, void** newBlock, BOOL spyed) override {
        *newBlock = PreFree(block, spyed);
        return size;
    }
    STDMETHODIMP_(void*) PostRealloc(void* block, BOOL) override { return PostAlloc(block); }
    STDMETHODIMP_(void*) PreGetSize(void* block, BOOL) override { return block; }
    STDMETHODIMP_(SIZE_T) PostGetSize(SIZE_T size, BOOL) override { return size; }
    STDMETHODIMP_(void*) PreDidAlloc(void* block, BOOL) override { return block; }
    STDMETHODIMP_(int) PostDidAlloc(void*, BOOL, int actual) override { return actual; }
    STDMETHODIMP_(void) PreHeapMinimize() override {}
    STDMETHODIMP_(void) PostHeapMinimize() override {}
};

}  // namespace

void knav::test::AllocationSpy::install() noexcept {
    static Spy spy;
    CoRegisterMallocSpy(&spy);
}

LONG knav::test::AllocationSpy::live() noexcept {
    return InterlockedCompareExchange(&g_live, 0, 0);
}
