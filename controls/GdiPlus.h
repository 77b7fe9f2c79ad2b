// GDI+: its header with what it expects, and its start-up.
#pragma once

#include <algorithm>

#include <platform/Windows.h>

namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

namespace knav {

/// Keeps GDI+ started as long as one of these lives. Whatever owns pictures holds one, declared before them so that
/// it goes last. User-interface thread only.
class GdiPlusSession {
public:
    GdiPlusSession();
    ~GdiPlusSession();
    GdiPlusSession(const GdiPlusSession&) = delete;
    GdiPlusSession& operator=(const GdiPlusSession&) = delete;
};

}  // namespace knav
