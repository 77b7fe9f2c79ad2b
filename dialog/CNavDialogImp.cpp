// Construction, the controls, and what the framework sends.
#include "dialog/CNavDialogImp.h"

#include <knav/CNavDataArray.h>
#include <knav/NavFolders.h>
#include <platform/DataExchange.h>
#include <platform/RegisteredMessage.h>
#include <platform/Resources.h>
#include <platform/ScopedErrorMode.h>

#include "dialog/DialogLook.h"
#include "resources/ids.h"
#include "shell/Guard.h"

namespace {

/// What the browser host notifies the dialog of when the view's selection changed.
constexpr unsigned kSelectionChanged = 16;

}  // namespace

const UINT CNavDialogImp::s_ownMessage = zoui::registeredMessage(L"CNavDialogImp.OwnMessage");

/// The callback through which the hosted view reports its default command.
class CNavDialogImp::NavUi final : public IKNavUI {
public:
    explicit NavUi(CNavDialogImp& owner) : m_owner(owner) {}
    STDMETHOD(QueryInterface)(REFIID iid, void** object) override {
        return m_owner.ExternalQueryInterface(iid, object);
    }
    STDMETHOD_(ULONG, AddRef)() override { return m_owner.ExternalAddRef(); }
    STDMETHOD_(ULONG, Release)() override { return m_owner.ExternalRelease(); }
    STDMETHOD(OnDefaultCommand)() override {
        // The view must be out of its own handler before a browse replaces it.
        m_owner.postToSelf(OwnMessage::RunOk);
        return S_OK;
    }

private:
    CNavDialogImp& m_owner;
};

BEGIN_MESSAGE_MAP(CNavDialogImp, CCmdTarget)
ON_CONTROL(CBN_SELENDOK, IDC_KNAV_LOOK_IN, &CNavDialogImp::OnLookInSelEnd)
ON_CONTROL(CBN_SELENDCANCEL, IDC_KNAV_LOOK_IN, &CNavDialogImp::OnLookInSelCancel)
ON_CONTROL(CBN_EDITCHANGE, IDC_KNAV_FILE_NAME, &CNavDialogImp::OnFileNameEdit)
ON_CONTROL(CBN_SELCHANGE, IDC_KNAV_FILE_NAME, &CNavDialogImp::OnFileNameSelected)
ON_CONTROL(CBN_KILLFOCUS, IDC_KNAV_FILE_NAME, &CNavDialogImp::OnFileNameComboKillFocus)
ON_CONTROL(CBN_SELENDOK, IDC_KNAV_FILE_TYPE, &CNavDialogImp::OnFileTypeSelected)
ON_CONTROL(CBN_SELENDCANCEL, IDC_KNAV_FILE_TYPE, &CNavDialogImp::OnFileTypeCancel)
ON_CONTROL(LBN_SELCHANGE, IDC_KNAV_PLACES, &CNavDialogImp::OnPlacesSelected)
ON_COMMAND(IDM_KNAV_OPEN, &CNavDialogImp::OnOpenMenuOpen)
ON_COMMAND(IDM_KNAV_OPEN_READ_ONLY, &CNavDialogImp::OnOpenMenuOpenReadOnly)
ON_COMMAND(IDM_KNAV_FIND, &CNavDialogImp::OnFind)
ON_COMMAND(IDM_KNAV_LOCATE, &CNavDialogImp::OnLocate)
ON_COMMAND(IDM_KNAV_FTP_LOCATIONS, &CNavDialogImp::OnFTPConfig)
ON_COMMAND(IDM_KNAV_ADD_TO_PLACES, &CNavDialogImp::AddToPlaces)
ON_COMMAND_RANGE(IDM_KNAV_LIST, IDM_KNAV_DETAILS, &CNavDialogImp::OnViewMode)
ON_COMMAND(IDM_KNAV_THUMBNAILS, &CNavDialogImp::OnViewMode)
ON_COMMAND_RANGE(IDM_KNAV_FAVORITE_ITEM, IDM_KNAV_FAVORITE_FOLDER, &CNavDialogImp::OnAddFavorite)
ON_COMMAND(IDM_KNAV_BACK, &CNavDialogImp::CmdPrevious)
ON_COMMAND(IDC_KNAV_BACK, &CNavDialogImp::CmdPrevious)
ON_COMMAND(IDM_KNAV_UP, &CNavDialogImp::CmdUpOneDir)
ON_COMMAND(IDC_KNAV_UP, &CNavDialogImp::CmdUpOneDir)
ON_COMMAND(IDM_KNAV_DELETE, &CNavDialogImp::CmdDelete)
ON_COMMAND(IDC_KNAV_DELETE, &CNavDialogImp::CmdDelete)
ON_COMMAND(IDM_KNAV_WEB, &CNavDialogImp::CmdWeb)
ON_COMMAND(IDC_KNAV_WEB, &CNavDialogImp::CmdWeb)
ON_COMMAND(IDM_KNAV_NEW_FOLDER, &CNavDialogImp::CmdNewFolder)
ON_COMMAND(IDC_KNAV_NEW_FOLDER, &CNavDialogImp::CmdNewFolder)
ON_COMMAND(IDM_KNAV_OPEN_LOOK_IN, &CNavDialogImp::OpenFolderCombo)
ON_COMMAND(IDM_KNAV_REFRESH, &CNavDialogImp::OnRefresh)
ON_COMMAND(IDM_KNAV_FILE_NAME, &CNavDialogImp::OnFocusFileName)
END_MESSAGE_MAP()

