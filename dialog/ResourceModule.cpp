#include "dialog/ResourceModule.h"

#include <knav/CNavHostApplication.h>
#include <platform/Prompt.h>
#include <platform/Resources.h>
#include <ry/RyUtResource.h>

#include <memory>
#include <string>

#include "data/ApiEdge.h"

namespace knav {
namespace {

constexpr wchar_t kModuleName[] = L"KnavRes.dll";

std::wstring& language() {
    static std::wstring name;
    return name;
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

/// Freed with the library.
class Module {
public:
    Module() = default;
    ~Module() {
        m_link.reset();
        if (RyUtResource::freeDll(m_module)) {
            m_module = nullptr;
        }
    }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    HINSTANCE get() {
        // The box is shown after the attempt was noted: its messages may lead back here.
        if (!m_tried) {
            m_tried = true;
            load();
            if (!m_module) {
                AfxMessageBox(L"KnavRes.dll not found");
            }
        }
        return m_module;
    }

private:
    void load() {
        m_module = RyUtResource::loadDll(modulePath().c_str(), libraryModule());
        if (m_module) {
            m_link = std::make_unique<CDynLinkLibrary>(m_module);
        }
    }

    bool m_tried = false;
    HINSTANCE m_module = nullptr;
    std::unique_ptr<CDynLinkLibrary> m_link;
};

}  // namespace

HINSTANCE libraryModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&libraryModule), &module);
    return module;
}

void setResourceLanguage(const wchar_t* name) {
    language() = name ? name : L"";
}

HMODULE resourceModule() {
    static Module module;
    return module.get();
}

HMODULE ownResources() {
    const HMODULE module = resourceModule();
    return module ? module : libraryModule();
}

}  // namespace knav

void KNavSetLanguage(const wchar_t* language) {
    knav::atApiEdge([&] { knav::setResourceLanguage(language); });
}
