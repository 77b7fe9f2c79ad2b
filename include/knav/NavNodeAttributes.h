#pragma once

#include <cstdint>

/// What the shell says about the item of a node of the folder hierarchy: one bit for each attribute.
struct NavNodeAttributes {
    std::uint16_t canCopy : 1;
    std::uint16_t canDelete : 1;
    std::uint16_t canLink : 1;
    std::uint16_t canMove : 1;
    std::uint16_t canRename : 1;
    std::uint16_t hasSubFolder : 1;
    std::uint16_t hasPropSheet : 1;
    std::uint16_t isDropTarget : 1;
    std::uint16_t isFileSystemAncestor : 1;
    std::uint16_t isFolder : 1;
    std::uint16_t isGhosted : 1;
    std::uint16_t isInFileSystem : 1;
    std::uint16_t isLink : 1;
    std::uint16_t isOnRemovableMedia : 1;
    std::uint16_t isShared : 1;
    std::uint16_t untouched : 1;  ///< in no attribute query's answer
};
