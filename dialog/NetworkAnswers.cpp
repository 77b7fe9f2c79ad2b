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

/// The system knows the kind of a drive without asking it.
bool isLocalDrive(const NetworkName& location) {
    return location.place == NetworkPlace::Drive && GetDriveTypeW((location.server + L"\\").c_str()) != DRIVE_REMOTE;
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

/// What is known about the location of a text, asked now if it was not; null for a text that has none.
NetworkAnswers::Known* NetworkAnswers::about(const CString& text) {
    const CString path(plainPath(text.view()));
    const NetworkName location = splitNetworkName(path.view());
    if (location.place == NetworkPlace::None && !NavIsUNCPath(path)) {
        return nullptr;
    }
    const Scope alone(*this);
    const auto known =
        std::ranges::find_if(m_known, [&](const Known& entry) { return sameLocation(entry.location, location); });
    if (known != m_known.end()) {
        return &*known;
    }
    m_known.push_back({location, isLocalDrive(location) ? NetworkAnswer{true, false, 0, {}} : ask(path)});
    return &m_known.back();
}

NetworkAnswer NetworkAnswers::ask(const CString& path) {
    const CWaitCursor wait;
    const ULONGLONG start = GetTickCount64();
    const unsigned long long left = networkPatience() - std::min<unsigned long long>(m_waited, networkPatience());
    NetworkAnswer answer = checkNetworkLocation(networkProbe(), path, static_cast<unsigned>(left));
    m_waited += GetTickCount64() - start;
    return answer;
}

const NetworkAnswer* NetworkAnswers::refusal(const CString& text) {
    const Known* known = about(text);
    return known ? known->refusal() : nullptr;
}

const NetworkAnswer* NetworkAnswers::refusalAfterLogin(HWND owner, const CString& text) {
    const Scope asked(*this);
    Known* known = about(text);
    // Only a share can be logged in to.
    if (known && known->answer.wantsLogin && !known->location.share.empty()) {
        known->answer = networkLogin(networkProbe(), owner, known->location);
    }
    return known ? known->refusal() : nullptr;
}

}  // namespace knav
