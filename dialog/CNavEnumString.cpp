#include "dialog/CNavEnumString.h"

#include <ry/RyUt.h>

#include <algorithm>

#include "shell/Guard.h"
#include "shell/SiteLocation.h"

namespace {

std::wstring lowered(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

}  // namespace

CNavEnumString::CNavEnumString(IUnknown* source, std::wstring directory, Patterns patterns) {
    m_source = knav::ComPtr<IUnknown>::retain(source).as<IEnumString>();
    setDirectory(std::move(directory));
    setPatterns(std::move(patterns));
}

void CNavEnumString::setDirectory(std::wstring directory) {
    if (!directory.ends_with(L'\\')) {
        directory += L'\\';
    }
    const std::scoped_lock lock(m_mutex);
    m_directory = std::move(directory);
}

void CNavEnumString::setPatterns(Patterns patterns) {
    std::ranges::transform(patterns, patterns.begin(), lowered);
    const std::scoped_lock lock(m_mutex);
    m_patterns = std::move(patterns);
}

HRESULT CNavEnumString::fetch(LPOLESTR& text) {
    while (m_source) {
        ULONG fetched = 0;
        const HRESULT result = knav::guarded([&] { return m_source->Next(1, &text, &fetched); });
        if (result == S_OK && !text) {
            return E_UNEXPECTED;
        }
        if (result != S_OK || accepts(text)) {
            return result;
        }
        CoTaskMemFree(text);
    }
    return S_FALSE;
}

/// The disk is asked only about what its name does not settle: whether it is a folder. A text that names nothing that
/// is there any more is passed on: the file system will say so when it is used.
bool CNavEnumString::accepts(const wchar_t* text) const {
    std::wstring full;
    {
        const std::scoped_lock lock(m_mutex);
        full = m_directory + text;
        if (m_patterns.empty() || patternsAdmit(knav::lastName(full))) {
            return true;
        }
    }
    RyFileStatus status;
    return !RyUt::GetFileStatus(full.c_str(), status) || (status.m_attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// A name without an extension may be anything.
bool CNavEnumString::patternsAdmit(std::wstring_view name) const {
    const std::size_t dot = name.rfind(L'.');
    if (dot == std::wstring_view::npos) {
        return true;
    }
    const std::wstring ofExtension = L"*." + lowered(std::wstring(name.substr(dot + 1)));
    return std::ranges::any_of(m_patterns, [&ofExtension](const std::wstring& pattern) {
        return pattern == ofExtension || pattern == L"*.*" || pattern == L"*";
    });
}

HRESULT CNavEnumString::Skip(ULONG count) {
    return m_source ? knav::guarded([&] { return m_source->Skip(count); }) : S_FALSE;
}

HRESULT CNavEnumString::Reset() {
    return m_source ? knav::guarded([&] { return m_source->Reset(); }) : S_OK;
}

HRESULT CNavEnumString::Clone(IEnumString** copy) {
    return m_source ? knav::guarded([&] { return m_source->Clone(copy); }) : E_NOTIMPL;
}
