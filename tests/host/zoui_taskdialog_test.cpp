#include <zoui/ZoTaskDialog.h>

#include <gtest/gtest.h>

#include "support/Printers.h"
#include "support/ScriptedPrompts.h"

using knav::test::ScriptedPrompts;

namespace {

using Pairs = std::vector<ZoTaskDialog::Pair>;

bool loadText(ZoTaskDialog& dialog, std::string_view body, const wchar_t* name, const Pairs& pairs = {}) {
    const std::string xml = "<TaskDialogs xmlns='urn:kelvara:task-dialogs'>" + std::string(body) + "</TaskDialogs>";
    return dialog.LoadFromText(xml, name, pairs.data(), static_cast<int>(pairs.size()));
}

TEST(TaskDialog, AttributesAndPartsAreTaken) {
    ZoTaskDialog dialog;
    ASSERT_TRUE(loadText(dialog,
                         "<TaskDialog Name='Other'><MainInstruction>no</MainInstruction></TaskDialog>"
                         "<TaskDialog Name='A' Title='{T}' Icon='Error' Buttons='Yes No' DefaultButton='No'>"
                         "<!-- remark --><MainInstruction>Replace\n   {F} &amp; go {open</MainInstruction>"
                         "<Content><![CDATA[a < b]]>{none}</Content></TaskDialog>",
                         L"A", {{L"T", L"Title"}, {L"F", L"it {T}"}}));
    const ZoPromptHandler previous = ZoSetPromptHandler([](const ZoPrompt& prompt) -> std::optional<int> {
        const TASKDIALOGCONFIG& shown = *prompt.taskDialog->config;
        EXPECT_STREQ(shown.pszWindowTitle, L"Title");
        EXPECT_STREQ(shown.pszMainInstruction, L"Replace it {T} & go {open") << "values stand as they are";
        EXPECT_STREQ(shown.pszContent, L"a < b");
        EXPECT_EQ(shown.dwCommonButtons, TDCBF_YES_BUTTON | TDCBF_NO_BUTTON);
        EXPECT_EQ(shown.nDefaultButton, IDNO);
        EXPECT_EQ(prompt.text, shown.pszMainInstruction);
        EXPECT_EQ(prompt.caption, shown.pszWindowTitle);
        return IDYES;
    });
    EXPECT_EQ(dialog.ShowDialog(nullptr), IDYES);
    ZoSetPromptHandler(previous);
}

TEST(TaskDialog, DamagedTextIsRefusedAsAWhole) {
    constexpr const char* good = "<TaskDialog Name='A'><MainInstruction>x</MainInstruction></TaskDialog>";
    struct Row {
        const char* why;
        std::string body;
    };
    const Row rows[] = {
        {"not closed", std::string(good) + "<TaskDialog Name='B'>"},
        {"damage behind the dialog", std::string(good) + "<TaskDialog Name='B'><MainInstruction>&</TaskDialog>"},
        {"unknown element", std::string(good) + "<Button/>"},
        {"unknown part", "<TaskDialog Name='A'><MainInstruction>x</MainInstruction><Foot>y</Foot></TaskDialog>"},
        {"unknown attribute", "<TaskDialog Name='A' Colour='1'><MainInstruction>x</MainInstruction></TaskDialog>"},
        {"unknown icon", "<TaskDialog Name='A' Icon='Smile'><MainInstruction>x</MainInstruction></TaskDialog>"},
        {"unknown button", "<TaskDialog Name='A' Buttons='Ok Maybe'><MainInstruction>x</MainInstruction></TaskDialog>"},
        {"no button", "<TaskDialog Name='A' Buttons=' '><MainInstruction>x</MainInstruction></TaskDialog>"},
        {"no name", "<TaskDialog><MainInstruction>x</MainInstruction></TaskDialog>"},
        {"no instruction", "<TaskDialog Name='A'><Content>x</Content></TaskDialog>"},
        {"text between the parts", "<TaskDialog Name='A'>x<MainInstruction>x</MainInstruction></TaskDialog>"},
        {"part in a part", "<TaskDialog Name='A'><MainInstruction><b>x</b></MainInstruction></TaskDialog>"},
        {"nothing", ""},
    };
    ZoTaskDialog dialog;
    ASSERT_TRUE(loadText(dialog, good, L"A"));
    for (const Row& row : rows) {
        EXPECT_FALSE(loadText(dialog, row.body, L"A")) << row.why;
    }
    const ScriptedPrompts noPrompts;
    EXPECT_EQ(dialog.ShowDialog(nullptr), IDCANCEL) << "the one loaded before is gone";
    const std::string_view wholes[] = {
        "",
        "text",
        "<TaskDialogs/>",
        "<TaskDialogs><TaskDialog Name='A'/></TaskDialogs>",
        "<!DOCTYPE t [<!ENTITY e 'x'>]><TaskDialogs xmlns='urn:kelvara:task-dialogs'>"
        "<TaskDialog Name='A'><MainInstruction>&e;</MainInstruction></TaskDialog></TaskDialogs>",
        std::string_view("\xFF\xFE<\0", 4)};
    for (const std::string_view whole : wholes) {
        EXPECT_FALSE(dialog.LoadFromText(whole, L"A", nullptr, 0)) << whole;
    }
}

}  // namespace
