// Commands and menus of the running dialog.
#include <knav/CNavExtension.h>
#include <knav/CNavListBox.h>
#include <knav/NavToolsMenuItem.h>

#include <algorithm>
#include <filesystem>

#include "dialog/DialogMenus.h"
#include "dialog/DialogUser.h"
#include "dialog/Messages.h"
#include "dialog/RecordingDialog.h"
#include "dialog/ResourceModule.h"
#include "shell/ComPtr.h"

namespace knav::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class DialogCommands : public DialogTest {
protected:
    void SetUp() override {
        folder.addFile(L"plan.dwg");
        folder.addFile(L"site.dwg");
        folder.addFolder(L"1\\2\\3\\4\\5");
    }
    /// The current directory cannot be taken away.
    void remove(const CString& path) {
        SetCurrentDirectoryW(L"C:\\");
        std::filesystem::remove_all(std::wstring(path));
    }
    CString deepest() const { return folder.path(L"1\\2\\3\\4\\5"); }
};

HWND comboList() {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(DialogDriver::control(IDC_KNAV_LOOK_IN), &info);
    return info.hwndList;
}

std::wstring lookInText() {
    wchar_t text[MAX_PATH] = L"";
    const HWND combo = DialogDriver::control(IDC_KNAV_LOOK_IN);
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(SendMessageW(combo, CB_GETCURSEL, 0, 0)),
                 reinterpret_cast<LPARAM>(text));
    return text;
}

bool isEnabled(UINT id) {
    return IsWindowEnabled(DialogDriver::control(id)) != FALSE;
}

// --- menus -----------------------------------------------------------------------------------------------------

/// A menu of the module, and what has become of it.
class PreparedMenu {
public:
    explicit PreparedMenu(UINT id) { m_menu.LoadMenu(id, resourceModule()); }
    CMenu* popup() { return m_menu.GetSubMenu(0); }
    UINT state(UINT command) { return GetMenuState(popup()->m_hMenu, command, MF_BYCOMMAND); }
    bool has(UINT command) { return state(command) != static_cast<UINT>(-1); }
    bool isGray(UINT command) { return has(command) && (state(command) & MF_GRAYED) != 0; }
    /// Position of the first popup in it, or -1.
    int submenu() {
        for (int i = 0; i < popup()->GetMenuItemCount(); ++i) {
            if (popup()->GetSubMenu(i)) {
                return i;
            }
        }
        return -1;
    }
    std::vector<UINT> favorites() {
        std::vector<UINT> ids;
        for (CMenu* menu = popup()->GetSubMenu(submenu()); static_cast<int>(ids.size()) < menu->GetMenuItemCount();) {
            ids.push_back(menu->GetMenuItemID(static_cast<int>(ids.size())));
        }
        return ids;
    }

private:
    CMenu m_menu;
};

