#include <knav/CNavFilterComboBox.h>

#include "data/ApiEdge.h"

#include <knav/CNavFilterArray.h>

void CNavFilterComboBox::FillWithFilterArray(CNavFilterArray& filters) {
    knav::atApiEdge([&] {
        const int remembered = GetCurSel();
        ResetContent();
        CString description;
        for (int index = 0; index < filters.GetCount(); ++index) {
            const CNavFilter* const filter = filters.GetData(index);  // null only if the host put it in
            if (filter == nullptr) {
                continue;
            }
            filter->GetFullDescription(description);
            if (!description.IsEmpty()) {
                AddString(description);
            }
        }
        const int count = GetCount();
        const int wanted = count < remembered ? count - 1 : remembered;
        if (wanted < 0 || SetCurSel(wanted) < 0) {
            SetCurSel(0);
        }
    });
}
