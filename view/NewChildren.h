// The windows that a call has put into another one.
#pragma once

#include <platform/Windows.h>

#include <vector>

namespace knav {

/// Knows the children that `parent` has when this is made.
class NewChildren {
public:
    explicit NewChildren(HWND parent);
    NewChildren(const NewChildren&) = delete;
    NewChildren& operator=(const NewChildren&) = delete;

    /// A child that the parent has got since; null when there is none.
    HWND first() const;
    void destroy() const;

private:
    std::vector<HWND> found() const;

    HWND m_parent;
    std::vector<HWND> m_known;
};

}  // namespace knav
