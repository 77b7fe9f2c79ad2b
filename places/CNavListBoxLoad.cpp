// Filling the list: the default order, the stored order, what host programs and extensions add.
#include <knav/CNavExtension.h>
#include <knav/CNavListBox.h>
#include <knav/NavNames.h>
#include <platform/GdiOwners.h>

#include "places/AddedPlaces.h"
#include "places/PlaceRecord.h"
#include "places/PlacesDropTarget.h"
#include "places/PlacesHost.h"
#include "places/PlacesRules.h"
#include "resources/ids.h"
#include "shell/ExtensionItems.h"
#include "shell/RegisteredExtensions.h"
#include "shell/TextRules.h"

using namespace knav;

namespace {

std::unique_ptr<PlaceRecord> makeRecord(const wchar_t* name, PlacesItemType type, unsigned flags,
                                        const wchar_t* extensionName) {
    auto place = std::make_unique<PlaceRecord>();
    place->name = name;
    place->type = type;
    place->flags = flags;
    place->extensionName = extensionName;
    return place;
}

CString textOf(UINT id, HINSTANCE module) {
    CString text;
    if (module)
        text.LoadString(module, id);
    else
        text.LoadString(id);
    return text;
}

}  // namespace

// --- one row ---------------------------------------------------------------------------------------------------

int CNavListBox::AddItem(const wchar_t* name, UINT bitmapId, const wchar_t* bitmapName, HBITMAP bitmap,
                         const wchar_t* displayText, UINT tipId, PlacesItemType type, unsigned flags,
                         const wchar_t* extensionName, HINSTANCE module) {
    const zoui::UniqueBitmap owned(bitmap);
    if (const int present = FindItem(name); present >= 0)
        return present;
    const wchar_t* resource = bitmapId != 0 ? MAKEINTRESOURCEW(bitmapId) : bitmapName;
    const int row = AddListItem(resource, bitmap, displayText, textOf(tipId, module), module);
    return attach(row, makeRecord(name, type, flags, extensionName));
}

bool CNavListBox::addStandard(PlacesItemType type) {
    if (leavesOut(type))
        return true;
    const StandardPlace* place = findStandardPlace(type);
    return AddItem(place->name, place->picture, nullptr, nullptr, textOf(place->label, nullptr), place->tip, type,
                   NotEditable) >= 0;
}

int CNavListBox::insertFolderRow(int index, const wchar_t* displayText, std::unique_ptr<PlaceRecord> place) {
    const CString tip = place->name;
    return attach(InsertListItem(index, MAKEINTRESOURCEW(IDB_KNAV_FOLDER), nullptr, displayText, tip),
                  std::move(place));
}

int CNavListBox::insertPathRow(int index, const wchar_t* path, const wchar_t* displayText) {
    const std::optional<CString> full = absolutePath(path);
    if (!full)
        return -1;
    auto place = makeRecord(*full, PlacesItemFolder, 0, L"");
    place->idList = ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(*full));
    return insertFolderRow(index, displayText, std::move(place));
}

int CNavListBox::InsertUserItem(int index, const wchar_t* path, const wchar_t* displayText) {
    return insertPathRow(index, path, displayText);
}

// --- extensions ------------------------------------------------------------------------------------------------

bool CNavListBox::isSwitchedOff(const CNavExtension& extension) const {
    return m_host && m_host->leavesOutDisabledExtensions() && extension.IsDisabled();
}

int CNavListBox::AddExtensionRoot(CNavExtension* extension, const wchar_t* displayText, int index) {
    if (!extension || isSwitchedOff(*extension))
        return 0;
    const wchar_t* name = extension->GetName();
    if (FindItem(name) >= 0)
        return 1;
    if (m_host && m_host->isExtensionDeleted(name))
        return 0;
    const zoui::UniqueBitmap picture(extension->GetBitmapCopy());
    const wchar_t* label = displayText && *displayText ? displayText : extension->GetPlacesLabel();
    const int row =
        InsertListItem(index, MAKEINTRESOURCEW(IDB_KNAV_FOLDER), picture.get(), label, extension->GetPlacesTip());
    return attach(row, makeRecord(name, PlacesItemExtensionRoot, NotEditable, name)) >= 0;
}

