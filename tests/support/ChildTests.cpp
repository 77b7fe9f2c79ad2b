#include "support/ChildTests.h"

#include <array>
#include <string>

namespace {

constexpr wchar_t kMark[] = L"KNAV_TEST_CHILD";
constexpr DWORD kLimitMs = 50'000;

/// Sets a variable of the environment that processes started here get, or takes it away (null), while this lives.
class ScopedVariable {
public:
    ScopedVariable(const wchar_t* name, const wchar_t* value) : m_name(name) {
        m_had = GetEnvironmentVariableW(name, m_previous.data(), static_cast<DWORD>(m_previous.size())) != 0;
        SetEnvironmentVariableW(name, value);
    }
    ~ScopedVariable() { SetEnvironmentVariableW(m_name, m_had ? m_previous.data() : nullptr); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const wchar_t* const m_name;
    std::array<wchar_t, 40> m_previous{};
    bool m_had = false;
};

}  // namespace

bool knav::test::isChildProcess() {
    return GetEnvironmentVariableW(kMark, nullptr, 0) != 0;
}

CString knav::test::thisProgram() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

DWORD knav::test::runChildTests(const CString& program, const char* filter) {
    CString line;
    line.Format(L"\"%s\" --gtest_brief=1 --gtest_filter=%S", program.GetString(), filter);
    std::wstring writable(line.view());
    const ScopedVariable mark(kMark, L"1");
    const ScopedVariable total(L"GTEST_TOTAL_SHARDS", nullptr);
    const ScopedVariable index(L"GTEST_SHARD_INDEX", nullptr);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program, writable.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process)) {
        return GetLastError();
    }
    DWORD code = 1;
    if (WaitForSingleObject(process.hProcess, kLimitMs) == WAIT_OBJECT_0) {
        GetExitCodeProcess(process.hProcess, &code);
    } else {
        TerminateProcess(process.hProcess, code);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}
