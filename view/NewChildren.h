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

    /// The one of the children made since that is most likely a view: one of the shell's own kind, or else the topmost.
    /// Null when there is none.
    HWND view() const;
    /// Destroys the children made since.
    void destroy() const;

private:
    std::vector<HWND> found() const;

    HWND m_parent;
    std::vector<HWND> m_known;
};

}  // namespace knav
