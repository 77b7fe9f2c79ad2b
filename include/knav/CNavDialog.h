#pragma once

#include <knav/CNavExtensionPolicy.h>
#include <knav/NavToolsMenuItem.h>
#include <knav/OkHandlerErr.h>
#include <knav/export.h>
#include <platform/Arrays.h>
#include <zoui/CZoUiDialog.h>

class CMenu;
class CNavData;
class CNavDataArray;
class CNavDialogImp;
class CNavFilter;
class CNavFilterArray;
class CNavListBox;
class CNavListCtrl;

/// The Open, Save and Browse dialog.
///
/// A host constructs one over an array that receives the chosen items and an array of file types, sets options, calls
/// DoModal() and, when that returned IDOK, reads the array. The host owns both arrays and keeps them alive as long as
/// the dialog object. To take part in what the dialog does, derive from it and override the hooks (the protected
/// virtual functions); the library always calls them through this class.
///
/// Everything runs on the thread that calls DoModal(), which the dialog initialises for OLE. Nothing here throws but
/// the constructor, which may throw std::bad_alloc; an operation that runs out of memory counts as failed. Flags are
/// ints used as booleans; operations report success as nonzero; indices are zero-based, -1 means none. An operation
/// whose control does not exist yet returns a neutral value and does nothing.
class KNAV_API CNavDialog : public CZoUiDialog, public CNavExtensionPolicy {
    DECLARE_DYNAMIC(CNavDialog)

public:
    /// `idd` is the id of a dialog template in `instance`; 0 takes the library's own template (id 131) from its
    /// resource module, and `instance` is ignored. A control that a host's template lacks is simply absent.
    CNavDialog(CNavDataArray& data, CNavFilterArray& filters, UINT idd = 0, CWnd* parent = nullptr,
               HINSTANCE instance = nullptr);
    CNavDialog(const CNavDialog&) = delete;
    CNavDialog& operator=(const CNavDialog&) = delete;
    ~CNavDialog() override;

    /// Runs the dialog: IDOK, IDCANCEL, or -1 when it could not be shown (its template is missing). After anything but
    /// IDOK the current directory of the process is what it was before. May be called again.
    INT_PTR DoModal() override;

    // --- results -----------------------------------------------------------------------------------------------

    /// The array passed to the constructor: after IDOK one item for each chosen file or folder.
    CNavDataArray& GetDataArray() const;
    /// The file types passed to the constructor.
    CNavFilterArray& GetFilterArray() const;
    /// Id of the dialog template in use: 131 when 0 was passed to the constructor.
    UINT GetIDD() const;
    /// Full path of the single chosen item; empty when there is not exactly one, or when no path can be made of its
    /// name in the folder shown.
    void GetSingleDataFullPath(CString& path);
    /// Set when the user chose "open read-only"; read it after the dialog. What the host sets stays until the user
    /// chooses OK in one way or the other. Default 0.
    int GetReadOnlySpecified() const;
    void SetReadOnlySpecified(int specified);

    // --- what the dialog is for ----------------------------------------------------------------------------------

    /// Title of the window, trimmed at both ends; at once when the window exists. Default empty.
    void GetDialogCaption(CString& caption) const;
    void SetDialogCaption(const wchar_t* caption);
    /// The dialog chooses a file to create (Save). Default 0.
    int GetCreatingFile() const;
    void SetCreatingFile(int creating);
    /// In a dialog that creates a file: ask before replacing an existing one. In one that does not: a file that does
    /// not exist is refused. Default 0.
    int GetConfirmReplace() const;
    void SetConfirmReplace(int confirm);
    /// The dialog chooses folders. Default 0.
    int GetFoldersOnly() const;
    void SetFoldersOnly(int foldersOnly);
    /// Several items may be chosen; changing it while the dialog runs shows the folder anew. Default 0.
    int GetMultiSelectAllowed() const;
    void SetMultiSelectAllowed(int allowed);
    /// Whether "open read-only" can be chosen in the menu of the OK button (default 1), or is not there at all
    /// (default 0).
    int GetReadOnlyAllowed() const;
    void SetReadOnlyAllowed(int allowed);
    int GetReadOnlyHidden() const;
    void SetReadOnlyHidden(int hidden);
    /// Caption of the OK button. Get with `raw` 0 removes the accelerator mark. Default empty: the template's own.
    void GetOkButtonText(CString& text, int raw) const;
    void SetOkButtonText(const wchar_t* text);
    /// Whether the OK button has its drop-down menu. Default 1.
    void SetOkButtonMenuExists(int exists);

