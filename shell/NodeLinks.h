// Linking nodes of the folder hierarchy.
#pragma once

#include <knav/CNavNode.h>

namespace knav {

/// Makes `node` the last child of `parent`, which owns it from then on.
void appendChild(CNavNode& parent, CNavNode& node) noexcept;

/// `candidate` is destroyed when `node` is: it is `node`, one of its following siblings, or lies below one of them.
bool goesWith(const CNavNode* candidate, const CNavNode& node) noexcept;

}  // namespace knav
