// A host whose installation lacks the resource module.
#include <knav/knav.h>
#include <platform/Prompt.h>

#include <memory>

#include "support/ChildTests.h"
#include "support/ScopedTempFolder.h"

namespace knav::test {
namespace {

TEST(MissingResources, DoNoHarm) {
    const CString program = thisProgram();
    const CString folder = program.Left(program.ReverseFind(L'\\') + 1);
    const ScopedTempFolder bare;
    for (const wchar_t* const module : {L"knav.dll", L"zoui.dll"}) {
        ASSERT_TRUE(CopyFileW(folder + module, bare.path(module), TRUE));
    }
    ASSERT_TRUE(CopyFileW(program, bare.path(L"host.exe"), TRUE));
    EXPECT_EQ(runChildTests(bare.path(L"host.exe"), "BareHost.*"), 0u) << "see the failures above";
}

TEST(BareHost, IsToldOnceAndItsOwnTemplateIsNotTaken) {
    if (!isChildProcess()) {
        GTEST_SKIP() << "runs in a process without the resource module";
    }
    ASSERT_NE(FindResourceW(nullptr, MAKEINTRESOURCEW(131), RT_DIALOG), nullptr) << "the host has one of that number";
    CNavDataArray data;
    CNavFilterArray filters;
    std::vector<CString> told;
    std::unique_ptr<CNavDialog> meanwhile;
    ZoSetPromptHandler([&](const ZoPrompt& prompt) {
        told.push_back(prompt.text);
        // The box lets messages through, and a message may lead to another dialog.
        meanwhile = std::make_unique<CNavDialog>(data, filters);
        return IDOK;
    });
    CNavDialog dialog(data, filters);
    EXPECT_EQ(told, std::vector<CString>{L"KnavRes.dll not found"});
    EXPECT_EQ(dialog.GetIDD(), 131u);
    EXPECT_EQ(dialog.DoModal(), -1);
    ASSERT_NE(meanwhile, nullptr);
    EXPECT_EQ(meanwhile->DoModal(), -1);
    EXPECT_EQ(told.size(), 1u);
    ZoSetPromptHandler(nullptr);
}

}  // namespace
}  // namespace knav::test
