#pragma once

#include <knav/CNavNode.h>
#include <knav/CNavShell.h>

class CWnd;

/// The part of the shell's namespace that the dialog shows: the desktop with its folders and the registered extensions,
/// the drives, and the chain of folders down to the current one.
///
/// The tree owns its nodes. Children stay in the order in which the shell enumerates them, followed by what was added
/// later, and are never enumerated again. Nothing throws; operations that return an int return nonzero on success.
/// User-interface thread only.
class KNAV_API CNavTree : public CNavShell {
public:
    /// An empty tree.
    CNavTree();
    CNavTree(const CNavTree&) = delete;
    CNavTree& operator=(const CNavTree&) = delete;
    ~CNavTree() override;

    /// The desktop; null while the tree is empty.
    CNavNode* GetRootNode() const { return m_root; }

    /// Adds `node`, or a new one for null, below the deepest first child, or as last sibling of the root; the first
    /// node becomes the root. Returns the node that was added, which the tree owns; null when memory is short.
    CNavNode* AddChild(CNavNode* node);
    CNavNode* AddNode(CNavNode* node);

    /// Replaces the tree by the desktop and the chain down to a qualified list, or to what it is a shortcut to. Returns
    /// the deepest node; null when the chain cannot be made.
    CNavNode* BuildSimpleHierarchy(HWND owner, ITEMIDLIST* list);

    /// The first time: builds desktop, extensions and drives. Each time: replaces the chain to the folder shown before
    /// by the one to `current`, unless that is null. `dialog` may be null; see AddExtensionsToDesktop. The hide flags
    /// count the first time only. Zero when desktop or drives cannot be listed.
    int BuildStandardHierarchy(HWND owner, CWnd* dialog, int hideFtp, int hideExtensions, ITEMIDLIST* current);

    /// Makes sure that the tree has the chain to a qualified list, or to what it is a shortcut to. Always nonzero.
    int ExpandToItem(HWND owner, ITEMIDLIST* list);

    /// Appends a node for each registered extension that is not hidden; returns their number. A `dialog` that
    /// is a CNavExtensionPolicy may leave out those that were switched off on this machine.
    int AddExtensionsToDesktop(CWnd* dialog, CNavNode* desktop);

    /// Removes and destroys a node together with its following siblings; the root takes the whole tree with it. Null is
    /// ignored.
    void DeleteNode(CNavNode* node);
    /// Empties the tree.
    void DeleteAllNodes();

    /// See CNavNode::Dump.
    void Dump() const;

private:
    int makeDesktop(HWND owner);
    int buildTopLevels(HWND owner, CWnd* dialog);
    bool isHidden(const CNavExtension& extension, bool leaveOutDisabled) const;
    bool addExtension(CNavExtension& extension, CNavNode& desktop);

    CNavNode* m_root = nullptr;
    int m_hideExtensions = 0;
    int m_hideFtp = 0;
    CNavNode* m_currentPath = nullptr;
};
