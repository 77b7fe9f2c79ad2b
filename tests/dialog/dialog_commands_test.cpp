// Commands and menus of the running dialog.
#include <knav/CNavBitmapButton.h>
#include <knav/CNavExtension.h>
#include <knav/CNavListBox.h>
#include <knav/NavToolsMenuItem.h>

#include <filesystem>

#include "dialog/DialogMenus.h"
#include "dialog/Messages.h"
#include "dialog/RecordingDialog.h"
#include "dialog/ResourceModule.h"
#include "shell/ComPtr.h"

namespace knav::test {
namespace {

using testing::ElementsAre;

class DialogCommands : public DialogTest {
protected:
    void SetUp() override {
        folder.addFile(L"plan.dwg");
        folder.addFile(L"site.dwg");
        folder.addFolder(L"1\\2");
    }
    /// The current directory cannot be taken away.
    void remove(const wchar_t* name) {
        SetCurrentDirectoryW(L"C:\\");
        std::filesystem::remove_all(std::wstring(folder.path(name)));
    }

    RecordingDialog m_dialog{folder.path()};
    DialogUser m_user{m_dialog};
};

// --- menus -----------------------------------------------------------------------------------------------------

/// A menu of the module, and what the dialog has made of it.
class PreparedMenu {
public:
    PreparedMenu(UINT id, RecordingDialog& dialog, void (RecordingDialog::*prepare)(CMenu*)) {
        m_menu.LoadMenu(id, resourceModule());
        (dialog.*prepare)(popup());
    }
    bool has(UINT command) { return state(command) != static_cast<UINT>(-1); }
    bool isGray(UINT command) { return has(command) && (state(command) & MF_GRAYED) != 0; }
    /// Ids of the entries of the first popup in it.
    std::vector<UINT> favorites() {
        std::vector<UINT> ids;
        for (int i = 0; i < popup()->GetMenuItemCount() && ids.empty(); ++i) {
            const HMENU inner = GetSubMenu(popup()->m_hMenu, i);
            for (int entry = 0; entry < GetMenuItemCount(inner); ++entry) {
                ids.push_back(GetMenuItemID(inner, entry));
            }
        }
        return ids;
    }

private:
    CMenu* popup() { return m_menu.GetSubMenu(0); }
    UINT state(UINT command) { return GetMenuState(popup()->m_hMenu, command, MF_BYCOMMAND); }
    CMenu m_menu;
};

TEST_F(DialogCommands, ToolsMenu_OffersWhatThereIsAndGraysWhatCannotBeDone) {
    m_dialog.SetMultiSelectAllowed(1);
    const auto tools = [this] {
        return PreparedMenu(IDR_KNAV_TOOLS_MENU, m_dialog, &RecordingDialog::PrepareToolsMenu);
    };
    m_user.untilShown({L"1", L"plan.dwg", L"site.dwg"}).type(L"  ").check([&] {
        EXPECT_TRUE(tools().isGray(IDM_KNAV_LOCATE)) << "blanks are no name";
        EXPECT_TRUE(tools().has(IDM_KNAV_ADD_TO_PLACES));
        EXPECT_FALSE(tools().isGray(IDM_KNAV_ADD_TO_PLACES));
        EXPECT_THAT(tools().favorites(), ElementsAre(IDM_KNAV_FAVORITE_FOLDER));
    });
    m_user.type(L"a").check([&] { EXPECT_FALSE(tools().isGray(IDM_KNAV_LOCATE)); });
    m_user.pick({L"plan.dwg"}).check([&] {
        EXPECT_THAT(tools().favorites(), ElementsAre(IDM_KNAV_FAVORITE_FOLDER, IDM_KNAV_FAVORITE_ITEM));
    });
    m_user.pick({L"plan.dwg", L"site.dwg"}).check([&] {
        EXPECT_THAT(tools().favorites(), ElementsAre(IDM_KNAV_FAVORITE_FOLDER, IDM_KNAV_FAVORITE_ITEMS));
        m_dialog.SetToolsMenuItemsPresent(NavToolsFind);
        EXPECT_FALSE(tools().has(IDM_KNAV_LOCATE));
        EXPECT_FALSE(tools().has(IDM_KNAV_ADD_TO_PLACES));
        EXPECT_THAT(tools().favorites(), ElementsAre());
    });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, ViewsMenu_GraysTheModeThatIsOn_AndChoosingOneChangesTheList) {
    const std::tuple<UINT, unsigned, int> rows[] = {
        {IDM_KNAV_LIST, 3, LV_VIEW_LIST}, {IDM_KNAV_THUMBNAILS, 5, -1}, {IDM_KNAV_DETAILS, 4, LV_VIEW_DETAILS}};
    for (const auto& [command, mode, view] : rows) {
        m_user.command(command).settle().check([this, command = command, mode = mode, view = view] {
            PreparedMenu views(IDR_KNAV_VIEWS_MENU, m_dialog, &RecordingDialog::PrepareViewsMenu);
            for (const UINT id : {IDM_KNAV_LIST, IDM_KNAV_DETAILS, IDM_KNAV_THUMBNAILS}) {
                EXPECT_EQ(views.isGray(id), id == command) << id;
            }
            EXPECT_EQ(m_dialog.GetViewMode(), mode);
            EXPECT_TRUE(view < 0 || ListView_GetView(viewList()) == static_cast<DWORD>(view));
            EXPECT_TRUE(GetWindowLongW(viewList(), GWL_STYLE) & LVS_SHOWSELALWAYS);
        });
    }
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
}

TEST(DialogMenuRules, ToolsMenuItems_HaveTheirPositions) {
    const int rows[][2] = {{1, 0}, {2, 1}, {4, 2}, {8, 3}, {16, 4}, {32, 5}, {0, -1}, {3, -1}, {64, -1}};
    for (const auto& [item, position] : rows) {
        EXPECT_EQ(toolsMenuItemPosition(static_cast<unsigned>(item)), position) << item;
    }
}

TEST(DialogMenuRules, IdleSeparators_AreDropped) {
    const std::pair<const char*, const char*> rows[] = {
        {"a-b", "a-b"}, {"-a", "a"}, {"a-", "a"}, {"--a--b-", "a-b"}, {"--", ""}, {"", ""},
    };
    for (const auto& [before, after] : rows) {
        CMenu menu;
        menu.CreatePopupMenu();
        for (const char* entry = before; *entry; ++entry) {
            menu.AppendMenu(*entry == '-' ? MF_SEPARATOR : MF_STRING, static_cast<UINT>(*entry), L"x");
        }
        dropIdleSeparators(menu);
        std::string left;
        for (int i = 0; i < menu.GetMenuItemCount(); ++i) {
            const bool isLine = GetMenuState(menu.m_hMenu, static_cast<UINT>(i), MF_BYPOSITION) & MF_SEPARATOR;
            left += isLine ? '-' : static_cast<char>(menu.GetMenuItemID(i));
        }
        EXPECT_EQ(left, after) << before;
    }
}

// --- moving ----------------------------------------------------------------------------------------------------

TEST_F(DialogCommands, BackThatIsUsedUp_IsDisabledAndTheFocusGoesOn) {
    m_user.untilFolder(folder.path()).check([] { EXPECT_FALSE(isEnabled(IDC_KNAV_BACK)); });
    m_user.type(L"1").ok().untilFolder(folder.path(L"1")).settle().check([this] {
        EXPECT_TRUE(isEnabled(IDC_KNAV_BACK));
        const auto* const back =
            static_cast<CNavBitmapButton*>(CWnd::FromHandlePermanent(DialogDriver::control(IDC_KNAV_BACK)));
        EXPECT_EQ(CString(back->GetTipText()), messageText(IDS_KNAV_TIP_BACK_TO, PathFindFileNameW(folder.path())));
        SetFocus(DialogDriver::control(IDC_KNAV_BACK));
    });
    m_user.click(IDC_KNAV_BACK).untilFolder(folder.path()).settle().check([] {
        EXPECT_FALSE(isEnabled(IDC_KNAV_BACK));
        EXPECT_NE(GetFocus(), DialogDriver::control(IDC_KNAV_BACK));
    });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, BackToAFolderThatIsGone_DropsItAndStays) {
    m_user.untilFolder(folder.path()).type(L"1").ok().untilFolder(folder.path(L"1"));
    m_user.type(L"2").ok().untilFolder(folder.path(L"1\\2"));
    m_user.command(IDM_KNAV_UP).untilFolder(folder.path(L"1")).check([this] { remove(L"1\\2"); });
    m_user.command(IDM_KNAV_BACK).settle().check([this] {
        EXPECT_EQ(m_dialog.shownFolder(), folder.path(L"1")) << "the view stays where it is";
        EXPECT_TRUE(isEnabled(IDC_KNAV_BACK)) << "what was before that is still there";
        EXPECT_EQ(lookInText(), L"1");
    });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, FolderThatIsGone_IsToldByLookInAndNewFolder_AndLeftByRefresh) {
    prompts.answer(IDOK).answer(IDOK);
    m_user.type(L"1\\2").ok().untilFolder(folder.path(L"1\\2")).check([this] {
        remove(L"1");
        const HWND combo = DialogDriver::control(IDC_KNAV_LOOK_IN);
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(SendMessageW(combo, CB_GETCURSEL, 0, 0)) - 1, 0);
        PostMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(IDC_KNAV_LOOK_IN, CBN_SELENDOK),
                     reinterpret_cast<LPARAM>(combo));
    });
    m_user.untilAsked(prompts).settle().check([] { EXPECT_EQ(lookInText(), L"2") << "it goes back"; });
    m_user.command(IDM_KNAV_NEW_FOLDER).untilAsked(prompts, 2).settle();
    m_user.command(IDM_KNAV_REFRESH).untilFolder(folder.path());
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
    ASSERT_EQ(prompts.seen().size(), 2u);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_FOLDER_NOT_SHOWN, L"1"));
    EXPECT_EQ(prompts.seen()[1].text, messageText(IDS_KNAV_NEW_FOLDER_FAILED, L"New Folder"));
}

