#include <platform/Resources.h>

#include <algorithm>
#include <vector>

namespace {

HINSTANCE& currentModule() noexcept {
    static HINSTANCE module = nullptr;
    return module;
}

// Oldest first.
std::vector<HINSTANCE>& extensionModules() {
    static std::vector<HINSTANCE> modules;
    return modules;
}

HINSTANCE frameworkModule() noexcept {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&frameworkModule), &module);
    return module;
}

// The first module in look-up order that `hasIt` accepts, else null.
template <class Predicate>
HINSTANCE firstModuleWhere(Predicate hasIt) {
    if (const HINSTANCE current = AfxGetResourceHandle(); hasIt(current)) {
        return current;
    }
    const auto& modules = extensionModules();
    if (const auto found = std::find_if(modules.rbegin(), modules.rend(), hasIt); found != modules.rend()) {
        return *found;
    }
    const HINSTANCE framework = frameworkModule();
    return hasIt(framework) ? framework : nullptr;
}

}  // namespace

HINSTANCE AfxGetInstanceHandle() noexcept {
    return GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle() noexcept {
    return currentModule() != nullptr ? currentModule() : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE module) noexcept {
    currentModule() = module;
}

HINSTANCE AfxFindResourceHandle(const wchar_t* name, const wchar_t* type) noexcept {
    const HINSTANCE module =
        firstModuleWhere([&](HINSTANCE candidate) { return FindResourceW(candidate, name, type) != nullptr; });
    return module != nullptr ? module : AfxGetResourceHandle();
}

BOOL AfxLoadString(UINT id, CString& text) {
    text.Empty();
    return firstModuleWhere([&](HINSTANCE candidate) { return text.LoadString(candidate, id) != FALSE; }) != nullptr;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE module) : m_module(module) {
    extensionModules().push_back(module);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    auto& modules = extensionModules();
    const auto last = std::find(modules.rbegin(), modules.rend(), m_module);
    if (last != modules.rend()) {
        modules.erase(std::next(last).base());
    }
}
