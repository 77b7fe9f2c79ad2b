// The checks of a chosen file's drive, network location and presence.
#include <direct.h>
#include <knav/CNavDataArray.h>
#include <platform/Prompt.h>
#include <platform/ScopedErrorMode.h>
#include <platform/ScopedHandle.h>
#include <platform/Url.h>
#include <wininet.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "dialog/NameRules.h"
#include "resources/ids.h"
#include "shell/SiteLocation.h"

namespace {

/// Makes a drive current to find out whether it can be used, and goes back. The system shows no box of its own for an
/// empty drive.
bool canBeCurrent(const std::wstring& drive) {
    wchar_t previous[MAX_PATH + 1];
    const DWORD length = GetCurrentDirectoryW(MAX_PATH + 1, previous);
    const ScopedErrorMode quiet;
    const bool ready = _chdrive(drive[0] - L'A' + 1) == 0;
    if (ready && length > 0 && length <= MAX_PATH) {
        SetCurrentDirectoryW(previous);
    }
    return ready;
}

struct GuardedType {
    const wchar_t* extension;
    UINT caption;
};

/// Types whose files other programs keep open while they show them.
constexpr GuardedType kGuardedTypes[] = {{L"VMF", IDS_KNAV_DRAWING_IN_USE_TITLE},
                                         {L"VMFx", IDS_KNAV_DRAWING_IN_USE_TITLE},
                                         {L"pdf", IDS_KNAV_PDF_IN_USE_TITLE}};

bool exists(const CString& name) {
    CZoUiPathname path;
    return path.Parse(name, false) == PathErr::None && path.Exists();
}

bool isInUse(const CString& path) {
    const ScopedHandle file(
        CreateFileW(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return !file;
}

}  // namespace

int CNavDialogImp::validateDrive(const CString& name) {
    const auto drive = knav::driveOf(name.view());
    const UINT problem = drive ? knav::driveProblem(GetDriveTypeW(drive->c_str())) : 0;
    if (problem == 0 || canBeCurrent(*drive)) {
        return 1;
    }
    knav::showMessage(m_facade, problem, *drive);
    refuseFileName();
    return 0;
}

/// Whether the file system may be asked about a text without the danger of waiting for a server that is not there.
bool CNavDialogImp::withinReach(const CString& text) {
    return m_ok.network.refusal(text) == nullptr;
}

int CNavDialogImp::validateUNC(const CString& name) {
    const knav::NetworkAnswer* refusal = m_ok.network.refusalAfterLogin(m_facade.GetSafeHwnd(), name);
    if (!refusal) {
        return 1;
    }
    if (const CString message = refusal->message; !message.IsEmpty()) {
        knav::showText(m_facade, message);
    } else if (refusal->code == knav::kNetworkNameInvalid) {
        knav::showMessage(m_facade, IDS_KNAV_INVALID_NAME, name);
    } else if (refusal->code != knav::kNetworkLoginCancelled) {
        knav::showMessage(m_facade, IDS_KNAV_NETWORK_UNREACHABLE, name);
    }
    refuseFileName();
    return 0;
}

void CNavDialogImp::canonicalizeSiteItem(CNavData& item) {
    if (item.GetDataType() != NAV_DATA_FTP) {
        return;
    }
    const CString text = item.GetText();
    DWORD service = 0;
    CString server;
    CString object;
    INTERNET_PORT port = 0;
    if (text.Find(L"://") < 1 || !AfxParseURL(text, service, server, object, port)) {
        return;
    }
    if (const auto readable = knav::decodedUrl(text)) {
        item.SetText(CString(*readable));
    }
}

/// What task dialogs call the dialog.
CString CNavDialogImp::caption() {
    CString title;
    m_facade.GetWindowText(title);
    return title;
}

bool CNavDialogImp::mayReplaceAll() {
    for (int i = 0; i < m_data.GetCount(); ++i) {
        const CNavData* item = m_data.GetData(i);
        if (!item || !knav::isFileKind(*item)) {
            continue;
        }
        // What cannot be looked at may be there.
        const CString text = item->GetText();
        if (!validateUNC(text) || !mayReplace(text)) {
            return false;
        }
    }
    // Asking pumps messages: the host may have emptied the array.
    return m_data.GetCount() > 0;
}

bool CNavDialogImp::mayReplace(const CString& text) {
    // What is written is the name as it stands; without its stray blanks it may be the file that the user means.
    CString name = text;
    if (!exists(name)) {
        TrimWhiteSpace(name, 1);
        if (!exists(name)) {
            return true;
        }
    }
    if (refuseFileInUse(name)) {
        return false;
    }
    const CString question = knav::messageText(IDS_KNAV_REPLACE, name);
    if (knav::showText(m_facade, question, MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) == IDYES) {
        return true;
    }
    refuseFileName();
    return false;
}

bool CNavDialogImp::refuseFileInUse(const CString& name) {
    const CString extension = name.Mid(name.ReverseFind(L'.') + 1);
    for (const GuardedType& type : kGuardedTypes) {
        if (extension.CompareNoCase(type.extension) == 0 && isInUse(name)) {
            knav::showText(m_facade, knav::messageText(IDS_KNAV_FILE_IN_USE, name), knav::messageText(type.caption),
                           MB_OK | MB_ICONWARNING);
            return true;
        }
    }
    return false;
}

bool CNavDialogImp::refuseMissing(const CNavData& item) {
    const CNavPathname* path = item.GetPathname();
    if (!knav::isFileKind(item) || m_browser.GetMultiSelectAllowed() || (path && path->Exists())) {
        return false;
    }
    const knav::TaskDialogPair pairs[] = {{L"FeatureName", caption()}, {L"FileName", fileNameText()}};
    if (!knav::showTaskDialog(m_facade, L"Standard.FileNotFound", pairs)) {
        knav::showMessage(m_facade, IDS_KNAV_INVALID_PATH, fileNameText());
    }
    refuseFileName();
    return true;
}
