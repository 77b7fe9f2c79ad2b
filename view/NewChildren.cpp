#include "view/NewChildren.h"

#include "shell/Guard.h"
#include "view/ViewTakeover.h"

#include <algorithm>

namespace knav {
namespace {

std::vector<HWND> childrenOf(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    return children;
}

}  // namespace

NewChildren::NewChildren(HWND parent) : m_parent(parent), m_known(childrenOf(parent)) {
    std::ranges::sort(m_known);
}

HWND NewChildren::view() const {
    const auto children = found();
    const auto standard = std::ranges::find_if(children, isStandardView);
    return standard != children.end() ? *standard : children.empty() ? nullptr : children.front();
}

// Their procedures belong to whoever made them.
void NewChildren::destroy() const {
    for (const HWND child : found()) {
        guardedRun([child] { DestroyWindow(child); });
    }
}

std::vector<HWND> NewChildren::found() const {
    auto children = childrenOf(m_parent);
    std::erase_if(children, [this](HWND child) { return std::ranges::binary_search(m_known, child); });
    return children;
}

}  // namespace knav
