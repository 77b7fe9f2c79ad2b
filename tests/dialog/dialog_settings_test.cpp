// What a dialog remembers from one run to the next, and what the user's policies switch off.
#include <knav/CNavListBox.h>
#include <platform/CMenu.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/DialogUser.h"
#include "dialog/Messages.h"
#include "support/Controls.h"
#include "support/TestExtension.h"

namespace knav::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::wstring> historyShown() {
    return rowsOf(DialogDriver::control(IDC_KNAV_FILE_NAME));
}

class DialogSettings : public DialogTest {
protected:
    void SetUp() override {
        folder.addFile(L"a.dwg");
        folder.addFile(L"sub\\b.txt");
        folder.addFile(L"sub\\c.txt");
    }

    static CString stored(const CZoUiDialog& dialog, const wchar_t* name) {
        CString value = L"(none)";
        dialog.GetDialogData(name, value);
        return value;
    }

    static void setPolicy(const wchar_t* key, const wchar_t* value, DWORD on = 1) {
        const CString path = CString(L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\") + key;
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, path, value, REG_DWORD, &on, sizeof on), ERROR_SUCCESS);
    }

    /// Looks at a dialog that is open, and cancels it.
    INT_PTR look(TestDialog& dialog, std::function<void()> at) {
        DialogUser user(dialog);
        user.until("a view", [] { return viewList() != nullptr; }).settle().check(std::move(at)).cancel();
        return user.run();
    }
};

TEST_F(DialogSettings, InitialFolderAndFileType_AreForcedElseRememberedElseDefault) {
    const CString forced = folder.addFolder(L"forced");
    TestDialog dialog(folder.path());
    const auto expectStart = [&](const CString& path, int type) {
        look(dialog, [&] {
            EXPECT_EQ(dialog.shownFolder(), path);
            EXPECT_EQ(dialog.GetFilterIndex(), type);
        });
    };
    dialog.SetDefaultFilterIndex(kAllFiles);
    expectStart(folder.path(), kAllFiles);
    dialog.SetDialogData(L"InitialDirectory", folder.path(L"sub"));
    dialog.SetDialogData(L"InitialFilterIndex", static_cast<unsigned long>(kTexts));
    expectStart(folder.path(L"sub"), kTexts);
    dialog.SetForceInitialFolder(forced);
    dialog.SetForceFilterIndex(kAllFiles);
    expectStart(forced, kAllFiles);
    dialog.SetForceInitialFolder(L"desktop");
    dialog.SetForceFilterIndex(99);  // there is no such type
    expectStart(L"Desktop", kDrawings);
    look(dialog, [] { EXPECT_FALSE(isEnabled(IDC_KNAV_UP)); });
}

TEST_F(DialogSettings, OperationsOnTheRunningDialog_TakeEffectAtOnce) {
    struct : CNavListCtrl {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            colorChanges += message == WM_SYSCOLORCHANGE;
            return CNavListCtrl::WindowProc(message, wParam, lParam);
        }
        int colorChanges = 0;
    } ownList;
    TestDialog dialog(folder.path());
    look(dialog, [&] {
        dialog.SetFilterIndex(kAllFiles);
        dialog.SetFilterIndex(7);
        EXPECT_EQ(dialog.GetFilterIndex(), kAllFiles);
        EXPECT_EQ(dialog.InsertUserItemInPlaces(0, L"Plans", folder.path()), 0);
        EXPECT_EQ(dialog.MovePlacesItem(0, 1), 1);
        EXPECT_EQ(knaviGetPlacesList(&dialog)->GetItemName(1), folder.path());
        CString personal;
        EXPECT_NE(dialog.GetPersonalFolderPath(personal), 0);
        EXPECT_TRUE(PathIsDirectoryW(personal)) << utf8(personal.view());
        EXPECT_TRUE(GetWindowLongW(viewList(), GWL_STYLE) & LVS_SINGLESEL);
        dialog.SetMultiSelectAllowed(1);
        EXPECT_FALSE(GetWindowLongW(viewList(), GWL_STYLE) & LVS_SINGLESEL);
        const CString later = folder.addFile(L"later.dwg");
        dialog.BrowseCurrentObject();
        EXPECT_THAT(shownNames(), testing::Contains(L"later.dwg"));
        dialog.SetFolderListCtrl(&ownList);
        dialog.SetFolderComboCurSel(0);
        EXPECT_EQ(dialog.shownFolder(), L"Desktop");
        EXPECT_EQ(ownList.m_hWnd, viewList()) << "it takes over the next view";
        dialog.SetFolderListCtrl(nullptr);
        EXPECT_EQ(dialog.GetFolderListCtrl(), &ownList);
        SendMessageW(DialogDriver::dialog(), WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_EQ(ownList.colorChanges, 1);
    });
}

