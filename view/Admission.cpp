#include "view/Admission.h"

#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/FolderPaths.h"
#include "shell/ItemList.h"
#include "shell/ItemNames.h"
#include "shell/SpecialItems.h"

#include <knav/CNavFilter.h>
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

#include <utility>

namespace knav {
namespace {

constexpr SFGAOF kAsked = SFGAO_FILESYSTEM | SFGAO_FOLDER | SFGAO_FILESYSANCESTOR | SFGAO_LINK;

// The network's "Computers near me" stands for a place although it has no attribute that says so.
constexpr const wchar_t* kComputersNearMe = L"{D4480A50-BA28-11D1-8E75-00C04FA31A86}";

// Some shells record a shortcut's folder as if it were a file, so that it does not bind. Only a fixed disk is asked:
// the user waits for every item.
bool isFolderOnFixedDisk(const ITEMIDLIST* target) {
    const CString path = pathOfFolder(target);
    const wchar_t root[] = {path[0], L':', L'\\', L'\0'};
    return PathGetDriveNumberW(path) >= 0 && GetDriveTypeW(root) == DRIVE_FIXED && PathIsDirectoryW(path);
}

// Places that are shown wherever they are, though they are not in the file system.
bool IsSpecialItemAllowed(ITEMIDLIST* item) {
    return NavIsDrives(item) || NavIsNetwork(item);
}

}  // namespace

void Admission::setFolder(ITEMIDLIST* id, ComPtr<IShellFolder> folder) {
    m_id = id;
    m_folder = std::move(folder);
    m_isNetwork.reset();
    m_holdsForeignFolders.reset();
}

bool Admission::allows(ITEMIDLIST* item, const CNavFilter* filter, bool foldersOnly) {
    if (filter == nullptr && !foldersOnly) {
        return true;
    }
    Question question{item, filter, foldersOnly, kAsked};
    if (item == nullptr || !bindFolder() || !readAttributes(question)) {
        return false;
    }
    return (question.attributes & SFGAO_FOLDER) != 0 ? allowsFolder(question) : allowsNonFolder(question);
}

bool Admission::bindFolder() {
    if (!m_folder) {
        m_folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(m_id));
    }
    return static_cast<bool>(m_folder);
}

bool Admission::readAttributes(Question& question) const {
    const auto attributes = attributesOf(m_folder.get(), question.item, kAsked);
    question.attributes = attributes.value_or(0);
    return attributes.has_value();
}

bool Admission::allowsNonFolder(const Question& question) {
    if (!question.foldersOnly && allowsByName(question)) {
        return true;
    }
    return (question.attributes & SFGAO_LINK) != 0 && allowsTarget(question);
}

bool Admission::allowsByName(const Question& question) {
    const bool inFileSystem = question.attributes != 0;
    if (inFileSystem && question.filter->IsEmpty()) {
        return true;  // whatever the name is, so it is not asked for
    }
    if (!inFileSystem && !isNetwork()) {
        return false;
    }
    NavGetItemLastPathComponent(m_folder.get(), question.item, m_name);
    return inFileSystem ? question.filter->IsAllowed(m_name) != 0 : StrStrIW(m_name, kComputersNearMe) != nullptr;
}

bool Admission::allowsTarget(const Question& question) const {
    const auto link = ItemList::adopt(NavGetQualifiedItemList(CNavShell(), m_folder.get(), question.item));
    const auto target = ItemList::adopt(NavGetLinkIDList(link.get()));
    if (!target) {
        return false;
    }
    if (ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(target.get())) || isFolderOnFixedDisk(target.get())) {
        return true;
    }
    CString name;
    NavGetItemLastPathComponent(nullptr, target.get(), name);
    return !question.foldersOnly && question.filter->IsAllowed(name) != 0;
}

bool Admission::allowsFolder(const Question& question) {
    if ((question.attributes & (SFGAO_FILESYSTEM | SFGAO_FILESYSANCESTOR)) != 0) {
        return true;
    }
    const auto qualified = ItemList::join(m_id, question.item);
    return IsSpecialItemAllowed(qualified.get()) || holdsFoldersOutsideTheFileSystem() ||
           (NavIsDrives(m_id) && NavIsWebFoldersItem(qualified.get()));
}

bool Admission::holdsFoldersOutsideTheFileSystem() {
    if (!m_holdsForeignFolders) {
        m_holdsForeignFolders = NavIsExtensionItem(m_id) || NavIsInternetRoot(m_id) || NavIsInternetSiteItem(m_id) ||
                                NavIsWebFoldersItem(m_id);
    }
    return *m_holdsForeignFolders;
}

bool Admission::isNetwork() {
    if (!m_isNetwork) {
        m_isNetwork = NavIsNetwork(m_id) != 0;
    }
    return *m_isNetwork;
}

}  // namespace knav
