#include "demo/driver/Input.h"

#include <cstdlib>
#include <vector>

namespace {

constexpr DWORD kPollMs = 20;

INPUT key(WORD virtualKey, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.dwFlags = flags;
    return input;
}

INPUT character(wchar_t unit, DWORD flags) {
    INPUT input = key(0, KEYEVENTF_UNICODE | flags);
    input.ki.wScan = unit;
    return input;
}

// A button carries its place: the report of an earlier move that comes late would take the pointer elsewhere.
INPUT button(DWORD flags, POINT position) {
    const auto share = [](LONG pixel, int pixels) { return (pixel * 0x10000 + pixels - 1) / pixels; };
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = share(position.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = share(position.y, GetSystemMetrics(SM_CYSCREEN));
    return input;
}

void send(std::vector<INPUT> inputs) {
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// Presses `modifier`, does `inputs`, releases it.
void sendWith(WORD modifier, std::vector<INPUT> inputs) {
    if (modifier != 0) {
        inputs.insert(inputs.begin(), key(modifier, 0));
        inputs.push_back(key(modifier, KEYEVENTF_KEYUP));
    }
    send(std::move(inputs));
}

// Two clicks at one place soon after each other are a double click, also when they are meant apart.
void waitUntilClickStandsAlone(POINT position) {
    static POINT lastPosition{};
    static ULONGLONG lastTime = 0;
    const ULONGLONG free = lastTime + GetDoubleClickTime() + kPollMs;
    const ULONGLONG now = GetTickCount64();
    const bool sameSpot = std::abs(position.x - lastPosition.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
                          std::abs(position.y - lastPosition.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
    if (sameSpot && now < free) {
        Sleep(static_cast<DWORD>(free - now));
    }
    lastPosition = position;
    lastTime = GetTickCount64();
}

}  // namespace

void knav::input::typeText(std::wstring_view text) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : text) {
        inputs.push_back(character(unit, 0));
        inputs.push_back(character(unit, KEYEVENTF_KEYUP));
    }
    send(std::move(inputs));
}

void knav::input::pressKey(WORD virtualKey, WORD modifier) {
    sendWith(modifier, {key(virtualKey, 0), key(virtualKey, KEYEVENTF_KEYUP)});
}

void knav::input::click(POINT position, int times, WORD modifier) {
    waitUntilClickStandsAlone(position);
    std::vector<INPUT> inputs;
    for (int i = 0; i < times; ++i) {
        inputs.push_back(button(MOUSEEVENTF_LEFTDOWN, position));
        inputs.push_back(button(MOUSEEVENTF_LEFTUP, position));
    }
    sendWith(modifier, std::move(inputs));
}

void knav::input::parkPointer() {
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

bool knav::input::waitUntil(const std::function<bool()>& ready, DWORD limitMs) {
    const ULONGLONG start = GetTickCount64();
    while (!ready()) {
        if (GetTickCount64() - start > limitMs) {
            return ready();
        }
        Sleep(kPollMs);
    }
    return true;
}
