#include "dialog/CNavEnumString.h"

#include <ry/RyUt.h>

#include <algorithm>
#include <new>

#include "dialog/NameRules.h"
#include "shell/Guard.h"

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

HRESULT CNavEnumString::QueryInterface(REFIID iid, void** object) {
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

ULONG CNavEnumString::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&m_references));
}

ULONG CNavEnumString::Release() {
    const LONG left = InterlockedDecrement(&m_references);
    if (left == 0) {
        delete this;
    }
    return static_cast<ULONG>(left);
}

HRESULT CNavEnumString::Next(ULONG count, LPOLESTR* strings, ULONG* fetched) {
    if (!strings || (count > 1 && !fetched)) {
        return E_POINTER;
    }
    ULONG done = 0;
    HRESULT result = m_source ? S_OK : S_FALSE;
    try {
        while (result == S_OK && done < count) {
            result = fetchAccepted(strings[done]);
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

HRESULT CNavEnumString::fetchAccepted(LPOLESTR& text) {
    while (true) {
        ULONG fetched = 0;
        const HRESULT result = knav::guarded([&] { return m_source->Next(1, &text, &fetched); });
        if (result != S_OK || accepts(text)) {
            return result;
        }
        CoTaskMemFree(text);
    }
}

/// A text that names nothing that is there any more is passed on: the file system will say so when it is used.
bool CNavEnumString::accepts(const wchar_t* text) const {
    std::wstring full;
    Patterns patterns;
    {
        const std::scoped_lock lock(m_mutex);
        full = m_directory + text;
        patterns = m_patterns;
    }
    RyFileStatus status;
    if (patterns.empty() || !RyUt::GetFileStatus(full.c_str(), status) ||
        (status.m_attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return true;
    }
    const std::wstring name(knav::lastComponent(full));
    const std::size_t dot = name.rfind(L'.');
    return dot == std::wstring::npos ||
           std::ranges::find(patterns, L"*." + lowered(name.substr(dot + 1))) != patterns.end();
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
