#include <knav/CNavShell.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>

IMalloc* CNavShell::m_alloc = nullptr;

CNavShell::CNavShell() {
    if (m_alloc != nullptr) {
        m_alloc->AddRef();
    } else if (FAILED(SHGetMalloc(&m_alloc))) {
        m_alloc = nullptr;
    }
}

// A copy takes no reference of its own although it releases one: callers that count references rely on it.
CNavShell::CNavShell(const CNavShell& /*other*/) {
}

CNavShell& CNavShell::operator=(const CNavShell& /*other*/) {
    return *this;
}

CNavShell::~CNavShell() {
    if (m_alloc != nullptr && m_alloc->Release() == 0) {
        m_alloc = nullptr;
    }
}

ITEMIDLIST* CNavShell::CopyItemList(ITEMIDLIST* list) {
    return m_alloc != nullptr && list != nullptr ? NavBuildItemList(m_alloc, &list, 1) : nullptr;
}

ITEMIDLIST* CNavShell::ExtractItem(ITEMIDLIST* list) {
    return NavExtractItemElement(m_alloc, list);
}

void CNavShell::FreeItemList(ITEMIDLIST*& list) {
    if (m_alloc != nullptr && list != nullptr) {
        m_alloc->Free(list);
        list = nullptr;
    }
}

ITEMIDLIST* CNavShell::GetQualifiedItemList(IShellFolder* folder, ITEMIDLIST* list) {
    return NavGetQualifiedItemList(m_alloc, folder, list);
}

CNavShell::operator IMalloc*() {
    return m_alloc;
}