TEST_F(DialogSettings, DialogWithoutAName_IsKnownByItsCaption) {
    TestDialog dialog(folder.path());
    dialog.SetDialogName(L"");
    dialog.SetDialogCaption(L"Insert Block");
    EXPECT_EQ(DialogUser(dialog).type(L"a.dwg").ok().run(), IDOK);
    EXPECT_EQ(dialog.GetDialogName(), L"Insert Block");
    TestDialog same;
    same.SetDialogName(L"Insert Block");
    EXPECT_EQ(stored(same, L"InitialDirectory"), folder.path());
    TestDialog other;
    EXPECT_EQ(stored(other, L"InitialDirectory"), L"(none)");
}

TEST_F(DialogSettings, History_TakesWhatIsThereOnceTheLatestFirst) {
    folder.addFile(L"sub\\plan");
    const CString dwg = folder.addFile(L"sub\\plan.dwg");
    const std::wstring b = wide(folder.path(L"sub\\b.txt"));
    const std::wstring c = wide(folder.path(L"sub\\c.txt"));
    const std::wstring plan = wide(folder.path(L"sub\\plan"));
    struct Row {
        const char* why;
        std::wstring name;
        std::vector<std::wstring> after;
    };
    const auto expectHistory = [&](int creating, const std::vector<Row>& rows) {
        TestDialog dialog(folder.path(L"sub"));
        dialog.SetCreatingFile(creating);
        look(dialog, [&] {
            auto& implementation = *static_cast<CNavDialogImp*>(dialog.GetImpObject());
            implementation.setFileNameText(L"typed");
            for (const Row& row : rows) {
                implementation.AddFileNameToMRU(row.name.c_str());
                EXPECT_EQ(historyShown(), row.after) << row.why;
                EXPECT_EQ(fileNameText(), L"typed") << row.why;
            }
        });
    };
    expectHistory(0, {{"a name in the folder shown is made full", L"b.txt", {b}},
                      {"the latest is the first", c, {c, b}},
                      {"an earlier one moves up", b, {b, c}},
                      {"and stays there, in whatever case", wide(CString(b.c_str()).MakeUpper()), {b, c}},
                      {"a file that is not there", L"missing.txt", {b, c}},
                      {"nothing", L"", {b, c}},
                      {"too long a name", std::wstring(255, L'x'), {b, c}},
                      {"a name without extension", L"plan", {plan, b, c}},
                      {"which stands for the one with it", wide(dwg), {plan, b, c}}});
    const std::wstring longName(255, L'x');
    expectHistory(1, {{"a file to be made need not be there", L"new.dwg", {L"new.dwg"}},
                      {"nor be short", longName, {longName, L"new.dwg"}}});
}

TEST_F(DialogSettings, History_IsReadUpToItsFirstGapAndTenEntries) {
    TestDialog dialog(folder.path());
    for (int i = 0; i < 12; ++i) {
        CString name;
        name.Format(L"FileNameMRU%d", i);
        dialog.SetDialogData(name, name);
    }
    look(dialog, [] { EXPECT_EQ(historyShown().size(), 10u); });
    dialog.DelDialogData(L"FileNameMRU2");
    look(dialog, [] { EXPECT_THAT(historyShown(), ElementsAre(L"FileNameMRU0", L"FileNameMRU1")); });
}

TEST_F(DialogSettings, HistoryPolicies_SwitchReadingAndWritingOff) {
    const std::pair<const wchar_t*, const wchar_t*> policies[] = {{L"Comdlg32", L"NoFileMru"},
                                                                  {L"Explorer", L"NoRecentDocsHistory"}};
    for (const auto& [key, value] : policies) {
        SCOPED_TRACE(utf8(value));
        TestDialog dialog(folder.path());
        dialog.SetDialogData(L"FileNameMRU0", CString(L"C:\\old.dwg"));
        setPolicy(key, value);
        DialogUser user(dialog);
        user.check([] { EXPECT_THAT(historyShown(), IsEmpty()); }).type(L"a.dwg").ok();
        EXPECT_EQ(user.run(), IDOK);
        EXPECT_EQ(stored(dialog, L"FileNameMRU0"), L"C:\\old.dwg");
        EXPECT_EQ(stored(dialog, L"InitialDirectory"), folder.path()) << "the rest is remembered";
        setPolicy(key, value, 0);
    }
}

