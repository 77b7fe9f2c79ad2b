// The window classes of the common controls.
#pragma once

namespace zoui {

// Makes them known to the process, once; needed before a template or a call names one of them.
void registerCommonControls() noexcept;

}  // namespace zoui
