// Answers message boxes and task dialogs instead of the user, and records them.
#pragma once

#include <platform/Prompt.h>

#include <deque>
#include <ostream>
#include <vector>

namespace knav::test {

struct SeenPrompt {
    CString text;  ///< of a message box its text, of a task dialog its main instruction
    CString name;  ///< of a task dialog its name, else empty
    std::vector<std::pair<CString, CString>> arguments;
    UINT flags = 0;
    HWND owner = nullptr;
};

/// While it lives, no prompt is shown. A prompt without a scripted answer, and an answer that no prompt asked for, fail
/// the test. Do not nest.
class ScriptedPrompts {
public:
    ScriptedPrompts();
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;
    ~ScriptedPrompts();

    /// The answer to the next prompt: IDOK, IDYES ..., or a task dialog's button id.
    ScriptedPrompts& answer(int reply);
    /// What was asked so far, in order.
    const std::vector<SeenPrompt>& seen() const noexcept { return m_seen; }

private:
    int reply(const ZoPrompt& prompt);

    std::deque<int> m_answers;
    std::vector<SeenPrompt> m_seen;
    ZoPromptHandler m_previous;
};

}  // namespace knav::test
