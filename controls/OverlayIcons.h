// The small pictures laid over an icon: a shared folder's hand, a shortcut's arrow.
#pragma once

#include <platform/GdiOwners.h>

#include <array>

namespace knav {

/// What is laid over an item's icon; the values are those of the Look-in combo's items.
enum Overlay : int { NoOverlay = 0, SharedOverlay = 1, LinkOverlay = 2 };

/// Takes each picture from the system when it is first drawn.
class OverlayIcons {
public:
    void draw(HDC dc, int overlay, int x, int y, SIZE size);

private:
    HICON icon(int overlay);

    std::array<zoui::UniqueIcon, 3> m_icons;
    std::array<bool, 3> m_asked{};
};

}  // namespace knav
