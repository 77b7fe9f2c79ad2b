#include "dialog/PaintingWait.h"

#include <algorithm>

namespace knav {
namespace {

void paintWindows() {
    MSG message;
    // One round only: a window that never has enough must not keep us here.
    for (int i = 0; i < 64 && PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE); ++i) {
        DispatchMessageW(&message);
    }
}

}  // namespace

bool waitWhilePainting(HANDLE event, unsigned limit) {
    // The system takes a window whose thread looks for no message for some seconds for one that hangs.
    constexpr ULONGLONG kLongestSilence = 500;
    const ULONGLONG end = GetTickCount64() + limit;
    while (true) {
        const ULONGLONG now = GetTickCount64();
        const auto left = static_cast<DWORD>(now < end ? std::min(end - now, kLongestSilence) : 0);
        if (MsgWaitForMultipleObjects(1, &event, FALSE, left, QS_PAINT | QS_SENDMESSAGE) == WAIT_OBJECT_0) {
            return true;
        }
        if (now >= end) {
            return false;
        }
        paintWindows();
    }
}

}  // namespace knav
