#include <ry/RyBackground.h>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace {

using Work = std::function<void()>;

void CALLBACK run(PTP_CALLBACK_INSTANCE, void* context) noexcept {
    const std::unique_ptr<Work> work(static_cast<Work*>(context));
    try {
        (*work)();
    } catch (...) {  // there is nobody to tell
    }
}

// The environment of one callback that may take long.
class LongCallback {
public:
    explicit LongCallback(HINSTANCE module) noexcept {
        InitializeThreadpoolEnvironment(&m_environment);
        SetThreadpoolCallbackRunsLong(&m_environment);
        SetThreadpoolCallbackLibrary(&m_environment, module);
    }
    ~LongCallback() { DestroyThreadpoolEnvironment(&m_environment); }
    LongCallback(const LongCallback&) = delete;
    LongCallback& operator=(const LongCallback&) = delete;

    bool submit(void* context) noexcept { return TrySubmitThreadpoolCallback(&run, context, &m_environment) != FALSE; }

private:
    TP_CALLBACK_ENVIRON m_environment;
};

void paintWindows() {
    MSG message;
    // One round only: a window that never has enough must not keep us here.
    for (int i = 0; i < 64 && PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE); ++i) {
        DispatchMessageW(&message);
    }
}

}  // namespace

bool ryRunInBackground(HINSTANCE module, std::function<void()> work) noexcept {
    std::unique_ptr<Work> owned(new (std::nothrow) Work(std::move(work)));
    if (owned == nullptr || !LongCallback(module).submit(owned.get())) {
        return false;
    }
    static_cast<void>(owned.release());  // the callback owns it now
    return true;
}

bool ryWaitWhilePainting(HANDLE event, DWORD limit) {
    // The system takes a window whose thread looks for no message for some seconds for one that hangs.
    constexpr ULONGLONG kLongestSilence = 500;
    const ULONGLONG end = GetTickCount64() + limit;
    while (true) {
        const ULONGLONG now = GetTickCount64();
        const auto left = static_cast<DWORD>(now < end ? std::min(end - now, kLongestSilence) : 0);
        const DWORD woken = MsgWaitForMultipleObjects(1, &event, FALSE, left, QS_PAINT | QS_SENDMESSAGE);
        if (woken == WAIT_OBJECT_0) {
            return true;
        }
        if (woken == WAIT_FAILED || now >= end) {
            return false;
        }
        paintWindows();
    }
}
