#include <platform/Prompt.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(Prompt, IsShownWhenTheHandlerPassesOrFails) {
    const ZoPromptHandler handlers[] = {
        nullptr,
        [](const ZoPrompt&) { return std::nullopt; },
        [](const ZoPrompt&) -> std::optional<int> { throw std::runtime_error("broken"); },
    };
    const ZoPromptHandler before = ZoSetPromptHandler(nullptr);
    for (const ZoPromptHandler& handler : handlers) {
        ZoSetPromptHandler(handler);
        EXPECT_EQ(ZoAsk(ZoPrompt{}, [](const ZoPrompt&) { return IDNO; }), IDNO);
    }
    // A handler may ask, and replace itself.
    ZoSetPromptHandler([](const ZoPrompt&) -> std::optional<int> {
        ZoSetPromptHandler([](const ZoPrompt&) { return IDNO; });
        return AfxMessageBox(L"inner") == IDNO ? IDYES : IDCANCEL;
    });
    EXPECT_EQ(AfxMessageBox(L"outer"), IDYES);
    ZoSetPromptHandler(before);
}

/// Looks for a box over `owner`, notes where it is, and closes it.
struct BoxWatcher {
    HWND owner = nullptr;
    RECT box{};

    static void CALLBACK look(HWND window, UINT, UINT_PTR watcher, DWORD) {
        auto& self = *reinterpret_cast<BoxWatcher*>(watcher);
        const HWND box = GetLastActivePopup(window);
        if (box != window && IsWindowVisible(box)) {
            GetWindowRect(box, &self.box);
            PostMessageW(box, WM_COMMAND, IDOK, 0);
        }
    }
};

TEST(Prompt, MessageBoxStandsInTheMiddleOfItsOwnerButOnTheScreen) {
    for (const bool onScreen : {true, false}) {
        SCOPED_TRACE(onScreen ? "away from the middle of the screen" : "partly off the screen");
        const HWND owner = CreateWindowExW(0, L"#32770", L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                           onScreen ? 40 : -550, 60, 600, 300, nullptr, nullptr, nullptr, nullptr);
        BoxWatcher watcher{owner};
        SetTimer(owner, reinterpret_cast<UINT_PTR>(&watcher), 20, &BoxWatcher::look);
        EXPECT_EQ(ZoMessageBox(owner, L"Done", L"Caption", MB_OK), IDOK);
        RECT place{};
        GetWindowRect(owner, &place);
        DestroyWindow(owner);
        const LONG middle = (watcher.box.left + watcher.box.right) / 2;
        EXPECT_GE(watcher.box.left, 0);
        EXPECT_GT(watcher.box.right, watcher.box.left);
        if (onScreen) {
            EXPECT_NEAR(middle, (place.left + place.right) / 2, 1);
            EXPECT_NEAR((watcher.box.top + watcher.box.bottom) / 2, (place.top + place.bottom) / 2, 1);
        }
    }
}

TEST(FormatText, ReplacesNumberedPlacesInOnePass) {
    const struct {
        const char* why;
        const wchar_t* format;
        std::vector<CString> arguments;
        const wchar_t* expected;
    } rows[] = {
        {"both, in any order and repeated", L"%2 in %1, %1", {L"a", L"b"}, L"b in a, a"},
        {"an argument with a place in it is not filled in", L"%1 %2", {L"%2", L"b"}, L"%2 b"},
        {"a place without argument stays", L"%1 %2", {L"a"}, L"a %2"},
        {"any other percent sign stays", L"100% %x %0 %%1 %", {L"a"}, L"100% %x %0 %a %"},
        {"empty argument", L"<%1>", {L""}, L"<>"},
        {"null format", nullptr, {L"a"}, L""},
    };
    for (const auto& row : rows) {
        EXPECT_STREQ(ZoFormatText(row.format, row.arguments), row.expected) << row.why;
    }
}

}  // namespace
