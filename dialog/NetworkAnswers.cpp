#include "dialog/NetworkAnswers.h"

#include <platform/CWaitCursor.h>

#include <algorithm>

#include "shell/TextRules.h"

namespace knav {
namespace {

/// The network knows servers and shares; what lies below a share is the file system's business.
bool sameLocation(const NetworkName& a, const NetworkName& b) {
    return a.place == b.place && equalNoCase(a.server, b.server) && equalNoCase(a.share, b.share);
}

}  // namespace

void NetworkAnswers::forget() {
    m_known.clear();
    m_waited = 0;
}

const NetworkAnswer& NetworkAnswers::about(const CString& name) {
    const NetworkName location = splitNetworkName(trimmed(name.view()));
    const auto known =
        std::ranges::find_if(m_known, [&](const auto& entry) { return sameLocation(entry.first, location); });
    if (known != m_known.end()) {
        return known->second;
    }
    const CWaitCursor wait;
    const ULONGLONG start = GetTickCount64();
    const unsigned long long left = networkPatience() - std::min<unsigned long long>(m_waited, networkPatience());
    const NetworkAnswer answer = checkNetworkLocation(networkProbe(), name, static_cast<unsigned>(left));
    m_waited += GetTickCount64() - start;
    return m_known.emplace_back(location, answer).second;
}

bool NetworkAnswers::withinReach(const CString& text) {
    return !NavIsUNCPath(text) || about(text).reachable;
}

}  // namespace knav
