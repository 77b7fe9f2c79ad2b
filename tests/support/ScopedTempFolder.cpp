#include "support/ScopedTempFolder.h"

#include <atomic>
#include <filesystem>
#include <fstream>

namespace {

std::filesystem::path tempRoot() {
    wchar_t shortPath[MAX_PATH + 1];
    GetTempPathW(MAX_PATH + 1, shortPath);
    wchar_t longPath[MAX_PATH + 1];
    const DWORD length = GetLongPathNameW(shortPath, longPath, MAX_PATH + 1);
    return length == 0 || length > MAX_PATH ? shortPath : longPath;
}

}  // namespace

knav::test::ScopedTempFolder::ScopedTempFolder() {
    static std::atomic<int> next{0};
    CString name;
    name.Format(L"knav-%lu-%d", GetCurrentProcessId(), next++);
    const std::filesystem::path folder = tempRoot() / name.GetString();
    std::filesystem::remove_all(folder);  // a crashed run with the same process id left it
    std::filesystem::create_directories(folder);
    m_path = folder.wstring();
}

knav::test::ScopedTempFolder::~ScopedTempFolder() {
    std::error_code ignored;  // a test that leaves a file open has its own failure
    std::filesystem::remove_all(m_path.GetString(), ignored);
}

CString knav::test::ScopedTempFolder::path(const wchar_t* relative) const {
    return m_path + L"\\" + relative;
}

CString knav::test::ScopedTempFolder::addFile(const wchar_t* relative, std::string_view content) const {
    const std::filesystem::path file = path(relative).GetString();
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file.wstring();
}

CString knav::test::ScopedTempFolder::addFolder(const wchar_t* relative) const {
    const CString folder = path(relative);
    std::filesystem::create_directories(folder.GetString());
    return folder;
}
