#include "view/NewChildren.h"

#include "shell/Guard.h"

#include <algorithm>

namespace knav {
namespace {

std::vector<HWND> childrenOf(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    std::ranges::sort(children);
    return children;
}

}  // namespace

NewChildren::NewChildren(HWND parent) : m_parent(parent), m_known(childrenOf(parent)) {
}

HWND NewChildren::first() const {
    const auto children = found();
    return children.empty() ? nullptr : children.front();
}

// Their procedures belong to whoever made them.
void NewChildren::destroy() const {
    for (const HWND child : found()) {
        guardedRun([child] { DestroyWindow(child); });
    }
}

std::vector<HWND> NewChildren::found() const {
    std::vector<HWND> children;
    std::ranges::set_difference(childrenOf(m_parent), m_known, std::back_inserter(children));
    return children;
}

}  // namespace knav
