#include <knav/NavUrl.h>

#include "data/ApiEdge.h"
#include "shell/BrowserLaunch.h"
#include "shell/SiteLocation.h"
#include "shell/TextRules.h"

int NavDecodeURL(CString& in, CString& out) {
    return knav::atApiEdge(0, [&] {
        const auto decoded = NavIsURL(in) ? knav::decodedUrl(in) : std::nullopt;
        out = decoded ? CString(*decoded) : in;
        return decoded ? 1 : 0;
    });
}

int NavLaunchBrowserWith(const wchar_t* url) {
    return knav::atApiEdge(0, [url] { return knav::launchBrowser(url, knav::startProcess) ? 1 : 0; });
}