    // --- names and file types ------------------------------------------------------------------------------------

    /// Extension without a dot that an initial file name without one gets: that of the given file name, or the text
    /// itself, of which the part behind its last comma counts. A typed name gets that of the file type. Default empty.
    void GetDefaultFileExtension(CString& extension) const;
    void SetDefaultFileExtension(const wchar_t* extension);
    /// Text of the file name field at start. Set takes a name, a full path (its folder becomes the start folder when
    /// no other was given) or a URL.
    void GetInitialFileName(CString& name) const;
    void SetInitialFileName(const wchar_t* name);
    /// Names whose extension belongs to no file type are accepted as typed. Default 0.
    int GetAcceptAnyFileExtension() const;
    void SetAcceptAnyFileExtension(int accept);
    /// Whether navigation extensions that were switched off on this machine are left out, of the Places list and of
    /// the folder hierarchy. Default 1.
    int GetUseRegExtensionFlags() const;
    void SetUseRegExtensionFlags(int use);
    /// Index of the chosen file type. Set acts only while the dialog is shown and the index exists.
    int GetFilterIndex() const;
    void SetFilterIndex(int index);
    /// File type used when none is forced or remembered. Default 0.
    int GetDefaultFilterIndex() const;
    void SetDefaultFilterIndex(int index);
    /// When not negative, the file type at start whatever was remembered. Default -1.
    int GetForceFilterIndex() const;
    void SetForceFilterIndex(int index);
    /// The file type the dialog starts with: forced, else remembered, else default.
    unsigned long GetInitialFilterIndex() const;
    /// The file type in force, and its first pattern (such as "*.dwg") in `extension`; never null.
    CNavFilter* GetCurrentFileExtension(CString& extension) const;

    // --- folders -------------------------------------------------------------------------------------------------

    /// Folder shown at start whatever was remembered; "Desktop" (any case) is the desktop. A folder that does not
    /// exist is not taken. Default empty.
    void GetForceInitialFolder(CString& folder) const;
    void SetForceInitialFolder(const wchar_t* folder);
    /// Folder shown when none is forced or remembered; a file's path gives its folder, one that does not exist the
    /// process's current folder. Default empty.
    void GetDefaultInitialFolder(CString& folder) const;
    void SetDefaultInitialFolder(const wchar_t* folder);
    /// The current folder in the form that is stored: a path, "Desktop", or the folder's parsing name.
    void GetCurrentFolderForPersistence(CString& folder) const;
    /// The user's documents folder. Returns nonzero on success.
    int GetPersonalFolderPath(CString& path) const;
    /// Shows the given folder. Returns nonzero on success; the view stays where it is on failure.
    int NavigateToFolder(const wchar_t* folder);
    /// Shows the current folder anew.
    void BrowseCurrentObject();
    /// Selects an entry of the Look-in list and shows its folder.
    void SetFolderComboCurSel(int index);

    // --- view and controls ---------------------------------------------------------------------------------------

