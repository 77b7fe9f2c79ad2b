#include "support/ChildTests.h"

#include <string>

namespace {

constexpr wchar_t kMark[] = L"KNAV_TEST_CHILD";
constexpr DWORD kLimitMs = 50'000;

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
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    SetEnvironmentVariableW(kMark, L"1");
    const BOOL started =
        CreateProcessW(program, writable.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process);
    const DWORD error = GetLastError();
    SetEnvironmentVariableW(kMark, nullptr);
    if (!started) {
        return error;
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
