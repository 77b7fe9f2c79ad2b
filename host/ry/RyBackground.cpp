#include <ry/RyBackground.h>

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

}  // namespace

bool ryRunInBackground(HINSTANCE module, std::function<void()> work) noexcept {
    std::unique_ptr<Work> owned(new (std::nothrow) Work(std::move(work)));
    if (owned == nullptr || !LongCallback(module).submit(owned.get())) {
        return false;
    }
    static_cast<void>(owned.release());  // the callback owns it now
    return true;
}
