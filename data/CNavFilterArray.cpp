#include <knav/CNavFilterArray.h>

#include "data/ApiEdge.h"
#include "data/FilterText.h"

namespace {
constexpr std::size_t kListLimit = 0x7FFFFFFF;
}

CNavFilterArray::CNavFilterArray() = default;
CNavFilterArray::~CNavFilterArray() = default;

void CNavFilterArray::SetFrom(const wchar_t* list, int fullDescription) {
    knav::atApiEdge([&] {
        std::vector<wchar_t> copy = knav::copyFilterList(list, kListLimit);  // it may come from a filter of ours
        RemoveAllData();
        wchar_t* next = copy.data();
        for (__int64 tag = 1; next != nullptr; ++tag) {
            CNavFilter* const filter = AddData();
            if (filter == nullptr) {
                return;
            }
            next = filter->SetFrom(next, fullDescription);
            filter->SetTagIndex(tag);
        }
    });
}

int CNavFilterArray::Find(const wchar_t* pattern) const {
    for (int index = 0; index < GetCount(); ++index) {
        const CNavFilter* const filter = GetData(index);  // null only if the host put it in
        if (filter != nullptr && filter->Find(pattern) >= 0) {
            return index;
        }
    }
    return -1;
}

int CNavFilterArray::FindExact(const wchar_t* pattern) const {
    const int index = Find(pattern);
    return index >= 0 && GetData(index)->GetCount() == 1 ? index : -1;
}
