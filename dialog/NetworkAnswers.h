// What the network said about the locations that come up while the user is at one thing.
#pragma once

#include <utility>
#include <vector>

#include "dialog/NetworkCheck.h"

namespace knav {

/// Asks about each location once, and about nothing on a disk: a server that is not there would hold whoever asks the
/// file system. All questions together take no longer than the user is expected to wait (networkPatience).
/// User-interface thread only.
class NetworkAnswers {
public:
    /// Forgets everything: the next question is asked anew.
    void forget();

    /// The answer about a network name; an hourglass shows while it is awaited.
    const NetworkAnswer& about(const CString& name);

    /// False for the name of a network location that cannot be reached; true for every other text.
    bool withinReach(const CString& text);

private:
    std::vector<std::pair<NetworkName, NetworkAnswer>> m_known;
    unsigned long long m_waited = 0;
};

}  // namespace knav
