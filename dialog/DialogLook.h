// What the controls look like beyond their template.
#pragma once

#include "dialog/DialogControls.h"

namespace knav {

/// Gives the buttons of the toolbar their pictures and tips.
void givePictures(DialogControls& controls);

/// Names and paths are read from the left in every language: makes the field of a combo box so.
void keepNamesLeftToRight(HWND combo);

}  // namespace knav
