#include "controls/GdiPlus.h"

namespace knav {
namespace {

int g_sessions = 0;
ULONG_PTR g_token = 0;

}  // namespace

GdiPlusSession::GdiPlusSession() {
    if (g_sessions++ > 0)
        return;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&g_token, &input, nullptr) != Gdiplus::Ok)
        g_token = 0;
}

GdiPlusSession::~GdiPlusSession() {
    if (--g_sessions > 0 || !g_token)
        return;
    Gdiplus::GdiplusShutdown(g_token);
    g_token = 0;
}

}  // namespace knav
