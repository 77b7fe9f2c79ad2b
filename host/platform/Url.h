// Is a text a URL, and what are its parts?
#pragma once

#include <platform/CString.h>

// Service types of AfxParseURL.
inline constexpr DWORD AFX_INET_SERVICE_FTP = 1;
inline constexpr DWORD AFX_INET_SERVICE_GOPHER = 2;
inline constexpr DWORD AFX_INET_SERVICE_HTTP = 3;
inline constexpr DWORD AFX_INET_SERVICE_UNK = 0x1000;  // well formed, of a scheme not in this list
inline constexpr DWORD AFX_INET_SERVICE_FILE = AFX_INET_SERVICE_UNK + 1;
inline constexpr DWORD AFX_INET_SERVICE_MAILTO = AFX_INET_SERVICE_UNK + 2;
inline constexpr DWORD AFX_INET_SERVICE_NEWS = AFX_INET_SERVICE_UNK + 5;
inline constexpr DWORD AFX_INET_SERVICE_HTTPS = AFX_INET_SERVICE_UNK + 11;

// Nonzero when the text is a URL. The parts are given as they are written, nothing decoded: the object is the path with
// query and fragment, the port the written one or the scheme's own (0 when it has none). A URL of a web or FTP service
// without a server is none. The results are untouched on failure. No network access; any thread.
ZOUI_API BOOL AfxParseURL(const wchar_t* url, DWORD& serviceType, CString& server, CString& object, WORD& port);
