#include <zoui/CZoUiDialog.h>

#include <zoui/CZoUiRegistryAccess.h>

#include "zoui/DialogPlace.h"
#include "zoui/SettingsKey.h"

IMPLEMENT_DYNAMIC(CZoUiDialog, CZoUiBaseDialog)

namespace {

constexpr wchar_t kPlaceValue[] = L"WindowPlacement";

CString& defaultRootKey() {
    static CString key = L"Software\\Kelvara\\Dialogs";
    return key;
}

RECT workAreaAt(const RECT& area) noexcept {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

}  // namespace

CZoUiDialog::CZoUiDialog(UINT templateId, CWnd* parent, HINSTANCE module)
    : CZoUiBaseDialog(templateId, parent, module) {
}

// --- values ------------------------------------------------------------------------------------------------------

int CZoUiDialog::GetDialogData(const CString& name, CString& value) const {
    return CZoUiRegistryAccess(GetSettingsKey()).Read(name, value);
}

int CZoUiDialog::GetDialogData(const CString& name, unsigned long& value) const {
    return CZoUiRegistryAccess(GetSettingsKey()).Read(name, value);
}

int CZoUiDialog::SetDialogData(const CString& name, const CString& value) {
    return CZoUiRegistryAccess(GetSettingsKey()).Write(name, value);
}

int CZoUiDialog::SetDialogData(const CString& name, unsigned long value) {
    return CZoUiRegistryAccess(GetSettingsKey()).Write(name, value);
}

int CZoUiDialog::DelDialogData(const CString& name) {
    return CZoUiRegistryAccess(GetSettingsKey()).Delete(name);
}

CString CZoUiDialog::GetSettingsKey() const {
    if (GetDialogName().IsEmpty()) {
        return {};
    }
    return GetRootKey() + L"\\" + zoui::settingsKeyName(GetDialogName());
}

CString CZoUiDialog::GetRootKey() const {
    return m_rootKey.IsEmpty() ? defaultRootKey() : m_rootKey;
}

CString CZoUiDialog::GetDefaultRootKey() {
    return defaultRootKey();
}

void CZoUiDialog::SetDefaultRootKey(const wchar_t* key) {
    defaultRootKey() = key;
}

// --- place -------------------------------------------------------------------------------------------------------

LRESULT CZoUiDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CZoUiBaseDialog::WindowProc(message, wParam, lParam);
    // Only now: the derived class may name the dialog as late as in its OnInitDialog.
    if (message == WM_INITDIALOG) {
        restorePlacement();
    } else if (message == WM_DESTROY && GetResult() != IDCANCEL && GetResult() != kDialogFailed) {
        savePlacement();
    }
    return result;
}

void CZoUiDialog::savePlacement() {
    const bool hasPlace = m_hWnd != nullptr && !IsIconic() && !IsZoomed() && (GetStyle() & WS_CHILD) == 0;
    if (!hasPlace || GetDialogName().IsEmpty()) {
        return;
    }
    zoui::DialogPlace place;
    GetWindowRect(&place.area);
    place.dpi = GetDpi();
    SetDialogData(kPlaceValue, zoui::toText(place));
}

void CZoUiDialog::restorePlacement() {
    CString text;
    if (m_hWnd == nullptr || (GetStyle() & WS_CHILD) != 0 || !GetDialogData(kPlaceValue, text)) {
        return;
    }
    const auto place = zoui::placeFromText(text);
    if (!place) {
        return;
    }
    // First onto its monitor, which may change the number of dots per inch and with it the size.
    const RECT room = workAreaAt(place->area);
    const RECT there = zoui::fitInto(place->area, room);
    SetWindowPos(nullptr, there.left, there.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);

    RECT area;
    GetWindowRect(&area);
    SIZE size{area.right - area.left, area.bottom - area.top};
    if ((GetStyle() & WS_THICKFRAME) != 0) {
        size = zoui::sizeAtDpi(*place, GetDpi());
    }
    const RECT wanted{place->area.left, place->area.top, place->area.left + size.cx, place->area.top + size.cy};
    const RECT fitted = zoui::fitInto(wanted, room);
    SetWindowPos(nullptr, fitted.left, fitted.top, fitted.right - fitted.left, fitted.bottom - fitted.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}
