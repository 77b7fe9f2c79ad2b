// How the controls of a resizable dialog follow its size. Pure arithmetic over the template's own rectangles: it holds
// no windows, and since every rectangle is what the template came to in pixels, it is right at any resolution.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include <platform/Windows.h>

namespace knav {

/// What a control does along one axis when the dialog grows along it.
enum class Grow { Stay, Move, Stretch };

/// The rule for one control that the dialog knows by id.
struct GrowRow {
    UINT id;
    Grow across;
    Grow down;
};

/// One control: where the template put it, and how it grows.
struct LaidOut {
    UINT id;
    RECT at;
    Grow across;
    Grow down;
};

/// A control that no row names goes with the part of the dialog that it stands in: what lies beyond the middle of the
/// body moves with the far edge, what runs along the body up to its end stretches with it, the rest stays.
Grow growAlong(int from, int to, int bodyFrom, int bodyTo);

/// The layout of one dialog. The body is the control that takes up the room (the place of the folder view); without
/// one, controls that no row names stay where they are.
class Layout {
public:
    Layout() = default;
    Layout(SIZE client, std::span<const GrowRow> rows, UINT bodyId, std::optional<RECT> body);

    /// Takes in a control at its rectangle in client coordinates.
    void add(UINT id, const RECT& at);

    /// Gives the room of a column left of the body (a control that is not shown) to what stands right of it.
    void closeColumn(UINT id);

    /// Gives the room of a control in a row (it is not shown) to the one that stretches before it; what stands between
    /// the two moves along.
    void closeGap(UINT id);

    /// Two buttons that stand one above the other where nothing else is left: puts the upper one before the lower one,
    /// and gives its row to the body and to what ends with the lower one.
    void joinRows(UINT upper, UINT lower);

    /// The smallest client area that can be laid out: what stretches keeps half of its size, what moves does not come
    /// to lie over what stays, and what stays is not cut off.
    SIZE leastSize() const;

    /// Where the control at `index` (in the order of adding) goes in a client area of that size. A client area smaller
    /// than the smallest is laid out like that.
    RECT rectOf(size_t index, SIZE client) const;

    size_t count() const noexcept { return m_items.size(); }
    const LaidOut& item(size_t index) const { return m_items[index]; }
    SIZE templateSize() const noexcept { return m_client; }

private:
    const LaidOut* find(UINT id) const;
    LaidOut* find(UINT id);
    SIZE findLeast() const;
    bool reachesInto(const LaidOut& column, const LaidOut& item) const;

    SIZE m_client{};
    std::span<const GrowRow> m_rows;
    UINT m_bodyId = 0;
    std::optional<RECT> m_body;
    std::vector<LaidOut> m_items;
    mutable std::optional<SIZE> m_least;
};

}  // namespace knav