    /// View mode of the list, a NavViewMode.
    unsigned int GetViewMode() const;
    void SetViewMode(unsigned int mode);
    /// The list control that takes over the shell's list. The host keeps a control of its own alive while the dialog is
    /// shown; null is ignored.
    CNavListCtrl* GetFolderListCtrl() const;
    void SetFolderListCtrl(CNavListCtrl* list);
    /// Tools menu items that are offered, bits of NavToolsMenuItem. Default all.
    unsigned int GetToolsMenuItemsPresent() const;
    void SetToolsMenuItemsPresent(unsigned int items);
    /// Position of an item in the unprepared Tools menu; -1 for any other value.
    int GetToolsMenuItemPosition(NavToolsMenuItem item) const;

    // --- places --------------------------------------------------------------------------------------------------

    /// Inserts a folder into the Places list. Returns its index, or -1 when there is no list.
    int InsertUserItemInPlaces(int index, const wchar_t* name, const wchar_t* path);
    /// Moves a row of the Places list. Returns its new index, or -1.
    int MovePlacesItem(int from, int to);
    /// Nonzero when a policy of the user hides the Places list.
    int GetNoPlacesList() const;
    /// Nonzero when the user has changed the Places list.
    int GetIsPlacesListCustomized() const;
    /// Hide FTP locations, the favourites, or all other navigation extensions, in the Places list. Default 0.
    int GetNoFTPInPlaces() const;
    void SetNoFTPInPlaces(int hide);
    int GetNoFavoritesInPlaces() const;
    void SetNoFavoritesInPlaces(int hide);
    int GetNoExtraExtensionsInPlaces() const;
    void SetNoExtraExtensionsInPlaces(int hide);

    // --- internet ------------------------------------------------------------------------------------------------

    /// URLs are returned as text and nothing is downloaded. Default 0.
    int GetNoURLFileTransfer() const;
    void SetNoURLFileTransfer(int noTransfer);
    /// URLs are refused. Default 0.
    int GetNoURLsAllowed() const;
    void SetNoURLsAllowed(int noUrls);
    /// Hide FTP locations, in the Look-in list and in the Places list. Default 0.
    int GetNoFTP() const;
    void SetNoFTP(int hide);
    /// Hide all other navigation extensions in the Look-in list. Default 0.
    int GetNoExtraExtensions() const;
    void SetNoExtraExtensions(int hide);

    // --- other operations ----------------------------------------------------------------------------------------

    /// Records the chosen items in the history of this dialog.
    void AddDataToHistory();
    /// Removes stray blanks from a typed name: at both ends, before its base name, before its extension, and with
    /// `trimBaseEnd` also between base name and dot.
    void TrimWhiteSpace(CString& name, int trimBaseEnd);
    /// The implementation object; for the library's own use.
    void* GetImpObject() const;

protected:
    // --- hooks, in the order of their slots ----------------------------------------------------------------------

