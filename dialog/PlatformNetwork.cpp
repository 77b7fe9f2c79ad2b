// The platform's network functions as the probe in use.
#include <winnetwk.h>

#include <vector>

#include "dialog/NetworkCheck.h"
#include "shell/TextRules.h"

namespace knav {
namespace {

constexpr std::size_t kBufferSize = 16384;

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
        if (m_handle) {
            WNetCloseEnum(m_handle);
        }
    }
    ScopedEnum(const ScopedEnum&) = delete;
    ScopedEnum& operator=(const ScopedEnum&) = delete;
    unsigned long error() const { return m_error; }

    /// Hands each resource to `visit` until that returns true; whether it did.
    template <class Visit>
    bool any(Visit&& visit) {
        std::vector<std::byte> buffer(kBufferSize);
        while (m_error == NO_ERROR) {
            DWORD count = 0xFFFFFFFF;
            DWORD size = static_cast<DWORD>(buffer.size());
            m_error = WNetEnumResourceW(m_handle, &count, buffer.data(), &size);
            const auto* found = reinterpret_cast<const NETRESOURCEW*>(buffer.data());
            for (DWORD i = 0; m_error == NO_ERROR && i < count; ++i) {
                if (visit(found[i])) {
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
    std::vector<std::byte> buffer(kBufferSize);
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
        if (shares.error() == NO_ERROR) {
            shares.any([](const NETRESOURCEW&) { return true; });
        }
        takeProviderMessage(shares.error(), message);
        // A server without shares answers all the same.
        return shares.error() == ERROR_NO_MORE_ITEMS ? NO_ERROR : shares.error();
    }

    unsigned long share(const std::wstring& server, const std::wstring& share, std::wstring& message) override {
        std::wstring name = server;
        NETRESOURCEW resource = serverResource(name);
        const std::wstring wanted = server + L"\\" + share;
        {
            ScopedEnum shares(resource);
            const auto matches = [&](const NETRESOURCEW& found) {
                return found.lpRemoteName && equalNoCase(found.lpRemoteName, wanted);
            };
            if (shares.any(matches)) {
                return NO_ERROR;
            }
        }
        // Hidden shares are not listed, but can be asked for by name.
        return resourceInformation(wanted, message);
    }

    unsigned long path(const std::wstring& path, std::wstring& message) override {
        return resourceInformation(path, message);
    }

    /// Whoever asks a drive connects it again where that is needed; the network would have to be told to.
    unsigned long drive(const std::wstring& drive) override {
        const bool isThere = GetFileAttributesW((drive + L"\\").c_str()) != INVALID_FILE_ATTRIBUTES;
        return isThere ? NO_ERROR : GetLastError();
    }

    unsigned long logIn(HWND owner, const std::wstring& share, std::wstring& message) override {
        std::wstring name = share;
        NETRESOURCEW resource{};
        resource.dwType = RESOURCETYPE_DISK;
        resource.lpRemoteName = name.data();
        const DWORD how = CONNECT_INTERACTIVE | CONNECT_TEMPORARY;
        const unsigned long error = WNetAddConnection3W(owner, &resource, nullptr, nullptr, how);
        takeProviderMessage(error, message);
        return error;
    }
};

NetworkProbe* g_probe = nullptr;

}  // namespace

NetworkProbe& networkProbe() {
    static PlatformProbe platform;
    return g_probe ? *g_probe : platform;
}

void setNetworkProbe(NetworkProbe* probe) {
    g_probe = probe;
}

}  // namespace knav
