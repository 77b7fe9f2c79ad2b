// The navigation extensions of this process, in order of registration.
#pragma once

#include <knav/CNavExtensionArray.h>

namespace knav {

/// The one list of the process; it owns its extensions. User-interface thread only.
CNavExtensionArray& registeredExtensions() noexcept;

}  // namespace knav
