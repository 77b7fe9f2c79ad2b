// Network names typed into the dialog, with a network provider of the tests' own behind the platform's functions.
#include <knav/CNavPathname.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <platform/ScopedHandle.h>
#include <winioctl.h>

#include "dialog/DialogUser.h"
#include "dialog/FakeNetwork.h"
#include "dialog/Messages.h"
#include "shell/ItemList.h"
#include "support/ChildTests.h"
#include "support/RealNamespace.h"

namespace knav::test {
namespace {

using testing::ElementsAre;

constexpr wchar_t kOrderKey[] = L"System\\CurrentControlSet\\Control\\NetworkProvider\\Order";
constexpr wchar_t kServiceKey[] = L"System\\CurrentControlSet\\Services\\KnavTestNetwork";
constexpr wchar_t kModule[] = L"testnetwork.dll";

CString folderOf(const CString& file) {
    return file.Left(file.ReverseFind(L'\\') + 1);
}

LSTATUS writeText(const wchar_t* key, const wchar_t* name, const CString& text) {
    return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, name, REG_SZ, text.GetString(),
                           static_cast<DWORD>((text.GetLength() + 1) * sizeof(wchar_t)));
}

/// Registers the provider for the processes that start while this lives.
class RegisteredProvider {
public:
    RegisteredProvider() {
        DWORD size = sizeof m_order;
        m_hadOrder = RegGetValueW(HKEY_LOCAL_MACHINE, kOrderKey, L"ProviderOrder", RRF_RT_REG_SZ, nullptr, m_order,
                                  &size) == ERROR_SUCCESS;
        const CString provider = CString(kServiceKey) + L"\\NetworkProvider";
        m_done = writeText(provider, L"Name", L"Test network") == ERROR_SUCCESS &&
                 writeText(provider, L"ProviderPath", folderOf(thisProgram()) + kModule) == ERROR_SUCCESS &&
                 writeText(kOrderKey, L"ProviderOrder", L"KnavTestNetwork") == ERROR_SUCCESS;
    }
    ~RegisteredProvider() {
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, kServiceKey);
        if (m_hadOrder) {
            writeText(kOrderKey, L"ProviderOrder", m_order);
        } else {
            RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kOrderKey, L"ProviderOrder");
        }
    }
    RegisteredProvider(const RegisteredProvider&) = delete;
    RegisteredProvider& operator=(const RegisteredProvider&) = delete;
    bool done() const { return m_done; }

private:
    wchar_t m_order[1000] = L"";
    bool m_hadOrder = false;
    bool m_done = false;
};

// The network functions choose their providers when the process starts.
TEST(DialogNetwork, NetworkOfTheTests) {
    const RegisteredProvider provider;
    ASSERT_TRUE(provider.done());
    EXPECT_EQ(runChildTests(thisProgram(), "InsideNetwork.*"), 0u) << "see the failures above";
}

/// What the provider was asked since the last call.
std::wstring questions() {
    using Take = void (*)(wchar_t*, std::size_t);
    const HMODULE module = GetModuleHandleW(kModule);
    if (!module) {
        return L"the provider is not loaded";
    }
    wchar_t text[2000];
    reinterpret_cast<Take>(reinterpret_cast<void*>(GetProcAddress(module, "TakeQuestions")))(text, std::size(text));
    return text;
}

/// The platform's folder for the files of network locations.
CString networkFolder() {
    wchar_t prefix[MAX_PATH] = L"";
    GetEnvironmentVariableW(L"WINEPREFIX", prefix, MAX_PATH);
    CString folder = CString(L"\\\\?\\unix") + prefix + L"\\dosdevices\\unc";
    folder.Replace(L"/", L"\\");
    return folder;
}

