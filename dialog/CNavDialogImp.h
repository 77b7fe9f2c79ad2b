// The implementation behind CNavDialog: owns the controls and the settings of one dialog. Its work is spread over
// sources named after what they do; their rules stand beside them as functions without windows.
#pragma once

#include <knav/CNavButtonMenuSource.h>
#include <knav/CNavDialog.h>
#include <knav/CNavFilter.h>
#include <knav/CNavFilterArray.h>
#include <knav/CNavPathname.h>
#include <knav/IKNavUI.h>
#include <platform/CCmdTarget.h>

#include <memory>
#include <optional>

#include "controls/FileNameContext.h"
#include "dialog/BackHistory.h"
#include "dialog/DialogControls.h"
#include "dialog/DialogKeys.h"
#include "dialog/DialogLayout.h"
#include "dialog/DialogOptions.h"
#include "dialog/FileNameCompletion.h"
#include "dialog/OkState.h"
#include "places/PlacesHost.h"
#include "shell/ComPtr.h"
#include "shell/ItemList.h"
#include "view/BrowseOwner.h"

class CNavDataArray;

class CNavDialogImp final : public CCmdTarget,
                            private knav::DialogControls,
                            public CNavButtonMenuSource,
                            public knav::BrowseOwner,
                            public knav::FileNameContext,
                            public knav::PlacesHost {
public:
    /// Work that must wait until the handler that asked for it has returned.
    enum class OwnMessage { SyncSelection, RunOk, FollowLookIn, RestoreLookIn, RestoreFileType, ShowTypedName };
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
    CNavFilter* currentFilter() const { return m_currentFilter; }
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
    void SetFileNameEditDirty(int dirty) { m_fileNameEditDirty = dirty != 0; }
    void SetInShellViewRegen(int regenerating) { m_inShellViewRegen = regenerating != 0; }
    void SetPlacesListDirty(int dirty) { m_placesListDirty = dirty != 0; }
    OkHandlerErr PreprocessData(CNavDataArray& data);
    OkHandlerErr CombineDataTextWithFolderName(CNavData* item, CString& text);
    int UpdateFileExtension(CString& name, int replace);
    int OnFileNameOK();
    int CommitFileNameEdit();
    int VerifyURLSave();
    int OnUrlOK();
    int ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files);
    int IsExistingFolder(const CString& name);
    int ReplaceEnvironmentStrings(CString& text);
    void TrimWhiteSpace(CString& name, int trimBaseEnd);
    int ExtractDirectoryFromURL(const CString& url, CString& directory);
    int validateDrive(const CString& name);
    int validateUNC(const CString& name);
    bool withinReach(const CString& text);
    int SendCurrentFolderToData();
    void GetSingleDataFullPath(CString& path);

    // --- history and completion (FileNameHistory.cpp) ----------------------------------------------------------
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
    void CreateNewWebFolder(const CString& name);
    void OpenFolderCombo();
    void AddToPlaces();
    void OnFTPConfig();
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
    ITEMIDLIST* shownFolder() const override;

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
    void captureLayout();
    void startFocus();
    void finishStart();

    // folders
    bool selectedFolderPathname(CNavPathname& folder);
    void showInLookIn(ITEMIDLIST* folder);
    void SetPreviousTipText();
    bool goOrTell(ITEMIDLIST* folder);
    void followLookIn();
    void restoreLookIn();
    void showTypedName();
    CString GetHistoryDirectoryForCurrentDialog();
    bool placeStandsFor(int row, ITEMIDLIST* folder);

    // names
    CString fileNameText();
    void selectFileNameText();
    void refuseFileName();
    void clearStaleName();
    void useFileType(int index);
    void updateExtensionForType();
    void leaveIfFocused(CWnd& control, bool staysEnabled);

    // OK
    struct FolderText {
        CString text;
        CString prefix;  ///< of the site that the folder belongs to
    };
    OkHandlerErr finishItem(CNavDataArray& data, int index);
    void finishText(CNavData& item, CString& text);
    void resolveShortcut(CNavData& item, CString& text);
    void classifyItem(CNavData& item, const CString& text);
    void reportNameError(OkHandlerErr error);
    bool firstIsFolder();
    void refuseFolderShown();
    void rememberName();
    void processOk();
    std::optional<FolderText> folderTextForNames(CNavNode* node);
    int commitParsed(CNavData& item, CNavPathname& path, CNavNode* node);
    int commitUnparsed(CNavData& item, const CString& text, bool inSite);
    int acceptFile(CNavData& item, CNavPathname& path, CNavNode* node);
    void enterTypedFolder(CNavPathname& folder);
    void leaveTypedFolder(bool typed);
    void canonicalizeSiteItem(CNavData& item);
    CString caption();
    bool mayReplaceAll();
    bool mayReplace(const CString& text);
    bool refuseFileInUse(const CString& name);
    bool refuseMissing(const CNavData& item);
    void finishPaths(int first);
    void saveFileNameHistory();
    std::optional<CString> historyEntry(const CString& name);

    int GetAutoCompleteRegValue();
    void UpdateAutoCompletion();

    // messages
    void postToSelf(OwnMessage message);
    void closeView();
    void openFromView();
    void OnLookInSelEnd();
    void OnLookInSelCancel();
    void OnFileNameComboKillFocus();
    void OnFileNameEdit();
    void OnFileNameSelected();
    void OnFileTypeSelected();
    void OnFileTypeCancel();
    void OnOpenMenuOpen();
    void OnOpenMenuOpenReadOnly();
    void OnFind();
    void OnLocate();
    void OnRefresh();
    void OnFocusFileName();
    void OnViewMode(UINT command);
    void OnPlacesSelected();
    void createFolderOnDisk(const CString& name);
    void renameWhenShown(const CString& name);
    void renameNewFolder();
    bool beginRename(const CString& name);
    knav::ItemList FindIdInCurrentFolder(const CString& name);
    void OnAddFavorite(UINT command);
    int selectedCount() const;

    CNavDialog& m_facade;
    CNavDataArray& m_data;
    CNavFilterArray& m_filters;
    const UINT m_templateId;
    knav::DialogOptions m_options;
    knav::DialogPolicies m_policies;

    std::unique_ptr<NavUi> m_navUi;

    CNavFilter m_noFilter;
    CNavFilter m_wildcardFilter;
    CNavFilter* m_currentFilter = &m_noFilter;
    int m_fileTypeInUse = -1;  // while the list is dropped down it may show another
    knav::BackHistory m_previous;
    knav::DialogLayout m_layout;
    knav::DialogKeys m_keys{*this};

    knav::FileNameCompletion m_completion;

    unsigned m_postedMessages = 0;  // a bit for each OwnMessage on its way
    knav::OkState m_ok;
    bool m_started = false;           // painted, and what could wait until then is done
    bool m_inShellViewRegen = false;  // a browse is under way
    bool m_fileNameEditDirty = false;
    bool m_writingFileName = false;
    bool m_nameCameFromSelection = false;
    bool m_placesListDirty = false;
    bool m_placesListCustomized = false;
    CString m_currentPlace;
    struct NewFolder {
        CString name;
        ULONGLONG until = 0;
        HWND focus = nullptr;
    } m_newFolder;  // waits to be shown and named until that time, or until focus or selection change
    int m_appendCompletion = 1;
};
