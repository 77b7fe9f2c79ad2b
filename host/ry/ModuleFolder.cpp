#include "ry/ModuleFolder.h"

namespace zoui {

HINSTANCE ownModule() noexcept {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&ownModule), &module);
    return module;
}

std::wstring folderOfModule(HINSTANCE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path.substr(0, path.find_last_of(L'\\') + 1);
        }
        path.resize(path.size() * 2);
    }
}

}  // namespace zoui
