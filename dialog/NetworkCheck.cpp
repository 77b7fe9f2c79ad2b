#include "dialog/NetworkCheck.h"

#include <winnetwk.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "dialog/NameRules.h"

namespace knav {
namespace {

constexpr wchar_t kSeparator = L'\\';

/// The network provider's own text for ERROR_EXTENDED_ERROR, else nothing.
void takeProviderMessage(unsigned long error, std::wstring& message) {
    if (error != ERROR_EXTENDED_ERROR) {
        return;
    }
    DWORD code = 0;
    wchar_t text[512] = L"";
    wchar_t provider[128] = L"";
    if (WNetGetLastErrorW(&code, text, 512, provider, 128) == NO_ERROR) {
        message = text;
    }
}

class ScopedEnum {
public:
    explicit ScopedEnum(NETRESOURCEW& container) {
        m_error = WNetOpenEnumW(RESOURCE_GLOBALNET, RESOURCETYPE_ANY, 0, &container, &m_handle);
    }
    ~ScopedEnum() {
        if (m_error == NO_ERROR) {
            WNetCloseEnum(m_handle);
        }
    }
    ScopedEnum(const ScopedEnum&) = delete;
    ScopedEnum& operator=(const ScopedEnum&) = delete;
    unsigned long error() const { return m_error; }

    /// Hands each resource to `visit` until that returns true; whether it did.
    template <class Visit>
    bool any(Visit&& visit) {
        std::vector<std::byte> buffer(16384);
        while (m_error == NO_ERROR) {
            DWORD count = 0xFFFFFFFF;
            DWORD size = static_cast<DWORD>(buffer.size());
            m_error = WNetEnumResourceW(m_handle, &count, buffer.data(), &size);
            const auto* found = reinterpret_cast<const NETRESOURCEW*>(buffer.data());
            for (DWORD i = 0; m_error == NO_ERROR && i < count; ++i) {
                if (visit(found[i])) {
                    m_error = NO_ERROR;
                    return true;
                }
            }
        }
        return false;
    }

private:
    HANDLE m_handle = nullptr;
    unsigned long m_error = NO_ERROR;
};

NETRESOURCEW serverResource(std::wstring& name) {
    NETRESOURCEW resource{};
    resource.dwScope = RESOURCE_GLOBALNET;
    resource.dwType = RESOURCETYPE_ANY;
    resource.dwDisplayType = RESOURCEDISPLAYTYPE_SERVER;
    resource.dwUsage = RESOURCEUSAGE_CONTAINER;
    resource.lpRemoteName = name.data();
    return resource;
}

unsigned long resourceInformation(std::wstring name, std::wstring& message) {
    NETRESOURCEW resource{};
    resource.dwType = RESOURCETYPE_ANY;
    resource.lpRemoteName = name.data();
    std::vector<std::byte> buffer(16384);
    DWORD size = static_cast<DWORD>(buffer.size());
    LPWSTR rest = nullptr;
    const unsigned long error = WNetGetResourceInformationW(&resource, buffer.data(), &size, &rest);
    takeProviderMessage(error, message);
    return error;
}

class PlatformProbe final : public NetworkProbe {
public:
    unsigned long server(const std::wstring& server, std::wstring& message) override {
        std::wstring name = server;
        NETRESOURCEW resource = serverResource(name);
        ScopedEnum shares(resource);
        if (shares.error() != NO_ERROR) {
            takeProviderMessage(shares.error(), message);
            return shares.error();
        }
        // A server without shares answers all the same.
        shares.any([](const NETRESOURCEW&) { return true; });
        return shares.error() == ERROR_NO_MORE_ITEMS ? NO_ERROR : shares.error();
    }

    unsigned long share(const std::wstring& server, const std::wstring& share, std::wstring& message) override {
        std::wstring name = server;
        NETRESOURCEW resource = serverResource(name);
        const std::wstring wanted = server + L"\\" + share;
        {
            ScopedEnum shares(resource);
            const auto matches = [&](const NETRESOURCEW& found) {
                return found.lpRemoteName && equalIgnoringCase(found.lpRemoteName, wanted);
            };
            if (shares.error() == NO_ERROR && shares.any(matches)) {
                return NO_ERROR;
            }
        }
        // Hidden shares are not listed, but can be asked for by name.
        return resourceInformation(wanted, message);
    }

    unsigned long path(const std::wstring& path, std::wstring& message) override {
        return resourceInformation(path, message);
    }
};

NetworkProbe* g_probe = nullptr;

/// What the dialog's thread and the worker share; whoever leaves last frees it.
struct Check {
    std::mutex mutex;
    std::condition_variable done;
    std::optional<unsigned long> error;
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
        case NetworkPlace::None:
            return ERROR_BAD_NET_NAME;
    }
    // A machine without any network provider can still have the location mounted.
    if (error == ERROR_NO_NETWORK &&
        GetFileAttributesW((name.server + L"\\" + name.share).c_str()) != INVALID_FILE_ATTRIBUTES) {
        return NO_ERROR;
    }
    // A location that refuses to be listed, or wants a login, is there.
    const bool answered =
        error == ERROR_ACCESS_DENIED || error == ERROR_LOGON_FAILURE || error == ERROR_INVALID_PASSWORD;
    return answered ? NO_ERROR : error;
}

unsigned codeOf(unsigned long error) {
    const bool invalid = error == ERROR_BAD_NET_NAME || error == ERROR_INVALID_NAME || error == ERROR_BAD_PATHNAME;
    return invalid ? kNetworkNameInvalid : 1;
}

}  // namespace

NetworkProbe& networkProbe() {
    static PlatformProbe platform;
    return g_probe ? *g_probe : platform;
}

void setNetworkProbe(NetworkProbe* probe) {
    g_probe = probe;
}

NetworkName splitNetworkName(std::wstring_view text) {
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
    auto check = std::make_shared<Check>();
    std::thread([check, &probe, text = std::wstring(trim(name.view()))] {
        std::wstring message;
        const unsigned long error = ask(probe, splitNetworkName(text), text, message);
        const std::scoped_lock lock(check->mutex);
        check->error = error;
        check->message = std::move(message);
        check->done.notify_one();
    }).detach();

    std::unique_lock lock(check->mutex);
    if (!check->done.wait_for(lock, std::chrono::milliseconds(limit), [&] { return check->error.has_value(); })) {
        return {false, 1, CString()};
    }
    return {*check->error == NO_ERROR, codeOf(*check->error), CString(check->message)};
}

}  // namespace knav
