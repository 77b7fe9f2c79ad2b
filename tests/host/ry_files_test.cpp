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

TEST_F(FilesTest, GetFileStatusReportsAFileUnderItsFullName) {
    const CString path = m_folder.addFile(L"sub\\Plan.dwg", "12345");
    RyFileStatus status;
    ASSERT_NE(RyUt::GetFileStatus(L"SUB/..\\sub/PLAN.DWG", status), 0);
    EXPECT_EQ(status.m_fullName.CompareNoCase(path), 0) << status.m_fullName.GetString();
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(status.m_attributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    EXPECT_LE(CompareFileTime(&status.m_modified, &now), 0);
    EXPECT_NE(status.m_modified.dwHighDateTime, 0u);
    ASSERT_NE(RyUt::GetFileStatus(m_folder.path(), status), 0);
    EXPECT_NE(status.m_attributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_EQ(status.m_size, 0u);
}

TEST_F(FilesTest, GetFileStatusLeavesTheOutputAloneForWhatIsNotThere) {
    m_folder.addFile(L"plan.dwg");
    RyFileStatus status;
    status.m_fullName = L"kept";
    for (const wchar_t* path : {static_cast<const wchar_t*>(nullptr), L"", L"none.dwg", L"*.dwg", L"a|b"}) {
        EXPECT_EQ(RyUt::GetFileStatus(path, status), 0);
    }
    EXPECT_EQ(status.m_fullName, L"kept");
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
    EXPECT_EQ(RyUtResource::loadDll(L"here.dll"), nullptr);
    EXPECT_EQ(RyUtResource::loadDll(L"shell32.dll"), nullptr);
    EXPECT_EQ(RyUtResource::loadDll(L"C:here.dll"), nullptr);
    EXPECT_EQ(RyUtResource::loadDll(m_folder.path().Mid(2) + L"\\here.dll"), nullptr);

    const HINSTANCE here = RyUtResource::loadDll(m_folder.path(L"here.dll"));
    ASSERT_NE(here, nullptr);
    EXPECT_NE(RyUtResource::freeDll(here), 0);
    const HINSTANCE beside = RyUtResource::loadDll(L"user32.dll", GetModuleHandleW(L"kernel32.dll"));
    ASSERT_NE(beside, nullptr);
    EXPECT_NE(RyUtResource::freeDll(beside), 0);
    const HINSTANCE framework = RyUtResource::loadDll(L"zoui.dll");
    ASSERT_NE(framework, nullptr) << "beside the framework and the program";
    EXPECT_NE(FindResourceW(framework, L"TASKDIALOGS.XAML", RT_RCDATA), nullptr);
    EXPECT_NE(RyUtResource::freeDll(framework), 0);
}

TEST_F(FilesTest, LoadDllRefusesWhatIsNoModule) {
    m_folder.addFile(L"text.dll", "no module");
    EXPECT_EQ(RyUtResource::loadDll(nullptr), nullptr);
    EXPECT_EQ(RyUtResource::loadDll(L""), nullptr);
    EXPECT_EQ(RyUtResource::loadDll(m_folder.path(L"none.dll")), nullptr);
    EXPECT_EQ(RyUtResource::freeDll(nullptr), 0);
}

// --- networkAwareChangeDir -----------------------------------------------------------------------------------------

TEST_F(FilesTest, ChangeDirEntersAFolderAndKeepsItsText) {
    const CString folder = m_folder.addFolder(L"sub");
    EXPECT_EQ(networkAwareChangeDir(folder, false), L"");
    EXPECT_EQ(currentDirectory().CompareNoCase(folder), 0);
    EXPECT_EQ(networkAwareChangeDir(L"..", false), L"");
    EXPECT_EQ(currentDirectory().CompareNoCase(m_folder.path()), 0);
}

TEST_F(FilesTest, ChangeDirLeavesEverythingForWhatIsNoFolder) {
    m_folder.addFile(L"plan.dwg");
    m_folder.addFolder(L"Desktop");
    const CString before = currentDirectory();
    EXPECT_EQ(networkAwareChangeDir(L"none", false), L"");
    EXPECT_EQ(networkAwareChangeDir(L"plan.dwg", false), L"");
    EXPECT_EQ(networkAwareChangeDir(L"Desktop", true), L"");
    EXPECT_EQ(networkAwareChangeDir(nullptr, false), L"");
    EXPECT_EQ(networkAwareChangeDir(L"", false), L"");
    EXPECT_EQ(currentDirectory(), before);
}

struct HandleCloser {
    void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};

TEST_F(FilesTest, ChangeDirAbandonsALocationThatDoesNotAnswer) {
    struct Shared {
        std::unique_ptr<void, HandleCloser> go{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
        std::unique_ptr<void, HandleCloser> done{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
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
}

TEST_F(FilesTest, ChangeDirTakesAProbeThatThrowsForNoFolder) {
    const CString folder = m_folder.addFolder(L"sub");
    const auto throwingProbe = [](const std::wstring&) -> bool { throw 1; };
    EXPECT_EQ(networkAwareChangeDir(folder, false, throwingProbe, 2'000), L"");
    EXPECT_EQ(currentDirectory().CompareNoCase(m_folder.path()), 0);
}

}  // namespace
