// What happens around an open dialog: a key still held down, and folders that go away.
#include <filesystem>

#include "dialog/DialogUser.h"
#include "dialog/Messages.h"
#include "support/Controls.h"

namespace knav::test {
namespace {

class DialogMeanwhile : public DialogTest {
protected:
    static HWND nameField() { return GetWindow(DialogDriver::control(IDC_KNAV_FILE_NAME), GW_CHILD); }

    /// As the keyboard repeats a key that is held down, or as it is pressed anew.
    static void postEnter(bool repeated) {
        PostMessageW(nameField(), WM_KEYDOWN, VK_RETURN, repeated ? 0x40000001 : 1);
    }
    static void releaseEnter() { PostMessageW(nameField(), WM_KEYUP, VK_RETURN, static_cast<LPARAM>(0xC0000001)); }
};

TEST_F(DialogMeanwhile, EnterHeldDownSinceBefore_DoesNotAccept) {
    const CString file = folder.addFile(L"a.dwg");
    TestDialog dialog(folder.path());
    dialog.SetInitialFileName(L"a.dwg");
    bool pressedAnew = false;
    DialogUser user(dialog);
    user.untilShown({L"a.dwg"}).check([] {
        postEnter(true);
        postEnter(true);
    });
    user.settle().check([&] {
        EXPECT_EQ(dialog.data.GetCount(), 0);
        pressedAnew = true;
        releaseEnter();
        postEnter(false);
    });
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_TRUE(pressedAnew);
    EXPECT_EQ(dialog.chosen(), std::vector{wide(file)});
}

TEST_F(DialogMeanwhile, FoldersThatGoAway_AreToldAndTheDialogCanBeUsedOn) {
    const CString inner = folder.addFolder(L"outer\\inner");
    const CString file = folder.addFile(L"a.dwg");
    prompts.answer(IDOK);
    TestDialog dialog(inner);
    DialogUser user(dialog);
    user.untilFolder(inner).settle().check([&] {
        SetCurrentDirectoryW(folder.path());  // the dialog started in there, and a folder in use stays
        EXPECT_GT(std::filesystem::remove_all(folder.path(L"outer").GetString()), 0u);
    });
    user.command(IDM_KNAV_UP).untilAsked(prompts).settle();
    user.check([&] {
        EXPECT_EQ(SendMessageW(DialogDriver::dialog(), WM_DEVICECHANGE, 0, 0), TRUE);
        EXPECT_EQ(dialog.shownFolder(), folder.path()) << "at once";
    });
    user.command(IDM_KNAV_REFRESH).settle();
    user.type(wide(folder.path())).ok().untilFolder(folder.path()).untilShown({L"a.dwg"});
    user.command(IDM_KNAV_BACK).settle().check([&] { EXPECT_EQ(dialog.shownFolder(), folder.path()); });
    user.type(L"a.dwg").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), std::vector{wide(file)});
}

/// A drive with a folder, which can be taken out.
class Drive {
public:
    Drive() {
        wchar_t prefix[MAX_PATH] = L"";
        GetEnvironmentVariableW(L"WINEPREFIX", prefix, MAX_PATH);
        m_root = CString(L"\\\\?\\unix") + prefix + L"\\dosdevices\\r:";
        m_root.Replace(L"/", L"\\");
        CreateDirectoryW(m_root, nullptr);
        CreateDirectoryW(m_root + L"\\plans", nullptr);
    }
    ~Drive() { takeOut(); }
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;
    void takeOut() {
        RemoveDirectoryW(m_root + L"\\plans");
        RemoveDirectoryW(m_root);
    }

private:
    CString m_root;
};

TEST_F(DialogMeanwhile, DriveThatIsTakenOut_IsToldAndTheDialogCanBeUsedOn) {
    folder.addFile(L"a.dwg");
    Drive drive;
    ASSERT_TRUE(PathIsDirectoryW(L"R:\\plans"));
    prompts.answer(IDOK).answer(IDOK);
    TestDialog dialog(L"R:\\plans");
    DialogUser user(dialog);
    user.untilFolder(L"R:\\plans").settle().check([&] {
        SetCurrentDirectoryW(folder.path());
        drive.takeOut();
        EXPECT_FALSE(PathIsDirectoryW(L"R:\\"));
    });
    user.command(IDM_KNAV_UP).untilAsked(prompts).settle();
    user.type(L"R:\\plans\\house.dwg").ok().untilAsked(prompts, 2).settle();
    user.check([] { expectNameReadyToRetype(L"R:\\plans\\house.dwg"); });
    user.command(IDM_KNAV_REFRESH).until("another folder", [&] { return dialog.shownFolder() != L"R:\\plans"; });
    user.type(wide(folder.path())).ok().untilFolder(folder.path()).untilShown({L"a.dwg"}).type(L"a.dwg").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"a.dwg"}));
    EXPECT_EQ(prompts.seen()[1].text, messageText(IDS_KNAV_NO_DRIVE, L"R:"));
}

TEST_F(DialogMeanwhile, DriveThatIsPutIn_IsOfferedInTheLookInList) {
    const auto listed = [] {
        const HWND lookIn = DialogDriver::control(IDC_KNAV_LOOK_IN);
        SendMessageW(lookIn, CB_SHOWDROPDOWN, TRUE, 0);
        const auto rows = rowsOf(lookIn);
        SendMessageW(lookIn, CB_SHOWDROPDOWN, FALSE, 0);
        return std::ranges::any_of(rows, [](const auto& row) { return row.find(L"(R:)") != std::wstring::npos; });
    };
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilFolder(folder.path()).settle().check([&] {
        EXPECT_FALSE(listed());
        ASSERT_TRUE(DefineDosDeviceW(0, L"R:", folder.path()));
        SendMessageW(DialogDriver::dialog(), WM_DEVICECHANGE, 0, 0);
        EXPECT_TRUE(listed());
        EXPECT_EQ(dialog.shownFolder(), folder.path());
        DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"R:", nullptr);
        SendMessageW(DialogDriver::dialog(), WM_DEVICECHANGE, 0, 0);
        EXPECT_FALSE(listed());
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

}  // namespace
}  // namespace knav::test
