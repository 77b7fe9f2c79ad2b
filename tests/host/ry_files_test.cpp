#include <platform/ScopedHandle.h>
#include <ry/FileSystem.h>
#include <ry/RyUt.h>
#include <ry/RyUtResource.h>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

#include "support/Printers.h"
#include "support/ScopedTempFolder.h"

using Kelvara::Tessary::PAL::FileSystem::networkAwareChangeDir;
using knav::test::ScopedTempFolder;

namespace {

CString currentDirectory() {
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    return folder;
}

// The test's own folder is the current directory, and the previous one is again at the end.
class FilesTest : public testing::Test {
protected:
    FilesTest() { SetCurrentDirectoryW(m_folder.path()); }
    ~FilesTest() override { SetCurrentDirectoryW(m_previous); }

    CString m_previous = currentDirectory();
    ScopedTempFolder m_folder;
};

// --- RyUt ----------------------------------------------------------------------------------------------------------

TEST_F(FilesTest, GetFileStatusTellsWhatIsThereUnderItsFullName) {
    const CString path = m_folder.addFile(L"sub\\Plan.dwg", "12345");
    RyFileStatus status;
    ASSERT_NE(RyUt::GetFileStatus(L"SUB/..\\sub/PLAN.DWG", status), 0);
    EXPECT_EQ(status.m_fullName.CompareNoCase(path), 0) << status.m_fullName.GetString();
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(status.m_attributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_NE(status.m_modified.dwHighDateTime, 0u);
    for (const wchar_t* none : {static_cast<const wchar_t*>(nullptr), L"", L"none.dwg", L"*.dwg", L"a|b"}) {
        EXPECT_EQ(RyUt::GetFileStatus(none, status), 0);
    }
    EXPECT_EQ(status.m_size, 5u) << "left as it was";
    ASSERT_NE(RyUt::GetFileStatus(m_folder.path(), status), 0);
    EXPECT_NE(status.m_attributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_EQ(status.m_size, 0u);
}

// --- RyUtResource --------------------------------------------------------------------------------------------------

CString systemModule() {
    wchar_t folder[MAX_PATH];
    GetSystemDirectoryW(folder, MAX_PATH);
    return CString(folder) + L"\\shell32.dll";
}

TEST_F(FilesTest, LoadDllFindsRelativeNamesOnlyBesideTheModules) {
    // A module in the current directory and on the search path is not to be found by its bare name.
    ASSERT_TRUE(CopyFileW(systemModule(), m_folder.path(L"here.dll"), FALSE));
    m_folder.addFile(L"text.dll", "no module");
    const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    struct Row {
        const char* why;
        CString name;
        HINSTANCE beside;
        bool found;
    };
    const Row rows[] = {
        {"in the current directory", L"here.dll", nullptr, false},
        {"on the search path", L"shell32.dll", nullptr, false},
        {"relative to a drive", L"C:here.dll", nullptr, false},
        {"relative to a root", m_folder.path().Mid(2) + L"\\here.dll", nullptr, false},
        {"no module", m_folder.path(L"text.dll"), nullptr, false},
        {"missing", m_folder.path(L"none.dll"), nullptr, false},
        {"no name", L"", nullptr, false},
        {"full path", m_folder.path(L"here.dll"), nullptr, true},
        {"beside another module", L"user32.dll", kernel, true},
        {"beside the framework and the program", L"zoui.dll", nullptr, true},
    };
    for (const Row& row : rows) {
        const HINSTANCE loaded = RyUtResource::loadDll(row.name, row.beside);
        EXPECT_EQ(loaded != nullptr, row.found) << row.why;
        EXPECT_EQ(RyUtResource::freeDll(loaded) != 0, row.found) << row.why;
    }
    EXPECT_EQ(RyUtResource::loadDll(nullptr), nullptr);
}

// --- networkAwareChangeDir -----------------------------------------------------------------------------------------

TEST_F(FilesTest, ChangeDirEntersFoldersOnly) {
    const CString folder = m_folder.addFolder(L"sub");
    m_folder.addFile(L"plan.dwg");
    m_folder.addFolder(L"Desktop");
    EXPECT_EQ(networkAwareChangeDir(folder, false), L"");
    EXPECT_EQ(currentDirectory().CompareNoCase(folder), 0);
    EXPECT_EQ(networkAwareChangeDir(L"..", false), L"");
    EXPECT_EQ(currentDirectory().CompareNoCase(m_folder.path()), 0);
    EXPECT_EQ(networkAwareChangeDir(L"Desktop", true), L"");
    for (const wchar_t* none : {static_cast<const wchar_t*>(nullptr), L"", L"none", L"plan.dwg"}) {
        EXPECT_EQ(networkAwareChangeDir(none, false), L"");
    }
    EXPECT_EQ(currentDirectory().CompareNoCase(m_folder.path()), 0);
}

TEST_F(FilesTest, ChangeDirAbandonsALocationThatDoesNotAnswer) {
    struct Shared {
        const ScopedHandle go{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
        const ScopedHandle done{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
        std::atomic<bool> probed = false;
    };
    const auto shared = std::make_shared<Shared>();
    const auto hangingProbe = [shared](const std::wstring& path) {
        shared->probed = path == L"\\\\dead\\share\\x";
        WaitForSingleObject(shared->go.get(), 20'000);
        SetEvent(shared->done.get());
        return true;
    };
    const ULONGLONG start = GetTickCount64();
    const std::wstring instead = networkAwareChangeDir(L"\\\\dead\\share\\x", false, hangingProbe, 200);
    EXPECT_LT(GetTickCount64() - start, 5'000u);

    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const CString programFolder = CString(program).Left(CString(program).ReverseFind(L'\\') + 1);
    EXPECT_EQ(CString(instead), programFolder);
    EXPECT_EQ((currentDirectory() + L"\\").CompareNoCase(programFolder), 0);

    // The answer that comes after all changes nothing any more.
    SetCurrentDirectoryW(m_folder.path());
    SetEvent(shared->go.get());
    EXPECT_EQ(WaitForSingleObject(shared->done.get(), 20'000), WAIT_OBJECT_0);
    EXPECT_TRUE(shared->probed);
    EXPECT_EQ(currentDirectory().CompareNoCase(m_folder.path()), 0);

    const auto throwingProbe = [](const std::wstring&) -> bool { throw 1; };
    EXPECT_EQ(networkAwareChangeDir(m_folder.path(), false, throwingProbe, 20'000), instead);
}

}  // namespace
