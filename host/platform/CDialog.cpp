#include <platform/CDialog.h>

#include <platform/Resources.h>

#include "platform/CommonControls.h"
#include "platform/ModalOwner.h"
#include "platform/WindowBinding.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

bool isInput(UINT message) noexcept {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

// Whether a message can have changed anything that idle work looks at.
class IdleMessages {
public:
    bool contains(const MSG& message) noexcept {
        constexpr UINT kCaretBlink = 0x0118;
        switch (message.message) {
            case WM_PAINT:
            case kCaretBlink:
                return false;
            case WM_MOUSEMOVE:
            case WM_NCMOUSEMOVE: {
                // The system repeats the last mouse move without one, for instance when a window below moved.
                const bool moved = message.pt.x != m_lastPoint.x || message.pt.y != m_lastPoint.y;
                m_lastPoint = message.pt;
                return moved;
            }
            default:
                return true;
        }
    }

private:
    POINT m_lastPoint{-1, -1};
};

}  // namespace

CDialog::CDialog(UINT templateId, CWnd* parent, HINSTANCE module) noexcept
    : m_templateId(templateId), m_parent(parent), m_module(module) {
}

CDialog::~CDialog() {
    DestroyWindow();
}

void CDialog::InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent) noexcept {
    m_template = dialogTemplate;
    m_parent = parent;
}

const DLGTEMPLATE* CDialog::findTemplate() noexcept {
    if (m_template != nullptr) {
        return m_template;
    }
    const wchar_t* const name = MAKEINTRESOURCEW(m_templateId);
    if (m_module == nullptr) {
        m_module = AfxFindResourceHandle(name, RT_DIALOG);
    }
    const HRSRC resource = FindResourceW(m_module, name, RT_DIALOG);
    const HGLOBAL loaded = resource != nullptr ? LoadResource(m_module, resource) : nullptr;
    return loaded != nullptr ? static_cast<const DLGTEMPLATE*>(LockResource(loaded)) : nullptr;
}

bool CDialog::createWindow(const DLGTEMPLATE* dialogTemplate, HWND owner) {
    zoui::registerCommonControls();
    const zoui::CreationHook binding(*this);
    return CreateDialogIndirectParamW(m_module != nullptr ? m_module : AfxGetInstanceHandle(), dialogTemplate, owner,
                                      dialogProcedure, 0) != nullptr;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    m_templateId = templateId;
    m_template = nullptr;
    return CreateIndirect(findTemplate(), parent);
}

BOOL CDialog::CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent) {
    m_parent = parent;
    return dialogTemplate != nullptr && m_hWnd == nullptr && createWindow(dialogTemplate, SafeHwnd(parent));
}

INT_PTR CDialog::DoModal() {
    const DLGTEMPLATE* const dialogTemplate = findTemplate();
    if (dialogTemplate == nullptr || m_hWnd != nullptr) {
        return kDialogFailed;
    }
    m_result = kDialogFailed;
    m_modal = true;
    zoui::ModalOwner owner(SafeHwnd(m_parent));
    if (createWindow(dialogTemplate, owner.window())) {
        runModalLoop();
    }
    m_modal = false;
    // The owner first: otherwise another program's window would be activated in the place of the dialog.
    owner.enable();
    if (m_hWnd != nullptr && GetActiveWindow() == m_hWnd) {
        SetActiveWindow(owner.window());
    }
    DestroyWindow();
    owner.restoreFocus();
    return m_result;
}

void CDialog::runModalLoop() {
    IdleMessages idleMessages;
    bool shown = IsWindowVisible() != FALSE;
    bool idle = true;
    LPARAM idleCalls = 0;
    while (running()) {
        MSG message{};
        if (idle && !PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            // Shown when the start-up messages are done, so that it appears in one piece.
            if (!shown) {
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                shown = true;
            }
            idle = SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCalls++) != 0;
            continue;
        }
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got == 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
        }
        if (got <= 0) {
            return;
        }
        if (!WalkPreTranslateTree(m_hWnd, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (idleMessages.contains(message)) {
            idle = true;
            idleCalls = 0;
        }
    }
}

void CDialog::EndDialog(INT_PTR result) {
    m_result = result;
    m_modal = false;
    PostMessage(WM_NULL);  // the loop looks up from waiting
}

INT_PTR CALLBACK CDialog::dialogProcedure(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;  // everything was offered to the object before it came here
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_INITDIALOG ? initialise() : CWnd::WindowProc(message, wParam, lParam);
}

LRESULT CDialog::initialise() try { return OnInitDialog(); } catch (...) {
    OutputDebugStringW(L"zoui: OnInitDialog threw; the dialog ends\n");
    EndDialog(kDialogFailed);
    return FALSE;
}

BOOL CDialog::PreTranslateMessage(MSG* message) {
    return CWnd::PreTranslateMessage(message) || (isInput(message->message) && IsDialogMessage(message));
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}
