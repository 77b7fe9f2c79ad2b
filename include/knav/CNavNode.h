#pragma once

#include <memory>

#include <knav/NavNodeAttributes.h>
#include <knav/NavNodeType.h>
#include <knav/export.h>
#include <platform/CString.h>

class CNavExtension;
class CNavShell;

/// A folder of the hierarchy that a CNavTree holds.
///
/// A node owns its folder, item list, icon, first child and next sibling, and destroys them with itself: destroying a
/// node destroys its following siblings too. The setters store what they are given without freeing the old value; a
/// list must come from the shell's task allocator, a folder with one reference. Nothing throws; operations that return
/// an int return nonzero on success. User-interface thread only.
class KNAV_API CNavNode {
public:
    /// A node with nothing in it, for the tree whose shell object this is; the object must outlive the node.
    explicit CNavNode(CNavShell& shell);
    CNavNode(const CNavNode&) = delete;
    CNavNode& operator=(const CNavNode&) = delete;
    virtual ~CNavNode();

    /// Clears everything but the extension name, without freeing anything.
    void Initialize();

    /// The node's own folder; null for items that are no folders. No reference for the caller.
    IShellFolder* GetFolder() const { return m_folder; }
    void SetFolder(IShellFolder* folder) { m_folder = folder; }
    /// The item list relative to the parent's folder; owned by the node.
    ITEMIDLIST* GetID() const { return m_id; }
    void SetID(ITEMIDLIST* id) { m_id = id; }
    /// The small icon, owned by the node; null when there is none. The one that GetAttributes() calls for is taken from
    /// the shell when it is first asked for, since that takes longer than all the rest of a node.
    HICON GetIcon() const;
    /// Hands the icon over to the caller, if it has been asked for; the node takes another when it is next asked.
    HICON ReleaseIcon();
    /// Indentation level in the Look-in combo.
    int GetIndent() const { return m_indent; }
    void SetIndent(int indent) { m_indent = indent; }
    /// Name of the extension that the node belongs to; empty for other nodes.
    const wchar_t* GetExtensionName() const { return m_extensionName; }
    void SetExtensionName(const wchar_t* name);
    /// The node to show in place of this one, or null; not owned.
    CNavNode* GetDisplayNode() const { return m_displayNode; }
    void SetDisplayNode(CNavNode* node) { m_displayNode = node; }
    /// What the node stands for.
    NavNodeType GetType() const { return m_type; }
    void SetType(NavNodeType type) { m_type = type; }

    /// Links: first child and next sibling are owned, parent and previous sibling are not; null where there is none.
    /// A setter changes one link only, not the one that leads back.
    CNavNode* GetChild() const { return m_child; }
    void SetChild(CNavNode* node) { m_child = node; }
    CNavNode* GetNext() const { return m_next; }
    void SetNext(CNavNode* node) { m_next = node; }
    CNavNode* GetParent() const { return m_parent; }
    void SetParent(CNavNode* node) { m_parent = node; }
    CNavNode* GetPrev() const { return m_prev; }
    void SetPrev(CNavNode* node) { m_prev = node; }

    /// What GetAttributes() found out, 1 or 0; all 0 before it.
    int CanCopy() const { return m_attributes.canCopy; }
    int CanDelete() const { return m_attributes.canDelete; }
    int CanLink() const { return m_attributes.canLink; }
    int CanMove() const { return m_attributes.canMove; }
    int CanRename() const { return m_attributes.canRename; }
    int HasSubFolder() const { return m_attributes.hasSubFolder; }
    int HasPropSheet() const { return m_attributes.hasPropSheet; }
    int IsDropTarget() const { return m_attributes.isDropTarget; }
    int IsFileSystemAncestor() const { return m_attributes.isFileSystemAncestor; }
    int IsFolder() const { return m_attributes.isFolder; }
    int IsGhosted() const { return m_attributes.isGhosted; }
    int IsInFileSystem() const { return m_attributes.isInFileSystem; }
    int IsLink() const { return m_attributes.isLink; }
    int IsOnRemovableMedia() const { return m_attributes.isOnRemovableMedia; }
    int IsShared() const { return m_attributes.isShared; }

