#include "demo/driver/NavDialogWindow.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "demo/driver/Input.h"
#include "demo/driver/RemoteList.h"
#include "demo/driver/Screenshot.h"
#include "demo/driver/WindowSearch.h"
#include "resources/ids.h"

namespace {

using knav::input::findTopLevel;
using knav::input::isClass;
using knav::input::isShownBy;
using knav::input::RemoteList;
using knav::input::waitUntil;

constexpr DWORD kItemLimitMs = 15'000;

std::string utf8(const std::wstring& text) {
    std::string result(text.size() * 3 + 1, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, result.data(), static_cast<int>(result.size()),
                                         nullptr, nullptr);
    result.resize(static_cast<std::size_t>(size) - 1);
    return result;
}

bool isNavDialog(HWND window, DWORD process) {
    return isShownBy(window, process) && isClass(window, L"#32770") &&
           GetDlgItem(window, IDC_KNAV_FILE_NAME) != nullptr;
}

HWND findList(HWND dialog) {
    HWND list = nullptr;
    const auto look = [](HWND window, LPARAM result) -> BOOL {
        if (isClass(window, WC_LISTVIEWW) && IsWindowVisible(window)) {
            *reinterpret_cast<HWND*>(result) = window;
        }
        return *reinterpret_cast<HWND*>(result) == nullptr;
    };
    EnumChildWindows(dialog, look, reinterpret_cast<LPARAM>(&list));
    return list;
}

HWND focusOf(HWND dialog) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &info) ? info.hwndFocus : nullptr;
}

}  // namespace

knav::input::NavDialogWindow knav::input::NavDialogWindow::waitFor(DWORD process, DWORD limitMs) {
    HWND found = nullptr;
    const auto ready = [&] {
        found = findTopLevel([process](HWND window) { return isNavDialog(window, process); });
        return found != nullptr && findList(found) != nullptr;
    };
    if (!waitUntil(ready, limitMs)) {
        throw std::runtime_error(found == nullptr ? "the dialog did not appear" : "the dialog shows no folder");
    }
    const NavDialogWindow dialog(found);
    dialog.waitUntilInFront();
    dialog.waitUntilHandled();
    return dialog;
}

bool knav::input::NavDialogWindow::isOpen() const {
    return IsWindow(m_dialog) && IsWindowVisible(m_dialog);
}

void knav::input::NavDialogWindow::typeName(const std::wstring& text) const {
    const HWND field = GetDlgItem(m_dialog, IDC_KNAV_FILE_NAME);
    const auto focused = [&] {
        const HWND focus = focusOf(m_dialog);
        return focus == field || IsChild(field, focus);
    };
    if (!focused()) {
        click(middleOf(field));
        waitUntil(focused, 3000);
    }
    pressKey(VK_HOME);
    pressKey(VK_END, VK_SHIFT);
    pressKey(VK_DELETE);
    typeText(text);
    // Completion may take its time over a letter, and adds to the text.
    if (!waitUntil([&] { return textOf(field).starts_with(text); }, kItemLimitMs)) {
        throw std::runtime_error("the file name field does not take \"" + utf8(text) + "\"");
    }
}

void knav::input::NavDialogWindow::select(const std::vector<std::wstring>& names) const {
    const auto isSelected = [this](const std::wstring& name) {
        const RemoteList items(list());
        const std::optional<int> index = items.find(name);
        return index && items.isSelected(*index);
    };
    // A late change of the focus releases the modifier key, and the click then selects one item alone.
    constexpr int kTries = 3;
    for (int tries = 0; tries < kTries; ++tries) {
        WORD modifier = 0;
        for (const std::wstring& name : names) {
            click(itemPoint(name), 1, modifier);
            if (!waitUntil([&] { return isSelected(name); }, kItemLimitMs)) {
                throw std::runtime_error("\"" + utf8(name) + "\" was clicked but is not selected");
            }
            modifier = VK_CONTROL;
        }
        waitUntilHandled();
        if (std::ranges::all_of(names, isSelected)) {
            return;
        }
    }
    throw std::runtime_error("the items clicked with Ctrl do not stay selected together");
}

