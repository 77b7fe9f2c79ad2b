// Folders that the user drops on the list.
#include <knav/CNavListBox.h>
#include <knav/CNavPathname.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <knav/NavUrl.h>

#include "places/PlaceRecord.h"
#include "places/PlacesDropTarget.h"
#include "places/PlacesHost.h"
#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"

using namespace knav;

namespace {

DWORD attributesOfQualified(const ITEMIDLIST* list, DWORD mask) {
    const ITEMIDLIST* const child = measureList(list).last;
    const ItemList parent = ItemList::parentOf(list);
    const auto folder = parent ? ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(parent.get())) : desktopFolder();
    return folder ? attributesOf(folder.get(), child ? child : emptyList(), mask).value_or(0) : 0;
}

// Readable, where it is a URL that fits the buffer; as it is otherwise.
CString readableName(CString name) {
    NavDecodeURL(name, name);
    return name;
}

}  // namespace

int CNavListBox::RegisterDropTarget() {
    m_drop.reset();
    m_drop = std::make_unique<PlacesDropScope>(m_hWnd, [this](const ITEMIDLIST* folder, POINT point) {
        ScreenToClient(&point);
        return AddDroppedItem(folder, point) >= 0;
    });
    return m_drop->ok();
}

int CNavListBox::AddDroppedItem(const wchar_t* path, POINT point) {
    CNavPathname folder;
    CString full;
    if (folder.Parse(path, false) != PathErr::None || folder.GetType() != CZoUiPathname::Directory ||
        !folder.GetFullPath(full))
        return -1;
    CString label;
    folder.GetBasename(label);
    const int row = insertPathRow(ItemFromPoint(point), full, label.IsEmpty() ? full : label);
    if (row >= 0)
        changed();
    return row;
}

int CNavListBox::AddDroppedItem(const ITEMIDLIST* list, POINT point) {
    if (!list || NavIsInternetRoot(listArgument(list)))
        return -1;
    const DWORD attributes = attributesOfQualified(list, SFGAO_FOLDER | SFGAO_FILESYSTEM | SFGAO_STREAM);
    CString parsingName;
    NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, listArgument(list), parsingName);
    if (attributes & SFGAO_FILESYSTEM)
        return AddDroppedItem(parsingName, point);
    const bool inExtension = NavIsExtensionItem(listArgument(list)) != 0;
    if (!inExtension && !(attributes & SFGAO_FOLDER))
        return -1;
    auto place = std::make_unique<PlaceRecord>();
    place->name = readableName(parsingName);
    place->type = PlacesItemFolder;
    place->idList = ItemList::copyOf(list);
    NavGetExtensionNameFromItem(listArgument(list), place->extensionName);
    place->flags = InExtension;
    CString label;
    NavGetItemDisplayNameInDesktop(SHGDN_NORMAL, listArgument(list), label);
    const int row = insertFolderRow(ItemFromPoint(point), label, std::move(place));
    if (row >= 0)
        changed();
    return row;
}

int CNavListBox::AddCurrentFolder(POINT point) {
    const ITEMIDLIST* folder = m_host ? m_host->shownFolder() : nullptr;
    CString name;
    if (!folder || !NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, listArgument(folder), name))
        return -1;
    const int present = FindItem(readableName(name));
    return present >= 0 ? present : AddDroppedItem(folder, point);
}
