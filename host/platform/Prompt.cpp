#include <platform/Prompt.h>

#include <mutex>

#include <platform/Resources.h>

#include "platform/CentredBox.h"

namespace {

struct HandlerSlot {
    std::mutex lock;
    ZoPromptHandler handler;
};

HandlerSlot& handlerSlot() {
    static HandlerSlot slot;
    return slot;
}

std::optional<int> askHandler(const ZoPrompt& prompt) try {
    HandlerSlot& slot = handlerSlot();
    ZoPromptHandler handler;
    {
        const std::scoped_lock locked(slot.lock);
        handler = slot.handler;  // called without the lock: it may ask in turn, or replace itself
    }
    return handler ? handler(prompt) : std::nullopt;
} catch (...) {
    return std::nullopt;
}

UINT withIcon(UINT flags) noexcept {
    if ((flags & MB_ICONMASK) != 0) {
        return flags;
    }
    switch (flags & MB_TYPEMASK) {
        case MB_OK:
        case MB_OKCANCEL:
            return flags | MB_ICONEXCLAMATION;
        default:
            return flags | MB_ICONQUESTION;
    }
}

HWND activeWindow() noexcept {
    const HWND active = GetActiveWindow();
    return active != nullptr ? GetLastActivePopup(active) : nullptr;
}

int showMessageBox(const ZoPrompt& prompt) {
    const zoui::CentredBox centred(prompt.owner);
    return ::MessageBoxW(prompt.owner, prompt.text, prompt.caption, prompt.flags);
}

// The argument that "%1" to "%9" at the start of `rest` stands for, or null.
const CString* argumentAt(std::wstring_view rest, const std::vector<CString>& arguments) noexcept {
    if (rest.size() < 2 || rest[0] != L'%' || rest[1] < L'1' || rest[1] > L'9') {
        return nullptr;
    }
    const auto index = static_cast<std::size_t>(rest[1] - L'1');
    return index < arguments.size() ? &arguments[index] : nullptr;
}

}  // namespace

ZoPromptHandler ZoSetPromptHandler(ZoPromptHandler handler) {
    HandlerSlot& slot = handlerSlot();
    const std::scoped_lock locked(slot.lock);
    return std::exchange(slot.handler, std::move(handler));
}

int ZoAsk(const ZoPrompt& prompt, const std::function<int(const ZoPrompt&)>& show) {
    const std::optional<int> answer = askHandler(prompt);
    return answer ? *answer : show(prompt);
}

int ZoMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT flags) {
    ZoPrompt prompt;
    prompt.owner = owner != nullptr ? owner : activeWindow();
    prompt.text = text;
    prompt.caption = caption != nullptr ? CString(caption) : ZoProgramName();
    prompt.flags = withIcon(flags);
    return ZoAsk(prompt, showMessageBox);
}

int AfxMessageBox(const wchar_t* text, UINT flags) {
    return ZoMessageBox(nullptr, text, nullptr, flags);
}

int AfxMessageBox(UINT textId, UINT flags) {
    CString text;
    AfxLoadString(textId, text);
    return AfxMessageBox(text, flags);
}

CString ZoProgramName() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, ARRAYSIZE(path));
    PathRemoveExtensionW(path);
    return PathFindFileNameW(path);
}

CString ZoFormatText(const wchar_t* format, const std::vector<CString>& arguments) {
    CString result;
    std::wstring_view rest = format != nullptr ? format : L"";
    while (!rest.empty()) {
        if (const CString* const argument = argumentAt(rest, arguments)) {
            result += *argument;
            rest.remove_prefix(2);
        } else {
            result += rest.front();
            rest.remove_prefix(1);
        }
    }
    return result;
}
