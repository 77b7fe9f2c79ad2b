#include <platform/ScopedErrorMode.h>
#include <ry/FileSystem.h>
#include <ry/RyBackground.h>

#include <optional>

#include "ry/ModuleFolder.h"

namespace {

using Kelvara::Tessary::PAL::FileSystem::FolderProbe;

constexpr DWORD kLimit = 2000;

// The path without reference to the current directory, which may change while the prober is still at work.
std::wstring fullPath(const wchar_t* path) {
    std::wstring full(MAX_PATH, L'\0');
    DWORD length = GetFullPathNameW(path, MAX_PATH, full.data(), nullptr);
    if (length >= MAX_PATH) {
        return {};  // the current directory cannot be that long
    }
    full.resize(length);
    return full;
}

bool isOnFixedDisk(const std::wstring& path) {
    wchar_t root[] = L"C:\\";
    root[0] = path[0];
    return path.size() > 2 && path[1] == L':' && GetDriveTypeW(root) == DRIVE_FIXED;
}

bool isFolder(const std::wstring& path) {
    const ScopedErrorMode quiet;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::optional<bool> askInTime(const std::wstring& path, FolderProbe probe, DWORD limit) {
    return ryAskInTime<bool>(
        zoui::ownModule(), [path, probe = std::move(probe)] { return probe(path); }, limit);
}

template <class Ask>
std::wstring changeDir(const wchar_t* path, bool isDesktopKeyword, Ask ask) {
    if (isDesktopKeyword || path == nullptr || *path == 0) {
        return {};
    }
    const std::wstring wanted = fullPath(path);
    if (wanted.empty()) {
        return {};
    }
    if (const std::optional<bool> answer = ask(wanted)) {
        if (*answer) {
            SetCurrentDirectoryW(wanted.c_str());
        }
        return {};
    }
    std::wstring programFolder = zoui::folderOfModule(nullptr);
    SetCurrentDirectoryW(programFolder.c_str());
    return programFolder;
}

}  // namespace

namespace Kelvara::Tessary::PAL::FileSystem {

std::wstring networkAwareChangeDir(const wchar_t* path, bool isDesktopKeyword) {
    // A disk of this machine answers at once, and needs no thread for it.
    return changeDir(path, isDesktopKeyword, [](const std::wstring& wanted) {
        return isOnFixedDisk(wanted) ? isFolder(wanted) : askInTime(wanted, &isFolder, kLimit);
    });
}

std::wstring networkAwareChangeDir(const wchar_t* path, bool isDesktopKeyword, FolderProbe probe, DWORD limit) {
    return changeDir(path, isDesktopKeyword,
                     [&](const std::wstring& wanted) { return askInTime(wanted, std::move(probe), limit); });
}

}  // namespace Kelvara::Tessary::PAL::FileSystem
