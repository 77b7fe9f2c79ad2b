// What the dialog keeps while OK is being worked off.
#pragma once

#include "dialog/NetworkAnswers.h"

namespace knav {

struct OkState {
    bool running = false;          ///< the items must not change under the steps
    bool closing = false;          ///< accepted: the dialog is about to end
    bool readOnly = false;         ///< it is the command "open read-only"
    bool selectionMissed = false;  ///< the view's selection changed meanwhile
    bool moved = false;            ///< another folder is shown than when it began
    NetworkAnswers network;
};

}  // namespace knav
