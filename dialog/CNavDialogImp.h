// The implementation behind CNavDialog: owns the controls and the settings of one dialog. Its work is spread over
// sources named after what they do; their rules stand beside them as functions without windows.
#pragma once

#include <knav/CNavBitmapButton.h>
#include <knav/CNavButtonMenuSource.h>
#include <knav/CNavComboButton.h>
#include <knav/CNavCommDlgBrowser.h>
#include <knav/CNavCommDlgBuddy.h>
#include <knav/CNavCommDlgView.h>
#include <knav/CNavDialog.h>
#include <knav/CNavFileNameComboBox.h>
#include <knav/CNavFilter.h>
#include <knav/CNavFilterArray.h>
#include <knav/CNavFilterComboBox.h>
#include <knav/CNavFolderComboBox.h>
#include <knav/CNavListBox.h>
#include <knav/CNavListCtrl.h>
#include <knav/CNavPathname.h>
#include <knav/CNavToolsButton.h>
#include <knav/IKNavUI.h>
#include <platform/CButton.h>
#include <platform/CCmdTarget.h>
#include <platform/CStatic.h>
#include <platform/OleScope.h>

#include <deque>
#include <memory>
#include <optional>

#include "controls/FileNameContext.h"
#include "dialog/DialogLayout.h"
#include "dialog/DialogOptions.h"
#include "places/PlacesHost.h"
#include "shell/ComPtr.h"
#include "shell/ItemList.h"
#include "view/BrowseOwner.h"

class CNavDataArray;

class CNavEnumString;

