#include "dialog/FolderTexts.h"

#include <algorithm>

#include "shell/TextRules.h"

namespace knav {

bool isDesktopKeyword(const wchar_t* text) {
    return compareNoCase(text, kDesktopKeyword) == 0;
}

CString currentDirectory(DWORD room) {
    wchar_t buffer[MAX_PATH];
    room = std::min<DWORD>(room, MAX_PATH);
    const DWORD length = GetCurrentDirectoryW(room, buffer);
    return length > 0 && length < room ? CString(buffer) : CString();
}

CString executableFolder() {
    wchar_t buffer[MAX_PATH];
    constexpr DWORD kRoom = MAX_PATH - 1;
    const DWORD length = GetModuleFileNameW(nullptr, buffer, kRoom);
    if (length == 0 || length >= kRoom) {
        return CString();
    }
    PathRemoveFileSpecW(buffer);
    return buffer;
}

CString windowsFolder() {
    wchar_t buffer[MAX_PATH];
    const UINT length = GetWindowsDirectoryW(buffer, MAX_PATH);
    return length > 0 && length < MAX_PATH ? CString(buffer) : CString();
}

}  // namespace knav
