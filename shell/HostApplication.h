// The process-wide host object.
#pragma once

#include <knav/CNavHostApplication.h>

namespace knav {

/// The host's object, or the library's default one.
CNavHostApplication& hostApplication();

/// No host has installed an object of its own.
bool isDefaultHostApplication();

}  // namespace knav
