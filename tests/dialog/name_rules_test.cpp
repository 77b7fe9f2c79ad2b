#include "dialog/NameRules.h"

#include <gtest/gtest.h>
#include <platform/Windows.h>

#include "resources/ids.h"

namespace knav {
namespace {

constexpr struct {
    const char* why;
    const wchar_t* typed;
    bool trimBaseEnd;
    const wchar_t* expected;
} kTrimRows[] = {
    {"both ends always go", L"  plan.dwg \t", false, L"plan.dwg"},
    {"a blank before the dot stays while typing", L"a\\ x . dwg", false, L"a\\x .dwg"},
    {"and goes when names are compared", L"a\\ x . dwg", true, L"a\\x.dwg"},
    {"blanks inside the base name belong to it", L"C:\\a b\\my plan.dwg", true, L"C:\\a b\\my plan.dwg"},
    {"a dot in a folder name is no extension", L"a.b\\ x y", true, L"a.b\\ x y"},
    {"a dot at the end is no extension", L" x y.", true, L"x y."},
    {"slashes separate too", L"a/ x . dwg", true, L"a/x.dwg"},
    {"nothing but blanks becomes nothing", L" \t ", true, L""},
};

TEST(NameRules, TrimNameRemovesOnlyStrayBlanks) {
    for (const auto& row : kTrimRows) {
        EXPECT_EQ(trimName(row.typed, row.trimBaseEnd), row.expected) << row.why;
    }
}

TEST(NameRules, ExpandEnvironmentReplacesKnownVariablesOnly) {
    SetEnvironmentVariableW(L"KNAV_TEST_DIR", L"C:\\drawings");
    SetEnvironmentVariableW(L"KNAV_TEST_NONE", nullptr);
    SetEnvironmentVariableW(L"KNAV_TEST_LONG", std::wstring(300, L'x').c_str());
    constexpr std::tuple<const wchar_t*, const wchar_t*, int> rows[] = {
        {L"%KNAV_TEST_DIR%\\a", L"C:\\drawings\\a", 1},
        {L"%knav_test_dir%%KNAV_TEST_DIR%", L"C:\\drawingsC:\\drawings", 2},
        {L"%KNAV_TEST_NONE%\\a", L"%KNAV_TEST_NONE%\\a", 0},
        {L"%KNAV_TEST_LONG%", L"%KNAV_TEST_LONG%", 0},
        {L"50%", L"50%", 0},
        {L"%%", L"%%", 0},
        {L"a%%KNAV_TEST_DIR%", L"a%%KNAV_TEST_DIR%", 0},
        {L"", L"", 0},
    };
    for (const auto& [text, expected, replaced] : rows) {
        const Expansion expansion = expandEnvironment(text);
        EXPECT_EQ(expansion.text, expected) << text;
        EXPECT_EQ(expansion.replaced, replaced) << text;
    }
}

TEST(NameRules, PathOfFileUrlTurnsUrlIntoLocalPath) {
    EXPECT_EQ(pathOfFileUrl(L"file:///C:/Temp"), L"C:\\Temp");
    EXPECT_EQ(pathOfFileUrl(L"file:///C|/Temp/a"), L"C:\\Temp\\a");
    EXPECT_EQ(pathOfFileUrl(L"file://\\C:\\Temp"), L"C:\\Temp");
    EXPECT_EQ(pathOfFileUrl(L"file://"), L"");
    EXPECT_EQ(pathOfFileUrl(L"http://host"), std::nullopt);
    EXPECT_EQ(pathOfFileUrl(L"file://" + std::wstring(400, L'a'))->size(), 260u);
}

constexpr struct {
    const char* why;
    const wchar_t* name;
    const wchar_t* pattern;
    bool replace, creating, acceptAny;
    const wchar_t* expected;
    int result;
} kExtensionRows[] = {
    {"a bare name gets the extension", L"plan", L"*.dwg", false, false, false, L"plan.dwg", 1},
    {"saving a foreign type appends", L"plan.txt", L"*.dwg", false, true, false, L"plan.txt.dwg", 1},
    {"opening a foreign type leaves it alone", L"plan.txt", L"*.dwg", false, false, false, L"plan.txt", 0},
    {"replacing with a foreign type appends", L"plan.txt", L"*.dwg", true, false, false, L"plan.txt.dwg", 1},
    {"another known type stays", L"plan.dxf", L"*.dwg", false, true, false, L"plan.dxf", 1},
    {"another known type is replaced on request", L"a.b\\plan.dxf", L"*.dwg", true, true, false, L"a.b\\plan.dwg", 1},
    {"the type's own extension in any case", L"plan.DWG", L"*.dwg", true, true, false, L"plan.DWG", 1},
    {"any extension accepted", L"plan.txt", L"*.dwg", true, true, true, L"plan.txt", 1},
    {"a wildcard stays", L"pl*", L"*.dwg", false, true, false, L"pl*", 1},
    {"all files add nothing", L"plan", L"*.*", false, true, false, L"plan", 1},
    {"no pattern adds nothing", L"plan", L"", false, true, false, L"plan", 1},
    {"a wildcard extension adds nothing", L"plan", L"*.dw?", false, true, false, L"plan", 1},
    {"a folder text stays", L"sub\\", L"*.dwg", false, true, false, L"sub\\", 1},
    {"a dot in the folder is no extension", L"a.b/plan", L"*.dwg", false, true, false, L"a.b/plan.dwg", 1},
    {"a final dot is no extension", L"plan.", L"*.dwg", false, true, false, L"plan..dwg", 1},
};

TEST(NameRules, WithFilterExtensionCompletesTypedNames) {
    for (const auto& row : kExtensionRows) {
        ExtensionFacts facts{row.pattern, row.replace, row.creating, row.acceptAny};
        facts.isKnown = [](std::wstring_view pattern) { return pattern == L"*.dxf"; };
        const ExtensionOutcome outcome = withFilterExtension(row.name, facts);
        EXPECT_EQ(outcome.name, row.expected) << row.why;
        EXPECT_EQ(outcome.result, row.result) << row.why;
    }
}

TEST(NameRules, WithFilterExtensionCutsAtTheLongestPath) {
    ExtensionFacts facts{L"*.dwg"};
    const std::wstring name(259, L'a');
    EXPECT_EQ(withFilterExtension(name, facts).name, name);
    EXPECT_EQ(withFilterExtension(std::wstring(257, L'a'), facts).name, std::wstring(257, L'a') + L".d");
}

TEST(NameRules, WithoutAcceleratorKeepsTheWords) {
    constexpr std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"Open(&O)", L"Open"},
        {L"&Open", L"Open"},
        {L"Save && &Close", L"Save && Close"},
        {L"(&O) Open", L"(O) Open"},
        {L"Op(&O)en", L"Op(&O)en"},
        {L"Ope(&O)n", L"Open"},
        {L"Open", L"Open"},
        {L"", L""},
        {L"A && B", L"A && B"},
        {L"(&O", L"(O"},
    };
    for (const auto& [caption, expected] : rows) {
        EXPECT_EQ(withoutAccelerator(caption), expected) << caption;
    }
}

