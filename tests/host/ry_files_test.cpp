#include <platform/Resources.h>
#include <platform/ScopedHandle.h>
#include <ry/FileSystem.h>
#include <ry/RyUtResource.h>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

#include "resources/ids.h"
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

CString programFolder() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return CString(program).Left(CString(program).ReverseFind(L'\\') + 1);
}

// The test's own folder is the current directory, and the previous one is again at the end.
class FilesTest : public testing::Test {
protected:
    FilesTest() { SetCurrentDirectoryW(m_folder.path()); }
    ~FilesTest() override { SetCurrentDirectoryW(m_previous); }

    CString m_previous = currentDirectory();
    ScopedTempFolder m_folder;
};

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

TEST_F(FilesTest, ResourcesAreSearchedInTheCurrentModuleThenInTheNewest) {
    const HINSTANCE first = RyUtResource::loadDll(L"KnavRes.dll");
    ASSERT_TRUE(CopyFileW(programFolder() + L"KnavRes.dll", m_folder.path(L"second.dll"), FALSE));
    const HINSTANCE second = RyUtResource::loadDll(m_folder.path(L"second.dll"));
    const auto found = [] { return AfxFindResourceHandle(MAKEINTRESOURCEW(IDR_KNAV_OK_MENU), RT_MENU); };
    {
        const CDynLinkLibrary firstLink(first);
        {
            const CDynLinkLibrary secondLink(second);
            EXPECT_EQ(found(), second);
            const ScopedResourceHandle current(first);
            EXPECT_EQ(found(), first);
        }
        EXPECT_EQ(found(), first);
    }
    EXPECT_EQ(found(), GetModuleHandleW(nullptr)) << "in none of them";
    RyUtResource::freeDll(second);
    RyUtResource::freeDll(first);
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

    EXPECT_EQ(CString(instead), programFolder());
    EXPECT_EQ((currentDirectory() + L"\\").CompareNoCase(programFolder()), 0);

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