    /// Nonzero for the root, the sites and the items of an extension, of the internet, of the Web Folders.
    int IsExtensionType() const { return m_type >= NavNodeExtensionRoot && m_type <= NavNodeExtensionItem; }
    int IsInternetType() const { return m_type >= NavNodeInternetRoot && m_type <= NavNodeInternetItem; }
    int IsWebFoldersType() const { return m_type >= NavNodeWebFoldersRoot && m_type <= NavNodeWebFolderItem; }
    /// Nonzero, both alike, when the node belongs to the registered FTP sites extension.
    int IsFTPRoot() const;
    int IsFTP() const;

    /// The parent's folder, without a reference for the caller; null without a parent.
    IShellFolder* GetParentFolder() const;
    /// The registered extension that the node belongs to, or null.
    CNavExtension* GetExtension() const;

    /// First and last of the siblings; the deepest node along first children, or the node itself.
    CNavNode* GetFirst();
    CNavNode* GetLast();
    CNavNode* GetLastChild();
    /// The node itself when it is a site, or the site that it lies below; null when there is none.
    CNavNode* GetSiteNode();
    /// The node behind `node` in pre-order; null at the end and for null.
    static CNavNode* EnumerateNextNode(CNavNode* node);

    /// The name shown in the parent's folder, and the full name (in the desktop, without a parent that has a folder).
    /// The root of an extension is named by its own folder, or by the extension while that is not loaded. Zero, and an
    /// empty text, when there is no name.
    int GetNameInFolder(CString& name) const;
    int GetNameForParsing(CString& name) const;
    /// A new qualified list of the node, which the caller frees; null when memory is short, when neither the node nor
    /// one that it lies below has a list, and when lists are too damaged to be joined.
    ITEMIDLIST* CalculateQualifiedItemList() const;

    /// Asks the shell for the attributes and has the icon taken anew. Zero, with everything as it was, when it fails.
    int GetAttributes();
    /// Takes the small icon anew, at once.
    void SetIcon();

    /// Makes `node`, or a new node for null, the only child of the deepest first child, or the last sibling. Returns
    /// the node that was added, which belongs to its new parent or sibling; null when memory is short.
    CNavNode* AddChild(CNavNode* node);
    CNavNode* AddNode(CNavNode* node);

    /// Appends a node for each item of the node's folder that the hierarchy shows; with `foldersOnly` for folders only.
    /// `shcontf` chooses what is enumerated (SHCONTF_...); `owner` may be null, it is for questions of the shell. Zero
    /// when the folder cannot be enumerated or memory is short; what was appended until then stays.
    int ExpandFolder(HWND owner, int foldersOnly, DWORD shcontf);
    /// Appends a chain of nodes, one for each element of `list`, which is relative to this node. Returns the last one;
    /// null when it cannot be reached, for the desktop, and for a list of more than 1000 elements. The first node made
    /// is stored in `first` unless that is null; it stays when the chain ends early.
    CNavNode* ExpandNode(ITEMIDLIST* list, CNavNode** first);

    /// Among this node, its next siblings and what is below them, the node of a list relative to their parent; null
    /// when there is none.
    CNavNode* FindItemList(ITEMIDLIST* list);
    /// The same; with `add` the chain below the deepest match is made when it is missing. See ExpandNode for `first`.
    CNavNode* FindOrAddItemList(ITEMIDLIST* list, int add, CNavNode** first);
    /// Among this node and its next siblings, the first of that name in its folder, ignoring case; null when there is
    /// none.
    CNavNode* FindName(const wchar_t* name);

    /// Composes a line for each node from here on, for a debugger to stop at; writes nothing.
    void Dump(int level) const;

private:
    HICON takeIcon() const;
    std::unique_ptr<CNavNode> makeChild(ITEMIDLIST* item);
    CNavNode* appendElement(ITEMIDLIST* element);
    CNavNode* findElement(ITEMIDLIST* list);
    bool bindAsFolder();

    IShellFolder* m_folder;
    ITEMIDLIST* m_id;
    mutable HICON m_icon;
    int m_indent;
    CString m_extensionName;
    CNavNode* m_displayNode;
    NavNodeAttributes m_attributes;
    NavNodeType m_type;
    CNavNode* m_child;
    CNavNode* m_next;
    CNavNode* m_parent;
    CNavNode* m_prev;
    CNavShell& m_shell;
    mutable bool m_isIconDue;
};
