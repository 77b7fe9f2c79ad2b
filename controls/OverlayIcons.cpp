#include "controls/OverlayIcons.h"

namespace knav {

void OverlayIcons::draw(HDC dc, int overlay, int x, int y, SIZE size) {
    if (const HICON picture = icon(overlay)) {
        DrawIconEx(dc, x, y, picture, size.cx, size.cy, 0, nullptr, DI_NORMAL);
    }
}

HICON OverlayIcons::icon(int overlay) {
    if (overlay != SharedOverlay && overlay != LinkOverlay) {
        return nullptr;
    }
    const auto index = static_cast<std::size_t>(overlay);
    if (!m_asked[index]) {
        m_asked[index] = true;
        SHSTOCKICONINFO info{};
        info.cbSize = sizeof(info);
        if (SUCCEEDED(SHGetStockIconInfo(overlay == LinkOverlay ? SIID_LINK : SIID_SHARE, SHGSI_ICON | SHGSI_SMALLICON,
                                         &info))) {
            m_icons[index].reset(info.hIcon);
        }
    }
    return m_icons[index].get();
}

}  // namespace knav