TEST_F(DialogCommands, NewFolder_IsMadeUnderAFreeName_SelectedAndRenamed) {
    SetFileAttributesW(folder.addFolder(L"New Folder"), FILE_ATTRIBUTE_HIDDEN);
    const auto editing = [] { return ListView_GetEditControl(viewList()) != nullptr; };
    m_user.untilFolder(folder.path()).command(IDM_KNAV_NEW_FOLDER).until("renaming", editing).check([] {
        wchar_t name[MAX_PATH];
        GetWindowTextW(ListView_GetEditControl(viewList()), name, MAX_PATH);
        EXPECT_STREQ(name, L"New Folder (2)");
        EXPECT_EQ(ListView_GetSelectedCount(viewList()), 1u);
        PostMessageW(ListView_GetEditControl(viewList()), WM_KEYDOWN, VK_ESCAPE, 0);
    });
    m_user.until("kept its name",
                 [this, editing] { return !editing() && PathIsDirectoryW(folder.path(L"New Folder (2)")); });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL) << "Escape was for the name only";
}

TEST_F(DialogCommands, FileTypeGivenUp_GoesBackToTheOneInForce) {
    const auto typeList = [] { return DialogDriver::control(IDC_KNAV_FILE_TYPE); };
    m_user.settle().check([typeList] { SendMessageW(typeList(), CB_SHOWDROPDOWN, TRUE, 0); });
    for (const WORD key : {VK_DOWN, VK_ESCAPE}) {
        m_user.check([key, typeList] { PostMessageW(typeList(), WM_KEYDOWN, key, 0); }).settle();
    }
    m_user.check([this] { EXPECT_EQ(m_dialog.GetFilterIndex(), kDrawings); });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
    EXPECT_EQ(m_dialog.count("OnFilterChange"), 0);
}

