// Where a dialog was, and where it fits now.
#pragma once

#include <optional>

#include <platform/CString.h>
#include <platform/Windows.h>

namespace zoui {

struct DialogPlace {
    RECT area{};  // screen coordinates
    UINT dpi = USER_DEFAULT_SCREEN_DPI;
};

// As it is stored: "left top width height dpi". Reading gives nothing for a text of another form or with senseless
// numbers.
CString toText(const DialogPlace& place);
std::optional<DialogPlace> placeFromText(const CString& text);

// The size of `place` at another number of dots per inch.
SIZE sizeAtDpi(const DialogPlace& place, UINT dpi) noexcept;

// `wanted` made no larger than `room` and moved into it.
RECT fitInto(const RECT& wanted, const RECT& room) noexcept;

}  // namespace zoui
