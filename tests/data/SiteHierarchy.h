// The nodes of a site that does not exist, for tests that parse texts inside it.
#pragma once

#include <knav/CNavNode.h>
#include <knav/CNavShell.h>

#include "data/SiteFolderFake.h"
#include "shell/ExtensionItems.h"

namespace knav::test {

/// A root, a site below it and an item below that, with fake folders. Nodes take one reference to their folder.
class SiteHierarchy {
public:
    // `location` is the parsing name of the site.
    explicit SiteHierarchy(NavNodeType rootType, const wchar_t* location = L"ftp://host")
        : rootFolder(location), siteFolder(L"") {
        setUp(root, nullptr, rootType, &rootFolder, knav::buildExtensionRootItem(shell, L"Store"));
        setUp(site, &root, static_cast<NavNodeType>(rootType + 1), &siteFolder, SiteFolderFake::itemOf(L""));
        setUp(item, &site, static_cast<NavNodeType>(rootType + 2), nullptr, SiteFolderFake::itemOf(L"deep"));
    }

    SiteFolderFake rootFolder;
    SiteFolderFake siteFolder;
    CNavShell shell;
    CNavNode root{shell};
    CNavNode site{shell};
    CNavNode item{shell};

private:
    static void setUp(CNavNode& node, CNavNode* parent, NavNodeType type, SiteFolderFake* folder, ITEMIDLIST* id) {
        if (folder != nullptr) {
            folder->AddRef();
        }
        node.SetFolder(folder);
        node.SetID(id);
        node.SetType(type);
        node.SetParent(parent);
    }
};

}  // namespace knav::test
