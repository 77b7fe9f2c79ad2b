// Names and roles of the controls for assistive tools.
#pragma once

#include "dialog/DialogControls.h"

namespace knav {

/// Tells what each control of the dialog is and what it is called.
void nameControls(DialogControls& controls, HWND dialog);

/// Names the list of a new view, which has a name of the system's own making, or none.
void nameView(HWND list, HWND dialog);

}  // namespace knav
