// Mirroring the folder hierarchy into the items of the Look-in combo.
#include <knav/CNavFolderComboBox.h>

#include "controls/ComboItems.h"
#include "controls/RowIcons.h"
#include "data/ApiEdge.h"
#include "shell/ItemList.h"

#include <knav/NavFolders.h>

#include <platform/CWaitCursor.h>

namespace {

int overlayOf(const CNavNode& node) {
    if (node.IsLink()) {
        return knav::LinkOverlay;
    }
    return node.IsShared() ? knav::SharedOverlay : knav::NoOverlay;
}

// The control paints once, when all items are there.
class PaintPause {
public:
    explicit PaintPause(const CWnd& window) : m_window(window) { m_window.SetRedraw(FALSE); }
    PaintPause(const PaintPause&) = delete;
    PaintPause& operator=(const PaintPause&) = delete;
    ~PaintPause() {
        m_window.SetRedraw(TRUE);
        m_window.Invalidate();
    }

private:
    const CWnd& m_window;
};

}  // namespace

void CNavFolderComboBox::clear() {
    ResetContent();
    m_icons->forgetRows();
}

void CNavFolderComboBox::FillWithTopLevelFolders(CNavNode* node) {
    knav::atApiEdge([&] {
        const CWaitCursor wait;
        const PaintPause pause(*this);
        clear();
        const auto list = knav::ItemList::adopt(node != nullptr ? node->CalculateQualifiedItemList() : nullptr);
        if (!m_treeIsStandard) {
            m_tree.DeleteAllNodes();  // a tree is only completed where it has not been begun
        }
        m_treeIsStandard = m_tree.BuildStandardHierarchy(::GetParent(m_hWnd), GetZoUiParent(), m_noFtp,
                                                         m_noExtraExtensions, list.get()) != 0;
        if (m_treeIsStandard) {
            FillFromTree(m_tree);
        }
    });
}

void CNavFolderComboBox::FillToNode(CNavNode* node) {
    if (m_standardHierarchy != 0) {
        FillWithTopLevelFolders(node);
        return;
    }
    const auto list = knav::ItemList::adopt(node != nullptr ? node->CalculateQualifiedItemList()
                                                            : NavGetDesktopFolderItem(::GetParent(m_hWnd)));
    FillToFolder(list.get());
}

int CNavFolderComboBox::FillToFolder(ITEMIDLIST* list) {
    if (m_standardHierarchy != 0) {
        return -1;
    }
    return knav::atApiEdge(-1, [&] {
        const PaintPause pause(*this);
        clear();
        m_treeIsStandard = false;
        if (m_tree.BuildSimpleHierarchy(::GetParent(m_hWnd), list) == nullptr) {
            return -1;
        }
        FillFromTree(m_tree);
        return items().count() - 1;
    });
}

void CNavFolderComboBox::FillFromTree(CNavTree& tree) {
    CNavNode* const root = tree.GetRootNode();
    if (root == nullptr) {
        return;
    }
    AddNode(root, 0);
    FillFromShellNode(root->GetChild(), 1);
    FillFromShellNode(root->GetNext(), 0);
    for (CNavNode* node = root; node != nullptr; node = CNavNode::EnumerateNextNode(node)) {
        if (node->GetDisplayNode() != nullptr) {
            TransferDescendantsToDisplayNode(node, node->GetDisplayNode());
        }
    }
}

void CNavFolderComboBox::FillFromShellNode(CNavNode* node, int indent) {
    InsertFromShellNode(node, indent, items().count());
}

// A node without a name has no item, and neither has what is below it.
int CNavFolderComboBox::InsertFromShellNode(CNavNode* node, int indent, int index) {
    for (; node != nullptr; node = node->GetNext()) {
        if (node->GetDisplayNode() == nullptr && InsertNode(index, node, indent) >= 0) {
            index = InsertFromShellNode(node->GetChild(), indent + 1, index + 1);
        }
    }
    return index;
}

void CNavFolderComboBox::TransferDescendantsToDisplayNode(CNavNode* node, CNavNode* display) {
    for (int index = 0; index < items().count(); ++index) {
        if (GetNode(index) == display) {
            InsertFromShellNode(node->GetChild(), display->GetIndent() + 1, index + 1);
            return;
        }
    }
}

int CNavFolderComboBox::AddNode(CNavNode* node, int indent) {
    return InsertNode(items().count(), node, indent);
}

int CNavFolderComboBox::InsertNode(int index, CNavNode* node, int indent) {
    return knav::atApiEdge(-1, [&] {
        CString name;
        return node->GetNameInFolder(name) != 0 ? InsertItem(index, name, indent, node, overlayOf(*node)) : -1;
    });
}

int CNavFolderComboBox::AddItem(const wchar_t* text, int indent, CNavNode* node, int overlay) {
    return InsertItem(items().count(), text, indent, node, overlay);
}

int CNavFolderComboBox::InsertItem(int index, const wchar_t* text, int indent, CNavNode* node, int overlay) {
    if (node == nullptr) {
        return -1;
    }
    const int item = items().insert(index, text, node);
    if (item < 0) {
        return -1;
    }
    node->SetIndent(indent);
    knav::atApiEdge([&] {
        if (overlay != knav::NoOverlay) {
            m_icons->setOverlay(*node, overlay);
        }
    });
    return item;
}
