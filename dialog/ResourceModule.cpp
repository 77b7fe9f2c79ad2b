#include "dialog/ResourceModule.h"

#include <knav/CNavHostApplication.h>
#include <platform/Prompt.h>
#include <platform/Resources.h>
#include <ry/RyUtResource.h>

#include <memory>
#include <string>

namespace knav {
namespace {

constexpr wchar_t kModuleName[] = L"KnavRes.dll";

std::wstring& language() {
    static std::wstring name;
    return name;
}

HINSTANCE libraryModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&libraryModule), &module);
    return module;
}

/// With a language: its folder beside the host's executable. Without one the name alone, which the loader finds beside
/// this library or the executable.
std::wstring modulePath() {
    if (language().empty()) {
        return kModuleName;
    }
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    path.resize(path.size() < MAX_PATH ? path.rfind(L'\\') + 1 : 0);
    return path + language() + L"\\" + kModuleName;
}

/// Loaded once; freed with the library.
class Module {
public:
    Module() : m_module(RyUtResource::loadDll(modulePath().c_str(), libraryModule())) {
        if (m_module) {
            m_link = std::make_unique<CDynLinkLibrary>(m_module);
        } else {
            AfxMessageBox(L"KnavRes.dll not found");
        }
    }
    ~Module() {
        m_link.reset();
        RyUtResource::freeDll(m_module);
    }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    HINSTANCE get() const { return m_module; }

private:
    HINSTANCE m_module;
    std::unique_ptr<CDynLinkLibrary> m_link;
};

}  // namespace

void setResourceLanguage(const wchar_t* name) {
    language() = name ? name : L"";
}

HMODULE resourceModule() {
    static Module module;
    return module.get();
}

}  // namespace knav

void KNavSetLanguage(const wchar_t* language) {
    knav::setResourceLanguage(language);
}