CNavDialogImp::CNavDialogImp(CNavDataArray& data, CNavFilterArray& filters, UINT idd, CNavDialog& facade)
    : m_facade(facade), m_data(data), m_filters(filters), m_templateId(idd), m_navUi(std::make_unique<NavUi>(*this)) {
    EnableAutomation();
    m_fileName.SetContext(this);
    m_places.SetHost(this);
    m_browser.SetListCtrl(m_listInUse);
    m_browser.SetBrowseOwner(this);
    m_toolsButton.SetToolButton(1);
    m_viewsButton.SetToolButton(1);
    m_toolsButton.SetMenuSource(this);
    m_viewsButton.SetMenuSource(this);
    m_okButton.SetMenuSource(this);
}

CNavDialogImp::~CNavDialogImp() {
    closeView();
    m_browser.SetBrowseOwner(nullptr);
}

IUnknown* CNavDialogImp::GetInterfaceHook(REFIID iid) {
    return iid == IID_IKNavUI ? m_navUi.get() : CCmdTarget::GetInterfaceHook(iid);
}

INT_PTR CNavDialogImp::runModal() {
    resetRun();
    wchar_t directory[MAX_PATH + 1];
    const DWORD length = GetCurrentDirectoryW(MAX_PATH + 1, directory);
    const ScopedErrorMode quiet;
    const INT_PTR result = m_facade.CZoUiDialog::DoModal();
    if (result != IDOK && length > 0 && length <= MAX_PATH) {
        SetCurrentDirectoryW(directory);
    }
    return result;
}

/// The dialog may run more than once; each run starts afresh.
void CNavDialogImp::resetRun() {
    m_data.RemoveAllData();
    m_policies = {};
    m_currentFilter = &m_noFilter;  // the host may have other file types by now
    m_fileTypeInUse = -1;
    m_browser.SetCurrentFilter(nullptr);
    m_browser.SetCurrentObjectID(nullptr);
    m_started = false;
    m_ok.closing = false;
    m_fileNameEditDirty = false;
    m_nameCameFromSelection = false;
    m_placesListDirty = false;
    m_currentPlace.Empty();
    m_newFolder = {};
}

/// OLE ends with this object, after the folders and views that it holds.
void CNavDialogImp::initializeOle() {
    if (!m_ole) {
        m_ole.emplace();
    }
}

void CNavDialogImp::DoDataExchange(CDataExchange* exchange) {
    const std::pair<int, CWnd*> controls[] = {
        {IDC_KNAV_PLACES, &m_places},
        {IDC_KNAV_PLACES_LABEL, &m_placesLabel},
        {IDC_KNAV_LOOK_IN_LABEL, &m_lookInLabel},
        {IDC_KNAV_LOOK_IN, &m_lookIn},
        {IDC_KNAV_BACK, &m_backButton},
        {IDC_KNAV_UP, &m_upButton},
        {IDC_KNAV_WEB, &m_webButton},
        {IDC_KNAV_REFRESH, &m_refreshButton},
        {IDC_KNAV_DELETE, &m_deleteButton},
        {IDC_KNAV_NEW_FOLDER, &m_newFolderButton},
        {IDC_KNAV_VIEWS, &m_viewsButton},
        {IDC_KNAV_TOOLS, &m_toolsButton},
        {IDC_KNAV_VIEW, &m_buddy},
        {IDC_KNAV_FILE_NAME_LABEL, &m_fileNameLabel},
        {IDC_KNAV_FILE_NAME, &m_fileName},
        {IDC_KNAV_FILE_TYPE_LABEL, &m_fileTypeLabel},
        {IDC_KNAV_FILE_TYPE, &m_fileType},
        {IDOK, &m_okButton},
        {IDCANCEL, &m_cancelButton},
    };
    const bool first = m_okButton.GetSafeHwnd() == nullptr;
    for (const auto& [id, control] : controls) {
        DDX_Control(exchange, id, *control);
    }
    if (first) {
        captureLayout();
        knav::givePictures(*this);
        knav::keepNamesLeftToRight(m_fileName.GetSafeHwnd());
    }
}

BOOL CNavDialogImp::PreTranslateMessage(MSG* message) {
    return m_keys.translate(*message, m_facade.GetSafeHwnd());
}

ZOUI_REPLY CNavDialogImp::OnNotifyControlChange(unsigned int id, __int64 code) {
    return m_facade.CZoUiDialog::OnNotifyControlChange(id, code);
}

