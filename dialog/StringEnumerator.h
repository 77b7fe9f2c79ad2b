// What the enumerators of texts have in common.
#pragma once

#include <platform/Windows.h>

namespace knav {

/// An IEnumString that starts with one reference; the last Release destroys it. The system may complete on a thread of
/// its own, so the count is safe between threads; what a derived class holds must be as well.
class StringEnumerator : public IEnumString {
public:
    StringEnumerator() = default;
    StringEnumerator(const StringEnumerator&) = delete;
    StringEnumerator& operator=(const StringEnumerator&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) final;
    ULONG STDMETHODCALLTYPE AddRef() final;
    ULONG STDMETHODCALLTYPE Release() final;
    /// Fetches one by one, as many as there are. S_FALSE at the end.
    HRESULT STDMETHODCALLTYPE Next(ULONG count, LPOLESTR* strings, ULONG* fetched) final;

protected:
    virtual ~StringEnumerator() = default;
    /// The next text, of the task allocator, and S_OK; or why there is none. May throw.
    virtual HRESULT fetch(LPOLESTR& text) = 0;

private:
    LONG m_references = 1;
};

}  // namespace knav
