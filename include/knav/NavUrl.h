// URLs for people and for the browser. Nothing throws. Any thread.
#pragma once

#include <knav/export.h>
#include <platform/CString.h>

/// Replaces the escape sequences of a URL by the characters that they stand for: `out` is the readable URL and the
/// result nonzero. When `in` is no URL or is too long for 259 characters, `out` is a copy of `in` and the result 0.
/// `in` and `out` may be the same object.
KNAV_API int NavDecodeURL(CString& in, CString& out);

/// Starts the program registered for web pages on `url`; nonzero when it was started. The URL reaches it as one
/// argument whatever it holds: double quotes, control characters and backslashes at its end are percent-encoded.
KNAV_API int NavLaunchBrowserWith(const wchar_t* url);
