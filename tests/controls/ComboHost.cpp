#include "controls/ComboHost.h"

namespace knav::test {

ComboHost::ComboHost() {
    window.CreateEx(0, nullptr, L"host", WS_OVERLAPPEDWINDOW, {0, 0, 400, 400}, nullptr, 0);
}

BOOL ComboHost::Window::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL taken = CWnd::OnCommand(wParam, lParam);
    if (!taken) {
        notified.push_back(HIWORD(wParam));
    }
    return taken;
}

std::vector<std::wstring> textsOf(const CComboBox& combo) {
    std::vector<std::wstring> texts;
    CString text;
    for (int index = 0; index < combo.GetCount(); ++index) {
        combo.GetLBText(index, text);
        texts.emplace_back(text.view());
    }
    return texts;
}

}  // namespace knav::test
