#pragma once

#include <knav/export.h>
#include <platform/Windows.h>

/// Shares the shell's task allocator among all users: each live object holds one reference to it, and the class forgets
/// it when the last reference goes.
///
/// Objects are cheap and meant for the stack. Do not copy them: a copy takes no reference but its destructor releases
/// one. Not to be created on several threads at once.
class KNAV_API CNavShell {
public:
    /// Takes a reference to the allocator, which the first object gets from the shell.
    CNavShell();
    /// Takes no reference.
    CNavShell(const CNavShell& other);
    /// Does nothing.
    CNavShell& operator=(const CNavShell& other);
    virtual ~CNavShell();

    /// A new list equal to `list`, which may be relative or qualified; null for null. The caller frees it.
    ITEMIDLIST* CopyItemList(ITEMIDLIST* list);

    /// A new list that holds the first element only; null for null and for the empty list. The caller frees it.
    ITEMIDLIST* ExtractItem(ITEMIDLIST* list);

    /// Frees `list` and sets it to null. Null is fine.
    void FreeItemList(ITEMIDLIST*& list);

    /// See the function NavGetQualifiedItemList. The caller frees the result.
    ITEMIDLIST* GetQualifiedItemList(IShellFolder* folder, ITEMIDLIST* list);

    /// The allocator, without a reference for the caller; null when the shell has none.
    operator IMalloc*();

private:
    static IMalloc* m_alloc;
};
