// Places that host programs add to every user's Places list.
#pragma once

#include <knav/export.h>

/// Asks for a place with that label and full folder path in the next Places list that is shown. Each path is offered to
/// a user once, whatever the case of its letters, so that a place the user removed does not come back. 1 when it was
/// queued; 0 when it was offered before or is not an absolute path. User-interface thread only. Nothing throws.
KNAV_API int NavAddPlace(const wchar_t* name, const wchar_t* path);
