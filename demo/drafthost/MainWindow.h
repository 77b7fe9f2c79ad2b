// The window of the sample host: commands at the left, what the file dialog returned and called at the right.
#pragma once

#include <platform/CEdit.h>
#include <platform/GdiOwners.h>
#include <zoui/CZoUiDialog.h>

#include "HookLog.h"
#include "HostCommands.h"
#include "HostOptions.h"
#include "ItemList.h"

/// A dialog that is the program's window: DoModal() runs until it is closed.
class MainWindow : public CZoUiDialog {
public:
    explicit MainWindow(const HostOptions& options);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    // Enter and Escape belong to the buttons and menus; neither closes a main window.
    void OnOK() override {}
    void OnCancel() override {}

    void OnClose() { EndDialog(IDOK); }  // and not cancelled: the window's place is remembered
    void OnSize(UINT type, int width, int height);
    void OnGetMinMaxInfo(MINMAXINFO* limits);
    HBRUSH OnCtlColor(HDC dc, CWnd* child, UINT type);
    DECLARE_MESSAGE_MAP()

private:
    void onShowDialog(UINT id);
    void onOptions();
    void onCopyLog();
    void onClearLog();
    void onAbout();

    void append(const CString& text);
    void logResult(const HostCommand& command, INT_PTR result, const CNavDataArray& items, bool readOnly);

    std::vector<HostCommand> m_commands = standardCommands();
    int m_latest = 0;  // index of the command used last
    ItemList m_items;
    CEdit m_logPane;
    HookLog m_log{[this](const CString& text) { append(text); }};
    zoui::UniqueAccelerators m_keys;
    SIZE m_smallest{};
    int m_smallestAtDpi = 0;
};