class InsideNetwork : public DialogTest {
protected:
    void SetUp() override {
        if (!isChildProcess()) {
            GTEST_SKIP() << "runs in a process of its own";
        }
        folder.addFile(L"local.dwg");
        for (const wchar_t* const part : {L"", L"\\knavtest", L"\\knavtest\\plans", L"\\knavtest\\plans\\sub"}) {
            CreateDirectoryW(networkFolder() + part, nullptr);
        }
        const ScopedHandle file(
            CreateFileW(L"\\\\knavtest\\plans\\house.dwg", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        ASSERT_TRUE(file) << GetLastError();
        questions();
    }
    void TearDown() override {
        setNetworkPatience(10'000);
        DeleteFileW(L"\\\\knavtest\\plans\\house.dwg");
        for (const wchar_t* const part : {L"\\knavtest\\plans\\sub", L"\\knavtest\\plans", L"\\knavtest"}) {
            RemoveDirectoryW(networkFolder() + part);
        }
    }
};

TEST_F(InsideNetwork, PathOnAShare_IsCheckedOnceAndReturned) {
    TestDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    constexpr wchar_t path[] = L"\\\\knavtest\\plans\\house.dwg";
    EXPECT_EQ(DialogUser(dialog).type(L"\"\\\\knavtest\\plans\\house\" \"//knavtest/plans/house\"").ok().run(), IDOK);
    ASSERT_THAT(dialog.chosen(), ElementsAre(path, path));
    EXPECT_EQ(dialog.data.GetData(0)->GetDataType(), NAV_DATA_NETWORK);
    EXPECT_EQ(dialog.data.GetData(1)->GetDataType(), NAV_DATA_NETWORK);
    EXPECT_EQ(questions(), L"find \\\\knavtest\\plans\\house\n");
}

TEST_F(InsideNetwork, LocationThatIsNotThere_IsRefusedInTheRightWords) {
    const struct {
        const char* why;
        const wchar_t* typed;
        CString text;
        const wchar_t* asked;
    } rows[] = {
        {"a server", L"\\\\nowhere", messageText(IDS_KNAV_NETWORK_UNREACHABLE, L"\\\\nowhere"), L"list \\\\nowhere\n"},
        {"a share of a server", L"\\\\knavtest\\nothing",
         messageText(IDS_KNAV_NETWORK_UNREACHABLE, L"\\\\knavtest\\nothing"),
         L"list \\\\knavtest\nfind \\\\knavtest\\nothing\n"},
        {"a path", L"\\\\nowhere\\plans\\a.dwg",
         messageText(IDS_KNAV_NETWORK_UNREACHABLE, L"\\\\nowhere\\plans\\a.dwg"), L"find \\\\nowhere\\plans\\a.dwg\n"},
        {"a further name, which may be there and would be written over", L"\"a\" \"\\\\nowhere\\plans\\b\"",
         messageText(IDS_KNAV_NETWORK_UNREACHABLE, L"\\\\nowhere\\plans\\b.dwg"), L"find \\\\nowhere\\plans\\b\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const std::size_t before = prompts.seen().size();
        prompts.answer(IDOK);
        TestDialog dialog(folder.path());
        dialog.SetCreatingFile(1);
        dialog.SetConfirmReplace(1);
        dialog.SetMultiSelectAllowed(1);
        DialogUser user(dialog);
        user.type(row.typed).ok().untilAsked(prompts, before + 1).settle();
        user.check([&] { expectNameReadyToRetype(row.typed); }).type(L"new").ok();
        EXPECT_EQ(user.run(), IDOK) << "the dialog is as usable as before";
        ASSERT_EQ(prompts.seen().size(), before + 1);
        EXPECT_EQ(prompts.seen().back().text, row.text);
        EXPECT_EQ(questions(), row.asked);
    }
}

TEST_F(InsideNetwork, ServerThatNeverAnswers_IsGivenUpInTime) {
    setNetworkPatience(300);
    prompts.answer(IDOK);
    TestDialog dialog(folder.path());
    ULONGLONG start = 0;
    ULONGLONG took = 0;
    DialogUser user(dialog);
    user.type(L"\\\\knavslow\\plans\\a.dwg").check([&] { start = GetTickCount64(); }).ok().untilAsked(prompts);
    user.check([&] { took = GetTickCount64() - start; }).settle().type(L"local").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_GE(took, 250u);
    EXPECT_LT(took, 5'000u);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_NETWORK_UNREACHABLE, L"\\\\knavslow\\plans\\a.dwg"));
    EXPECT_EQ(questions(), L"find \\\\knavslow\\plans\\a.dwg\n") << "asked once, though several steps wanted to know";
}

// What the platform cannot put into its namespace is returned as a text (a server) or refused (a folder).
TEST_F(InsideNetwork, ServerOnTheNetwork_IsReturned) {
    for (const wchar_t* const server : {L"\\\\knavtest", L"\\\\knavbare"}) {
        SCOPED_TRACE(utf8(server));
        TestDialog dialog(folder.path());
        EXPECT_EQ(DialogUser(dialog).type(server).ok().run(), IDOK);
        ASSERT_THAT(dialog.chosen(), ElementsAre(server));
        EXPECT_EQ(dialog.data.GetData(0)->GetDataType(), NAV_DATA_NETWORK);
        EXPECT_EQ(questions(), std::wstring(L"list ") + server + L"\n");
    }
}

/// Picks a location of the network on OK: the platform of these tests has none to pick in the view.
struct PickingDialog : TestDialog {
    PickingDialog(const wchar_t* folder, const wchar_t* location) : TestDialog(folder), picked(location) {}
    OkHandlerErr PreprocessData(CNavDataArray& items) override {
        CNavData& item = *items.AddData();
        item.SetText(picked);
        item.SetDataType(NAV_DATA_FILE);
        item.SetID(NavGetDrivesFolderItem(nullptr));
        item.GetPathname()->Parse(picked, false);
        return TestDialog::PreprocessData(items);
    }
    const CString picked;
};

TEST_F(InsideNetwork, ServerPickedInTheView_IsEntered) {
    PickingDialog dialog(folder.path(), L"\\\\knavtest");
    EXPECT_EQ(DialogUser(dialog).ok().untilFolder(kMyComputer).cancel().run(), IDCANCEL);
    EXPECT_EQ(questions(), L"list \\\\knavtest\n");
}

TEST_F(InsideNetwork, FolderPickedToBeReturned_IsOneOfTheNetwork) {
    const FileDialogAllowReturnFolderEnabler returnsFolders;
    PickingDialog dialog(folder.path(), L"\\\\knavtest\\plans\\sub");
    EXPECT_EQ(DialogUser(dialog).ok().run(), IDOK);
    ASSERT_THAT(dialog.chosen(), ElementsAre(L"\\\\knavtest\\plans\\sub"));
    EXPECT_EQ(dialog.data.GetData(0)->GetDataType(), NAV_DATA_NETWORK);
}

// The file system shows nothing of the share to whoever has not logged in.
TEST_F(InsideNetwork, FolderOnAShareThatWantsALogin_IsAFolderAfterIt) {
    static struct : FakeNetwork {
        using FakeNetwork::FakeNetwork;
        unsigned long logIn(HWND owner, const std::wstring& share, std::wstring& message) override {
            CreateDirectoryW(networkFolder() + L"\\knavtest\\plans\\secret", nullptr);
            return FakeNetwork::logIn(owner, share, message);
        }
    } network(ERROR_ACCESS_DENIED);
    const NetworkInPlace inPlace(network, kLongEnough);
    constexpr wchar_t secret[] = L"\\\\knavtest\\plans\\secret";
    prompts.answer(IDOK);
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    ASSERT_EQ(user.type(secret).ok().untilAsked(prompts).settle().cancel().run(), IDCANCEL) << "no new file";
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_INVALID_PATH, secret)) << "the platform cannot show it";
    RemoveDirectoryW(networkFolder() + L"\\knavtest\\plans\\secret");
}

TEST_F(InsideNetwork, FolderOnAShare_IsEnteredOrRefusedButNotReturned) {
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"\\\\KNAVTEST\\Plans", L"list \\\\KNAVTEST\n"},
        {L"\\\\knavtest\\plans\\sub", L"find \\\\knavtest\\plans\\sub\n"},
    };
    for (const auto& [typed, asked] : rows) {
        SCOPED_TRACE(utf8(typed));
        const std::size_t before = prompts.seen().size();
        const bool canBeShown = ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(typed)).get() != nullptr;
        TestDialog dialog(folder.path());
        DialogUser user(dialog);
        user.type(typed).ok();
        if (canBeShown) {
            user.untilFolder(typed);
        } else {
            prompts.answer(IDOK);
            user.untilAsked(prompts, before + 1).settle().check([typed = typed] { expectNameReadyToRetype(typed); });
        }
        EXPECT_EQ(user.cancel().run(), IDCANCEL);
        EXPECT_EQ(questions(), asked);
    }
}

