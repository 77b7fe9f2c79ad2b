#pragma once

#include <knav/CNavComboBox.h>
#include <knav/CNavTree.h>
#include <platform/CString.h>

#include <memory>

class CNavPathname;

namespace knav {
class ItemList;
class ComboItems;
class RowIcons;
}  // namespace knav

/// The Look-in combo: the folder hierarchy as an indented list with small shell icons. It owns the tree; each item's
/// data is the node it stands for. Closed, it holds the chain from the desktop to the current folder; dropped down, the
/// whole standard hierarchy. Nodes and items are made anew by each Fill operation: keep none across one. Its template
/// styles are CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS. User-interface thread only.
class KNAV_API CNavFolderComboBox : public CNavComboBox {
public:
    CNavFolderComboBox();
    ~CNavFolderComboBox() override;

    CNavTree& GetNavTree() { return m_tree; }

    /// Leave FTP locations, or the other extensions, out of the standard hierarchy. Default 0.
    int GetNoFTP() const { return m_noFtp; }
    void SetNoFTP(int noFtp);
    int GetNoExtraExtensions() const { return m_noExtraExtensions; }
    void SetNoExtraExtensions(int noExtensions);
    /// 0: only the chain to the current folder is filled in; else the standard hierarchy. Set while dropped down.
    int GetStandardHierarchy() const { return m_standardHierarchy; }
    void SetStandardHierarchy(int standard) { m_standardHierarchy = standard; }

    /// Takes the sizes from the system's small icons; when the control is attached, and after a change of their size.
    int OnAutoLoad() override;

    /// Fills in the standard hierarchy and the chain to `node`, which may belong to the present tree; null: no chain.
    void FillWithTopLevelFolders(CNavNode* node);
    /// Fills in the chain to `node` (null: the desktop), or the standard hierarchy when that is set.
    void FillToNode(CNavNode* node);
    /// Fills in the chain to the folder of a qualified list and returns the index of its item. -1 and nothing done
    /// while the standard hierarchy is set.
    int FillToFolder(ITEMIDLIST* list);
    /// Adds the items of a tree, of a node with its following siblings at `indent`, or inserts the latter from `index`
    /// on; Insert returns the index behind the last item it made.
    void FillFromTree(CNavTree& tree);
    void FillFromShellNode(CNavNode* node, int indent);
    int InsertFromShellNode(CNavNode* node, int indent, int index);
    /// Shows the children of a node that has no item of its own below the item of `display`, if that has one.
    void TransferDescendantsToDisplayNode(CNavNode* node, CNavNode* display);

    /// An item for the node, or for a text and a node; -1 when there is no name or no room. `overlay`: 0 none, 1
    /// shared, 2 link.
    int AddNode(CNavNode* node, int indent);
    int InsertNode(int index, CNavNode* node, int indent);
    int AddItem(const wchar_t* text, int indent, CNavNode* node, int overlay);
    int InsertItem(int index, const wchar_t* text, int indent, CNavNode* node, int overlay);

    /// The location of the selected folder. Zero when nothing is selected, it is no folder, or it has no name.
    int GetPathname(CNavPathname& pathname);
    /// First item that stands for the same folder as `node`, or for the folder of a qualified list; -1: none.
    int FindItemByNode(CNavNode* node);
    int FindItemByList(ITEMIDLIST* list);
    /// The item that the item at `index` is indented below; -1: none.
    int FindParentItemIndex(int index);
    /// First item that is the root of the extension of that name, in any case; -1: none.
    int GetExtensionRootIndex(const wchar_t* extensionName);

    /// The item's node (null for a wrong index), the node of the selected item, its indentation, its text.
    CNavNode* GetNode(int index) const;
    CNavNode* GetSelectedNode() const;
    int GetItemIndent(int index) const;
    int GetItemText(int index, CString& text) const;

    /// Drives came or went. Reads names and icons anew (nonzero `rebuild`) and checks that the selected folder is still
    /// there. Nonzero: it is, nothing else need be done. Zero: nothing is selected, or the nearest folder above it that
    /// is still there has been selected, and the view must follow.
    int RefreshFolderInfo(int rebuild);
    /// The list is about to drop down: fills in the standard hierarchy and widens the list to its longest row.
    BOOL OnDropDown();
    BOOL OnCloseUp();

    void DrawItem(DRAWITEMSTRUCT* item) override;
    void MeasureItem(MEASUREITEMSTRUCT* item) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    void clear();
    void fillStandardKeepingSelection();
    void selectChainTo(const knav::ItemList& list);
    void widenDroppedList();
    int pictureLeft(const CNavNode& node, bool selectionField) const;
    void drawPicture(const DRAWITEMSTRUCT& item, const CNavNode& node, int left) const;
    knav::ComboItems& items() const;

    CNavTree m_tree;
    std::unique_ptr<knav::RowIcons> m_icons;
    std::unique_ptr<knav::ComboItems> m_items;
    bool m_treeIsStandard = false;
    int m_noFtp = 0;
    int m_noExtraExtensions = 0;
    int m_standardHierarchy = 0;
    int m_indentWidth = 16;
    int m_itemHeight = 16;
    int m_iconWidth = 16;
    int m_iconHeight = 16;
};
