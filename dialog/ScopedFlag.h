// Sets a flag for as long as it lives.
#pragma once

namespace knav {

class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag) : m_flag(flag), m_previous(flag) { m_flag = true; }
    ~ScopedFlag() { m_flag = m_previous; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

private:
    bool& m_flag;
    const bool m_previous;
};

}  // namespace knav
