// Folders dropped on the Places list.
#pragma once

#include <functional>

#include <platform/Windows.h>

namespace knav {

/// Accepts the folder with the qualified list at a screen position; true when it was taken.
using AcceptDroppedFolder = std::function<bool(const ITEMIDLIST* folder, POINT screen)>;

/// Registers a window as a drop target for folders as long as this object lives. OLE must be initialised on the
/// thread. The system may keep the target longer than the window: it then accepts nothing.
class PlacesDropScope {
public:
    PlacesDropScope(HWND window, AcceptDroppedFolder accept);
    ~PlacesDropScope();
    PlacesDropScope(const PlacesDropScope&) = delete;
    PlacesDropScope& operator=(const PlacesDropScope&) = delete;

    bool ok() const noexcept { return m_registered; }

private:
    class Target;

    HWND m_window;
    Target* m_target;
    bool m_registered = false;
};

}  // namespace knav
