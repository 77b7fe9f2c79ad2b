// Suggestions for the file name field: those of another enumerator, limited to folders and the current file types.
#pragma once

#include <platform/Windows.h>

#include <mutex>
#include <string>
#include <vector>

#include "shell/ComPtr.h"

/// Filters the strings of the enumerator that it wraps. Reference counted; the last Release destroys it.
class CNavEnumString final : public IEnumString {
public:
    using Patterns = std::vector<std::wstring>;

    /// `source` is asked for IEnumString; without one the enumerator is empty. `directory` is where the suggestions
    /// lie. An object starts with one reference.
    CNavEnumString(IUnknown* source, std::wstring directory, Patterns patterns);

    /// Whether there is anything to enumerate.
    bool valid() const { return static_cast<bool>(m_source); }
    void setDirectory(std::wstring directory);
    void setPatterns(Patterns patterns);

    STDMETHOD(QueryInterface)(REFIID iid, void** object) override;
    STDMETHOD_(ULONG, AddRef)() override;
    STDMETHOD_(ULONG, Release)() override;
    STDMETHOD(Next)(ULONG count, LPOLESTR* strings, ULONG* fetched) override;
    STDMETHOD(Skip)(ULONG count) override;
    STDMETHOD(Reset)() override;
    STDMETHOD(Clone)(IEnumString** copy) override;

private:
    ~CNavEnumString() = default;
    HRESULT fetchAccepted(LPOLESTR& text);
    bool accepts(const wchar_t* text) const;

    mutable std::mutex m_mutex;  // the system may complete on a thread of its own
    LONG m_references = 1;
    knav::ComPtr<IEnumString> m_source;
    std::wstring m_directory;
    Patterns m_patterns;
};