/// A folder of this machine under a drive letter of the network.
class MappedDrive {
public:
    explicit MappedDrive(CString folder) {
        folder.Replace(L"C:\\", L"../drive_c/");
        folder.Replace(L"\\", L"/");
        define(utf8(folder.view()));
    }
    ~MappedDrive() { define({}); }
    MappedDrive(const MappedDrive&) = delete;
    MappedDrive& operator=(const MappedDrive&) = delete;

private:
    struct Request {
        ULONG size = sizeof(Request);
        ULONG type = DRIVE_REMOTE;
        ULONG fileSystem[2] = {};
        ULONGLONG device = 0;
        WCHAR letter = L'x';
        USHORT mountPoint = 0;
        USHORT unused[2] = {};
        char text[MAX_PATH] = {};
    };
    /// Without a folder the drive goes.
    static void define(const std::string& folder) {
        Request request;
        request.mountPoint = folder.empty() ? 0 : offsetof(Request, text);
        folder.copy(request.text, MAX_PATH - 1);
        const ScopedHandle manager(CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                                               FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
        constexpr DWORD kDefineDrive = CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);
        DWORD got = 0;
        EXPECT_TRUE(DeviceIoControl(manager.get(), kDefineDrive, &request, sizeof request, nullptr, 0, &got, nullptr));
    }
};