TEST(NameRules, JoinUrlPutsExactlyOneSlashBetween) {
    EXPECT_EQ(joinUrl(L"ftp://h/d", L"a\\b"), L"ftp://h/d/a/b");
    EXPECT_EQ(joinUrl(L"ftp://h/d/", L"a"), L"ftp://h/d/a");
    EXPECT_EQ(joinUrl(L"ftp://h/d", L"\\a"), L"ftp://h/d/a");
}

TEST(NameRules, DriveOfNamesLettersOnly) {
    EXPECT_EQ(driveOf(L"q:\\x"), L"Q:");
    EXPECT_EQ(driveOf(L"1:\\x"), std::nullopt);
    EXPECT_EQ(driveOf(L"qq:\\x"), std::nullopt);
    EXPECT_EQ(driveOf(L"q"), std::nullopt);
}

TEST(NameRules, DriveProblemTellsMissingDrivesFromEmptyOnes) {
    const std::pair<UINT, UINT> rows[] = {
        {DRIVE_UNKNOWN, IDS_KNAV_NO_DRIVE},
        {DRIVE_NO_ROOT_DIR, IDS_KNAV_NO_DRIVE},
        {DRIVE_REMOVABLE, IDS_KNAV_DRIVE_NOT_READY},
        {DRIVE_CDROM, IDS_KNAV_DRIVE_NOT_READY},
        {DRIVE_FIXED, 0},
        {DRIVE_REMOTE, 0},
    };
    for (const auto& [type, message] : rows) {
        EXPECT_EQ(driveProblem(type), message) << type;
    }
}

TEST(NameRules, WithExtensionOfTakesItFromThePattern) {
    EXPECT_EQ(withExtensionOf(L"a.b.txt", L"*.dwg"), L"a.b.dwg");
    EXPECT_EQ(withExtensionOf(L"plain", L"*.dwg"), L"plain");
    EXPECT_EQ(withExtensionOf(L"a.txt", L"plan*.dwg"), L"a.dwg");
    EXPECT_EQ(withExtensionOf(L"a.txt", L"*.dw?"), L"a.txt");
}

}  // namespace
}  // namespace knav
