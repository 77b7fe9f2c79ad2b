// Targets of shortcuts. Nothing throws. Any thread where COM is initialised.
#pragma once

#include <knav/export.h>
#include <platform/Windows.h>

/// The target of the shortcut file that the qualified `list` names, after the shell has looked for a target that moved.
/// With `silent` 0 the shell shows nothing; with any other value it may show its search window. The value is thus the
/// opposite of its name, and callers rely on it. Null when it is no shortcut or cannot be resolved. The caller frees
/// the result.
KNAV_API ITEMIDLIST* NavResolveLink(ITEMIDLIST* list, int silent);

/// The target that the shortcut file records, whether or not it still exists; null when it is no shortcut. The caller
/// frees the result.
KNAV_API ITEMIDLIST* NavGetLinkIDList(ITEMIDLIST* list);
