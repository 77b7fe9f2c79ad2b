// The stream that views are given for their state.
#pragma once

#include <platform/Windows.h>

namespace knav {

/// A stream on the one block of 128 bytes that all dialogs of the process share. The block is made by the first call
/// and kept; the stream is the caller's.
HRESULT makeViewStateStream(IStream** stream);

}  // namespace knav
