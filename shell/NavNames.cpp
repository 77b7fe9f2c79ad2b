#include <knav/NavNames.h>

#include <knav/CNavExtension.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>

#include "data/ApiEdge.h"
#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/ItemNames.h"
#include "shell/TextRules.h"

namespace {

constexpr int kSortsFirst = -1;

bool isRootUnloaded(const CNavExtension* extension) {
    return extension != nullptr && extension->GetRootFolder() == nullptr;
}

// At least one of the two is a child item. Both are named by the root folder of `a`'s extension: such items never
// share a folder with ordinary ones, and whatever does not fit sorts first.
int compareExtensionItems(ITEMIDLIST* a, ITEMIDLIST* b) {
    CNavExtension* const extension = NavFindExtensionForItem(a);
    if (isRootUnloaded(extension) || isRootUnloaded(NavFindExtensionForItem(b)) || extension == nullptr) {
        return kSortsFirst;
    }
    const auto root = knav::ComPtr<IShellFolder>::adopt(extension->FetchRootFolder());
    if (!root) {
        return kSortsFirst;
    }
    CString nameA;
    CString nameB;
    NavGetItemNameForParsing(root.get(), NavGetNextItemElement(a), nameA);
    NavGetItemNameForParsing(root.get(), NavGetNextItemElement(b), nameB);
    return knav::compareNoCase(nameA, nameB);
}

// The name that the folder gives the item; false when it gives none.
bool folderNameOf(IShellFolder* folder, DWORD shgdn, ITEMIDLIST* list, CString& name) {
    auto strret = knav::displayNameOf(folder, list, shgdn);
    return strret && NavConvertToString(list, *strret, name);
}

// The root item of an extension: its own text, or else what its root folder calls itself.
bool extensionRootName(DWORD shgdn, ITEMIDLIST* list, CString& name) {
    if (const CNavExtension* const extension = NavFindExtensionForItem(list)) {
        name = extension->GetRootFolderDisplayName();
    }
    if (!name.IsEmpty()) {
        return true;
    }
    const auto root = knav::ComPtr<IShellFolder>::adopt(NavGetFolderFromItem(nullptr, list));
    return root && folderNameOf(root.get(), shgdn, knav::listArgument(knav::emptyList()), name);
}

int nameInFolderOrDesktop(DWORD shgdn, IShellFolder* folder, ITEMIDLIST* list, CString& name) {
    return folder != nullptr ? NavGetItemDisplayName(shgdn, folder, list, name)
                             : NavGetItemDisplayNameInDesktop(shgdn, list, name);
}

}  // namespace

int NavCompareFolderItems(IShellFolder* folder, ITEMIDLIST* a, ITEMIDLIST* b) {
    if (a == b || folder == nullptr) {
        return 0;
    }
    if (a == nullptr || b == nullptr) {
        return a == nullptr ? -1 : 1;
    }
    const knav::ExtensionItem kindA = knav::extensionItemKind(a);
    const knav::ExtensionItem kindB = knav::extensionItemKind(b);
    if (kindA == knav::ExtensionItem::Child || kindB == knav::ExtensionItem::Child) {
        return knav::atApiEdge(kSortsFirst, [=] { return compareExtensionItems(a, b); });
    }
    if (kindA == knav::ExtensionItem::Root && kindB == knav::ExtensionItem::Root) {
        const CNavExtension* const extensionA = NavFindExtensionForItem(a);
        const CNavExtension* const extensionB = NavFindExtensionForItem(b);
        if (extensionA != nullptr && extensionB != nullptr) {
            return knav::compareNoCase(extensionA->GetName(), extensionB->GetName());
        }
    }
    return knav::compareIds(folder, a, b);
}

int NavGetItemDisplayName(DWORD shgdn, IShellFolder* folder, ITEMIDLIST* list, CString& name) {
    name.Empty();
    return knav::atApiEdge(false, [&] {
        if (NavIsExtensionRootItem(list)) {
            return extensionRootName(shgdn, list, name);
        }
        return folder != nullptr && folderNameOf(folder, shgdn, list, name);
    });
}

int NavGetItemDisplayNameInDesktop(DWORD shgdn, ITEMIDLIST* list, CString& name) {
    const auto desktop = knav::desktopFolder();
    return NavGetItemDisplayName(shgdn, desktop.get(), list, name);
}

int NavGetItemNameInFolder(IShellFolder* folder, ITEMIDLIST* list, CString& name) {
    return nameInFolderOrDesktop(SHGDN_INFOLDER, folder, list, name);
}

int NavGetItemNameWithExtensionInFolder(IShellFolder* folder, ITEMIDLIST* list, CString& name) {
    return nameInFolderOrDesktop(SHGDN_INFOLDER | SHGDN_FORPARSING, folder, list, name);
}

int NavGetItemNameForParsing(IShellFolder* folder, ITEMIDLIST* list, CString& name) {
    return nameInFolderOrDesktop(SHGDN_FORPARSING, folder, list, name);
}

int NavGetItemLastPathComponent(IShellFolder* folder, ITEMIDLIST* list, CString& out) {
    out.Empty();
    return knav::atApiEdge(0, [&] {
        CString name;
        if (!NavGetItemNameForParsing(folder, list, name)) {
            return 0;
        }
        int separator = -1;
        for (const wchar_t character : {L'\\', L'/', L':'}) {
            if (separator < 0) {
                separator = name.ReverseFind(character);
            }
        }
        out = name.Mid(separator + 1);
        return 1;
    });
}
