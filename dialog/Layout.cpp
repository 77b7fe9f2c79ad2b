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
}

const LaidOut* Layout::find(UINT id) const {
    const auto found = std::ranges::find(m_items, id, &LaidOut::id);
    return found == m_items.end() ? nullptr : &*found;
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
}

RECT Layout::rectOf(size_t index, SIZE client) const {
    const LaidOut& item = m_items[index];
    const Span across = grown({item.at.left, item.at.right}, item.across, std::max<LONG>(client.cx - m_client.cx, 0));
    const Span down = grown({item.at.top, item.at.bottom}, item.down, std::max<LONG>(client.cy - m_client.cy, 0));
    return {across.from, down.from, across.to, down.to};
}

}  // namespace knav