// --- favourites and places ---------------------------------------------------------------------------------------

std::wstring favoritesFolder() {
    wchar_t path[MAX_PATH];
    SHGetFolderPathW(nullptr, CSIDL_FAVORITES, nullptr, 0, path);
    return path;
}

std::wstring targetOf(const std::wstring& shortcut) {
    const auto link = createInProcess<IShellLinkW>(CLSID_ShellLink);
    wchar_t path[MAX_PATH] = L"";
    if (SUCCEEDED(link.as<IPersistFile>()->Load(shortcut.c_str(), STGM_READ))) {
        link->GetPath(path, MAX_PATH, nullptr, 0);
    }
    return path;
}

TEST_F(DialogCommands, Favorites_AreShortcutsToTheFolderAndToEachSelectedItem) {
    const std::wstring leaf = std::filesystem::path(std::wstring(folder.path())).filename();
    TestDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    DialogUser user(dialog);
    user.pick({L"plan.dwg", L"site.dwg"}).command(IDM_KNAV_FAVORITE_ITEMS).command(IDM_KNAV_FAVORITE_FOLDER).settle();
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
    const std::pair<std::wstring, CString> expected[] = {
        {L"plan.dwg", folder.path(L"plan.dwg")}, {L"site.dwg", folder.path(L"site.dwg")}, {leaf, folder.path()}};
    for (const auto& [name, target] : expected) {
        const std::wstring shortcut = favoritesFolder() + L"\\" + name + L".lnk";
        EXPECT_EQ(utf8(targetOf(shortcut)), utf8(target.view())) << utf8(shortcut);
        DeleteFileW(shortcut.c_str());
    }
}

