// What the dialog makes of keys before anything else gets them.
#pragma once

#include "dialog/DialogControls.h"

namespace knav {

class DialogKeys {
public:
    explicit DialogKeys(DialogControls& controls) : m_controls(controls) {}
    DialogKeys(const DialogKeys&) = delete;
    DialogKeys& operator=(const DialogKeys&) = delete;

    /// The dialog is about to be shown: loads the table of keys, once. An Enter that is held down already is not for
    /// it.
    void begin();

    /// True when the message was a key of the dialog or of the view in it, and has been worked off.
    bool translate(MSG& message, HWND dialog);

private:
    bool swallowHeldEnter(const MSG& message);
    bool keepForLabelEdit(MSG& message) const;
    bool goUpFromView(const MSG& message, HWND dialog) const;
    bool translateForView(MSG& message);
    bool isForControl(const MSG& message) const;

    DialogControls& m_controls;
    HACCEL m_table = nullptr;
    bool m_enterHeldSinceStart = true;
};

}  // namespace knav
