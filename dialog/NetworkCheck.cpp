#include "dialog/NetworkCheck.h"

#include <ry/RyBackground.h>

#include "dialog/NameRules.h"
#include "dialog/ResourceModule.h"
#include "shell/TextRules.h"

namespace knav {
namespace {

constexpr wchar_t kSeparator = L'\\';

unsigned g_patience = 10'000;

struct Outcome {
    unsigned long error = ERROR_BAD_NETPATH;
    std::wstring message;
};

unsigned long ask(NetworkProbe& probe, const NetworkName& name, const std::wstring& text, std::wstring& message) {
    unsigned long error = ERROR_BAD_NETPATH;
    switch (name.place) {
        case NetworkPlace::Server:
            error = probe.server(name.server, message);
            break;
        case NetworkPlace::Share:
            error = probe.share(name.server, name.share, message);
            break;
        case NetworkPlace::Path:
            error = probe.path(text, message);
            break;
        case NetworkPlace::Drive:
            return probe.drive(name.server);
        case NetworkPlace::None:
            return ERROR_INVALID_NAME;
    }
    // A machine without any network provider can still have the location mounted.
    if (error == ERROR_NO_NETWORK &&
        GetFileAttributesW((name.server + L"\\" + name.share).c_str()) != INVALID_FILE_ATTRIBUTES) {
        return NO_ERROR;
    }
    return error;
}

/// A location that refuses to be listed, or wants a login, is there.
bool wantsLogin(unsigned long error) {
    return error == ERROR_ACCESS_DENIED || error == ERROR_LOGON_FAILURE || error == ERROR_INVALID_PASSWORD;
}

/// The system's words for an error.
std::wstring systemMessage(unsigned long error) {
    wchar_t text[512] = L"";
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text, 512, nullptr);
    return std::wstring(trimmed(text));
}

unsigned codeOf(unsigned long error) {
    if (error == ERROR_CANCELLED) {
        return kNetworkLoginCancelled;
    }
    const bool invalid = error == ERROR_INVALID_NAME || error == ERROR_BAD_PATHNAME;
    return invalid ? kNetworkNameInvalid : kNetworkUnreachable;
}

}  // namespace

unsigned networkPatience() {
    return g_patience;
}

void setNetworkPatience(unsigned milliseconds) {
    g_patience = milliseconds;
}

NetworkName splitNetworkName(std::wstring_view text) {
    if (const auto drive = driveOf(text)) {
        return {NetworkPlace::Drive, *drive, {}};
    }
    if (!text.starts_with(L"\\\\") || text.starts_with(L"\\\\\\")) {
        return {};
    }
    text.remove_prefix(2);
    while (text.ends_with(L'\\')) {
        text.remove_suffix(1);
    }
    const std::size_t serverEnd = text.find(L'\\');
    NetworkName name{NetworkPlace::Server, std::wstring(2, kSeparator).append(text.substr(0, serverEnd)), {}};
    if (text.empty() || serverEnd == 0) {
        return {};
    }
    if (serverEnd == std::wstring_view::npos) {
        return name;
    }
    const std::wstring_view rest = text.substr(serverEnd + 1);
    const std::size_t shareEnd = rest.find(L'\\');
    name.share = rest.substr(0, shareEnd);
    name.place = shareEnd == std::wstring_view::npos ? NetworkPlace::Share : NetworkPlace::Path;
    return name;
}

NetworkAnswer checkNetworkLocation(NetworkProbe& probe, const CString& name, unsigned limit) {
    const auto outcome = ryAskInTime<Outcome>(
        libraryModule(),
        [&probe, text = std::wstring(name.view())] {
            Outcome found;
            found.error = ask(probe, splitNetworkName(text), text, found.message);
            return found;
        },
        limit);
    if (!outcome) {
        return {false, false, kNetworkUnreachable, {}};
    }
    const bool asksWho = wantsLogin(outcome->error);
    return {outcome->error == NO_ERROR || asksWho, asksWho, codeOf(outcome->error), CString(outcome->message)};
}

NetworkAnswer networkLogin(NetworkProbe& probe, HWND owner, const NetworkName& location) {
    std::wstring message;
    const std::wstring share = location.server + kSeparator + location.share;
    const unsigned long error = probe.logIn(owner, share, message);
    // Connected to the server under another name: whether that one may in is for the file system to say.
    if (error == NO_ERROR || error == ERROR_SESSION_CREDENTIAL_CONFLICT) {
        return {true, false, 0, {}};
    }
    if (const std::wstring reason(systemMessage(error));
        message.empty() && !reason.empty() && error != ERROR_CANCELLED) {
        message = share + L"\n\n" + reason;
    }
    return {false, false, codeOf(error), CString(message)};
}

}  // namespace knav
