#include <platform/CToolTipCtrl.h>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {

// Up to the last member that every version of the control knows.
constexpr UINT kToolSize = offsetof(TTTOOLINFOW, lpReserved);

TTTOOLINFOW describe(CWnd* tool, const wchar_t* text = nullptr) noexcept {
    TTTOOLINFOW description{};
    description.cbSize = kToolSize;
    description.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    description.hwnd = ::GetParent(SafeHwnd(tool));
    description.uId = reinterpret_cast<UINT_PTR>(SafeHwnd(tool));
    description.lpszText = const_cast<wchar_t*>(text);
    return description;
}

}  // namespace

BOOL CToolTipCtrl::Create(CWnd* owner, DWORD style) {
    return CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, style | WS_POPUP, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, SafeHwnd(owner), nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* tool, const wchar_t* text) {
    const TTTOOLINFOW description = describe(tool, text);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&description)));
}

void CToolTipCtrl::UpdateTipText(const wchar_t* text, CWnd* tool) {
    const TTTOOLINFOW description = describe(tool, text);
    SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&description));
}

void CToolTipCtrl::DelTool(CWnd* tool) {
    const TTTOOLINFOW description = describe(tool);
    SendMessage(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&description));
}

CString CToolTipCtrl::GetText(CWnd* tool) const {
    wchar_t text[1024] = L"";
    const TTTOOLINFOW description = describe(tool, text);
    SendMessage(TTM_GETTEXTW, ARRAYSIZE(text), reinterpret_cast<LPARAM>(&description));
    return text;
}
