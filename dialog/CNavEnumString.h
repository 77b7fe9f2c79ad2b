// Suggestions for the file name field: those of another enumerator, limited to folders and the current file types.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "dialog/StringEnumerator.h"
#include "shell/ComPtr.h"

/// Filters the strings of the enumerator that it wraps.
class CNavEnumString final : public knav::StringEnumerator {
public:
    using Patterns = std::vector<std::wstring>;

    /// `source` is asked for IEnumString; without one the enumerator is empty. `directory` is where the suggestions
    /// lie. An object starts with one reference.
    CNavEnumString(IUnknown* source, std::wstring directory, Patterns patterns);

    /// Whether there is anything to enumerate.
    bool valid() const { return static_cast<bool>(m_source); }
    void setDirectory(std::wstring directory);
    void setPatterns(Patterns patterns);

    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumString** copy) override;

private:
    HRESULT fetch(LPOLESTR& text) override;
    bool accepts(const wchar_t* text) const;
    bool patternsAdmit(std::wstring_view name) const;

    knav::ComPtr<IEnumString> m_source;
    std::wstring m_directory;
    Patterns m_patterns;
    mutable std::mutex m_mutex;  // for the directory and the patterns
};
