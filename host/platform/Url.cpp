#include <platform/Url.h>

#include <wininet.h>

namespace {

DWORD serviceOf(INTERNET_SCHEME scheme) noexcept {
    switch (scheme) {
        case INTERNET_SCHEME_FTP:
            return AFX_INET_SERVICE_FTP;
        case INTERNET_SCHEME_GOPHER:
            return AFX_INET_SERVICE_GOPHER;
        case INTERNET_SCHEME_HTTP:
            return AFX_INET_SERVICE_HTTP;
        case INTERNET_SCHEME_HTTPS:
            return AFX_INET_SERVICE_HTTPS;
        case INTERNET_SCHEME_FILE:
            return AFX_INET_SERVICE_FILE;
        case INTERNET_SCHEME_MAILTO:
            return AFX_INET_SERVICE_MAILTO;
        case INTERNET_SCHEME_NEWS:
            return AFX_INET_SERVICE_NEWS;
        default:
            return AFX_INET_SERVICE_UNK;
    }
}

bool needsServer(DWORD service) noexcept {
    return service == AFX_INET_SERVICE_FTP || service == AFX_INET_SERVICE_GOPHER || service == AFX_INET_SERVICE_HTTP ||
           service == AFX_INET_SERVICE_HTTPS;
}

CString part(const wchar_t* text, DWORD length) {
    return text != nullptr ? CString(text, static_cast<int>(length)) : CString();
}

}  // namespace

BOOL AfxParseURL(const wchar_t* url, DWORD& serviceType, CString& server, CString& object, WORD& port) {
    CString text(url);
    text.Trim();
    if (text.IsEmpty() || text.GetLength() > static_cast<int>(INTERNET_MAX_URL_LENGTH)) {
        return FALSE;
    }
    // Cracked without decoding: an escaped '@' or '/' must not move the border between the parts.
    URL_COMPONENTSW parts{};
    parts.dwStructSize = sizeof parts;
    parts.dwSchemeLength = parts.dwHostNameLength = parts.dwUrlPathLength = 1;
    if (!InternetCrackUrlW(text, static_cast<DWORD>(text.GetLength()), 0, &parts) || parts.dwSchemeLength == 0) {
        return FALSE;
    }
    const DWORD service = serviceOf(parts.nScheme);
    if (needsServer(service) && parts.dwHostNameLength == 0) {
        return FALSE;
    }
    serviceType = service;
    server = part(parts.lpszHostName, parts.dwHostNameLength);
    object = part(parts.lpszUrlPath, parts.dwUrlPathLength);
    port = parts.nPort;
    return TRUE;
}
