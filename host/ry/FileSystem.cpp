#include <ry/FileSystem.h>

#include <chrono>
#include <future>
#include <memory>

#include "ry/ModuleFolder.h"

namespace {

using Kelvara::Tessary::PAL::FileSystem::FolderProbe;

constexpr DWORD kLimit = 2000;

enum class Answer { folder, noFolder, none };

// What the prober needs; it outlives whichever of the two threads is done first.
struct Question {
    FolderProbe probe;
    std::wstring path;
    std::promise<bool> answer;
};

void CALLBACK ask(PTP_CALLBACK_INSTANCE, void* context) noexcept {
    const std::unique_ptr<Question> question(static_cast<Question*>(context));
    try {
        question->answer.set_value(question->probe(question->path));
    } catch (...) {
        question->answer.set_exception(std::current_exception());
    }
}

// The environment of one callback: it may take long, and this module stays loaded until it has returned.
class LongCallback {
public:
    LongCallback() noexcept {
        InitializeThreadpoolEnvironment(&m_environment);
        SetThreadpoolCallbackRunsLong(&m_environment);
        SetThreadpoolCallbackLibrary(&m_environment, zoui::ownModule());
    }
    ~LongCallback() { DestroyThreadpoolEnvironment(&m_environment); }
    LongCallback(const LongCallback&) = delete;
    LongCallback& operator=(const LongCallback&) = delete;

    bool submit(PTP_SIMPLE_CALLBACK callback, void* context) noexcept {
        return TrySubmitThreadpoolCallback(callback, context, &m_environment);
    }

private:
    TP_CALLBACK_ENVIRON m_environment;
};

Answer askInTime(const std::wstring& path, FolderProbe probe, DWORD limit) {
    std::unique_ptr<Question> question(new Question{std::move(probe), path, {}});
    std::future<bool> answer = question->answer.get_future();
    if (!LongCallback().submit(&ask, question.get())) {
        return Answer::none;
    }
    static_cast<void>(question.release());  // the callback owns it now
    if (answer.wait_for(std::chrono::milliseconds(limit)) != std::future_status::ready) {
        return Answer::none;
    }
    try {
        return answer.get() ? Answer::folder : Answer::noFolder;
    } catch (...) {
        return Answer::noFolder;
    }
}

// The path without reference to the current directory, which may change while the prober is still at work.
std::wstring fullPath(const wchar_t* path) {
    std::wstring full(MAX_PATH, L'\0');
    DWORD length = GetFullPathNameW(path, MAX_PATH, full.data(), nullptr);
    if (length >= MAX_PATH) {
        return {};  // the current directory cannot be that long
    }
    full.resize(length);
    return full;
}

bool isFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

namespace Kelvara::Tessary::PAL::FileSystem {

std::wstring networkAwareChangeDir(const wchar_t* path, bool isDesktopKeyword) {
    return networkAwareChangeDir(path, isDesktopKeyword, &isFolder, kLimit);
}

std::wstring networkAwareChangeDir(const wchar_t* path, bool isDesktopKeyword, FolderProbe probe, DWORD limit) {
    if (isDesktopKeyword || path == nullptr || *path == 0) {
        return {};
    }
    const std::wstring wanted = fullPath(path);
    if (wanted.empty()) {
        return {};
    }
    switch (askInTime(wanted, std::move(probe), limit)) {
        case Answer::folder:
            SetCurrentDirectoryW(wanted.c_str());
            return {};
        case Answer::noFolder:
            return {};
        case Answer::none:
            break;
    }
    std::wstring programFolder = zoui::folderOfModule(nullptr);
    SetCurrentDirectoryW(programFolder.c_str());
    return programFolder;
}

}  // namespace Kelvara::Tessary::PAL::FileSystem
