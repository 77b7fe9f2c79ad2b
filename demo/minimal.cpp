// The smallest host: one Open dialog.
#include <knav/knav.h>

int main() {
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
        MessageBoxW(nullptr, chosen.GetData(i)->GetText(), L"Chosen", MB_OK);
    }
    return 0;
}