ZOUI_REPLY CNavDialogImp::OnNotifyGeneric(unsigned int code, __int64 parameter) {
    if (code == kSelectionChanged) {
        postToSelf(OwnMessage::SyncSelection);
    }
    return m_facade.CZoUiDialog::OnNotifyGeneric(code, parameter);
}

/// A change of many items arrives as one notification each; they are worked off once.
void CNavDialogImp::postToSelf(OwnMessage message) {
    const unsigned bit = 1u << static_cast<unsigned>(message);
    if (!(m_postedMessages & bit) && m_facade.PostMessage(s_ownMessage, static_cast<WPARAM>(message))) {
        m_postedMessages |= bit;
    }
}

void CNavDialogImp::OnOwnMessage(OwnMessage message) {
    m_postedMessages &= ~(1u << static_cast<unsigned>(message));
    if (m_ok.running) {
        m_ok.selectionMissed = m_ok.selectionMissed || message == OwnMessage::SyncSelection;
        return;
    }
    switch (message) {
        case OwnMessage::SyncSelection:
            m_facade.OnFolderItemChange();
            m_facade.UpdateUIState();
            break;
        case OwnMessage::RunOk:
            openFromView();
            break;
        case OwnMessage::FollowLookIn:
            followLookIn();
            break;
        case OwnMessage::RestoreLookIn:
            restoreLookIn();
            break;
        case OwnMessage::RestoreFileType:
            m_fileType.SetCurSel(m_fileTypeInUse);
            break;
        case OwnMessage::ShowTypedName:
            showTypedName();
            break;
    }
}

/// What the user double-clicks is what is meant, not a name that was typed before.
void CNavDialogImp::openFromView() {
    if (m_fileName.IsFileNameComboBoxDirty() && selectedCount() > 0) {
        m_facade.OnFolderItemChange();
        m_fileName.SetFileNameComboBoxDirty(0);
    }
    m_facade.OnOK();
}

void CNavDialogImp::OnLookInSelEnd() {
    postToSelf(OwnMessage::FollowLookIn);
}

/// Moving through the dropped list moves its selection; given up, it goes back to the folder that is shown.
void CNavDialogImp::OnLookInSelCancel() {
    postToSelf(OwnMessage::RestoreLookIn);
}

void CNavDialogImp::OnFileNameComboKillFocus() {
    if (m_fileNameEditDirty) {
        postToSelf(OwnMessage::ShowTypedName);
    }
}

void CNavDialogImp::OnFileNameEdit() {
    if (!m_writingFileName) {
        m_facade.OnFileNameChange();
    }
}

void CNavDialogImp::OnFileNameSelected() {
    m_facade.OnFileNameSelectionChange();
}

void CNavDialogImp::OnFileTypeSelected() {
    m_facade.OnFilterChange();
}

/// As with the folders: a type that was only passed over is not the one in force.
void CNavDialogImp::OnFileTypeCancel() {
    postToSelf(OwnMessage::RestoreFileType);
}

void CNavDialogImp::OnDestroy() {
    closeView();
    m_completion.end();
    m_previous.clear();
    m_postedMessages = 0;
}

void CNavDialogImp::closeView() {
    m_browser.DestroyViewWindow(1);
    m_browser.SetViewOwnerWindow(nullptr, nullptr);
}

void CNavDialogImp::OnSize(int cx, int cy) {
    m_layout.apply(cx, cy);
}

void CNavDialogImp::OnGetMinMaxInfo(MINMAXINFO& info) {
    const SIZE least = m_layout.minTrack();
    info.ptMinTrackSize.x = std::max(info.ptMinTrackSize.x, least.cx);
    info.ptMinTrackSize.y = std::max(info.ptMinTrackSize.y, least.cy);
}

LRESULT CNavDialogImp::OnDeviceChange() {
    NavUpdateShellCache();
    if (!m_lookIn.GetSafeHwnd() || !m_lookIn.RefreshFolderInfo(1)) {
        SyncListToComboBox();
    }
    return 1;
}

/// The first idle moment comes with the first paint; the second one when nobody waits for anything else.
LRESULT CNavDialogImp::OnKickIdle(WPARAM, LPARAM count) {
    renameNewFolder();
    if (!m_started && count > 0) {
        finishStart();
    }
    return !m_started;
}

BOOL CNavDialogImp::OnHelpInfo(HELPINFO*) {
    if (const CString& tag = m_facade.GetHelpTag(); !tag.IsEmpty()) {
        m_facade.OnDialogHelp(tag);
    } else {
        m_facade.OnDialogHelp();
    }
    return TRUE;
}

void CNavDialogImp::OnContextMenu(CWnd*, POINT) {
}

void CNavDialogImp::saveListState(IShellView*) {
}

void CNavDialogImp::restoreListState(IShellView*) {
}

bool CNavDialogImp::findLogin(const CString&, CString& user, CString& password) {
    user.Empty();
    password.Empty();
    return false;
}
