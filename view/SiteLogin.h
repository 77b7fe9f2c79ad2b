// Which site the current folder belongs to, and the login stored for it.
#pragma once

#include <platform/CString.h>
#include <platform/Windows.h>

namespace knav {

struct BrowserState;

enum class SiteKind { None, Extension, WebFolders };

/// What the folder of a qualified list belongs to.
SiteKind siteKindOf(ITEMIDLIST* folder);

/// The name of the site that the folder belongs to; empty at the root of all sites and outside of them.
CString siteNameOf(ITEMIDLIST* folder);

/// The login of the site shown. False and empty texts when there is none.
bool findSiteLogin(const BrowserState& state, CString& user, CString& password);

}  // namespace knav
