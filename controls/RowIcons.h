// The small pictures of the Look-in combo that do not come from the item itself: what is laid over a shared folder and
// a shortcut, and what stands for a location that must not be asked for a picture of its own.
#pragma once

#include <platform/GdiOwners.h>

#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>

class CNavNode;

namespace knav {

/// What is laid over an item's icon; the values are those of the Look-in combo's items.
enum Overlay : int { NoOverlay = 0, SharedOverlay = 1, LinkOverlay = 2 };

/// The general picture for a location on a network or on a medium that can be taken out. The shell looks into such a
/// volume for a picture of its own, which takes long, or for ever, when it cannot be reached. Nothing: the location
/// has its own picture. `path` is empty outside the file system; `driveType` is what GetDriveType() says of its drive.
std::optional<SHSTOCKICONID> generalPicture(std::wstring_view path, UINT driveType);

/// How a row is drawn besides its text and its own icon.
struct RowLook {
    int overlay = NoOverlay;
    bool known = false;  ///< `general` has been found out
    std::optional<SHSTOCKICONID> general;
    zoui::UniqueIcon icon;  ///< instead of the item's own, which takes the shell long to find
};

/// Takes each picture from the system when it is first drawn.
class RowIcons {
public:
    /// How the row of a node is drawn; kept until all rows are forgotten.
    RowLook& lookOf(const CNavNode& node);
    /// The same with the node's own icon, of a node that is about to go: for the row of the same location in a list
    /// that is read anew.
    RowLook giveUp(CNavNode& node);
    /// Draws the row of a node that way, with the overlay that it has.
    void takeOver(const CNavNode& node, RowLook look);
    void setOverlay(const CNavNode& node, int overlay) { m_looks[&node].overlay = overlay; }
    void forgetRows() { m_looks.clear(); }

    void drawOverlay(HDC dc, int overlay, POINT at, SIZE size);
    void draw(HDC dc, SHSTOCKICONID id, POINT at, SIZE size);

private:
    std::unordered_map<const CNavNode*, RowLook> m_looks;
    std::map<SHSTOCKICONID, zoui::UniqueIcon> m_icons;
};

/// Draws an icon in its own size or another, in a mirrored window too as it is.
void drawIcon(HDC dc, HICON icon, POINT at, SIZE size);

}  // namespace knav
