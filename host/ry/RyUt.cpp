#include <ry/RyUt.h>

#include <string>

namespace {

// Calls a system function that fills a text buffer and reports the needed size, until the text fits. Empty on failure.
template <class Fill>
std::wstring textFrom(Fill&& fill) {
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
        if (length < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(length + std::size_t{1});
    }
}

std::wstring fullLongName(const wchar_t* path) {
    const std::wstring full =
        textFrom([path](wchar_t* buffer, DWORD size) { return GetFullPathNameW(path, size, buffer, nullptr); });
    std::wstring longName =
        textFrom([&full](wchar_t* buffer, DWORD size) { return GetLongPathNameW(full.c_str(), buffer, size); });
    // A component that may not be listed has no long name to give; the path itself is right all the same.
    return longName.empty() ? full : longName;
}

}  // namespace

int RyUt::GetFileStatus(const wchar_t* path, RyFileStatus& status) noexcept try {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (path == nullptr || *path == 0 || !GetFileAttributesExW(path, GetFileExInfoStandard, &data)) {
        return 0;
    }
    const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    RyFileStatus found;
    found.m_fullName = fullLongName(path);
    found.m_size = isFolder ? 0 : ULARGE_INTEGER{{data.nFileSizeLow, data.nFileSizeHigh}}.QuadPart;
    found.m_attributes = data.dwFileAttributes;
    found.m_created = data.ftCreationTime;
    found.m_modified = data.ftLastWriteTime;
    found.m_accessed = data.ftLastAccessTime;
    status = std::move(found);
    return 1;
} catch (...) {
    return 0;
}
