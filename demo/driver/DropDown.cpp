#include "demo/driver/DropDown.h"

#include <stdexcept>

#include "demo/driver/Input.h"
#include "demo/driver/WindowSearch.h"

HWND knav::input::dropDown(DWORD process, const wchar_t* className, const std::function<void()>& press) {
    constexpr int kTries = 4;
    constexpr DWORD kTryMs = 2500;
    HWND popup = nullptr;
    const auto dropped = [&] {
        popup = findTopLevel([&](HWND window) { return isShownBy(window, process) && isClass(window, className); });
        return popup != nullptr;
    };
    for (int tries = 0; tries < kTries; ++tries) {
        press();
        if (waitUntil(dropped, kTryMs)) {
            return popup;
        }
    }
    throw std::runtime_error("a menu or list does not drop down");
}