class CNavDialogImp final : public CCmdTarget,
                            public CNavButtonMenuSource,
                            public knav::BrowseOwner,
                            public knav::FileNameContext,
                            public knav::PlacesHost {
public:
    /// Work that must wait until the handler that asked for it has returned.
    enum class OwnMessage { SyncSelection, RunOk, FollowLookIn };
    static const UINT s_ownMessage;

    CNavDialogImp(CNavDataArray& data, CNavFilterArray& filters, UINT idd, CNavDialog& facade);
    ~CNavDialogImp() override;
    INT_PTR runModal();
    void initializeOle();
    void resetRun();

    // --- options (DialogOptionRules.cpp) -------------------------------------------------------------------------
    knav::DialogOptions& options() { return m_options; }
    CNavDataArray& data() { return m_data; }
    CNavFilterArray& filters() { return m_filters; }
    UINT templateId() const { return m_templateId; }
    void SetDialogCaption(const wchar_t* caption);
    void SetDefaultFileExtension(const wchar_t* text);
    void SetInitialFileName(const wchar_t* text);
    void SetForceInitialFolder(const wchar_t* text);
    void SetDefaultInitialFolder(const wchar_t* text);
    void SetOkButtonText(const wchar_t* text);
    int GetFilterIndex();
    void SetFilterIndex(int index);
    unsigned long GetInitialFilterIndex();
    void SetMultiSelectAllowed(int allowed);
    void SetFolderListCtrl(CNavListCtrl* list);
    void pushOptionsToControls();
    CNavListCtrl* folderListCtrl() const;

    CNavCommDlgBrowser& browser() { return m_browser; }
    CNavListBox& places() { return m_places; }
    CNavComboButton& okButton() { return m_okButton; }
    const knav::DialogPolicies& policies() const { return m_policies; }
    bool placesListCustomized() const { return m_placesListCustomized; }

    // --- start-up (DialogStartup.cpp) ----------------------------------------------------------------------------
    void DoDataExchange(CDataExchange* exchange);
    void InitializeDialogData();
    void FindInitialFileName(CString& name);

    // --- settings (DialogSettings.cpp) ---------------------------------------------------------------------------
    int setAllDialogsData(const CString& name, unsigned long value);
    int setAllDialogsData(const CString& name, const CString& value);
    int getAllDialogsData(const CString& name, unsigned long& value);
    int getAllDialogsData(const CString& name, CString& value);
    void SaveCurrentStates();
    void GetCurrentFolderForPersistence(CString& folder);

    // --- folders (DialogFolders.cpp) -----------------------------------------------------------------------------
    int NavigateToFolder(const wchar_t* folder);
    bool NavigateToItemList(ITEMIDLIST* folder);
    bool NavigateToDir(const CNavPathname& folder);
    void NavigateToWildCard(const CNavPathname& pattern);
    void SyncListToComboBox();
    void SetFolderComboCurSel(int index);
    void OnFolderChange();
    void AddItemToPrevious(ITEMIDLIST* folder);
    int GetPersonalFolderPath(CString& path);
    void GetCurrentFolder(CString& name);
    CNavNode* currentFolderNode() const;

    // --- names and selection (DialogSelection.cpp) ---------------------------------------------------------------
    CNavFilter* GetCurrentFileExtension(CString& extension);
    void SyncEditFieldToBrowser();
    void SyncBrowserToEditField();
    void OnFileNameChange();
    void OnFileNameSelectionChange();
    void OnFilterChange();
    void UpdateUIState();
    void Refresh();
    void setFileNameText(const CString& text);

    // --- OK (OkProcessing.cpp, OkNames.cpp, OkCommit.cpp, OkChecks.cpp) ------------------------------------------
    void OnOK();
    void OnCancel();
    OkHandlerErr PreprocessData(CNavDataArray& data);
    OkHandlerErr CombineDataTextWithFolderName(CNavData* item, CString& text);
    int UpdateFileExtension(CString& name, int replace);
    int OnFileNameOK();
    int CommitFileNameEdit();
    int VerifyURLSave();
    int OnUrlOK();
    int ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files);
    int IsExistingFolder(const CString& name);
    int ExtractDirectoryFromURL(const CString& url, CString& directory);
    int validateDrive(const CString& name);
    int validateUNC(const CString& name);
    int SendCurrentFolderToData();
    void GetSingleDataFullPath(CString& path);

    // --- history and completion (FileNameHistory.cpp, AutoCompletion.cpp) ----------------------------------------
    int AddFileNameToMRU(const CString& name);
    void AddDataToHistory();
    void LocateFile();
    int FindInSearchPath(const wchar_t* name, CString* found);
    void DisplaySearchError(const wchar_t* name);

    // --- commands and menus (DialogCommands.cpp, DialogMenus.cpp) ------------------------------------------------
    void PrepareToolsMenu(CMenu* menu);
    void PrepareViewsMenu(CMenu* menu);
    void CmdPrevious();
    void CmdUpOneDir();
    void CmdDelete();
    void CmdWeb();
    void CmdNewFolder();
    void OpenFolderCombo();
    void OnDoFind();
    void OnDoAddToFavorites(int command);
    CString GetNewFolderNameToAdd();

    // --- Places (DialogPlaces.cpp) -------------------------------------------------------------------------------
    void SavePlacesList();
    void UpdatePlacesListBox();
    void SetPlacesId(int index);
    void OnSelChangePlacesList();
    void SetCurrentPlaces(const CString& name);
    int GetDeletedExtensionsKey(CString& key);
    int InsertUserItemInPlaces(int index, const wchar_t* name, const wchar_t* path);
    int MovePlacesItem(int from, int to);

    // --- framework -----------------------------------------------------------------------------------------------
    BOOL PreTranslateMessage(MSG* message);
    void OnOwnMessage(OwnMessage message);
    LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);
    BOOL OnHelpInfo(HELPINFO* info);
    void OnContextMenu(CWnd* window, POINT point);
    ZOUI_REPLY OnNotifyControlChange(unsigned int id, __int64 code);
    ZOUI_REPLY OnNotifyGeneric(unsigned int code, __int64 parameter);
    void OnDestroy();
    void OnSize(int cx, int cy);
    void OnGetMinMaxInfo(MINMAXINFO& info);
    LRESULT OnDeviceChange();

    // CNavButtonMenuSource
    int PrepareButtonMenu(UINT buttonId, CMenu& menu) override;

    // knav::BrowseOwner
    bool enterBrowse() override;
    void leaveBrowse() override;
    void browsed(ITEMIDLIST* folder, UINT flags) override;
    void saveListState(IShellView* view) override;
    void restoreListState(IShellView* view) override;
    bool findLogin(const CString& siteName, CString& user, CString& password) override;

    // knav::PlacesHost
    bool readSharedText(const CString& name, CString& value) override;
    void savePlaces() override;
    void placesChanged() override;
    bool leavesOutDisabledExtensions() const override;
    bool isExtensionDeleted(const wchar_t* name) override;

    // knav::FileNameContext
    bool multiSelectAllowed() const override;
    CNavNode* lookInNode() const override;

protected:
    IUnknown* GetInterfaceHook(REFIID iid) override;
    DECLARE_MESSAGE_MAP()