void knav::input::NavDialogWindow::open(const std::wstring& name) const {
    click(itemPoint(name), 2);
}

void knav::input::NavDialogWindow::focusFileType() const {
    const HWND combo = GetDlgItem(m_dialog, IDC_KNAV_FILE_TYPE);
    // A click opens the list or closes it again; a late change of the focus may have closed it before.
    const auto ready = [&] { return focusOf(m_dialog) == combo && SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) == 0; };
    for (int clicks = 0; clicks < 4 && !ready(); ++clicks) {
        click(middleOf(combo));
        waitUntilHandled();
    }
    if (!ready()) {
        throw std::runtime_error("the list of file types does not take the focus");
    }
}

void knav::input::NavDialogWindow::pressOk() const {
    click(middleOf(GetDlgItem(m_dialog, IDOK)));
}

void knav::input::NavDialogWindow::pressEnter() const {
    pressKey(VK_RETURN);
}

void knav::input::NavDialogWindow::pressEscape() const {
    pressKey(VK_ESCAPE);
}

bool knav::input::NavDialogWindow::waitUntilClosed(DWORD limitMs) const {
    waitUntil([this] { return !isOpen() || box() != nullptr; }, limitMs);
    return !isOpen();
}

std::wstring knav::input::NavDialogWindow::boxText() const {
    const HWND window = box();
    return window == nullptr ? std::wstring() : textOfBox(window);
}

void knav::input::NavDialogWindow::dismissBox() const {
    const HWND window = box();
    waitUntil([&] { return GetForegroundWindow() == window; }, 3000);
    pressKey(VK_RETURN);
    waitUntil([&] { return !IsWindow(window); });
    if (isOpen()) {
        waitUntilInFront();
    }
}

HWND knav::input::NavDialogWindow::list() const {
    return findList(m_dialog);
}

// A box disables the dialog that owns it.
HWND knav::input::NavDialogWindow::box() const {
    if (IsWindowEnabled(m_dialog)) {
        return nullptr;
    }
    return findTopLevel([this](HWND window) {
        return window != m_dialog && IsWindowVisible(window) && IsWindowEnabled(window) &&
               GetWindow(window, GW_OWNER) == m_dialog && isClass(window, L"#32770");
    });
}

POINT knav::input::NavDialogWindow::itemPoint(const std::wstring& name) const {
    std::optional<POINT> point;
    const auto shown = [&] {
        const RemoteList items(list());  // a new list after each change of folder
        const std::optional<int> index = items.find(name);
        point = index ? items.show(*index) : std::nullopt;
        return point.has_value();
    };
    if (!waitUntil(shown, kItemLimitMs)) {
        throw std::runtime_error("the dialog does not show \"" + utf8(name) + "\"");
    }
    waitUntilHandled();
    return *point;
}

// The window manager gives a window the focus late, and may take it away once more. What is typed meanwhile goes
// nowhere, and a click that is under way ends.
void knav::input::NavDialogWindow::waitUntilInFront() const {
    const auto isInFront = [this] { return GetForegroundWindow() == m_dialog && focusOf(m_dialog) != nullptr; };
    waitUntil(isInFront, 3000);
    waitUntilSettled(m_dialog);
    waitUntil(isInFront, 3000);
}

// Input is handled in order with other messages, so a message that comes back has seen the input before it.
void knav::input::NavDialogWindow::waitUntilHandled() const {
    constexpr DWORD kSettleMs = 50;
    Sleep(kSettleMs);
    DWORD_PTR ignored = 0;
    SendMessageTimeoutW(m_dialog, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kItemLimitMs, &ignored);
}

std::wstring knav::input::textOfBox(HWND box) {
    std::wstring text;
    const auto collect = [](HWND child, LPARAM result) -> BOOL {
        wchar_t content[1000] = L"";
        if (isClass(child, WC_STATICW) && GetWindowTextW(child, content, ARRAYSIZE(content)) > 0) {
            auto& all = *reinterpret_cast<std::wstring*>(result);
            all += (all.empty() ? L"" : L"\n") + std::wstring(content);
        }
        return TRUE;
    };
    EnumChildWindows(box, collect, reinterpret_cast<LPARAM>(&text));
    return text;
}
