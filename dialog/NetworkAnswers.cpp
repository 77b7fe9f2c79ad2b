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

/// A text as the file system takes it: without the blanks and quotes around it, with backslashes, and without the mark
/// of a path that may be long.
std::wstring plainPath(std::wstring_view text) {
    constexpr std::wstring_view around = L" \t\"";
    constexpr std::wstring_view longPath = L"\\\\?\\";
    constexpr std::wstring_view longNetworkPath = L"\\\\?\\UNC\\";
    const std::size_t start = std::min(text.find_first_not_of(around), text.size());
    std::wstring path(text.substr(start, text.find_last_not_of(around) + 1 - start));
    std::ranges::replace(path, L'/', L'\\');
    if (startsWithNoCase(path, longNetworkPath)) {
        return path.replace(0, longNetworkPath.size(), L"\\\\");
    }
    return path.starts_with(longPath) ? path.substr(longPath.size()) : path;
}

}  // namespace

NetworkAnswers::Scope::Scope(NetworkAnswers& answers) : m_answers(answers) {
    if (m_answers.m_scopes++ == 0) {
        m_answers.forget();
    }
}

void NetworkAnswers::forget() {
    m_known.clear();
    m_waited = 0;
}

NetworkAnswer& NetworkAnswers::about(const CString& name) {
    const NetworkName location = splitNetworkName(name.view());
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

const NetworkAnswer* NetworkAnswers::refusal(const CString& text) {
    const CString path(plainPath(text.view()));
    if (!NavIsUNCPath(path)) {
        return nullptr;
    }
    const Scope alone(*this);
    const NetworkAnswer& answer = about(path);
    return answer.reachable ? nullptr : &answer;
}

const NetworkAnswer* NetworkAnswers::refusalAfterLogin(HWND owner, const CString& text) {
    const Scope asked(*this);
    if (const NetworkAnswer* refused = refusal(text)) {
        return refused;
    }
    const NetworkName location = splitNetworkName(plainPath(text.view()));
    if (location.share.empty()) {
        return nullptr;
    }
    NetworkAnswer& answer = about(CString(plainPath(text.view())));
    if (answer.wantsLogin) {
        answer = networkLogin(networkProbe(), owner, location);
    }
    return answer.reachable ? nullptr : &answer;
}

}  // namespace knav
