#include "view/SiteLogin.h"

#include "shell/ExtensionItems.h"
#include "shell/SpecialItems.h"
#include "view/BrowseOwner.h"
#include "view/BrowserState.h"

#include <knav/NavFolders.h>
#include <knav/NavNames.h>

namespace knav {

SiteKind siteKindOf(ITEMIDLIST* folder) {
    if (NavIsExtensionItem(folder)) {
        return SiteKind::Extension;
    }
    return NavIsWebFoldersItem(folder) ? SiteKind::WebFolders : SiteKind::None;
}

// The root of an extension is one element, that of Web Folders two; the next element is the site.
CString siteNameOf(ITEMIDLIST* folder) {
    const auto kind = siteKindOf(folder);
    auto root = ItemList::firstOf(kind != SiteKind::None ? folder : nullptr);
    ITEMIDLIST* rest = root ? NavGetNextItemElement(folder) : nullptr;
    if (kind == SiteKind::WebFolders && rest != nullptr) {
        root = ItemList::join(root.get(), ItemList::firstOf(rest).get());
        rest = NavGetNextItemElement(rest);
    }
    CString name;
    if (const auto site = ItemList::firstOf(rest)) {
        const auto rootFolder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(root.get()));
        NavGetItemNameInFolder(rootFolder.get(), site.get(), name);
    }
    return name;
}

bool findSiteLogin(const BrowserState& state, CString& user, CString& password) {
    user.Empty();
    password.Empty();
    const CString site = siteNameOf(state.objectId.get());
    return !site.IsEmpty() && state.browseOwner != nullptr && state.browseOwner->findLogin(site, user, password);
}

}  // namespace knav
