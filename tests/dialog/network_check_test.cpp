#include "dialog/NetworkCheck.h"

#include <commctrl.h>
#include <gtest/gtest.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>
#include <platform/ScopedHandle.h>
#include <winioctl.h>

#include <atomic>
#include <mutex>

#include "dialog/DialogUser.h"
#include "dialog/FolderTexts.h"
#include "dialog/Messages.h"
#include "dialog/NetworkAnswers.h"
#include "support/Printers.h"
#include "support/RealNamespace.h"

namespace knav {
namespace {

constexpr struct {
    const char* why;
    const wchar_t* text;
    NetworkPlace place;
    const wchar_t* server;
    const wchar_t* share;
} kSplitRows[] = {
    {"a server", L"\\\\srv", NetworkPlace::Server, L"\\\\srv", L""},
    {"a server with a separator at its end", L"\\\\srv\\", NetworkPlace::Server, L"\\\\srv", L""},
    {"a share", L"\\\\srv\\plans", NetworkPlace::Share, L"\\\\srv", L"plans"},
    {"a share with separators at its end", L"\\\\srv\\plans\\\\", NetworkPlace::Share, L"\\\\srv", L"plans"},
    {"a path", L"\\\\srv\\plans\\a\\b.dwg", NetworkPlace::Path, L"\\\\srv", L"plans"},
    {"nothing behind the backslashes", L"\\\\", NetworkPlace::None, L"", L""},
    {"three backslashes", L"\\\\\\srv", NetworkPlace::None, L"", L""},
    {"a path on a drive", L"c:\\plans", NetworkPlace::Drive, L"C:", L""},
    {"nothing", L"", NetworkPlace::None, L"", L""},
};

TEST(NetworkCheck, SplitNetworkName_TellsServerShareAndPath) {
    for (const auto& row : kSplitRows) {
        SCOPED_TRACE(row.why);
        const NetworkName name = splitNetworkName(row.text);
        EXPECT_EQ(name.place, row.place);
        EXPECT_EQ(name.server, row.server);
        EXPECT_EQ(name.share, row.share);
    }
}

/// A network with one answer for everything, which notes what was asked.
class FakeNetwork : public NetworkProbe {
public:
    explicit FakeNetwork(unsigned long error, std::wstring message = {})
        : answer(error), m_message(std::move(message)) {}

    unsigned long server(const std::wstring& server, std::wstring& message) override {
        return note(L"server " + server, message);
    }
    unsigned long share(const std::wstring& server, const std::wstring& share, std::wstring& message) override {
        return note(L"share " + server + L" " + share, message);
    }
    unsigned long path(const std::wstring& path, std::wstring& message) override {
        return note(L"path " + path, message);
    }
    unsigned long drive(const std::wstring& drive) override {
        std::wstring unused;
        return note(L"drive " + drive, unused);
    }
    unsigned long logIn(HWND, const std::wstring& share, std::wstring&) override {
        m_loggedInTo = share;
        return loginAnswer;
    }
    std::wstring asked() const {
        const std::scoped_lock lock(m_mutex);
        return m_asked;
    }
    const std::wstring& loggedInTo() const { return m_loggedInTo; }

