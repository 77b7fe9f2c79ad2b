// The smallest host: one Open dialog.
#include <knav/knav.h>

#include <cstdio>

int wmain() {
    CNavFilterArray filters;
    filters.SetFrom(L"Drawings (*.dwg)\0*.dwg\0All files (*.*)\0*.*\0", 1);
    CNavDataArray chosen;

    CNavDialog dialog(chosen, filters);
    dialog.SetDialogCaption(L"Open Drawing");
    dialog.SetMultiSelectAllowed(1);
    if (dialog.DoModal() != IDOK) {
        return 1;
    }
    for (int i = 0; i < chosen.GetCount(); ++i) {
        std::printf("%ls\n", chosen.GetData(i)->GetText());
    }
    return 0;
}
