#include <zoui/CZoUiPathname.h>

#include <gtest/gtest.h>

#include "support/Printers.h"
#include "support/ScopedTempFolder.h"

using knav::test::ScopedTempFolder;

namespace {

using Type = CZoUiPathname::Type;

// A folder with known content that is the current directory. "{T}" in a text stands for its path.
class PathnameTest : public testing::Test {
protected:
    PathnameTest() {
        GetCurrentDirectoryW(MAX_PATH, m_previous);
        m_folder.addFile(L"plan.dwg");
        m_folder.addFile(L"sub\\deep\\a.b.txt");
        SetCurrentDirectoryW(m_folder.path());
    }
    ~PathnameTest() override { SetCurrentDirectoryW(m_previous); }

    CString expand(const wchar_t* text) const {
        CString expanded(text);
        expanded.Replace(L"{T}", m_folder.path());
        expanded.Replace(L"{ROOTLESS}", m_folder.path().Mid(2));
        return expanded;
    }

    static CString fullPath(const CZoUiPathname& path) {
        CString text(L"untouched");
        EXPECT_EQ(path.GetFullPath(text), path.GetPathString() != nullptr);
        return text;
    }

    ScopedTempFolder m_folder;

private:
    wchar_t m_previous[MAX_PATH];
};

struct ParseRow {
    const char* why;
    const wchar_t* text;
    bool wildcards;
    Type type;
    const wchar_t* path;  // the path string
    bool absolute;
};

constexpr ParseRow kGoodRows[] = {
    {"a trailing separator stays", L"{T}\\sub\\", false, Type::Directory, L"{T}\\sub\\", true},
    {"relative to the current directory", L"plan.dwg", false, Type::ExistingFile, L"{T}\\plan.dwg", false},
    {"blanks and quotes around it", L" \t\" plan.dwg \" ", false, Type::ExistingFile, L"{T}\\plan.dwg", false},
    {"dot is the current directory", L".", false, Type::Directory, L"{T}", false},
    {"dots follow names that need not exist", L"nowhere\\..\\plan.dwg", false, Type::ExistingFile, L"{T}\\plan.dwg",
     false},
    {"dots stop at the root", L"C:\\..\\..\\windows", false, Type::Directory, L"C:\\windows", true},
    {"blanks and dots at the end of a name go", L"plan.dwg. .", false, Type::ExistingFile, L"{T}\\plan.dwg", false},
    {"but those before and inside stay", L".a . b..c", false, Type::NewFile, L"{T}\\.a . b..c", false},
    {"root of the drive", L"{ROOTLESS}\\plan.dwg", false, Type::ExistingFile, L"{T}\\plan.dwg", true},
    {"drive root", L"c:/", false, Type::Directory, L"C:\\", true},
    {"drive-relative", L"C:plan.dwg", false, Type::ExistingFile, L"{T}\\plan.dwg", true},
    {"verbatim prefix", L"\\\\?\\{T}\\plan.dwg", false, Type::ExistingFile, L"{T}\\plan.dwg", true},
    {"pattern", L"*.dwg", true, Type::Wildcard, L"{T}\\*.dwg", false},
    {"pattern that ends in a dot", L"{T}\\sub\\?*.", true, Type::Wildcard, L"{T}\\sub\\?*.", true},
    {"a file is no folder", L"plan.dwg\\new.dwg", false, Type::Invalid, L"{T}\\plan.dwg\\new.dwg", false},
    {"a new folder cannot be named", L"new\\", false, Type::Invalid, L"{T}\\new\\", false},
    {"missing drive", L"Q:\\x", false, Type::Invalid, L"Q:\\x", true},
    {"device", L"con", false, Type::Invalid, L"{T}\\con", false},
    {"device with an extension", L"NUL.txt", false, Type::Invalid, L"{T}\\NUL.txt", false},
    {"no port has the number 0", L"com0", false, Type::NewFile, L"{T}\\com0", false},
    {"names that only begin like a device", L"console", false, Type::NewFile, L"{T}\\console", false},
    {"missing share", L"\\\\nowhere.invalid\\share\\x", false, Type::Invalid, L"\\\\nowhere.invalid\\share\\x", true},
    {"dots stop at the share", L"//nowhere.invalid/share/../..", false, Type::Invalid, L"\\\\nowhere.invalid\\share",
     true},
    {"verbatim share", L"\\\\?\\UNC\\nowhere.invalid\\share\\a", false, Type::Invalid, L"\\\\nowhere.invalid\\share\\a",
     true},
};

TEST_F(PathnameTest, ParseCompletesAndClassifiesWhatMayBeAPath) {
    for (const ParseRow& row : kGoodRows) {
        SCOPED_TRACE(row.why);
        CZoUiPathname path;
        EXPECT_EQ(path.Parse(expand(row.text), row.wildcards), PathErr::None);
        EXPECT_EQ(path.GetType(), row.type);
        ASSERT_NE(path.GetPathString(), nullptr);
        EXPECT_EQ(CString(path.GetPathString()).CompareNoCase(expand(row.path)), 0) << path.GetPathString();
        EXPECT_EQ(path.WasAbsolute(), row.absolute);
    }
}

struct BadRow {
    const char* why;
    const wchar_t* text;
    bool wildcards;
    PathErr error;
};

constexpr BadRow kBadRows[] = {
    {"null", nullptr, true, PathErr::Empty},
    {"blanks", L" \t", true, PathErr::Empty},
    {"wildcards that are not wanted", L"*.dwg", false, PathErr::InvalidCharacter},
    {"wildcards in a folder", L"a*\\b", true, PathErr::InvalidCharacter},
    {"quote inside", L"a\"b", true, PathErr::InvalidCharacter},
    {"bar in a folder", L"C:\\a|b\\c", true, PathErr::InvalidCharacter},
    {"stream of a file", L"plan.dwg:stream", true, PathErr::InvalidCharacter},
    {"control character", L"a\x0001", true, PathErr::InvalidCharacter},
    {"nothing but dots", L"a\\...\\b", true, PathErr::InvalidCharacter},
    {"wildcard in the name of a share", L"\\\\server\\sh*re", true, PathErr::InvalidCharacter},
    {"URL", L"http://host/a", true, PathErr::NotFileSystem},
    {"shell location", L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", true, PathErr::NotFileSystem},
    {"bare server", L"\\\\server", true, PathErr::NotFileSystem},
    {"no server", L"\\\\\\share\\x", true, PathErr::NotFileSystem},
    {"device name space", L"\\\\.\\C:\\x", true, PathErr::NotFileSystem},
    {"volume by name", L"\\\\?\\Volume{1}\\x", true, PathErr::NotFileSystem},
};

TEST_F(PathnameTest, ParseRefusesWhatCannotBeAPathAndKeepsNothing) {
    for (const BadRow& row : kBadRows) {
        SCOPED_TRACE(row.why);
        CZoUiPathname path;
        ASSERT_EQ(path.Parse(L"plan.dwg", false), PathErr::None);
        EXPECT_EQ(path.Parse(row.text, row.wildcards), row.error);
        EXPECT_EQ(path.GetType(), Type::Invalid);
        EXPECT_EQ(fullPath(path), L"");
    }
}

TEST_F(PathnameTest, ParseRefusesOnePastTheLongestPath) {
    const int room = 259 - m_folder.path().GetLength() - 1;
    CZoUiPathname path;
    EXPECT_EQ(path.Parse(CString(L'x', room), false), PathErr::None);
    EXPECT_EQ(fullPath(path).GetLength(), 259);
    path.AddExtensionAlways(L"d");
    EXPECT_EQ(fullPath(path).GetLength(), 259) << "an extension that does not fit is left off";
    EXPECT_EQ(path.Parse(CString(L'x', room + 1), false), PathErr::TooLong);
    EXPECT_EQ(path.Parse(CString(L'x', 40000), false), PathErr::TooLong);
}

struct RelativeRow {
    const char* why;
    const wchar_t* base;
    const wchar_t* text;
    const wchar_t* path;
};

constexpr RelativeRow kRelativeRows[] = {
    {"a file stands for its folder", L"{T}\\sub\\deep\\a.b.txt", L"new.dwg", L"{T}\\sub\\deep\\new.dwg"},
    {"root of the base's drive", L"{T}\\sub", L"\\windows", L"C:\\windows"},
    {"same drive", L"{T}\\sub", L"c:new.dwg", L"{T}\\sub\\new.dwg"},
    {"other drive", L"{T}\\sub", L"Q:new.dwg", L"Q:\\new.dwg"},
    {"root of the base's share", L"\\\\nowhere.invalid\\share\\a\\b", L"\\c", L"\\\\nowhere.invalid\\share\\c"},
};

TEST_F(PathnameTest, ParseRelativeStartsFromTheBase) {
    for (const RelativeRow& row : kRelativeRows) {
        SCOPED_TRACE(row.why);
        CZoUiPathname base;
        ASSERT_EQ(base.Parse(expand(row.base), false), PathErr::None);
        CZoUiPathname path;
        EXPECT_EQ(path.ParseRelative(expand(row.text), &base, false), PathErr::None);
        EXPECT_EQ(fullPath(path).CompareNoCase(expand(row.path)), 0) << path.GetPathString();
    }
}

struct PartsRow {
    const wchar_t* path;
    const wchar_t* parent;  // null: none
    const wchar_t* basename;
    const wchar_t* filename;
    const wchar_t* extension;
};

constexpr PartsRow kPartsRows[] = {
    {L"C:\\work\\plan.dwg", L"C:\\work", L"plan.dwg", L"plan", L"dwg"},
    {L"C:\\a.b.txt", L"C:\\", L"a.b.txt", L"a.b", L"txt"},
    {L"C:\\work\\.config", L"C:\\work", L".config", L"", L"config"},
    {L"C:\\work.old\\", L"C:\\", L"work.old", L"work", L"old"},
    {L"C:\\", nullptr, L"", L"", L""},
    {L"\\\\s\\share\\x", L"\\\\s\\share", L"x", L"x", L""},
    {L"\\\\s\\share\\", nullptr, L"", L"", L""},
};

TEST_F(PathnameTest, PartsAreThoseOfTheLastName) {
    for (const PartsRow& row : kPartsRows) {
        SCOPED_TRACE(knav::test::utf8(row.path));
        CZoUiPathname path;
        ASSERT_EQ(path.Parse(row.path, false), PathErr::None);
        CString text;
        path.GetBasename(text);
        EXPECT_EQ(text, row.basename);
        path.GetFilename(text);
        EXPECT_EQ(text, row.filename);
        path.GetExtension(text);
        EXPECT_EQ(text, row.extension);
        CZoUiPathname parent;
        EXPECT_EQ(path.GetParent(parent), row.parent != nullptr);
        EXPECT_EQ(fullPath(parent), row.parent != nullptr ? row.parent : L"");
    }
}

TEST_F(PathnameTest, ChangesKeepPathAndTypeTogether) {
    CZoUiPathname path;
    path.Parse(L"sub\\deep\\a.b.txt", false);
    EXPECT_NE(path.GetParent(path), 0) << "also into itself";
    EXPECT_EQ(path.GetType(), Type::Directory);
    path.Parse(L"nowhere\\x", false);
    path.GetParent(path);
    EXPECT_EQ(path.GetType(), Type::NewFile) << "the folder of an invalid path is looked at";
    path.Parse(L"plan", false);
    path.AddExtensionAlways(L".dwg");
    EXPECT_EQ(path.GetType(), Type::ExistingFile);
    path.Parse(L"sub\\", false);
    path.TrimSlash();
    path.AddExtensionAlways(L"dwg");
    EXPECT_EQ(fullPath(path).CompareNoCase(expand(L"{T}\\sub")), 0) << "a folder gets none";
    path.Parse(L"C:\\", false);
    path.TrimSlash();
    EXPECT_EQ(fullPath(path), L"C:\\") << "a root keeps its separator";

    path.Parse(L"late.dwg", false);
    EXPECT_EQ(path.Exists(), 0);
    m_folder.addFile(L"late.dwg");
    EXPECT_NE(path.Exists(), 0) << "the disk is asked again";
    EXPECT_EQ(path.GetType(), Type::NewFile) << "the type is that of the parsing";
    path.Parse(L"*", true);
    EXPECT_EQ(path.Exists(), 0);
    EXPECT_EQ(CZoUiPathname().Exists(), 0);
}

}  // namespace