class DialogOnANetworkDrive : public DialogTest {
protected:
    /// Shows the drive, loses its server, picks an item, and chooses OK.
    void expectRefused(TestDialog& dialog, std::vector<std::wstring> picked, const wchar_t* name) {
        static FakeNetwork network(NO_ERROR);
        network.answer = NO_ERROR;
        const NetworkInPlace inPlace(network, kLongEnough);
        const std::size_t before = prompts.seen().size();
        prompts.answer(IDOK);
        dialog.SetDefaultInitialFolder(L"X:\\");
        dialog.SetForceFilterIndex(kAllFiles);
        DialogUser user(dialog);
        user.untilFolder(L"X:\\").pick(std::move(picked)).check([] { network.answer = ERROR_BAD_NETPATH; }).ok();
        user.untilAsked(prompts, before + 1).settle().type(wide(folder.path(L"local.dwg"))).ok();
        EXPECT_EQ(user.run(), IDOK) << "what is on this machine can be chosen from there";
        EXPECT_EQ(dialog.chosen(), paths({L"local.dwg"}));
        ASSERT_EQ(prompts.seen().size(), before + 1);
        EXPECT_EQ(prompts.seen().back().text, messageText(IDS_KNAV_NETWORK_UNREACHABLE, name));
        EXPECT_EQ(network.asked(), L"drive X:");
    }
};

// The files of the drive are still there in these tests, so that whoever asks for them shows.
TEST_F(DialogOnANetworkDrive, WhoseServerHasGone_IsNotReadOnOk) {
    folder.addFile(L"local.dwg");
    folder.addFolder(L"share\\sub");
    addShortcut(folder, L"share\\away.lnk", folder.addFolder(L"elsewhere"));
    const MappedDrive drive(folder.path(L"share"));
    TestDialog dialog;
    expectRefused(dialog, {L"away"}, L"X:\\away.lnk");

    const FileDialogAllowReturnFolderEnabler returnsFolders;
    TestDialog folders;
    expectRefused(folders, {L"sub"}, L"X:\\sub");
}

}  // namespace
}  // namespace knav::test