    /// The user asked for help, and the dialog has no help tag (SetHelpTag).
    virtual void OnDialogHelp();

public:
    /// Write and read a value that all dialogs share. Nonzero on success.
    virtual int SetAllDialogsData(const CString& name, unsigned long value);
    virtual int SetAllDialogsData(const CString& name, const CString& value);
    virtual int GetAllDialogsData(const CString& name, unsigned long& value);
    virtual int GetAllDialogsData(const CString& name, CString& value);
    /// Looks the typed name up along the search path and puts what was found into the file name field.
    virtual void LocateFile();

protected:
    /// Name of the host product, used as a sub-key for its own extensions. Default: empties `name`, returns 0.
    virtual int GetProductName(CString& name);
    /// A download of `urls` is about to start. Return 0 to stop it. Default 1.
    virtual int BeginDownloadFiles(CStringArray& urls, CDWordArray& codes);
    /// Code word for the transfer of one URL. Default 4.
    virtual unsigned long GetDownloadActionCodes(CString& url);
    /// The user asked for help; `topic` is the dialog's help tag.
    virtual void OnDialogHelp(const wchar_t* topic);
    /// The menu is about to drop down; change it here.
    virtual void PrepareOkMenu(CMenu* menu);
    virtual void PrepareToolsMenu(CMenu* menu);
    virtual void PrepareViewsMenu(CMenu* menu);
    /// OK was chosen: bring every item into its final text. A nonzero result keeps the dialog open, and has been
    /// reported to the user.
    virtual OkHandlerErr PreprocessData(CNavDataArray& data);
    /// Joins the item's text to the current folder; the result goes into `text`.
    virtual OkHandlerErr CombineDataTextWithFolderName(CNavData* item, CString& text);
    /// Adds the extension of the file type in force to `name`, or with `replace` puts it in place of another file
    /// type's. Returns 0 when a foreign extension is left alone, else 1.
    virtual int UpdateFileExtension(CString& name, int replace);
    /// The items are final: check them. Nonzero closes the dialog.
    virtual int OnFileNameOK();
    /// A file is about to be saved into an extension's location. Return 0 to refuse.
    virtual int VerifyURLSave();
    /// A remote item was chosen. Return 0 to keep the dialog open.
    virtual int OnUrlOK();
    /// Reports the results of a transfer to the user. Nonzero when something arrived.
    virtual int ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files);
    /// Folder of the History place. Default: empties `folder`, returns 0.
    virtual int GetRecentDirectory(CString& folder);
    /// Searches the system's search path. Nonzero when found, with the full path in `found`.
    virtual int FindInSearchPath(const wchar_t* name, CString* found);
    /// Tells the user that a name was not found along the search path.
    virtual void DisplaySearchError(const wchar_t* name);
    /// Start page of the Web command.
    virtual void GetDefaultBrowserStartURL(CString& url);
    /// Shows a browser in which the user may pick a URL: nonzero with the choice in `result`. The default starts the
    /// system's web browser on `url` and returns 0.
    virtual int LaunchBrowserDialog(CString& result, const wchar_t* title, const wchar_t* okCaption,
                                    const wchar_t* url);
    /// A URL has been downloaded.
    virtual void OnURLDownloadSuccess(CString& file);
    /// The commands Locate, Find and Add to Favorites (which of its entries).
    virtual void OnDoLocate();
    virtual void OnDoFind();
    virtual void OnDoAddToFavorites(int command);

public:
    /// Makes the view read its folder again.
    virtual void Refresh();

protected:
    /// The user edited the file name, chose one from its list, or chose a file type.
    virtual void OnFileNameChange();
    virtual void OnFileNameSelectionChange();
    virtual void OnFilterChange();
    /// The selection in the view changed; the current folder changed.
    virtual void OnFolderItemChange();
    virtual void OnFolderChange();
    /// Enable and disable controls for the present state.
    virtual void UpdateUIState();
    /// A row of the Places list was chosen.
    virtual void OnPlacesChanged();

    /// What the folder hierarchy asks: the option UseRegExtensionFlags.
    int LeavesOutDisabledExtensions() const override;

    // --- framework -----------------------------------------------------------------------------------------------

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL PreTranslateMessage(MSG* message) override;
    void OnOK() override;
    void OnCancel() override;
    ZOUI_REPLY OnNotifyControlChange(unsigned int id, __int64 code) override;
    ZOUI_REPLY OnNotifyGeneric(unsigned int code, __int64 parameter) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

    void OnSysColorChange();
    void OnDestroy();
    BOOL OnHelpInfo(HELPINFO* info);
    LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);
    void OnContextMenu(CWnd* window, POINT point);
    void OnSize(UINT type, int cx, int cy);
    void OnGetMinMaxInfo(MINMAXINFO* info);
    LRESULT OnWmGetIShellBrowser(WPARAM wParam, LPARAM lParam);
    LRESULT OnWmDeviceChange(WPARAM wParam, LPARAM lParam);
    LRESULT OnImpMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend class CNavDialogImp;
    CNavDialogImp* m_imp;
};

/// The Places list of a dialog; null when `dialog` is null or not a CNavDialog.
KNAV_API CNavListBox* knaviGetPlacesList(CNavDialog* dialog);