TEST_F(DialogSettings, NoPlacesPolicy_HidesTheListAndGivesItsRoomAway_UntilItIsLifted) {
    TestDialog dialog(folder.path());
    const auto viewLeft = [&](bool places) {
        RECT view{};
        look(dialog, [&] {
            const HWND list = DialogDriver::control(IDC_KNAV_PLACES);
            EXPECT_EQ(IsWindowVisible(list) != FALSE, places);
            EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0) > 0, places);
            GetWindowRect(viewList(), &view);
            MapWindowPoints(nullptr, DialogDriver::dialog(), reinterpret_cast<POINT*>(&view), 2);
        });
        EXPECT_EQ(dialog.GetNoPlacesList(), places ? 0 : 1);
        return view.left;
    };
    setPolicy(L"Comdlg32", L"NoPlacesBar");
    const LONG without = viewLeft(false);
    setPolicy(L"Comdlg32", L"NoPlacesBar", 0);
    EXPECT_LT(without, viewLeft(true));
}

TEST_F(DialogSettings, SecondRun_KnowsNothingOfTheFileTypesOfTheFirst) {
    TestDialog dialog(folder.path());
    look(dialog, [] {});
    dialog.filters.SetFrom(L"Models\0*.obj\0", 1);
    dialog.SetFoldersOnly(1);
    look(dialog, [&] {
        CString pattern;
        dialog.GetCurrentFileExtension(pattern);
        EXPECT_EQ(pattern, L"") << "folders have no file type";
    });
}

TEST_F(DialogSettings, ExtensionThatIsSwitchedOff_IsLeftOutUnlessTheHostWantsIt) {
    constexpr wchar_t key[] = L"Software\\Kelvara\\Dialogs\\AllNavDialogs";
    constexpr wchar_t value[] = L"StoreExtensionOff";
    constexpr DWORD on = 1;
    RegisteredForTest extensions;
    const auto store = FakeFolder::make(L"Store");
    extensions.add(L"Store", store);
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, value, REG_DWORD, &on, sizeof on), ERROR_SUCCESS);
    LRESULT lookIn[2];
    LRESULT places[2];
    for (const int useFlags : {0, 1}) {
        TestDialog dialog(folder.path());
        dialog.SetUseRegExtensionFlags(useFlags);
        look(dialog, [&] {
            const HWND combo = DialogDriver::control(IDC_KNAV_LOOK_IN);
            SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);  // until then it holds the way to the folder only
            lookIn[useFlags] = SendMessageW(combo, CB_GETCOUNT, 0, 0);
            places[useFlags] = SendMessageW(DialogDriver::control(IDC_KNAV_PLACES), LB_GETCOUNT, 0, 0);
            SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
        });
    }
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key, value);
    EXPECT_EQ(lookIn[0], lookIn[1] + 1);
    EXPECT_EQ(places[0], places[1] + 1);
}

TEST_F(DialogSettings, Texts_AreTheLibrarysOwnAlthoughTheHostHasSomeOfTheSameNumbers) {
    wchar_t hosts[100] = L"";
    ASSERT_NE(LoadStringW(nullptr, IDS_KNAV_INVALID_NAME, hosts, 100), 0);
    EXPECT_NE(messageText(IDS_KNAV_INVALID_NAME), hosts);
    EXPECT_FALSE(messageText(IDS_KNAV_INVALID_NAME).IsEmpty());
}

POINT cornerOf(HWND window) {
    RECT at{};
    GetWindowRect(window, &at);
    return {at.right, at.bottom};
}

