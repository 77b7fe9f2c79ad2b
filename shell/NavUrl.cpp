#include <knav/NavUrl.h>

#include <wininet.h>

#include "data/ApiEdge.h"
#include "shell/BrowserLaunch.h"
#include "shell/TextRules.h"

namespace {

// The readable form of a URL; false when it has none of at most 259 characters.
bool decodeUrl(const wchar_t* url, CString& decoded) {
    wchar_t buffer[MAX_PATH];
    DWORD length = MAX_PATH;
    if (!NavIsURL(url) || !InternetCanonicalizeUrlW(url, buffer, &length, ICU_DECODE | ICU_NO_ENCODE)) {
        return false;
    }
    decoded = buffer;
    return true;
}

}  // namespace

int NavDecodeURL(CString& in, CString& out) {
    return knav::atApiEdge(0, [&] {
        CString decoded;
        const bool isDecoded = decodeUrl(in, decoded);
        out = isDecoded ? decoded : in;
        return isDecoded ? 1 : 0;
    });
}

int NavLaunchBrowserWith(const wchar_t* url) {
    return knav::atApiEdge(0, [url] { return knav::launchBrowser(url, knav::startProcess) ? 1 : 0; });
}
