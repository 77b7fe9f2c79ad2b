// Nodes over folders that a test makes.
#pragma once

#include <gtest/gtest.h>
#include <knav/CNavNode.h>
#include <knav/CNavShell.h>

#include <memory>

#include "support/ItemLists.h"
#include "support/TestExtension.h"

namespace knav::test {

class NavNode : public testing::Test {
protected:
    /// A node without a parent whose own folder is `folder`.
    std::unique_ptr<CNavNode> nodeOver(ComPtr<FakeFolder> folder, NavNodeType type = NavNodeShell,
                                       ItemList id = makeList({"parent"})) {
        return makeNode(folder.release(), type, std::move(id));
    }

    /// A node for an item of the folder of `parent`; not linked to it.
    std::unique_ptr<CNavNode> itemBelow(CNavNode& parent, NavNodeType type = NavNodeShell) {
        auto node = makeNode(nullptr, type, FakeFolder::item(L"item"));
        node->SetParent(&parent);
        return node;
    }

    CNavShell m_shell;

private:
    std::unique_ptr<CNavNode> makeNode(IShellFolder* folder, NavNodeType type, ItemList id) {
        auto node = std::make_unique<CNavNode>(m_shell);
        node->SetFolder(folder);
        node->SetID(id.release());
        node->SetType(type);
        return node;
    }
};

}  // namespace knav::test