TEST_F(DialogCommands, AddToPlaces_AddsTheFolderOnceAndIsGrayAfterwards) {
    prompts.answer(IDYES);  // to keep the changed list
    const auto rowsOfFolder = [this] {
        const CNavListBox& places = *knaviGetPlacesList(&m_dialog);
        int rows = 0;
        for (int i = 0; i < places.GetCount(); ++i) {
            rows += places.GetItemName(i) == folder.path();
        }
        return rows;
    };
    m_user.untilFolder(folder.path()).check([&] { EXPECT_EQ(rowsOfFolder(), 0); });
    m_user.command(IDM_KNAV_ADD_TO_PLACES).command(IDM_KNAV_ADD_TO_PLACES).settle().check([&] {
        EXPECT_EQ(rowsOfFolder(), 1);
        CNavListBox* places = knaviGetPlacesList(&m_dialog);
        EXPECT_EQ(places->GetItemName(places->GetCurSel()), folder.path()) << "it is the place that is shown";
        PreparedMenu tools(IDR_KNAV_TOOLS_MENU, m_dialog, &RecordingDialog::PrepareToolsMenu);
        EXPECT_TRUE(tools.isGray(IDM_KNAV_ADD_TO_PLACES));
    });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, InHistory_NoFolderCanBeMade) {
    m_user.untilFolder(folder.path()).check([] {
        EXPECT_TRUE(isEnabled(IDC_KNAV_NEW_FOLDER));
        const HWND places = DialogDriver::control(IDC_KNAV_PLACES);
        SendMessageW(places, LB_SETCURSEL, 0, 0);
        SendMessageW(GetParent(places), WM_COMMAND, MAKEWPARAM(IDC_KNAV_PLACES, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(places));
        EXPECT_FALSE(isEnabled(IDC_KNAV_NEW_FOLDER));
    });
    m_user.until("another folder", [this] { return m_dialog.shownFolder() != folder.path(); });
    m_user.command(IDM_KNAV_UP);
    m_user.until("a folder elsewhere", [] { return isEnabled(IDC_KNAV_NEW_FOLDER); });
    EXPECT_EQ(m_user.cancel().run(), IDCANCEL);
}

// --- the name field ----------------------------------------------------------------------------------------------

TEST_F(DialogCommands, NameTypedBeforeGoingToTheView_IsFoundThere) {
    m_user.untilShown({L"1", L"plan.dwg", L"site.dwg"}).check([] {
        SetFocus(DialogDriver::control(IDC_KNAV_FILE_NAME));
    });
    m_user.type(L"*.dwg").settle().check([] { SetFocus(viewList()); }).settle().check([] {
        EXPECT_EQ(fileNameText(), L"*.dwg") << "a pattern is not the first item that it fits";
        SetFocus(DialogDriver::control(IDC_KNAV_FILE_NAME));
    });
    m_user.type(L"site.dwg").settle().check([] { SetFocus(viewList()); });
    m_user.until("selected", [] { return ListView_GetSelectedCount(viewList()) == 1; }).check([] {
        EXPECT_EQ(fileNameText(), L"site.dwg");
    });
    EXPECT_EQ(m_user.ok().run(), IDOK);
    EXPECT_EQ(m_dialog.chosen(), paths({L"site.dwg"}));
}

class ListeningDialog : public TestDialog {
public:
    using TestDialog::TestDialog;
    void onUp() { ++ups; }
    int ups = 0;

private:
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ListeningDialog, TestDialog)
ON_COMMAND(IDM_KNAV_UP, &ListeningDialog::onUp)
END_MESSAGE_MAP()

TEST_F(DialogCommands, CommandThatTheHostHandlesToo_IsDoneAllTheSame) {
    ListeningDialog dialog(folder.addFolder(L"inner"));
    DialogUser user(dialog);
    EXPECT_EQ(user.command(IDM_KNAV_UP).untilFolder(folder.path()).cancel().run(), IDCANCEL);
    EXPECT_EQ(dialog.ups, 1);
}

}  // namespace
}  // namespace knav::test
