#include "dialog/NetworkCheck.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <atomic>

#include "dialog/DialogUser.h"
#include "dialog/FakeNetwork.h"
#include "dialog/FolderTexts.h"
#include "dialog/NetworkAnswers.h"
#include "support/Printers.h"

namespace knav {
namespace {

using test::FakeNetwork;
using test::kLongEnough;
using test::NetworkInPlace;

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

}  // namespace
}  // namespace knav
