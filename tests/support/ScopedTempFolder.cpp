#include "support/ScopedTempFolder.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>

namespace {

std::filesystem::path tempRoot() {
    wchar_t path[MAX_PATH + 1] = L"";
    GetTempPathW(MAX_PATH + 1, path);
    GetLongPathNameW(path, path, MAX_PATH + 1);
    return path;
}

// Before Wine makes a file it looks through the whole folder for the name in another case, so that many files take
// minutes. It does not where the name is one of the system below it, which this gives. Elsewhere the path is as good.
std::wstring pathWithoutSearch(const CString& folder) {
    using GetUnixFileName = char*(CDECL*)(const wchar_t*);
    const auto getUnixFileName = reinterpret_cast<GetUnixFileName>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    char* const name = getUnixFileName != nullptr ? getUnixFileName(folder) : nullptr;
    if (name == nullptr) {
        return folder.GetString();
    }
    std::wstring path = L"\\\\?\\unix" + std::filesystem::path(name).wstring();
    HeapFree(GetProcessHeap(), 0, name);
    std::ranges::replace(path, L'/', L'\\');
    return path;
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

void knav::test::ScopedTempFolder::addFiles(int count, CString (*nameOf)(int number)) const {
    const std::wstring folder = pathWithoutSearch(m_path) + L"\\";
    for (int number = 0; number < count; ++number) {
        const std::wstring path = folder + nameOf(number).GetString();
        CloseHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    }
}

CString knav::test::ScopedTempFolder::addFolder(const wchar_t* relative) const {
    const CString folder = path(relative);
    std::filesystem::create_directories(folder.GetString());
    return folder;
}
