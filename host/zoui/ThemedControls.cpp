#include "zoui/ThemedControls.h"

#include "ry/ModuleFolder.h"

namespace zoui {
namespace {

// The context that the manifest of this module describes.
class ModuleContext {
public:
    ModuleContext() noexcept {
        ACTCTXW description{};
        description.cbSize = sizeof(description);
        description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        description.hModule = ownModule();
        description.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
        m_context = CreateActCtxW(&description);
    }
    ~ModuleContext() {
        if (isValid()) {
            ReleaseActCtx(m_context);
        }
    }
    ModuleContext(const ModuleContext&) = delete;
    ModuleContext& operator=(const ModuleContext&) = delete;

    bool isValid() const noexcept { return m_context != INVALID_HANDLE_VALUE; }
    HANDLE get() const noexcept { return m_context; }

private:
    HANDLE m_context;
};

}  // namespace

ThemedControls::ThemedControls() noexcept {
    static const ModuleContext context;
    if (!context.isValid() || !ActivateActCtx(context.get(), &m_cookie)) {
        m_cookie = 0;
    }
}

ThemedControls::~ThemedControls() {
    if (m_cookie != 0) {
        DeactivateActCtx(0, m_cookie);
    }
}

}  // namespace zoui
