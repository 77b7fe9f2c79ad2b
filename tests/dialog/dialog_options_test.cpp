// Options before any window exists, and the free functions around the dialog.
#include <knav/CNavHostApplication.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>

#include "dialog/DialogUser.h"

namespace knav::test {
namespace {

class DialogOptionsTest : public DialogTest {
protected:
    TestDialog dialog;
};

template <class Get>
CString read(Get&& get) {
    CString text = L"untouched";
    get(text);
    return text;
}

TEST_F(DialogOptionsTest, Caption_IsTrimmed) {
    dialog.SetDialogCaption(L" \t Open a plan  ");
    EXPECT_EQ(read([&](CString& text) { dialog.GetDialogCaption(text); }), L"Open a plan");
    dialog.SetDialogCaption(nullptr);
    EXPECT_EQ(read([&](CString& text) { dialog.GetDialogCaption(text); }), L"");
}

TEST_F(DialogOptionsTest, DefaultFileExtension_IsTakenOutOfWhatIsGiven) {
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"dwg", L"dwg"},
        {L"dwg,dxf,dwt", L"dwt"},
        {L"plan.dwg", L"dwg"},
        {L"C:\\plans\\house.v2.dxf", L"dxf"},
        {L"*.dwg", L"dwg"},
        {L"http://host/dir/plan.dwg", L"dwg"},
        {L"", L""},
    };
    for (const auto& [given, expected] : rows) {
        dialog.SetDefaultFileExtension(given);
        EXPECT_EQ(read([&](CString& text) { dialog.GetDefaultFileExtension(text); }), expected) << utf8(given);
    }
}

TEST_F(DialogOptionsTest, ForceInitialFolder_TakesOnlyWhatExists) {
    folder.addFolder(L"sub");
    const std::pair<CString, CString> rows[] = {
        {L"desktop", L"desktop"},
        {folder.path(L"sub"), folder.path(L"sub")},
        {folder.path(L"sub\\"), folder.path(L"sub")},
        {folder.path(L"gone"), L""},
        {L"C:\\", L"C:\\"},
        {L"", L""},
    };
    for (const auto& [given, expected] : rows) {
        dialog.SetForceInitialFolder(given);
        EXPECT_EQ(read([&](CString& text) { dialog.GetForceInitialFolder(text); }), expected) << utf8(given.view());
    }
}

TEST_F(DialogOptionsTest, DefaultInitialFolder_FallsBackToTheCurrentOne) {
    const CString file = folder.addFile(L"sub\\plan.dwg");
    SetCurrentDirectoryW(folder.path());
    const std::pair<CString, CString> rows[] = {
        {L"DESKTOP", L"DESKTOP"},
        {folder.path(L"sub\\"), folder.path(L"sub")},
        {file, folder.path(L"sub")},
        {folder.path(L"sub\\new.dwg"), folder.path(L"sub")},
        {folder.path(L"gone\\plan.dwg"), folder.path()},
        {L"", folder.path()},
    };
    for (const auto& [given, expected] : rows) {
        dialog.SetDefaultInitialFolder(given);
        EXPECT_EQ(read([&](CString& text) { dialog.GetDefaultInitialFolder(text); }), expected) << utf8(given.view());
    }
}

TEST_F(DialogOptionsTest, InitialFileName_AlsoGivesExtensionAndFolder) {
    const CString file = folder.addFile(L"plan.dwg");
    dialog.SetInitialFileName(file);
    EXPECT_EQ(read([&](CString& text) { dialog.GetDefaultFileExtension(text); }), L"dwg");
    EXPECT_EQ(read([&](CString& text) { dialog.GetDefaultInitialFolder(text); }), folder.path());

    TestDialog preset(folder.path());
    preset.SetDefaultFileExtension(L"dxf");
    preset.SetInitialFileName(L"C:\\windows\\plan.dwg");
    EXPECT_EQ(read([&](CString& text) { preset.GetDefaultFileExtension(text); }), L"dxf");
    EXPECT_EQ(read([&](CString& text) { preset.GetDefaultInitialFolder(text); }), folder.path());

    preset.SetInitialFileName(L"http://host/dir/plan.dwg");
    EXPECT_EQ(read([&](CString& text) { preset.GetInitialFileName(text); }), L"http://host/dir/plan");
}

TEST_F(DialogOptionsTest, FilterIndex_CannotBeChosenBeforeThereIsAList) {
    dialog.SetFilterIndex(2);
    EXPECT_EQ(dialog.GetFilterIndex(), 0);
}

TEST_F(DialogOptionsTest, InitialFilterIndex_IsForcedElseRememberedElseDefault) {
    dialog.SetDefaultFilterIndex(-5);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 0u);
    dialog.SetDefaultFilterIndex(2);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 2u);
    dialog.SetDialogData(L"InitialFilterIndex", 1ul);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 1u);
    dialog.SetForceFilterIndex(0);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 0u);
    dialog.SetForceFilterIndex(-1);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 1u);
}

