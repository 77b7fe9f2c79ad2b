#include "HookLog.h"

void HookLog::line(const CString& text) {
    constexpr int kIndent = 4;
    // The end of a line comes with the next one, because a result may still follow on it.
    const CString start = m_lines++ == 0 ? L"" : L"\r\n";
    m_append(start + CString(L' ', m_depth * kIndent) + text);
}

HookLog::Call::Call(HookLog& log, const CString& call) : m_log(log), m_call(call) {
    log.line(call);
    m_line = log.m_lines;
    ++log.m_depth;
}

void HookLog::Call::returns(const CString& result) {
    if (m_log.m_lines != m_line) {
        --m_log.m_depth;
        m_log.line(m_call);
        ++m_log.m_depth;
    }
    m_log.m_append(L" = " + result);
}
