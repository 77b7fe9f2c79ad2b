#include "dialog/Layout.h"

#include <algorithm>

namespace knav {
namespace {

struct Span {
    LONG from;
    LONG to;
};

Span grown(Span at, Grow how, LONG by) {
    switch (how) {
        case Grow::Move:
            return {at.from + by, at.to + by};
        case Grow::Stretch:
            return {at.from, at.to + by};
        case Grow::Stay:
            break;
    }
    return at;
}

Span spanAcross(const LaidOut& item) {
    return {item.at.left, item.at.right};
}

Span spanDown(const LaidOut& item) {
    return {item.at.top, item.at.bottom};
}

// How much less room a control can do with by itself.
LONG spare(Span at, Grow how, LONG room) {
    switch (how) {
        case Grow::Move:
            return at.from;
        case Grow::Stretch:
            return (at.to - at.from) / 2;
        case Grow::Stay:
            break;
    }
    return room - at.to;
}

bool meets(Span a, Span b) {
    return a.from < b.to && b.from < a.to;
}

}  // namespace

Grow growAlong(int from, int to, int bodyFrom, int bodyTo) {
    const int middle = bodyFrom + (bodyTo - bodyFrom) / 2;
    // An edge that a designer meant to line up with the body's may be a little short of it.
    const int nearEnd = bodyTo - (bodyTo - bodyFrom) / 8;
    if (from >= middle)
        return Grow::Move;
    return to >= nearEnd ? Grow::Stretch : Grow::Stay;
}

Layout::Layout(SIZE client, std::span<const GrowRow> rows, UINT bodyId, std::optional<RECT> body)
    : m_client(client), m_rows(rows), m_bodyId(bodyId), m_body(body) {
}

void Layout::add(UINT id, const RECT& at) {
    LaidOut item{id, at, Grow::Stay, Grow::Stay};
    if (m_body && id == m_bodyId) {
        item.across = item.down = Grow::Stretch;
    } else if (const auto row = std::ranges::find(m_rows, id, &GrowRow::id); row != m_rows.end()) {
        item.across = row->across;
        item.down = row->down;
    } else if (m_body) {
        item.across = growAlong(at.left, at.right, m_body->left, m_body->right);
        item.down = growAlong(at.top, at.bottom, m_body->top, m_body->bottom);
    }
    m_items.push_back(item);
    m_least.reset();
}

const LaidOut* Layout::find(UINT id) const {
    const auto found = std::ranges::find(m_items, id, &LaidOut::id);
    return found == m_items.end() ? nullptr : &*found;
}

LaidOut* Layout::find(UINT id) {
    const auto found = std::ranges::find(m_items, id, &LaidOut::id);
    return found == m_items.end() ? nullptr : &*found;
}

void Layout::closeGap(UINT id) {
    const LaidOut* const gap = find(id);
    if (!gap)
        return;
    const auto inRow = [gap](const LaidOut& item) { return &item != gap && meets(spanDown(item), spanDown(*gap)); };
    std::optional<LONG> next;  // where the row goes on
    for (const LaidOut& item : m_items) {
        if (inRow(item) && item.at.left >= gap->at.right && (!next || item.at.left < *next))
            next = item.at.left;
    }
    const LONG gained = next.value_or(gap->at.right) - gap->at.left;
    for (LaidOut& item : m_items) {
        if (!inRow(item) || item.at.right > gap->at.left || item.across == Grow::Stay)
            continue;
        item.at.right += gained;
        if (item.across == Grow::Move)
            item.at.left += gained;
    }
    m_least.reset();
}

void Layout::joinRows(UINT upper, UINT lower) {
    LaidOut* const first = find(upper);
    const LaidOut* const second = find(lower);
    LaidOut* const body = m_body ? find(m_bodyId) : nullptr;
    if (!first || !second || !body || first->at.bottom > second->at.top || first->at.left != second->at.left)
        return;
    const LONG gained = second->at.top - first->at.top;
    const LONG aside = first->at.right - second->at.left + (second->at.top - first->at.bottom);
    OffsetRect(&first->at, -aside, gained);
    body->at.bottom += gained;
    m_least.reset();
}

bool Layout::reachesInto(const LaidOut& column, const LaidOut& item) const {
    return std::ranges::any_of(m_items, [&](const LaidOut& other) {
        return &other != &column && other.at.left < column.at.right && other.at.top < item.at.bottom &&
               other.at.bottom > item.at.top;
    });
}

void Layout::closeColumn(UINT id) {
    const LaidOut* column = find(id);
    const LaidOut* body = m_body ? find(m_bodyId) : nullptr;
    if (!column || !body || column->at.right > body->at.left)
        return;
    const LONG gained = body->at.left - column->at.left;
    // Decided for all before any of them moves; a row that already has a control in the column keeps its place.
    std::vector<size_t> movers;
    for (size_t i = 0; i < m_items.size(); ++i) {
        if (&m_items[i] != column && m_items[i].across != Grow::Move && !reachesInto(*column, m_items[i]))
            movers.push_back(i);
    }
    for (const size_t i : movers) {
        LaidOut& item = m_items[i];
        item.at.left -= gained;
        if (item.across == Grow::Stay)
            item.at.right -= gained;
    }
    m_least.reset();
}

SIZE Layout::leastSize() const {
    if (!m_least)
        m_least = findLeast();
    return *m_least;
}

SIZE Layout::findLeast() const {
    LONG across = m_client.cx;
    LONG down = m_client.cy;
    for (const LaidOut& item : m_items) {
        across = std::min(across, spare(spanAcross(item), item.across, m_client.cx));
        down = std::min(down, spare(spanDown(item), item.down, m_client.cy));
        for (const LaidOut& other : m_items) {
            const bool beside = meets(spanDown(item), spanDown(other)) && other.at.right <= item.at.left;
            if (beside && item.across == Grow::Move && other.across == Grow::Stay)
                across = std::min(across, item.at.left - other.at.right);
            const bool below = meets(spanAcross(item), spanAcross(other)) && other.at.bottom <= item.at.top;
            if (below && item.down == Grow::Move && other.down == Grow::Stay)
                down = std::min(down, item.at.top - other.at.bottom);
        }
    }
    return {m_client.cx - std::max(across, 0L), m_client.cy - std::max(down, 0L)};
}

RECT Layout::rectOf(size_t index, SIZE client) const {
    const LaidOut& item = m_items[index];
    const SIZE least = leastSize();
    const Span across = grown(spanAcross(item), item.across, std::max(client.cx, least.cx) - m_client.cx);
    const Span down = grown(spanDown(item), item.down, std::max(client.cy, least.cy) - m_client.cy);
    return {across.from, down.from, across.to, down.to};
}

}  // namespace knav
