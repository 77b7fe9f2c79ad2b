#include <ry/RyUtResource.h>

#include <string>

#include "ry/ModuleFolder.h"

namespace {

HINSTANCE loadAsResource(const std::wstring& path) noexcept {
    return LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
}

bool isFullPath(const std::wstring& path) noexcept {
    const bool hasDrive = path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/');
    return hasDrive || path.starts_with(L"\\\\");
}

// Relative to a folder, not to a drive or a root.
bool isPlainRelative(const std::wstring& path) noexcept {
    return !path.empty() && path.find(L':') == std::wstring::npos && path[0] != L'\\' && path[0] != L'/';
}

}  // namespace

HINSTANCE RyUtResource::loadDll(const wchar_t* path, HINSTANCE besides) noexcept try {
    const std::wstring name = path != nullptr ? path : L"";
    if (isFullPath(name)) {
        return loadAsResource(name);
    }
    if (!isPlainRelative(name)) {
        return nullptr;
    }
    for (const HINSTANCE module : {besides != nullptr ? besides : zoui::ownModule(), HINSTANCE{}}) {
        const std::wstring folder = zoui::folderOfModule(module);
        if (const HINSTANCE loaded = folder.empty() ? nullptr : loadAsResource(folder + name)) {
            return loaded;
        }
    }
    return nullptr;
} catch (...) {
    return nullptr;
}

int RyUtResource::freeDll(HINSTANCE module) noexcept {
    return module != nullptr && FreeLibrary(module);
}