TEST_F(DialogOptionsTest, OkButtonText_LosesItsAcceleratorOnRequest) {
    dialog.SetOkButtonText(L"Save && &Close");
    EXPECT_EQ(read([&](CString& text) { dialog.GetOkButtonText(text, 0); }), L"Save && Close");
    EXPECT_EQ(read([&](CString& text) { dialog.GetOkButtonText(text, 1); }), L"Save && &Close");
}

TEST_F(DialogOptionsTest, Defaults_AreThoseOfAnOpenDialog) {
    EXPECT_EQ(dialog.GetViewMode(), 3u);
    EXPECT_EQ(dialog.GetForceFilterIndex(), -1);
    EXPECT_EQ(dialog.GetToolsMenuItemsPresent(), 0xFFFFFFFFu);
    EXPECT_EQ(dialog.GetReadOnlyAllowed(), 1);
    EXPECT_EQ(dialog.GetUseRegExtensionFlags(), 1);
    EXPECT_EQ(dialog.GetCreatingFile(), 0);
    EXPECT_EQ(dialog.GetMultiSelectAllowed(), 0);
    EXPECT_EQ(dialog.GetNoPlacesList(), 0);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 0);
}

TEST_F(DialogOptionsTest, WithoutWindow_OperationsAnswerNeutrally) {
    EXPECT_EQ(dialog.InsertUserItemInPlaces(0, L"Plans", folder.path()), -1);
    EXPECT_EQ(dialog.MovePlacesItem(0, 1), -1);
    EXPECT_EQ(dialog.NavigateToFolder(folder.path()), 0);
    EXPECT_EQ(dialog.GetIsPlacesListCustomized(), 0);
    dialog.BrowseCurrentObject();
    dialog.SetFolderComboCurSel(0);
    dialog.SetMultiSelectAllowed(1);
    EXPECT_EQ(dialog.GetMultiSelectAllowed(), 1);
    CString text;
    EXPECT_NE(dialog.GetCurrentFileExtension(text), nullptr);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(read([&](CString& path) { dialog.GetCurrentFolderForPersistence(path); }), L"");
    EXPECT_EQ(read([&](CString& path) { dialog.GetSingleDataFullPath(path); }), L"");
}

TEST_F(DialogOptionsTest, TheArraysAreTheHosts) {
    EXPECT_EQ(&dialog.GetDataArray(), &dialog.data);
    EXPECT_EQ(&dialog.GetFilterArray(), &dialog.filters);
    EXPECT_NE(knaviGetPlacesList(&dialog), nullptr);
    EXPECT_EQ(knaviGetPlacesList(nullptr), nullptr);
}

TEST_F(DialogOptionsTest, TemplateId_ZeroIsTheLibrarysOwn) {
    EXPECT_EQ(dialog.GetIDD(), 131u);
    EXPECT_NE(dialog.GetTemplateModule(), GetModuleHandleW(nullptr));
    CNavDialog own(dialog.data, dialog.filters, 0, nullptr, GetModuleHandleW(nullptr));
    EXPECT_EQ(own.GetIDD(), 131u);
    EXPECT_EQ(own.GetTemplateModule(), dialog.GetTemplateModule());
    CNavDialog hosts(dialog.data, dialog.filters, 2000, nullptr, GetModuleHandleW(nullptr));
    EXPECT_EQ(hosts.GetIDD(), 2000u);
    EXPECT_EQ(hosts.GetTemplateModule(), GetModuleHandleW(nullptr));
    EXPECT_EQ(hosts.DoModal(), -1) << "there is no such template";
}

TEST_F(DialogOptionsTest, ToolsMenuItemPosition_IsThatOfASingleItem) {
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(NavToolsFind), 0);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(NavToolsAddToFavorites), 5);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(static_cast<NavToolsMenuItem>(NavToolsFind | NavToolsLocate)), -1);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(static_cast<NavToolsMenuItem>(64)), -1);
}

TEST(HostApplication, OnlyTheFirstOneIsTaken) {
    struct Host : CNavHostApplication {};
    static Host first;  // the library keeps it
    static Host second;
    EXPECT_EQ(NavSetHostApplication(&first), 1);
    EXPECT_EQ(NavSetHostApplication(&second), 0);
}

TEST(ReturnFolderMode, LastsUntilTheOutermostEnds) {
    EXPECT_FALSE(FileDialogAllowReturnFolderEnabler::status());
    {
        const FileDialogAllowReturnFolderEnabler outer;
        {
            const FileDialogAllowReturnFolderEnabler inner;
            EXPECT_TRUE(FileDialogAllowReturnFolderEnabler::status());
        }
        EXPECT_TRUE(FileDialogAllowReturnFolderEnabler::status());
    }
    EXPECT_FALSE(FileDialogAllowReturnFolderEnabler::status());
}

}  // namespace
}  // namespace knav::test
