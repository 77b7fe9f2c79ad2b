#include "shell/NodeLinks.h"

namespace knav {

void appendChild(CNavNode& parent, CNavNode& node) noexcept {
    node.SetParent(&parent);
    if (CNavNode* const first = parent.GetChild()) {
        CNavNode* const last = first->GetLast();
        last->SetNext(&node);
        node.SetPrev(last);
    } else {
        parent.SetChild(&node);
    }
}

bool goesWith(const CNavNode* candidate, const CNavNode& node) noexcept {
    for (const CNavNode* level = candidate; level != nullptr; level = level->GetParent()) {
        for (const CNavNode* sibling = level; sibling != nullptr; sibling = sibling->GetPrev()) {
            if (sibling == &node) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace knav

CNavNode* CNavNode::GetFirst() {
    CNavNode* node = this;
    while (node->m_prev != nullptr) {
        node = node->m_prev;
    }
    return node;
}

CNavNode* CNavNode::GetLast() {
    CNavNode* node = this;
    while (node->m_next != nullptr) {
        node = node->m_next;
    }
    return node;
}

CNavNode* CNavNode::GetLastChild() {
    CNavNode* node = this;
    while (node->m_child != nullptr) {
        node = node->m_child;
    }
    return node;
}

CNavNode* CNavNode::GetSiteNode() {
    const auto isSite = [](const CNavNode& node) {
        return node.m_type == NavNodeExtensionSite || node.m_type == NavNodeInternetSite ||
               node.m_type == NavNodeWebFolderSite;
    };
    if (isSite(*this)) {
        return this;
    }
    if (m_type != NavNodeExtensionItem && m_type != NavNodeInternetItem && m_type != NavNodeWebFolderItem) {
        return nullptr;
    }
    CNavNode* node = m_parent;
    while (node != nullptr && !isSite(*node)) {
        node = node->m_parent;
    }
    return node;
}

CNavNode* CNavNode::EnumerateNextNode(CNavNode* node) {
    if (node != nullptr && node->m_child != nullptr) {
        return node->m_child;
    }
    while (node != nullptr && node->m_next == nullptr) {
        node = node->m_parent;
    }
    return node != nullptr ? node->m_next : nullptr;
}

CNavNode* CNavNode::AddChild(CNavNode* node) {
    CNavNode* const child = node != nullptr ? node : new (std::nothrow) CNavNode(m_shell);
    if (child != nullptr) {
        knav::appendChild(*GetLastChild(), *child);
    }
    return child;
}

CNavNode* CNavNode::AddNode(CNavNode* node) {
    CNavNode* const sibling = node != nullptr ? node : new (std::nothrow) CNavNode(m_shell);
    if (sibling != nullptr) {
        CNavNode* const last = GetLast();
        last->m_next = sibling;
        sibling->m_prev = last;
        sibling->m_parent = m_parent;
    }
    return sibling;
}
