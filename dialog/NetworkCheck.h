// Whether a network location can be reached, asked of the network without ever blocking the dialog for long; and the
// system's login to it, which blocks as long as it takes.
#pragma once

#include <platform/CString.h>

#include <string>

namespace knav {

/// Result code of a name that is no network name at all.
inline constexpr unsigned kNetworkNameInvalid = 16;
/// Result code of a login that the user gave up.
inline constexpr unsigned kNetworkLoginCancelled = 2;
/// Result code of every other refusal.
inline constexpr unsigned kNetworkUnreachable = 1;

struct NetworkAnswer {
    bool reachable = false;
    bool wantsLogin = false;  ///< it is there, but not for a user whom it does not know
    unsigned code = 0;        ///< of a refusal
    CString message;          ///< the network's own words, when it has any
};

/// Asks the network. It may block, and is called on a worker thread except where it says so.
class NetworkProbe {
public:
    virtual ~NetworkProbe() = default;
    /// Each returns a system error code, ERROR_SUCCESS when the location is there. `message` may receive the network's
    /// own words.
    virtual unsigned long server(const std::wstring& server, std::wstring& message) = 0;
    virtual unsigned long share(const std::wstring& server, const std::wstring& share, std::wstring& message) = 0;
    virtual unsigned long path(const std::wstring& path, std::wstring& message) = 0;
    /// A drive, "X:", that stands for a place on the network.
    virtual unsigned long drive(const std::wstring& drive) = 0;
    /// Lets the user log in to a share, "\\server\share", in a window over `owner`; on the user-interface thread. It
    /// has no limit: given up, it could still bring up its window later. ERROR_CANCELLED when the user does not want
    /// to.
    virtual unsigned long logIn(HWND owner, const std::wstring& share, std::wstring& message) = 0;
};

/// The probe in use: the platform's network functions, until another is set (null goes back to them). The caller keeps
/// its probe alive until the process ends, since an abandoned check may still run on it.
NetworkProbe& networkProbe();
void setNetworkProbe(NetworkProbe* probe);

/// What kind of network location a text names. Any drive can be one.
enum class NetworkPlace { None, Server, Share, Path, Drive };
struct NetworkName {
    NetworkPlace place = NetworkPlace::None;
    std::wstring server;  ///< with its two backslashes; the drive and its colon
    std::wstring share;   ///< without separators
};
NetworkName splitNetworkName(std::wstring_view text);

/// How long the user waits for the network at most, in milliseconds. Default 10,000.
unsigned networkPatience();
void setNetworkPatience(unsigned milliseconds);

/// Checks a location on a worker thread and gives up after `limit` milliseconds: it then counts as unreachable. The
/// calling thread's windows paint themselves meanwhile.
NetworkAnswer checkNetworkLocation(NetworkProbe& probe, const CString& name, unsigned limit = networkPatience());

/// Lets the user log in to the share of a location. It counts as reachable, too, for a user who is connected to the
/// server under another name; a login that fails is told in the network's words, or else the system's.
NetworkAnswer networkLogin(NetworkProbe& probe, HWND owner, const NetworkName& location);

}  // namespace knav