private:
    class NavUi;

    // start-up
    void startName();
    void startFoldersOnly();
    void startAccelerators();
    void startViewMode();
    void startBrowserHost();
    void startExtensions();
    CString initialFolderText();
    void startFileTypes();
    void startFilter();
    void startButtons();
    void showSomeFolder();
    void startLookIn();
    void showInitialFolder(const CString& folder);
    void showInitialList(ITEMIDLIST* list);
    void startFileName();
    void loadFileNameHistory();
    void startPlaces();
    void startPictures();
    void captureLayout();
    void startFocus();

    // folders
    bool selectedFolderPathname(CNavPathname& folder);
    void showInLookIn(ITEMIDLIST* folder);
    void updateBackTip();
    CString historyDirectory();
    bool placeStandsFor(int row, ITEMIDLIST* folder);

    // names
    CString fileNameText();
    static bool returnFolderMode();
    void selectFileNameText();
    void refuseFileName();
    void clearStaleName();
    void setCurrentFilter(CNavFilter* filter);
    void updateExtensionForType();
    void leaveIfFocused(CWnd& control, bool staysEnabled);

    // OK
    OkHandlerErr finishItem(CNavData& item);
    void resolveShortcut(CNavData& item, CString& text);
    void classifyItem(CNavData& item, const CString& text);
    void reportNameError(OkHandlerErr error);
    void rememberName();
    void processOk();
    std::optional<CString> folderTextForNames(CNavNode* node, CString& prefix, bool& unnamed);
    int commitParsed(CNavData& item, CNavPathname& path, CNavNode* node);
    int commitUnparsed(CNavData& item, const CString& text, CNavPathname& path);
    int acceptFile(CNavData& item, CNavPathname& path, CNavNode* node);
    void enterTypedFolder(CNavPathname& folder);
    void canonicalizeSiteItem(CNavData& item);
    bool mayReplace(CNavData& item);
    bool refuseFileInUse(const CString& name);
    bool refuseMissing(CNavData& item);
    void parseOtherItems();
    void saveFileNameHistory();
    std::optional<CString> historyEntry(const CString& name);

    int GetAutoCompleteRegValue();
    void UpdateAutoCompletion();
    bool createAutoCompletion();

    // messages
    bool swallowHeldEnter(const MSG& message);
    bool keepForLabelEdit(MSG& message);
    bool translateForView(MSG& message);
    bool translateAccelerator(MSG& message);
    void postToSelf(OwnMessage message);
    void closeView();
    void OnLookInSelEnd();
    void OnFileNameEdit();
    void OnFileNameSelected();
    void OnFileTypeSelected();
    void OnOpenMenuOpen();
    void OnOpenMenuOpenReadOnly();
    void OnLocate();
    void OnRefresh();
    void OnViewMode(UINT command);
    void OnPlacesSelected();
    void renameWhenShown(const CString& name);
    knav::ItemList findInCurrentFolder(const CString& name);
    void prepareFavorites(CMenu* menu);
    void fillFavorites(CMenu& favorites);
    void OnAddFavorite(UINT command);
    int selectedCount() const;

    CNavDialog& m_facade;
    CNavDataArray& m_data;
    CNavFilterArray& m_filters;
    const UINT m_templateId;
    knav::DialogOptions m_options;
    knav::DialogPolicies m_policies;
    std::optional<zoui::OleScope> m_ole;

    CNavCommDlgBrowser m_browser;
    CNavCommDlgBuddy m_buddy;
    CNavCommDlgView m_viewWindow;
    CNavListCtrl m_listCtrl;
    CNavListCtrl* m_listInUse;
    CNavListBox m_places;
    CStatic m_placesLabel;
    CNavFolderComboBox m_lookIn;
    CStatic m_lookInLabel;
    CNavFileNameComboBox m_fileName;
    CStatic m_fileNameLabel;
    CNavFilterComboBox m_fileType;
    CStatic m_fileTypeLabel;
    CNavBitmapButton m_backButton;
    CNavBitmapButton m_upButton;
    CNavBitmapButton m_webButton;
    CNavBitmapButton m_refreshButton;
    CNavBitmapButton m_deleteButton;
    CNavBitmapButton m_newFolderButton;
    CNavToolsButton m_toolsButton;
    CNavToolsButton m_viewsButton;
    CNavComboButton m_okButton;
    CButton m_cancelButton;
    std::unique_ptr<NavUi> m_navUi;

    CNavFilter m_noFilter;
    CNavFilter m_wildcardFilter;
    CNavFilter* m_currentFilter = &m_noFilter;
    std::deque<knav::ItemList> m_previous;  // head: the folder shown; a null list is the desktop
    knav::DialogLayout m_layout;
    HACCEL m_accelerators = nullptr;

    knav::ComPtr<IAutoComplete2> m_autoComplete;
    knav::ComPtr<IUnknown> m_completionList;
    knav::ComPtr<ICurrentWorkingDirectory> m_currentDirectory;
    knav::ComPtr<CNavEnumString> m_completions;

    unsigned m_postedMessages = 0;  // a bit for each OwnMessage on its way
    bool m_inOk = false;
    bool m_closing = false;
    bool m_selectionMissed = false;
    bool m_inShellViewRegen = false;  // a browse is under way
    bool m_fileNameEditDirty = false;
    bool m_writingFileName = false;
    bool m_nameCameFromSelection = false;
    bool m_placesListDirty = false;
    bool m_placesListCustomized = false;
    bool m_enterHeldSinceStart = true;
    CString m_currentPlace;
    int m_appendCompletion = 1;
};
