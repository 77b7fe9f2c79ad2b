// What the dialog called, as a text that grows.
#pragma once

#include <platform/CString.h>

#include <functional>

/// Lines are indented by the calls that are under way when they are written.
class HookLog {
public:
    /// `append` adds a text to what the user sees. It is called at once, so that a call is seen before it returns.
    explicit HookLog(std::function<void(const CString& text)> append) : m_append(std::move(append)) {}

    void line(const CString& text);
    /// What was written is gone; the next line is the first.
    void startOver() { m_lines = 0; }

    /// A call that lasts as long as this object. Its result goes behind the call, or when other lines have come since,
    /// behind the call's repetition.
    class Call {
    public:
        Call(HookLog& log, const CString& call);
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call() { --m_log.m_depth; }

        void returns(const CString& result);

    private:
        HookLog& m_log;
        CString m_call;
        int m_line;
    };

private:
    std::function<void(const CString& text)> m_append;
    int m_depth = 0;
    int m_lines = 0;
};
