#include "platform/CommonControls.h"

#include <platform/Windows.h>

namespace zoui {

void registerCommonControls() noexcept {
    static const BOOL registered = [] {
        const INITCOMMONCONTROLSEX classes{
            sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_COOL_CLASSES | ICC_LINK_CLASS};
        return InitCommonControlsEx(&classes);
    }();
    static_cast<void>(registered);
}

}  // namespace zoui
