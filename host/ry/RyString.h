// The platform layer's string is the framework's.
#pragma once

#include <platform/CString.h>

using RyString = CString;