int CNavListBox::insertInExtension(int index, const wchar_t* extensionName, const wchar_t* folderName,
                                   const wchar_t* displayText) {
    const CString label = displayText && *displayText ? CString(displayText) : folderLabel(folderName);
    return insertFolderRow(index, label, makeRecord(folderName, PlacesItemFolder, InExtension, extensionName)) >= 0;
}

int CNavListBox::AddExtensionFolder(CNavExtension* extension, const wchar_t* folderName, const wchar_t* displayText,
                                    int index) {
    if (!extension || isSwitchedOff(*extension))
        return 0;
    return insertInExtension(index, extension->GetName(), folderName, displayText);
}

int CNavListBox::AddWebFoldersFolder(const wchar_t* folderName, const wchar_t* displayText, int index) {
    return insertInExtension(index, kWebFolders, folderName, displayText);
}

bool CNavListBox::leavesOut(const CNavExtension& extension) const {
    return extension.IsFTP() ? m_noFtp != 0 : m_noExtraExtensions != 0;
}

int CNavListBox::AddExtensions() {
    for (CNavExtension* extension : registeredExtensions()) {
        if (!leavesOut(*extension))
            AddExtensionRoot(extension);
    }
    return 1;
}

// --- the default order -----------------------------------------------------------------------------------------

bool CNavListBox::leavesOut(PlacesItemType type) const {
    switch (type) {
        case PlacesItemHistory:
            return m_noHistory != 0;
        case PlacesItemPersonal:
            return m_noPersonal != 0;
        case PlacesItemFavorites:
            return m_noFavorites != 0;
        case PlacesItemDesktop:
            return m_noDesktop != 0;
        default:
            return false;
    }
}

int CNavListBox::OnAutoLoad() {
    if (!addStandard(PlacesItemHistory) || !addStandard(PlacesItemPersonal) || !addStandard(PlacesItemFavorites))
        return 0;
    if (!m_noFtp)
        AddExtensionRoot(NavFindExtensionByName(L"FTPSites"));
    if (!addStandard(PlacesItemDesktop))
        return 0;
    LoadAddedPlaces();
    if (!m_noExtraExtensions)
        AddExtensions();
    return 1;
}

void CNavListBox::LoadAddedPlaces() {
    CNavPlacesArray& waiting = AddedPlaces::ofProcess().waiting();
    bool added = false;
    for (int i = 0; i < waiting.GetCount(); ++i) {
        const CNavPlace* place = waiting.GetData(i);
        if (FindItem(place->GetPath()) >= 0 || insertPathRow(-1, place->GetPath(), place->GetName()) < 0)
            continue;
        AddedPlaces::remember(place->GetPath());
        added = true;
    }
    waiting.RemoveAllData();
    if (added && m_host)
        m_host->savePlaces();
}

// --- the stored order ------------------------------------------------------------------------------------------

CString CNavListBox::storedText(int position, const wchar_t* suffix) const {
    CString value;
    if (m_host)
        m_host->readSharedText(orderValue(position, suffix), value);
    return value;
}

void CNavListBox::LoadFromOrder() {
    ResetContent();
    for (int i = 0;; ++i) {
        const CString name = storedText(i, L"");
        if (name.IsEmpty())
            break;
        loadEntry(i, name);
    }
    LoadAddedPlaces();
    if (!m_noFtp || !m_noExtraExtensions)
        AddExtensions();
}

void CNavListBox::loadEntry(int position, const CString& name) {
    if (const StandardPlace* standard = findStandardPlace(name)) {
        addStandard(standard->type);
        return;
    }
    const CString displayText = storedText(position, kOrderDisplay);
    if (CNavExtension* extension = NavFindExtensionByName(name)) {
        if (!leavesOut(*extension))
            AddExtensionRoot(extension, displayText);
        return;
    }
    if (FindItem(name) < 0)
        loadFolder(position, name, displayText);
}

void CNavListBox::loadFolder(int position, const CString& name, const CString& displayText) {
    const CString extensionName = storedText(position, kOrderExtension);
    if (extensionName.IsEmpty())
        insertPathRow(-1, name, displayText);
    else if (compareNoCase(extensionName, kWebFolders) == 0)
        AddWebFoldersFolder(name, displayText);
    else
        AddExtensionFolder(NavFindExtensionByName(extensionName), name, displayText);
}
