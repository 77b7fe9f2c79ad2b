// What the network said about the locations that come up while the user is at one thing.
#pragma once

#include <deque>

#include "dialog/NetworkCheck.h"

namespace knav {

/// Asks about each location once, and about nothing on a disk of this machine: a server that is not there, under its
/// name or that of a drive, would hold whoever asks the file system. All questions of one scope together take no longer
/// than the user is expected to wait (networkPatience). User-interface thread only.
class NetworkAnswers {
public:
    /// One thing that the user or the host does: answers are kept as long as the outermost of these lives. Without
    /// one, each question is asked anew.
    class Scope {
    public:
        explicit Scope(NetworkAnswers& answers);
        ~Scope() { --m_answers.m_scopes; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        NetworkAnswers& m_answers;
    };

    /// Why a path on a network cannot be used; null when it can, and for every text that is no such path. An hourglass
    /// shows while the answer is awaited. Valid until the next question.
    const NetworkAnswer* refusal(const CString& text);

    /// The same, once the user has had the opportunity to log in to a share that wants it. The login takes as long as
    /// the system and the user need for it.
    const NetworkAnswer* refusalAfterLogin(HWND owner, const CString& text);

private:
    struct Known {
        NetworkName location;
        NetworkAnswer answer;
        const NetworkAnswer* refusal() const { return answer.reachable ? nullptr : &answer; }
    };
    Known* about(const CString& text);
    NetworkAnswer ask(const CString& path);
    void forget();

    std::deque<Known> m_known;
    unsigned long long m_waited = 0;
    int m_scopes = 0;
};

}  // namespace knav
