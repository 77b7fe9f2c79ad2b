#include "shell/HostApplication.h"

#include "data/ApiEdge.h"

namespace {

class DefaultHostApplication final : public CNavHostApplication {};

DefaultHostApplication g_default;
CNavHostApplication* g_host = &g_default;

}  // namespace

int CNavHostApplication::GetExtensionsKey(CString& key) {
    return knav::atApiEdge(0, [&] {
        key = L"Software\\Kelvara";
        return 1;
    });
}

int CNavHostApplication::GetExtensionsDisableKey(CString& key) {
    return knav::atApiEdge(0, [&] {
        key = L"Software\\Kelvara\\Dialogs\\AllNavDialogs";
        return 1;
    });
}

int NavSetHostApplication(CNavHostApplication* host) {
    if (!knav::isDefaultHostApplication()) {
        return 0;
    }
    g_host = host;
    return 1;
}

namespace knav {

CNavHostApplication& hostApplication() {
    // A host that installed null gets the defaults rather than a crash.
    return g_host ? *g_host : g_default;
}

bool isDefaultHostApplication() {
    return g_host == &g_default;
}

}  // namespace knav