    unsigned long answer;
    unsigned long loginAnswer = NO_ERROR;

protected:
    virtual unsigned long note(std::wstring question, std::wstring& message) {
        const std::scoped_lock lock(m_mutex);
        m_asked = std::move(question);
        message = m_message;
        return answer;
    }

private:
    const std::wstring m_message;
    mutable std::mutex m_mutex;
    std::wstring m_asked;
    std::wstring m_loggedInTo;
};

/// Answers only when it is let go.
class HangingNetwork : public FakeNetwork {
public:
    HangingNetwork() : FakeNetwork(NO_ERROR) {}
    void letGo() { SetEvent(m_letGo); }
    int questions() const { return m_questions; }

private:
    unsigned long note(std::wstring question, std::wstring& message) override {
        ++m_questions;
        WaitForSingleObject(m_letGo, INFINITE);
        return FakeNetwork::note(std::move(question), message);
    }
    const HANDLE m_letGo = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<int> m_questions = 0;
};

/// The network of the process, while it lives.
struct NetworkInPlace {
    NetworkInPlace(NetworkProbe& network, unsigned patienceMs) {
        setNetworkProbe(&network);
        setNetworkPatience(patienceMs);
    }
    ~NetworkInPlace() {
        setNetworkPatience(10'000);
        setNetworkProbe(nullptr);
    }
    NetworkInPlace(const NetworkInPlace&) = delete;
    NetworkInPlace& operator=(const NetworkInPlace&) = delete;
};

/// A thread can start late on a machine that has much to do.
constexpr unsigned kLongEnough = 50'000;

TEST(NetworkCheck, ReachableLocation_IsAskedForByItsKind) {
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"\\\\srv", L"server \\\\srv"},
        {L"\\\\srv\\plans", L"share \\\\srv plans"},
        {L"\\\\srv\\plans\\a.dwg", L"path \\\\srv\\plans\\a.dwg"},
    };
    for (const auto& [name, question] : rows) {
        FakeNetwork network(NO_ERROR);
        EXPECT_TRUE(checkNetworkLocation(network, name, kLongEnough).reachable) << test::utf8(name);
        EXPECT_EQ(network.asked(), question);
    }
}

TEST(NetworkCheck, AnswerOfTheNetwork_TellsWhatIsThereFromWhatCannotBe) {
    struct Row {
        const char* why;
        unsigned long error;
        bool reachable;
        bool invalidName;
    };
    constexpr Row rows[] = {
        {"no such share", ERROR_BAD_NET_NAME, false, false},
        {"a name that cannot be", ERROR_INVALID_NAME, false, true},
        {"no such server", ERROR_BAD_NETPATH, false, false},
        {"no network at all", ERROR_NO_NETWORK, false, false},
        {"it wants a login", ERROR_ACCESS_DENIED, true, false},
        {"it does not know the user", ERROR_LOGON_FAILURE, true, false},
        {"it wants a password", ERROR_INVALID_PASSWORD, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        FakeNetwork network(row.error, L"in the network's words");
        const NetworkAnswer answer = checkNetworkLocation(network, L"\\\\knav-no-such-server\\plans", kLongEnough);
        EXPECT_EQ(answer.reachable, row.reachable);
        EXPECT_EQ(answer.code == kNetworkNameInvalid, row.invalidName);
        EXPECT_TRUE(row.reachable || answer.message == L"in the network's words");
    }
}

TEST(NetworkCheck, LocationThatWantsALogin_IsThereForWhoLogsIn) {
    static FakeNetwork network(ERROR_LOGON_FAILURE);
    const NetworkInPlace inPlace(network, kLongEnough);
    const std::pair<unsigned long, std::optional<unsigned>> rows[] = {
        {NO_ERROR, std::nullopt},
        {ERROR_CANCELLED, kNetworkLoginCancelled},
        {ERROR_ACCOUNT_DISABLED, 1u},
        {ERROR_SESSION_CREDENTIAL_CONFLICT, std::nullopt},
    };
    for (const auto& [error, code] : rows) {
        network.loginAnswer = error;
        NetworkAnswers answers;
        EXPECT_EQ(answers.refusal(L"\\\\srv\\plans\\a.dwg"), nullptr) << "merely asking brings up no window";
        EXPECT_EQ(answers.refusalAfterLogin(nullptr, L"\\\\srv"), nullptr) << "a server that lists nothing";
        const NetworkAnswer* const refusal = answers.refusalAfterLogin(nullptr, L"\\\\srv\\plans\\a.dwg");
        EXPECT_EQ(refusal ? std::optional(refusal->code) : std::nullopt, code) << error;
        EXPECT_EQ(refusal && !refusal->message.IsEmpty(), code == 1u) << "what went wrong is told";
        EXPECT_EQ(network.loggedInTo(), L"\\\\srv\\plans");
    }
}

TEST(NetworkCheck, TextThatIsNoNetworkName_IsInvalidWithoutAsking) {
    FakeNetwork network(NO_ERROR);
    const NetworkAnswer answer = checkNetworkLocation(network, L"\\\\\\srv", kLongEnough);
    EXPECT_FALSE(answer.reachable);
    EXPECT_EQ(answer.code, kNetworkNameInvalid);
    EXPECT_EQ(network.asked(), L"");
}

TEST(NetworkCheck, NetworkThatDoesNotAnswer_IsGivenUpInTime) {
    static HangingNetwork network;  // the abandoned check still runs on it
    const ULONGLONG start = GetTickCount64();
    const NetworkAnswer answer = checkNetworkLocation(network, L"\\\\srv", 100);
    const ULONGLONG took = GetTickCount64() - start;
    EXPECT_FALSE(answer.reachable);
    EXPECT_NE(answer.code, kNetworkNameInvalid);
    EXPECT_GE(took, 90u);
    EXPECT_LT(took, 2000u);

    // The answer that comes too late has somewhere to go.
    network.letGo();
    for (int i = 0; i < 200 && network.asked().empty(); ++i) {
        Sleep(10);
    }
    EXPECT_EQ(network.asked(), L"server \\\\srv");
}

TEST(NetworkCheck, WhileTheAnswerIsAwaited_WindowsPaintAndKeysStayForLater) {
    static HangingNetwork network;
    const HWND window =
        CreateWindowExW(0, WC_STATICW, L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    InvalidateRect(window, nullptr, TRUE);
    PostMessageW(window, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
    EXPECT_FALSE(checkNetworkLocation(network, L"\\\\srv", 60).reachable);
    network.letGo();
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, window, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
    DestroyWindow(window);
}

TEST(NetworkCheck, AnswersAreKeptForOneThingTheUserDoesAndShareOnePatience) {
    static FakeNetwork there(NO_ERROR);
    static HangingNetwork gone;
    NetworkAnswers answers;
    const auto withinReach = [&](const wchar_t* text) { return answers.refusal(text) == nullptr; };
    std::optional<NetworkAnswers::Scope> scope(answers);
    {
        const NetworkInPlace reachable(there, kLongEnough);
        EXPECT_TRUE(withinReach(L"\\\\srv\\plans\\a.dwg"));
        EXPECT_EQ(there.asked(), L"path \\\\srv\\plans\\a.dwg");
        EXPECT_TRUE(withinReach(L"\\\\SRV\\Plans\\sub\\b.dwg"));
        EXPECT_TRUE(withinReach(L"C:\\plans"));
        EXPECT_TRUE(withinReach(L"\\\\?\\C:\\plans"));
        EXPECT_EQ(there.asked(), L"path \\\\srv\\plans\\a.dwg") << "the share is known";
        EXPECT_TRUE(withinReach(L"\\\\srv\\plans"));
        EXPECT_EQ(there.asked(), L"share \\\\srv plans");
        scope.reset();
        EXPECT_TRUE(withinReach(L"\\\\srv\\plans\\c.dwg"));
        EXPECT_EQ(there.asked(), L"path \\\\srv\\plans\\c.dwg");
    }
    const NetworkInPlace unreachable(gone, 200);
    scope.emplace(answers);
    const ULONGLONG start = GetTickCount64();
    for (const wchar_t* const name :
         {L"\\\\one", L"\\\\two", L" \"\\\\three\\a\" ", L"//four/a", L"\\\\?\\UNC\\five\\a", L"\\\\one"}) {
        EXPECT_FALSE(withinReach(name));
    }
    EXPECT_LT(GetTickCount64() - start, 700u);
    gone.letGo();
}

TEST(NetworkCheck, OptionsOnAServerThatIsGone_AreTakenByTheirTextAlone) {
    static HangingNetwork gone;
    const NetworkInPlace unreachable(gone, 50);
    test::TestDialog dialog;
    dialog.SetInitialFileName(L"\\\\gone\\plans\\house.dwg");
    EXPECT_LE(gone.questions(), 1) << "the name, its extension and its folder are of one location";
    dialog.SetForceInitialFolder(L"\\\\gone\\plans\\house.dwg");
    const std::tuple<void (CNavDialog::*)(CString&) const, CString> rows[] = {
        {&CNavDialog::GetInitialFileName, L"house.dwg"},
        {&CNavDialog::GetDefaultFileExtension, L"dwg"},
        {&CNavDialog::GetForceInitialFolder, L""},
        {&CNavDialog::GetDefaultInitialFolder, CString(currentDirectory())},
    };
    for (const auto& [get, expected] : rows) {
        CString text = L"untouched";
        (dialog.*get)(text);
        EXPECT_EQ(text, expected);
    }
    EXPECT_EQ(dialog.NavigateToFolder(L"\\\\gone\\plans"), 0);
    EXPECT_EQ(gone.asked(), L"") << "nobody has an answer yet";
    gone.letGo();
}

/// A folder of this machine under a drive letter of the network.
class MappedDrive {
public:
    explicit MappedDrive(CString folder) {
        folder.Replace(L"C:\\", L"../drive_c/");
        folder.Replace(L"\\", L"/");
        define(test::utf8(folder.view()));
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

class DialogOnANetworkDrive : public test::DialogTest {
protected:
    /// Shows the drive, loses its server, picks an item, and chooses OK.
    void expectRefused(test::TestDialog& dialog, std::vector<std::wstring> picked, const wchar_t* name) {
        static FakeNetwork network(NO_ERROR);
        network.answer = NO_ERROR;
        const NetworkInPlace inPlace(network, kLongEnough);
        const std::size_t before = prompts.seen().size();
        prompts.answer(IDOK);
        dialog.SetDefaultInitialFolder(L"X:\\");
        dialog.SetForceFilterIndex(test::kAllFiles);
        test::DialogUser user(dialog);
        user.untilFolder(L"X:\\").pick(std::move(picked)).check([] { network.answer = ERROR_BAD_NETPATH; }).ok();
        user.untilAsked(prompts, before + 1).settle().type(test::wide(folder.path(L"local.dwg"))).ok();
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
    test::addShortcut(folder, L"share\\away.lnk", folder.addFolder(L"elsewhere"));
    const MappedDrive drive(folder.path(L"share"));
    test::TestDialog dialog;
    expectRefused(dialog, {L"away"}, L"X:\\away.lnk");

    const FileDialogAllowReturnFolderEnabler returnsFolders;
    test::TestDialog folders;
    expectRefused(folders, {L"sub"}, L"X:\\sub");
}

}  // namespace
}  // namespace knav
