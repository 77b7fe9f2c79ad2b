#pragma once

/// What a dialog says to a notification.
enum ZOUI_REPLY {
    ZOUI_REPLY_NOT_HANDLED = 0,  ///< nobody wanted it: the sender goes on as if it had not asked
    ZOUI_REPLY_HANDLED = 1       ///< dealt with: the sender does nothing more about it
};