void expectHostsControlMovesWithTheBorder(HWND dialog) {
    const HWND hosts = GetDlgItem(dialog, 3001);
    const POINT border = cornerOf(dialog);
    const POINT before = cornerOf(hosts);
    RECT at{};
    GetWindowRect(dialog, &at);
    SetWindowPos(dialog, nullptr, 0, 0, at.right - at.left + 70, at.bottom - at.top + 50, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(cornerOf(hosts).x - before.x, cornerOf(dialog).x - border.x);
    EXPECT_EQ(cornerOf(hosts).y - before.y, cornerOf(dialog).y - border.y);
    EXPECT_EQ(cornerOf(dialog).x - border.x, 70);
}

TEST_F(DialogSettings, HostTemplateWithoutALookInList_ShowsTheInitialFolderAllTheSame) {
    ResultArrays arrays;
    CNavDialog dialog(arrays.data, arrays.filters, 2001, nullptr, GetModuleHandleW(nullptr));
    dialog.SetForceInitialFolder(folder.path(L"sub"));
    DialogDriver driver;
    driver.wait("the folder", [] { return viewList() && ListView_GetItemCount(viewList()) > 0; });
    driver.then("look", [&] {
        expectHostsControlMovesWithTheBorder(DialogDriver::dialog());
        CString shown;
        dialog.GetCurrentFolderForPersistence(shown);
        EXPECT_EQ(shown, folder.path(L"sub"));
        EXPECT_THAT(shownNames(), ElementsAre(L"b.txt", L"c.txt")) << "without a list of types all files are shown";
    });
    driver.click(IDCANCEL);
    EXPECT_EQ(driver.run([&] { return dialog.DoModal(); }), IDCANCEL);
}

TEST_F(DialogSettings, InitialFileName_IsShownWithTheRightExtension) {
    constexpr struct {
        const char* why;
        const wchar_t* given;
        const wchar_t* defaultExtension;
        int creating;
        const wchar_t* shown;
    } rows[] = {
        {"a foreign extension when saving", L"plan.old.bak", L"dwg", 1, L"plan.old.dwg"},
        {"a foreign extension when opening", L"plan.bak", L"dwg", 0, L"plan.bak"},
        {"its own extension", L"plan.DWG", L"dwg", 1, L"plan.DWG"},
        {"no extension", L"plan", L"dxf", 1, L"plan.dxf"},
        {"no extension and no default", L"plan", L"", 0, L"plan"},
        {"nothing", L"", L"dwg", 1, L""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        TestDialog dialog(folder.path());
        dialog.SetCreatingFile(row.creating);
        dialog.SetDefaultFileExtension(row.defaultExtension);
        dialog.SetInitialFileName(row.given);
        look(dialog, [&] { EXPECT_EQ(utf8(fileNameText()), utf8(row.shown)); });
    }
}

TEST_F(DialogSettings, InitialFileNameThatExists_IsSelectedInTheView) {
    TestDialog dialog;
    dialog.SetInitialFileName(folder.path(L"a.dwg"));
    look(dialog, [&] {
        EXPECT_EQ(dialog.shownFolder(), folder.path());
        EXPECT_EQ(ListView_GetSelectedCount(viewList()), 1u);
        expectNameReadyToRetype(L"a.dwg");
    });
}

TEST_F(DialogSettings, OkButtonTextAndCaption_AreShown) {
    TestDialog dialog(folder.path());
    dialog.SetDialogCaption(L"Attach");
    dialog.SetOkButtonText(L"&Attach");
    look(dialog, [&] {
        EXPECT_EQ(DialogDriver::text(IDOK), L"&Attach");
        auto& implementation = *static_cast<CNavDialogImp*>(dialog.GetImpObject());
        EXPECT_EQ(implementation.okButton().GetZoUiParent(), &dialog);
        constexpr UINT getShellBrowser = WM_USER + 7;  // what old views ask their parent
        EXPECT_EQ(reinterpret_cast<IShellBrowser*>(SendMessageW(DialogDriver::dialog(), getShellBrowser, 0, 0)),
                  implementation.browser().GetIShellBrowser());
        CMenu menu;
        wchar_t entry[20] = L"";
        EXPECT_EQ(implementation.PrepareButtonMenu(IDOK, menu), 1);
        GetMenuStringW(menu.m_hMenu, IDM_KNAV_OPEN, entry, 20, MF_BYCOMMAND);
        EXPECT_STREQ(entry, L"&Attach");
        dialog.SetOkButtonText(L"&Bind");
        EXPECT_EQ(DialogDriver::text(IDOK), L"&Bind");
        dialog.SetDialogCaption(L"  Bind ");
        wchar_t title[20];
        GetWindowTextW(DialogDriver::dialog(), title, 20);
        EXPECT_STREQ(title, L"Bind");
    });
}

}  // namespace
}  // namespace knav::test
