#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/Printers.h"

knav::test::ScriptedPrompts::ScriptedPrompts() {
    m_previous = ZoSetPromptHandler([this](const ZoPrompt& prompt) { return std::optional(reply(prompt)); });
}

knav::test::ScriptedPrompts::~ScriptedPrompts() {
    ZoSetPromptHandler(std::move(m_previous));
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " scripted answers were not asked for";
}

knav::test::ScriptedPrompts& knav::test::ScriptedPrompts::answer(int reply) {
    m_answers.push_back(reply);
    return *this;
}

int knav::test::ScriptedPrompts::reply(const ZoPrompt& prompt) {
    SeenPrompt seen{prompt.text, {}, {}, prompt.flags, prompt.owner};
    if (prompt.taskDialog != nullptr) {
        seen.name = prompt.taskDialog->name;
        seen.arguments = prompt.taskDialog->arguments;
    }
    m_seen.push_back(std::move(seen));
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected prompt: " << utf8(prompt.text.view());
        return IDCANCEL;
    }
    const int next = m_answers.front();
    m_answers.pop_front();
    return next;
}
