#include <knav/CNavFilter.h>

#include "data/ApiEdge.h"
#include "data/FilterText.h"
#include "data/NamePattern.h"
#include "data/NeverDestroyed.h"

#include <algorithm>
#include <map>

namespace {

// Keyed by the object's address.
using MultiSelectFlags = std::map<const CNavFilter*, int>;

MultiSelectFlags& multiSelectFlags() noexcept {
    return knav::neverDestroyed<MultiSelectFlags>();
}

}  // namespace

CNavFilter::CNavFilter() = default;

CNavFilter::~CNavFilter() {
    multiSelectFlags().erase(this);
}

wchar_t* CNavFilter::SetFrom(wchar_t* text, int fullDescription) {
    RemoveAll();
    m_fullDescription = fullDescription;
    return knav::atApiEdge<wchar_t*>(nullptr, [this, text]() -> wchar_t* {
        m_description = text;
        if (text == nullptr) {
            return nullptr;
        }
        const knav::FilterPair pair = knav::readFilterPair(text);
        for (const std::wstring_view pattern : knav::splitPatterns(pair.patterns)) {
            Add(pattern);
        }
        wchar_t* const next = text + pair.consumed;
        return *next != L'\0' ? next : nullptr;
    });
}

int CNavFilter::GetCount() const {
    return static_cast<int>(GetSize());
}

int CNavFilter::Find(const wchar_t* pattern) const {
    if (pattern == nullptr) {
        return -1;
    }
    for (int index = 0; index < GetCount(); ++index) {
        if (GetAt(index).CompareNoCase(pattern) == 0) {
            return index;
        }
    }
    return -1;
}

int CNavFilter::IsAllowed(const wchar_t* name) const {
    if (name == nullptr) {
        return 0;
    }
    if (IsEmpty()) {
        return 1;
    }
    return knav::atApiEdge(0, [this, name] {
        const auto matches = [name](const CString& pattern) { return knav::matchesPattern(name, pattern); };
        return std::any_of(begin(), end(), matches) ? 1 : 0;
    });
}

void CNavFilter::SetDescription(const wchar_t* description) {
    knav::atApiEdge([&] {
        m_description = CString(description);
        m_fullDescription = 0;
    });
}

void CNavFilter::SetFullDescription(const wchar_t* description) {
    knav::atApiEdge([&] {
        m_description = CString(description);
        m_fullDescription = 1;
    });
}

void CNavFilter::GetFullDescription(CString& text) const {
    text = knav::atApiEdge(CString(), [this] {
        CString shown = m_description;
        if (m_fullDescription == 0 && !IsEmpty()) {
            const wchar_t* separator = L" (";
            for (const CString& pattern : *this) {
                shown += separator;
                shown += pattern;
                separator = L", ";
            }
            shown += L')';
        }
        return shown;
    });
}

int CNavFilter::GetMultiSelectAllowed() const {
    const auto entry = multiSelectFlags().find(this);
    return entry != multiSelectFlags().end() ? entry->second : 0;
}

void CNavFilter::SetMultiSelectAllowed(int allowed) {
    knav::atApiEdge([&] { multiSelectFlags()[this] = allowed; });
}
