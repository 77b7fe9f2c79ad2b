#include "shell/BrowserLaunch.h"

#include <platform/ScopedHandle.h>
#include <ry/RyRegKey.h>

#include <string>
#include <string_view>

namespace {

constexpr int kMostValueBytes = 520;

// The default value of a key below the classes root; empty when it is missing, no text or too long.
CString classDefault(const CString& path) {
    RyRegKey key;
    CString value;
    const bool read = key.open(HKEY_CLASSES_ROOT, path) && ryRegGetValue(key.get(), nullptr, value) == ERROR_SUCCESS;
    const bool fits = (value.GetLength() + 1) * static_cast<int>(sizeof(wchar_t)) <= kMostValueBytes;
    return read && fits ? value : CString();
}

void appendEscape(std::wstring& text, wchar_t character) {
    constexpr wchar_t digits[] = L"0123456789ABCDEF";
    text += L'%';
    text += digits[character >> 4 & 0xF];
    text += digits[character & 0xF];
}

// A double quote ends the argument, and so does a backslash before the closing one: it would make that a character.
std::wstring asOneArgument(std::wstring_view url) {
    const std::size_t trailing = url.find_last_not_of(L'\\') + 1;
    std::wstring argument;
    for (std::size_t index = 0; index < url.size(); ++index) {
        const wchar_t character = url[index];
        if (character < L' ' || character == 0x7F || character == L'"' || index >= trailing) {
            appendEscape(argument, character);
        } else {
            argument += character;
        }
    }
    return argument;
}

}  // namespace

namespace knav {

bool startProcess(wchar_t* commandLine) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWDEFAULT;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        return false;
    }
    const ScopedHandle thread(process.hThread);
    const ScopedHandle owned(process.hProcess);
    return true;
}

CString browserCommand() {
    CString documentClass = classDefault(L".html");
    if (documentClass.IsEmpty()) {
        documentClass = L"htmlfile";
    }
    return classDefault(documentClass + L"\\shell\\open\\command");
}

CString browserCommandLine(const CString& command, const wchar_t* url) {
    CString line = command;
    line.Replace(L"\"%1\"", L"");
    return line + L"  \"" + CString(asOneArgument(url)) + L"\"";
}

bool launchBrowser(const wchar_t* url, const ProcessStarter& start) {
    const CString command = url != nullptr ? browserCommand() : CString();
    if (command.IsEmpty()) {
        return false;
    }
    CString line = browserCommandLine(command, url);
    return start(line.GetBuffer());
}

}  // namespace knav
