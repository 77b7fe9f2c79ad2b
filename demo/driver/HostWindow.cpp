#include "demo/driver/HostWindow.h"

#include <stdexcept>

#include "demo/drafthost/ids.h"
#include "demo/driver/DropDown.h"
#include "demo/driver/Input.h"
#include "demo/driver/WindowSearch.h"

namespace {

constexpr DWORD kStartLimitMs = 30'000;

std::wstring besideThisProgram(const wchar_t* name) {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, ARRAYSIZE(path));
    const std::wstring whole = path;
    return whole.substr(0, whole.rfind(L'\\') + 1) + name;
}

}  // namespace

knav::input::HostWindow::HostWindow(const std::wstring& arguments) {
    const std::wstring program = besideThisProgram(L"drafthost.exe");
    std::wstring commandLine = L"\"" + program + L"\" " + arguments;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION made{};
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &made)) {
        throw std::runtime_error("the host does not start");
    }
    CloseHandle(made.hThread);
    m_process.reset(made.hProcess);
    m_processId = made.dwProcessId;
    const auto appeared = [this] {
        m_window = findTopLevel(
            [this](HWND window) { return isShownBy(window, m_processId) && GetDlgItem(window, IDC_LOG) != nullptr; });
        return m_window != nullptr;
    };
    if (!waitUntil(appeared, kStartLimitMs)) {
        TerminateProcess(m_process.get(), 1);
        throw std::runtime_error("the host shows no window");
    }
    waitUntilInFront(m_window);
}

knav::input::HostWindow::~HostWindow() {
    if (WaitForSingleObject(m_process.get(), 0) != WAIT_OBJECT_0) {
        TerminateProcess(m_process.get(), 1);
    }
}

void knav::input::HostWindow::waitUntilInFront(HWND window) const {
    if (!waitUntil([&] { return GetForegroundWindow() == window && IsWindowEnabled(window); })) {
        throw std::runtime_error("a window of the host does not come to the front");
    }
}

void knav::input::HostWindow::choose(wchar_t menu, wchar_t entry) const {
    waitUntilInFront(m_window);
    dropDown(m_processId, L"#32768", [menu] { pressKey(static_cast<WORD>(menu), VK_MENU); });
    if (entry != 0) {
        pressKey(static_cast<WORD>(entry));
    }
}

std::wstring knav::input::HostWindow::log() const {
    waitUntilInFront(m_window);
    return textOf(GetDlgItem(m_window, IDC_LOG));
}

int knav::input::HostWindow::close() const {
    choose(L'F', L'X');
    DWORD code = 0;
    const bool ended = WaitForSingleObject(m_process.get(), 10'000) == WAIT_OBJECT_0;
    return ended && GetExitCodeProcess(m_process.get(), &code) ? static_cast<int>(code) : -1;
}

HWND knav::input::HostWindow::waitForWindow(const std::wstring& title) const {
    HWND found = nullptr;
    const auto appeared = [&] {
        found = findTopLevel([&](HWND window) {
            return window != m_window && isShownBy(window, m_processId) && textOf(window) == title;
        });
        return found != nullptr;
    };
    if (!waitUntil(appeared)) {
        throw std::runtime_error("a window of the host does not appear");
    }
    waitUntilInFront(found);
    return found;
}
