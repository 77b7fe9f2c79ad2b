// The facade: options and operations that go to the implementation.
#include <knav/CNavDataArray.h>
#include <knav/CNavDialog.h>

#include "data/ApiEdge.h"
#include "dialog/CNavDialogImp.h"
#include "dialog/DialogMenus.h"
#include "dialog/NameRules.h"

// An option that is only stored, read and written under its name.
#define STORED_OPTION(Name, Type, field)     \
    Type CNavDialog::Get##Name() const {     \
        return m_imp->options().field;       \
    }                                        \
    void CNavDialog::Set##Name(Type value) { \
        m_imp->options().field = value;      \
    }

// One that controls want to know of at once.
#define PUSHED_OPTION(Name, field)          \
    int CNavDialog::Get##Name() const {     \
        return m_imp->options().field;      \
    }                                       \
    void CNavDialog::Set##Name(int value) { \
        m_imp->options().field = value;     \
        m_imp->pushOptionsToControls();     \
    }

// A text whose setter has rules of its own.
#define RULED_TEXT(Name, field)                                        \
    void CNavDialog::Get##Name(CString& text) const {                  \
        knav::atApiEdge([&] { text = m_imp->options().field; });       \
    }                                                                  \
    void CNavDialog::Set##Name(const wchar_t* text) {                  \
        knav::atApiEdge([&] { m_imp->Set##Name(text ? text : L""); }); \
    }

STORED_OPTION(ReadOnlySpecified, int, readOnlySpecified)
STORED_OPTION(CreatingFile, int, creatingFile)
STORED_OPTION(ConfirmReplace, int, confirmReplace)
STORED_OPTION(ReadOnlyAllowed, int, readOnlyAllowed)
STORED_OPTION(ReadOnlyHidden, int, readOnlyHidden)
STORED_OPTION(AcceptAnyFileExtension, int, acceptAnyFileExtension)
STORED_OPTION(UseRegExtensionFlags, int, useRegExtensionFlags)
STORED_OPTION(DefaultFilterIndex, int, defaultFilterIndex)
STORED_OPTION(ForceFilterIndex, int, forceFilterIndex)
STORED_OPTION(ToolsMenuItemsPresent, unsigned int, toolsMenuItemsPresent)
STORED_OPTION(NoURLFileTransfer, int, noUrlFileTransfer)
STORED_OPTION(NoURLsAllowed, int, noUrlsAllowed)

PUSHED_OPTION(FoldersOnly, foldersOnly)
PUSHED_OPTION(NoFTP, noFtp)
PUSHED_OPTION(NoExtraExtensions, noExtraExtensions)
PUSHED_OPTION(NoFTPInPlaces, noFtpInPlaces)
PUSHED_OPTION(NoFavoritesInPlaces, noFavoritesInPlaces)
PUSHED_OPTION(NoExtraExtensionsInPlaces, noExtraExtensionsInPlaces)

RULED_TEXT(DialogCaption, caption)
RULED_TEXT(DefaultFileExtension, defaultFileExtension)
RULED_TEXT(InitialFileName, initialFileName)
RULED_TEXT(ForceInitialFolder, forceInitialFolder)
RULED_TEXT(DefaultInitialFolder, defaultInitialFolder)

#undef STORED_OPTION
#undef PUSHED_OPTION
#undef RULED_TEXT

CNavDataArray& CNavDialog::GetDataArray() const {
    return m_imp->data();
}

CNavFilterArray& CNavDialog::GetFilterArray() const {
    return m_imp->filters();
}

UINT CNavDialog::GetIDD() const {
    return m_imp->templateId();
}

void* CNavDialog::GetImpObject() const {
    return m_imp;
}

void CNavDialog::GetSingleDataFullPath(CString& path) {
    knav::atApiEdge([&] { m_imp->GetSingleDataFullPath(path); });
}

int CNavDialog::GetMultiSelectAllowed() const {
    return m_imp->browser().GetMultiSelectAllowed();
}

void CNavDialog::SetMultiSelectAllowed(int allowed) {
    knav::atApiEdge([&] { m_imp->SetMultiSelectAllowed(allowed); });
}

unsigned int CNavDialog::GetViewMode() const {
    return m_imp->browser().GetViewMode();
}

void CNavDialog::SetViewMode(unsigned int mode) {
    m_imp->browser().SetViewMode(mode);
}

void CNavDialog::GetOkButtonText(CString& text, int raw) const {
    knav::atApiEdge([&] {
        const CString& stored = m_imp->options().okButtonText;
        text = raw ? stored : CString(knav::withoutAccelerator(stored.view()));
    });
}

void CNavDialog::SetOkButtonText(const wchar_t* text) {
    knav::atApiEdge([&] { m_imp->SetOkButtonText(text ? text : L""); });
}

void CNavDialog::SetOkButtonMenuExists(int exists) {
    m_imp->okButton().SetMenuExists(exists);
}

int CNavDialog::GetFilterIndex() const {
    return knav::atApiEdge(-1, [&] { return m_imp->GetFilterIndex(); });
}

void CNavDialog::SetFilterIndex(int index) {
    knav::atApiEdge([&] { m_imp->SetFilterIndex(index); });
}

unsigned long CNavDialog::GetInitialFilterIndex() const {
    return knav::atApiEdge(0ul, [&] { return m_imp->GetInitialFilterIndex(); });
}

CNavFilter* CNavDialog::GetCurrentFileExtension(CString& extension) const {
    knav::atApiEdge([&] { m_imp->GetCurrentFileExtension(extension); });
    return m_imp->currentFilter();
}

void CNavDialog::GetCurrentFolderForPersistence(CString& folder) const {
    knav::atApiEdge([&] { m_imp->GetCurrentFolderForPersistence(folder); });
}

int CNavDialog::GetPersonalFolderPath(CString& path) const {
    return knav::atApiEdge(0, [&] { return m_imp->GetPersonalFolderPath(path); });
}

int CNavDialog::NavigateToFolder(const wchar_t* folder) {
    return knav::atApiEdge(0, [&] { return m_imp->NavigateToFolder(folder); });
}

void CNavDialog::BrowseCurrentObject() {
    m_imp->browser().BrowseCurrentObject();
}

void CNavDialog::SetFolderComboCurSel(int index) {
    knav::atApiEdge([&] { m_imp->SetFolderComboCurSel(index); });
}

CNavListCtrl* CNavDialog::GetFolderListCtrl() const {
    return m_imp->folderListCtrl();
}

void CNavDialog::SetFolderListCtrl(CNavListCtrl* list) {
    knav::atApiEdge([&] { m_imp->SetFolderListCtrl(list); });
}

int CNavDialog::GetToolsMenuItemPosition(NavToolsMenuItem item) const {
    return knav::toolsMenuItemPosition(item);
}

int CNavDialog::InsertUserItemInPlaces(int index, const wchar_t* name, const wchar_t* path) {
    return knav::atApiEdge(-1, [&] { return m_imp->InsertUserItemInPlaces(index, name, path); });
}

int CNavDialog::MovePlacesItem(int from, int to) {
    return knav::atApiEdge(-1, [&] { return m_imp->MovePlacesItem(from, to); });
}

int CNavDialog::GetNoPlacesList() const {
    return m_imp->policies().noPlacesList;
}

int CNavDialog::GetIsPlacesListCustomized() const {
    return m_imp->placesListCustomized();
}

void CNavDialog::AddDataToHistory() {
    knav::atApiEdge([&] { m_imp->AddDataToHistory(); });
}

void CNavDialog::TrimWhiteSpace(CString& name, int trimBaseEnd) {
    knav::atApiEdge([&] { m_imp->TrimWhiteSpace(name, trimBaseEnd); });
}

CNavListBox* knaviGetPlacesList(CNavDialog* dialog) {
    if (!dialog || !dialog->IsKindOf(RUNTIME_CLASS(CNavDialog))) {
        return nullptr;
    }
    return &static_cast<CNavDialogImp*>(dialog->GetImpObject())->places();
}
