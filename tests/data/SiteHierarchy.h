// The nodes of a site that does not exist, for tests that parse texts inside it.
#pragma once

#include <knav/CNavNode.h>
#include <knav/CNavShell.h>

#include "shell/ExtensionItems.h"
#include "support/FakeFolder.h"
#include "support/ItemLists.h"

namespace knav::test {

/// A root, a site below it and an item below that, with fake folders.
class SiteHierarchy {
public:
    // `location` is the parsing name of the site.
    explicit SiteHierarchy(NavNodeType rootType, const std::wstring& location = L"ftp://host")
        : rootFolder(FakeFolder::make(location.substr(0, std::max<std::size_t>(nameStart(location), 1) - 1))) {
        const std::wstring name = location.substr(nameStart(location));
        setUp(root, nullptr, rootType, rootFolder.get(), knav::buildExtensionRootItem(shell, L"Store"));
        setUp(site, &root, static_cast<NavNodeType>(rootType + 1), siteFolder.get(),
              (name.empty() ? makeList({""}) : FakeFolder::item(name)).release());
        setUp(item, &site, static_cast<NavNodeType>(rootType + 2), nullptr, FakeFolder::item(L"deep").release());
    }

    ComPtr<FakeFolder> rootFolder;
    ComPtr<FakeFolder> siteFolder = FakeFolder::make(L"");
    CNavShell shell;
    CNavNode root{shell};
    CNavNode site{shell};
    CNavNode item{shell};

private:
    // The root's folder puts "/" between its own name and that of the site.
    static std::size_t nameStart(const std::wstring& location) { return location.rfind(L'/') + 1; }

    static void setUp(CNavNode& node, CNavNode* parent, NavNodeType type, FakeFolder* folder, ITEMIDLIST* id) {
        if (folder != nullptr) {
            folder->AddRef();  // the node's
        }
        node.SetFolder(folder);
        node.SetID(id);
        node.SetType(type);
        node.SetParent(parent);
    }
};

}  // namespace knav::test
