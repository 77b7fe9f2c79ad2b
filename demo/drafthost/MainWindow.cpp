#include "MainWindow.h"

#include <knav/CNavFilterArray.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>
#include <platform/Resources.h>

#include <optional>
#include <string>

#include "DraftDialog.h"
#include "FileTypes.h"
#include "OptionsDialog.h"

BEGIN_MESSAGE_MAP(MainWindow, CZoUiDialog)
ON_COMMAND_RANGE(ID_OPEN, ID_BROWSE, &MainWindow::onShowDialog)
ON_COMMAND(ID_OPTIONS, &MainWindow::onOptions)
ON_COMMAND(ID_COPY_LOG, &MainWindow::onCopyLog)
ON_COMMAND(ID_CLEAR_LOG, &MainWindow::onClearLog)
ON_COMMAND(ID_ABOUT, &MainWindow::onAbout)
ON_COMMAND(ID_EXIT, &MainWindow::OnClose)
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace {

const wchar_t* nameOfResult(INT_PTR result) {
    return result == IDOK ? L"IDOK" : result == IDCANCEL ? L"IDCANCEL" : L"-1: the dialog could not be shown";
}

}  // namespace

MainWindow::MainWindow(const HostOptions& options) : CZoUiDialog(IDD_HOST) {
    SetDialogName(L"drafthost");
    for (HostCommand& command : m_commands) {
        command.options.forceInitialFolder = options.folder;
        command.options.defaultInitialFolder = options.start;
    }
}

BOOL MainWindow::OnInitDialog() {
    CZoUiDialog::OnInitDialog();
    RECT window{};
    GetWindowRect(&window);
    m_smallest = {window.right - window.left, window.bottom - window.top};
    m_smallestAtDpi = static_cast<int>(GetDpi());

    const HINSTANCE program = AfxGetInstanceHandle();
    m_keys.reset(LoadAcceleratorsW(program, MAKEINTRESOURCEW(IDR_HOST)));
    for (const int size : {ICON_SMALL, ICON_BIG}) {
        const int width = GetSystemMetricsForDpi(size == ICON_BIG ? SM_CXICON : SM_CXSMICON, GetDpi());
        const HANDLE icon = LoadImageW(program, MAKEINTRESOURCEW(IDI_HOST), IMAGE_ICON, width, width, LR_SHARED);
        SendMessage(WM_SETICON, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(icon));
    }
    m_items.makeColumns();
    m_logPane.SetLimitText(0);
    return TRUE;
}

void MainWindow::DoDataExchange(CDataExchange* exchange) {
    CZoUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_ITEMS, m_items);
    DDX_Control(exchange, IDC_LOG, m_logPane);
}

BOOL MainWindow::PreTranslateMessage(MSG* message) {
    // The log would close the window with it, as a text field of several lines does in every dialog.
    if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE) {
        return TRUE;
    }
    return TranslateAcceleratorW(m_hWnd, m_keys.get(), message) || CZoUiDialog::PreTranslateMessage(message);
}

// --- layout ------------------------------------------------------------------------------------------------------

// The list grows to the right, the log to the right and down.
void MainWindow::OnSize(UINT type, int width, int height) {
    CZoUiDialog::OnSize(type, width, height);
    if (m_logPane.m_hWnd == nullptr || type == SIZE_MINIMIZED) {
        return;
    }
    RECT margin{0, 0, 7, 7};
    MapDialogRect(m_hWnd, &margin);
    for (CWnd* pane : {static_cast<CWnd*>(&m_items), static_cast<CWnd*>(&m_logPane)}) {
        RECT place{};
        pane->GetWindowRect(&place);
        ScreenToClient(&place);
        place.right = width - margin.right;
        if (pane == &m_logPane) {
            place.bottom = height - margin.bottom;
        }
        pane->MoveWindow(place);
    }
    m_items.fitColumns();
}

void MainWindow::OnGetMinMaxInfo(MINMAXINFO* limits) {
    CZoUiDialog::OnGetMinMaxInfo(limits);
    if (m_smallestAtDpi != 0) {
        const auto scaled = [this](LONG size) { return MulDiv(size, static_cast<int>(GetDpi()), m_smallestAtDpi); };
        limits->ptMinTrackSize = {scaled(m_smallest.cx), scaled(m_smallest.cy)};
    }
}

// A text to read and copy from looks like one, although it cannot be changed.
HBRUSH MainWindow::OnCtlColor(HDC dc, CWnd* child, UINT type) {
    if (child != &m_logPane) {
        return CZoUiDialog::OnCtlColor(dc, child, type);
    }
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(COLOR_WINDOW));
    return GetSysColorBrush(COLOR_WINDOW);
}

// --- commands ----------------------------------------------------------------------------------------------------

void MainWindow::onShowDialog(UINT id) {
    m_latest = static_cast<int>(id - ID_OPEN);
    const HostCommand& command = m_commands[static_cast<std::size_t>(m_latest)];
    m_log.line(command.name + L":");

    CNavDataArray items;
    CNavFilterArray types;
    setFileTypes(types, command.options.fileTypes);
    std::optional<FileDialogAllowReturnFolderEnabler> mayReturnFolder;
    if (command.options.mayReturnFolder) {
        mayReturnFolder.emplace();
    }
    DraftDialog dialog(items, types, command.options, m_log, this);
    dialog.SetDialogName(command.dialogName);
    const INT_PTR result = dialog.DoModal();
    logResult(command, result, items, dialog.GetReadOnlySpecified() != 0);
    m_items.show(items);
}

void MainWindow::onOptions() {
    OptionsDialog(m_commands, m_latest, this).DoModal();
}

void MainWindow::onAbout() {
    MessageBox(
        L"drafthost shows the dialogs of the file navigation library knav.\n\n"
        L"Its File menu opens them as a drafting program would, Options sets what a program can set, and the "
        L"log tells which of the program's functions the dialog called.",
        L"About drafthost", MB_OK | MB_ICONINFORMATION);
}

// --- log ---------------------------------------------------------------------------------------------------------

void MainWindow::append(const CString& text) {
    const int end = m_logPane.GetWindowTextLength();
    m_logPane.SetSel(end, end, TRUE);
    m_logPane.ReplaceSel(text);
}

void MainWindow::logResult(const HostCommand& command, INT_PTR result, const CNavDataArray& items, bool readOnly) {
    m_log.line(command.name + L" ended with " + nameOfResult(result) + (readOnly ? L", read-only" : L""));
    for (int i = 0; i < items.GetCount(); ++i) {
        const CNavData& item = *items.GetData(i);
        const CString kind = std::to_wstring(item.GetDataType());
        m_log.line(L"    item " + CString(std::to_wstring(i)) + L": kind " + kind + L", " + item.GetText());
    }
    m_log.line(L"");
}

void MainWindow::onCopyLog() {
    m_logPane.SetSel(0, -1, TRUE);
    m_logPane.Copy();
    m_logPane.SetSel(-1, 0);
}

void MainWindow::onClearLog() {
    m_logPane.SetWindowText(L"");
    m_log.startOver();
    CNavDataArray nothing;
    m_items.show(nothing);
}
