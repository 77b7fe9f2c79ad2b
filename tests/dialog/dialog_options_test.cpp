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

using Set = void (CNavDialog::*)(const wchar_t*);
using Get = void (CNavDialog::*)(CString&) const;

CString read(const CNavDialog& dialog, Get get) {
    CString text = L"untouched";
    (dialog.*get)(text);
    return text;
}

struct GivenRow {
    CString given;
    CString expected;
};

void expectTaken(CNavDialog& dialog, Set set, Get get, std::initializer_list<GivenRow> rows) {
    for (const GivenRow& row : rows) {
        (dialog.*set)(row.given);
        EXPECT_EQ(read(dialog, get), row.expected) << utf8(row.given.view());
    }
}

TEST_F(DialogOptionsTest, Texts_AreTakenAsFarAsTheyMakeSense) {
    const CString file = folder.addFile(L"sub\\plan.dwg");
    const CString sub = folder.path(L"sub");
    SetCurrentDirectoryW(folder.path());
    expectTaken(dialog, &CNavDialog::SetDialogCaption, &CNavDialog::GetDialogCaption,
                {{L" \t Open a plan  ", L"Open a plan"}, {L"", L""}});
    expectTaken(dialog, &CNavDialog::SetDefaultFileExtension, &CNavDialog::GetDefaultFileExtension,
                {{L"dwg", L"dwg"},
                 {L"dwg,dxf,dwt", L"dwt"},
                 {L"plan.dwg", L"dwg"},
                 {L"C:\\plans\\house.v2.dxf", L"dxf"},
                 {L"*.dwg", L"dwg"},
                 {L"http://host/dir/plan.dwg", L"dwg"},
                 {L"", L""}});
    expectTaken(dialog, &CNavDialog::SetForceInitialFolder, &CNavDialog::GetForceInitialFolder,
                {{L"desktop", L"desktop"},
                 {sub, sub},
                 {sub + L"\\", sub},
                 {folder.path(L"gone"), L""},
                 {L"C:\\", L"C:\\"},
                 {L"", L""}});
    expectTaken(dialog, &CNavDialog::SetDefaultInitialFolder, &CNavDialog::GetDefaultInitialFolder,
                {{L"DESKTOP", L"DESKTOP"},
                 {sub + L"\\", sub},
                 {file, sub},
                 {folder.path(L"sub\\new.dwg"), sub},
                 {folder.path(L"gone\\plan.dwg"), folder.path()},
                 {L"", folder.path()}});
}

TEST_F(DialogOptionsTest, InitialFileName_AlsoGivesExtensionAndFolder) {
    dialog.SetInitialFileName(folder.addFile(L"plan.dwg"));
    EXPECT_EQ(read(dialog, &CNavDialog::GetDefaultFileExtension), L"dwg");
    EXPECT_EQ(read(dialog, &CNavDialog::GetDefaultInitialFolder), folder.path());

    TestDialog preset(folder.path());
    preset.SetDefaultFileExtension(L"dxf");
    preset.SetInitialFileName(L"C:\\windows\\plan.dwg");
    EXPECT_EQ(read(preset, &CNavDialog::GetDefaultFileExtension), L"dxf");
    EXPECT_EQ(read(preset, &CNavDialog::GetDefaultInitialFolder), folder.path());

    preset.SetInitialFileName(L"http://host/dir/plan.dwg");
    EXPECT_EQ(read(preset, &CNavDialog::GetInitialFileName), L"http://host/dir/plan");
}

TEST_F(DialogOptionsTest, InitialFilterIndex_IsForcedElseRememberedElseDefault) {
    dialog.SetFilterIndex(2);  // there is no list yet
    EXPECT_EQ(dialog.GetFilterIndex(), 0);
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
    EXPECT_EQ(read(dialog, &CNavDialog::GetCurrentFolderForPersistence), L"");
    text = L"untouched";
    dialog.GetSingleDataFullPath(text);
    EXPECT_EQ(text, L"");
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