TEST_F(DialogCommands, ToolsMenu_OffersWhatThereIsAndGraysWhatCannotBeDone) {
    RecordingDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    DialogUser user(dialog);
    const auto lookAt = [&](auto look) {
        user.check([&dialog, look] {
            PreparedMenu tools(IDR_KNAV_TOOLS_MENU);
            dialog.PrepareToolsMenu(tools.popup());
            look(tools);
        });
    };
    user.untilShown({L"1", L"plan.dwg", L"site.dwg"}).type(L"  ");
    lookAt([](PreparedMenu& tools) {
        EXPECT_TRUE(tools.isGray(IDM_KNAV_LOCATE)) << "blanks are no name";
        EXPECT_TRUE(tools.has(IDM_KNAV_ADD_TO_PLACES));
        EXPECT_FALSE(tools.isGray(IDM_KNAV_ADD_TO_PLACES));
        EXPECT_THAT(tools.favorites(), ElementsAre(IDM_KNAV_FAVORITE_FOLDER));
    });
    user.type(L"a");
    lookAt([](PreparedMenu& tools) { EXPECT_FALSE(tools.isGray(IDM_KNAV_LOCATE)); });
    user.pick({L"plan.dwg"});
    lookAt([](PreparedMenu& tools) {
        EXPECT_THAT(tools.favorites(), ElementsAre(IDM_KNAV_FAVORITE_FOLDER, IDM_KNAV_FAVORITE_ITEM));
    });
    user.pick({L"plan.dwg", L"site.dwg"});
    lookAt([](PreparedMenu& tools) {
        EXPECT_THAT(tools.favorites(), ElementsAre(IDM_KNAV_FAVORITE_FOLDER, IDM_KNAV_FAVORITE_ITEMS));
    });
    user.check([&dialog] {
        dialog.SetToolsMenuItemsPresent(NavToolsFind);
        PreparedMenu tools(IDR_KNAV_TOOLS_MENU);
        dialog.PrepareToolsMenu(tools.popup());
        EXPECT_FALSE(tools.has(IDM_KNAV_LOCATE));
        EXPECT_FALSE(tools.has(IDM_KNAV_ADD_TO_PLACES));
        EXPECT_EQ(tools.submenu(), -1);
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, ViewsMenu_GraysTheModeThatIsOn_AndChoosingOneChangesTheList) {
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    const auto expectOn = [&](UINT command, unsigned mode) {
        user.settle().check([&dialog, command, mode] {
            PreparedMenu views(IDR_KNAV_VIEWS_MENU);
            dialog.PrepareViewsMenu(views.popup());
            for (const UINT id : {IDM_KNAV_LIST, IDM_KNAV_DETAILS, IDM_KNAV_THUMBNAILS}) {
                EXPECT_EQ(views.isGray(id), id == command) << id;
            }
            EXPECT_EQ(dialog.GetViewMode(), mode);
        });
    };
    expectOn(IDM_KNAV_DETAILS, 4);
    user.command(IDM_KNAV_LIST);
    expectOn(IDM_KNAV_LIST, 3);
    user.check([] { EXPECT_EQ(ListView_GetView(viewList()), static_cast<DWORD>(LV_VIEW_LIST)); });
    user.command(IDM_KNAV_THUMBNAILS);
    expectOn(IDM_KNAV_THUMBNAILS, 5);
    user.command(IDM_KNAV_DETAILS);
    expectOn(IDM_KNAV_DETAILS, 4);
    user.check([] {
        EXPECT_EQ(ListView_GetView(viewList()), static_cast<DWORD>(LV_VIEW_DETAILS));
        EXPECT_TRUE(GetWindowLongW(viewList(), GWL_STYLE) & LVS_SHOWSELALWAYS);
        EXPECT_EQ(GetWindowLongPtrW(viewList(), GWLP_USERDATA), LV_VIEW_DETAILS);
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
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

TEST_F(DialogCommands, UpAndBack_GoThroughFiveFoldersAndDisableThemselvesAtTheEnd) {
    RecordingDialog dialog(deepest());
    DialogUser user(dialog);
    const CString folders[] = {folder.path(L"1\\2\\3\\4"), folder.path(L"1\\2\\3"), folder.path(L"1\\2"),
                               folder.path(L"1"), folder.path()};
    user.untilFolder(deepest()).check([] { EXPECT_FALSE(isEnabled(IDC_KNAV_BACK)); });
    for (const CString& above : folders) {
        user.click(IDC_KNAV_UP).untilFolder(above);
    }
    for (int i = 3; i >= 0; --i) {
        user.command(IDM_KNAV_BACK).untilFolder(folders[i]);
    }
    user.check([] { SetFocus(DialogDriver::control(IDC_KNAV_BACK)); });
    user.click(IDC_KNAV_BACK).untilFolder(deepest()).settle().check([] {
        EXPECT_FALSE(isEnabled(IDC_KNAV_BACK));
        EXPECT_EQ(lookInText(), L"5");
        EXPECT_NE(GetFocus(), DialogDriver::control(IDC_KNAV_BACK)) << "the focus went on";
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, BackToAFolderThatIsGone_DropsItAndStays) {
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilFolder(folder.path()).type(L"1").ok().untilFolder(folder.path(L"1"));
    user.type(L"2").ok().untilFolder(folder.path(L"1\\2"));
    user.command(IDM_KNAV_UP).untilFolder(folder.path(L"1"));
    user.check([this] { remove(folder.path(L"1\\2")); });
    user.command(IDM_KNAV_BACK).settle().check([&] {
        EXPECT_EQ(dialog.shownFolder(), folder.path(L"1")) << "the view stays where it is";
        EXPECT_TRUE(isEnabled(IDC_KNAV_BACK)) << "what was before that is still there";
        EXPECT_EQ(lookInText(), L"1");
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, LookIn_GivenUp_GoesBackToTheFolderThatIsShown) {
    RecordingDialog dialog(deepest());
    DialogUser user(dialog);
    user.untilFolder(deepest()).command(IDM_KNAV_OPEN_LOOK_IN).until("list", [] {
        return IsWindowVisible(comboList());
    });
    for (const WORD key : {VK_UP, VK_UP, VK_ESCAPE}) {
        user.check([key] { PostMessageW(DialogDriver::control(IDC_KNAV_LOOK_IN), WM_KEYDOWN, key, 0); });
    }
    user.until("closed", [] { return !IsWindowVisible(comboList()); }).settle().check([&] {
        EXPECT_EQ(lookInText(), L"5");
        EXPECT_EQ(dialog.shownFolder(), deepest());
    });
    user.click(IDC_KNAV_UP).untilFolder(folder.path(L"1\\2\\3\\4"));
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogCommands, FileTypeGivenUp_GoesBackToTheOneInForce) {
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    const auto typeList = [] { return DialogDriver::control(IDC_KNAV_FILE_TYPE); };
    user.settle().check([typeList] { SendMessageW(typeList(), CB_SHOWDROPDOWN, TRUE, 0); });
    for (const WORD key : {VK_DOWN, VK_ESCAPE}) {
        user.check([key, typeList] { PostMessageW(typeList(), WM_KEYDOWN, key, 0); }).settle();
    }
    user.check([&dialog] { EXPECT_EQ(dialog.GetFilterIndex(), kDrawings); });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
    EXPECT_EQ(dialog.count("OnFilterChange"), 0);
}

TEST_F(DialogCommands, LookIn_FolderThatIsGone_IsToldAndTheComboGoesBack) {
    prompts.answer(IDOK);
    RecordingDialog dialog(folder.path(L"1\\2"));
    DialogUser user(dialog);
    user.untilFolder(folder.path(L"1\\2")).check([&] {
        remove(folder.path(L"1"));
        const HWND combo = DialogDriver::control(IDC_KNAV_LOOK_IN);
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(SendMessageW(combo, CB_GETCURSEL, 0, 0)) - 1, 0);
        PostMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(IDC_KNAV_LOOK_IN, CBN_SELENDOK),
                     reinterpret_cast<LPARAM>(combo));
    });
    user.untilAsked(prompts).settle().check([] { EXPECT_EQ(lookInText(), L"2"); });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
    ASSERT_EQ(prompts.seen().size(), 1u);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_FOLDER_NOT_SHOWN, L"1"));
}

// --- new folders -----------------------------------------------------------------------------------------------

TEST_F(DialogCommands, NewFolder_IsMadeUnderAFreeName_SelectedAndRenamed) {
    folder.addFolder(L"new folder");  // other case: the names are told apart by it, the folders are not
    const CString hidden = folder.addFolder(L"sub\\New Folder");
    SetFileAttributesW(hidden, FILE_ATTRIBUTE_HIDDEN);
    RecordingDialog dialog(folder.path(L"sub"));
    DialogUser user(dialog);
    const auto editing = [] { return ListView_GetEditControl(viewList()) != nullptr; };
    user.untilFolder(folder.path(L"sub")).command(IDM_KNAV_NEW_FOLDER).until("renaming", editing).check([] {
        wchar_t name[MAX_PATH];
        const HWND edit = ListView_GetEditControl(viewList());
        GetWindowTextW(edit, name, MAX_PATH);
        EXPECT_STREQ(name, L"New Folder (2)");
        EXPECT_EQ(ListView_GetSelectedCount(viewList()), 1u);
        SetWindowTextW(edit, L"Elevations");
        PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
    });
    user.until("renamed", [this] { return PathIsDirectoryW(folder.path(L"sub\\Elevations")); });
    user.click(IDC_KNAV_NEW_FOLDER).until("renaming", editing).check([] {
        PostMessageW(ListView_GetEditControl(viewList()), WM_KEYDOWN, VK_ESCAPE, 0);
    });
    user.until("kept its name",
               [this, editing] { return !editing() && PathIsDirectoryW(folder.path(L"sub\\New Folder (2)")); });
    EXPECT_EQ(user.cancel().run(), IDCANCEL) << "Escape was for the name only";
}

TEST_F(DialogCommands, NewFolder_WhereNoneCanBeMade_IsTold) {
    prompts.answer(IDOK);
    RecordingDialog dialog(folder.path(L"1\\2"));
    DialogUser user(dialog);
    user.untilFolder(folder.path(L"1\\2")).check([this] { remove(folder.path(L"1")); });
    EXPECT_EQ(user.command(IDM_KNAV_NEW_FOLDER).settle().cancel().run(), IDCANCEL);
    ASSERT_EQ(prompts.seen().size(), 1u);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_NEW_FOLDER_FAILED, L"New Folder"));
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
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    const auto names = [&dialog] {
        std::vector<std::wstring> rows;
        for (int i = 0; i < knaviGetPlacesList(&dialog)->GetCount(); ++i) {
            rows.emplace_back(knaviGetPlacesList(&dialog)->GetItemName(i));
        }
        return rows;
    };
    user.untilFolder(folder.path()).check([&] { EXPECT_THAT(names(), Not(Contains(wide(folder.path())))); });
    user.command(IDM_KNAV_ADD_TO_PLACES).command(IDM_KNAV_ADD_TO_PLACES).settle().check([&] {
        EXPECT_EQ(std::ranges::count(names(), wide(folder.path())), 1);
        CNavListBox* places = knaviGetPlacesList(&dialog);
        EXPECT_EQ(places->GetItemName(places->GetCurSel()), folder.path()) << "it is the place that is shown";
        PreparedMenu tools(IDR_KNAV_TOOLS_MENU);
        dialog.PrepareToolsMenu(tools.popup());
        EXPECT_TRUE(tools.isGray(IDM_KNAV_ADD_TO_PLACES));
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

// --- the rest --------------------------------------------------------------------------------------------------

TEST_F(DialogCommands, FindReachesTheHostsHook_AndAltDTheNameField) {
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    user.pick({L"plan.dwg"}).check([] { SetFocus(viewList()); });
    user.command(IDM_KNAV_FIND).command(IDM_KNAV_FILE_NAME).settle().check([] {
        expectNameReadyToRetype(L"plan.dwg");
    });
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
    EXPECT_EQ(dialog.count("OnDoFind"), 1);
}

TEST_F(DialogCommands, NameTypedBeforeGoingToTheView_IsFoundThere) {
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilShown({L"1", L"plan.dwg", L"site.dwg"}).check([] {
        SetFocus(DialogDriver::control(IDC_KNAV_FILE_NAME));
    });
    user.type(L"*.dwg").settle().check([] { SetFocus(viewList()); }).settle().check([] {
        EXPECT_EQ(fileNameText(), L"*.dwg") << "a pattern is not the first item that it fits";
        SetFocus(DialogDriver::control(IDC_KNAV_FILE_NAME));
    });
    user.type(L"site.dwg").settle().check([] { SetFocus(viewList()); });
    user.until("selected", [] { return ListView_GetSelectedCount(viewList()) == 1; }).check([] {
        EXPECT_EQ(fileNameText(), L"site.dwg");
    });
    EXPECT_EQ(user.ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"site.dwg"))));
}

TEST_F(DialogCommands, Refresh_FolderGoneMeanwhile_GoesToTheNearestOneAbove) {
    RecordingDialog dialog(folder.path(L"1\\2"));
    DialogUser user(dialog);
    user.untilFolder(folder.path(L"1\\2")).check([this] { remove(folder.path(L"1\\2")); });
    user.command(IDM_KNAV_REFRESH).untilFolder(folder.path(L"1"));
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

}  // namespace
}  // namespace knav::test
