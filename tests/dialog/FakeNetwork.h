// A network of the tests' own behind the dialog's questions.
#pragma once

#include <mutex>

#include "dialog/NetworkCheck.h"

namespace knav::test {

/// A network with one answer for everything, which notes what was asked.
class FakeNetwork : public NetworkProbe {
public:
    explicit FakeNetwork(unsigned long error, std::wstring message = {})
        : answer(error), m_message(std::move(message)) {}

    unsigned long server(const std::wstring& server, std::wstring& message) override {
        return note(L"server " + server, message);
    }
    unsigned long share(const std::wstring& server, const std::wstring& share, std::wstring& message) override {
        return note(L"share " + server + L" " + share, message);
    }
    unsigned long path(const std::wstring& path, std::wstring& message) override {
        return note(L"path " + path, message);
    }
    unsigned long drive(const std::wstring& drive) override {
        std::wstring unused;
        return note(L"drive " + drive, unused);
    }
    unsigned long logIn(HWND, const std::wstring& share, std::wstring&) override {
        m_loggedInTo = share;
        return loginAnswer;
    }
    std::wstring asked() const {
        const std::scoped_lock lock(m_mutex);
        return m_asked;
    }
    const std::wstring& loggedInTo() const { return m_loggedInTo; }

    unsigned long answer;
    unsigned long loginAnswer = NO_ERROR;

protected:
    virtual unsigned long note(std::wstring question, std::wstring& message) {
        const std::scoped_lock lock(m_mutex);
        m_asked = std::move(question);
        message = m_message;
        return answer;
    }

private:
    const std::wstring m_message;
    mutable std::mutex m_mutex;
    std::wstring m_asked;
    std::wstring m_loggedInTo;
};

/// The network of the process, while it lives.
struct NetworkInPlace {
    NetworkInPlace(NetworkProbe& network, unsigned patienceMs) {
        setNetworkProbe(&network);
        setNetworkPatience(patienceMs);
    }
    ~NetworkInPlace() {
        setNetworkPatience(10'000);
        setNetworkProbe(nullptr);
    }
    NetworkInPlace(const NetworkInPlace&) = delete;
    NetworkInPlace& operator=(const NetworkInPlace&) = delete;
};

/// A thread can start late on a machine that has much to do.
inline constexpr unsigned kLongEnough = 50'000;

}  // namespace knav::test
