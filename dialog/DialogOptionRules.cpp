// Options whose setters have rules of their own, and pushing options to the controls that follow them.
#include <knav/CNavFilterArray.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderTexts.h"
#include "dialog/NameRules.h"
#include "shell/SiteLocation.h"
#include "shell/TextRules.h"

namespace {

/// The path in full, without a separator at its end; for a location that is not a local path, its text.
CString fullText(CNavPathname& path) {
    path.TrimSlash();
    CString text;
    path.GetFullPath(text);
    return text;
}

/// The extension that the text itself shows, without its dot.
CString extensionIn(const CString& text) {
    const auto dot = knav::extensionDot(text.view());
    return dot ? text.Mid(static_cast<int>(*dot) + 1) : CString();
}

}  // namespace

void CNavDialogImp::SetDialogCaption(const wchar_t* caption) {
    m_options.caption = CString(caption).Trim();
    if (m_facade.GetSafeHwnd()) {
        m_facade.SetWindowText(m_options.caption);
    }
}

void CNavDialogImp::SetDefaultFileExtension(const wchar_t* text) {
    CString extension;
    if (withinReach(text)) {
        CNavPathname path;
        path.Parse(text, true);
        path.GetExtension(extension);
    }
    if (extension.IsEmpty()) {  // a URL is no path, and a server that is gone is not asked
        extension = extensionIn(text);
    }
    if (extension.IsEmpty()) {
        const CString list = text;
        extension = list.Mid(list.ReverseFind(L',') + 1);
    }
    m_options.defaultFileExtension = extension;
}

void CNavDialogImp::SetInitialFileName(const wchar_t* text) {
    const knav::NetworkAnswers::Scope asked(m_ok.network);
    if (NavIsURL(text)) {
        const CString url = text;
        const int dot = url.ReverseFind(L'.');
        m_options.initialFileName = dot < 0 ? url : url.Left(dot);
    } else if (withinReach(text)) {
        CNavPathname path;
        path.Parse(text, true);
        path.GetBasename(m_options.initialFileName);
    } else {
        m_options.initialFileName = CString(knav::lastName(text));
    }
    // Only a real extension: a bare name would otherwise be appended to itself.
    if (m_options.defaultFileExtension.IsEmpty() && knav::extensionDot(CString(text).view())) {
        SetDefaultFileExtension(text);
    }
    if (m_options.forceInitialFolder.IsEmpty() && m_options.defaultInitialFolder.IsEmpty()) {
        SetDefaultInitialFolder(text);
    }
}

void CNavDialogImp::SetForceInitialFolder(const wchar_t* text) {
    if (knav::isDesktopKeyword(text)) {
        m_options.forceInitialFolder = text;
        return;
    }
    CNavPathname path;
    if (withinReach(text)) {
        path.Parse(text, false);
    }
    m_options.forceInitialFolder = fullText(path);
    if (!path.Exists() || (!path.GetIsURL() && path.GetType() != CZoUiPathname::Directory)) {
        m_options.forceInitialFolder.Empty();
    }
}

void CNavDialogImp::SetDefaultInitialFolder(const wchar_t* text) {
    if (knav::isDesktopKeyword(text)) {
        m_options.defaultInitialFolder = text;
        return;
    }
    CNavPathname path;
    if (withinReach(text)) {
        path.Parse(text, false);
    }
    if (!path.GetIsURL() && path.GetType() != CZoUiPathname::Directory) {
        CZoUiPathname parent;
        if (path.GetParent(parent)) {
            path.AssignCopy(parent);
        }
    }
    m_options.defaultInitialFolder = fullText(path);
    if (m_options.defaultInitialFolder.IsEmpty() || !path.Exists()) {
        m_options.defaultInitialFolder = knav::currentDirectory();
    }
}

void CNavDialogImp::SetOkButtonText(const wchar_t* text) {
    m_options.okButtonText = text;
    if (m_okButton.GetSafeHwnd()) {
        m_okButton.SetWindowText(text);
    }
}

int CNavDialogImp::GetFilterIndex() {
    if (m_fileType.GetSafeHwnd()) {
        m_options.filterIndex = m_fileType.GetCurSel();
    }
    return m_options.filterIndex;
}

void CNavDialogImp::SetFilterIndex(int index) {
    if (!m_fileType.GetSafeHwnd() || m_options.foldersOnly || index < 0 || index >= m_fileType.GetCount()) {
        return;
    }
    m_fileType.SetCurSel(index);
    m_options.filterIndex = index;
    useFileType(index);
    if (m_browser.GetCurrentObjectID()) {
        m_browser.BrowseCurrentObject();
    }
}

unsigned long CNavDialogImp::GetInitialFilterIndex() {
    if (m_options.forceFilterIndex >= 0) {
        return static_cast<unsigned long>(m_options.forceFilterIndex);
    }
    unsigned long remembered = 0;
    if (m_facade.GetDialogData(L"InitialFilterIndex", remembered)) {
        return remembered;
    }
    return static_cast<unsigned long>(std::max(0, m_options.defaultFilterIndex));
}

void CNavDialogImp::SetMultiSelectAllowed(int allowed) {
    m_browser.SetMultiSelectAllowed(allowed);
    m_browser.BrowseCurrentObject();
}

void CNavDialogImp::SetFolderListCtrl(CNavListCtrl* list) {
    if (list) {
        m_listInUse = list;
        m_browser.SetListCtrl(list);
    }
}

CNavListCtrl* CNavDialogImp::folderListCtrl() const {
    return m_browser.GetListCtrl();
}

void CNavDialogImp::pushOptionsToControls() {
    m_browser.SetFoldersOnly(m_options.foldersOnly);
    m_lookIn.SetNoFTP(m_options.noFtp || m_options.noUrlsAllowed);
    m_lookIn.SetNoExtraExtensions(m_options.noExtraExtensions || m_options.noUrlsAllowed);
    m_places.SetNoFTPInPlaces(m_options.noFtp || m_options.noFtpInPlaces || m_options.noUrlsAllowed);
    m_places.SetNoExtraExtensionsInPlaces(m_options.noExtraExtensionsInPlaces || m_options.noUrlsAllowed);
    m_places.SetNoFavorites(m_options.noFavoritesInPlaces != 0);
}
