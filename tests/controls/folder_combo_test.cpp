#include "controls/Canvas.h"
#include "controls/ControlHost.h"
#include "controls/RowIcons.h"
#include "shell/ComPtr.h"
#include "shell/ExtensionItems.h"
#include "shell/RegisteredExtensions.h"
#include "support/ObjectCounts.h"
#include "support/Printers.h"
#include "support/RealNamespace.h"
#include "support/ScopedTempFolder.h"

#include <gmock/gmock.h>

#include <knav/CNavFolderComboBox.h>
#include <knav/CNavPathname.h>
#include <knav/NavFolders.h>

namespace {

using namespace knav;
using namespace knav::test;
using testing::ElementsAre;

constexpr int kWidth = 300;
constexpr int kHeight = 20;
constexpr DWORD kUntouched = 0x123456;

Canvas drawn(CNavFolderComboBox& combo, int index, UINT state = 0) {
    Canvas canvas(kWidth, kHeight, kUntouched);
    const RECT place{0, 0, kWidth, kHeight};
    const auto id = static_cast<UINT>(index);
    DRAWITEMSTRUCT item{ODT_COMBOBOX, 1, id, ODA_DRAWENTIRE, state, combo.m_hWnd, canvas.dc(), place, 0};
    combo.DrawItem(&item);
    return canvas;
}

/// Near the right edge, where nothing but the background is.
DWORD background(const Canvas& canvas) {
    return canvas.at(kWidth - 3, kHeight / 2);
}

/// The first column in which the picture shows.
int firstInk(const Canvas& canvas) {
    for (int x = 0; x < kWidth; ++x) {
        for (int y = 4; y < kHeight - 4; ++y) {
            if (canvas.at(x, y) != background(canvas)) {
                return x;
            }
        }
    }
    return -1;
}

DWORD systemColor(int index) {
    const COLORREF color = GetSysColor(index);
    return static_cast<DWORD>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}

class FolderCombo : public testing::Test {
protected:
    FolderCombo() {
        m_folder.addFolder(L"one\\two");
        m_combo.Create(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_CHILD | WS_VISIBLE | WS_VSCROLL,
                       kComboPlace, &m_host, kControlId);
        m_combo.OnAutoLoad();
    }

    std::vector<int> indents() const {
        std::vector<int> found;
        for (int index = 0; index < m_combo.GetCount(); ++index) {
            found.push_back(m_combo.GetItemIndent(index));
        }
        return found;
    }
    /// Shows the chain to a folder and selects it.
    int show(const wchar_t* path) {
        const int last = m_combo.FillToFolder(parsed(path).get());
        m_combo.SetCurSel(last);
        return last;
    }
    CString selectedPath() {
        CNavPathname pathname;
        CString path;
        EXPECT_TRUE(m_combo.GetPathname(pathname));
        pathname.GetFullPath(path);
        return path.MakeLower();
    }
    CString lower(const wchar_t* path) const { return CString(path).MakeLower(); }
    CNavNode* droppedRoot() {
        m_combo.ShowDropDown();
        return m_combo.GetNavTree().GetRootNode();
    }

    ScopedTempFolder m_folder;
    ControlHost m_host;
    CNavFolderComboBox m_combo;
};

TEST_F(FolderCombo, FillToFolder_ShowsTheChainEachOneDeeper) {
    const auto list = parsed(L"C:\\windows\\system32\\drivers");
    EXPECT_EQ(m_combo.FillToFolder(list.get()), 5);
    EXPECT_THAT(indents(), ElementsAre(0, 1, 2, 3, 4, 5));
    EXPECT_EQ(textsOf(m_combo).back(), L"drivers");
    EXPECT_TRUE(NavIsDesktop(m_combo.GetNode(0)->GetID()));
    EXPECT_TRUE(NavIsDrives(m_combo.GetNode(1)->GetID()));
    EXPECT_EQ(m_combo.FindItemByList(list.get()), 5);
    EXPECT_EQ(m_combo.FindItemByList(parsed(L"C:\\WINDOWS\\SYSTEM32").get()), 4) << "other bytes, same folder";
    EXPECT_EQ(m_combo.FindItemByNode(m_combo.GetNode(3)), 3);
    for (int index = 0; index < 6; ++index) {
        EXPECT_EQ(m_combo.FindParentItemIndex(index), index - 1);
    }
    CString text;
    EXPECT_TRUE(m_combo.GetItemText(5, text));
    EXPECT_EQ(text, L"drivers");
}

TEST_F(FolderCombo, WrongArguments_GiveNoneOrNothing) {
    EXPECT_FALSE(m_combo.RefreshFolderInfo(1)) << "nothing selected";
    m_combo.FillToNode(nullptr);
    EXPECT_EQ(m_combo.GetCount(), 1);
    EXPECT_EQ(m_combo.FindItemByNode(nullptr), -1);
    EXPECT_EQ(m_combo.FindItemByList(parsed(L"C:\\windows").get()), -1);
    EXPECT_EQ(m_combo.FindParentItemIndex(7), -1);
    EXPECT_EQ(m_combo.GetNode(-1), nullptr);
    EXPECT_EQ(m_combo.GetNode(1), nullptr);
    CNavPathname pathname;
    EXPECT_FALSE(m_combo.GetPathname(pathname));
    EXPECT_EQ(m_combo.FillToFolder(nullptr), -1);
    EXPECT_EQ(m_combo.GetCount(), 0);
}

// A tree that stands for an internet root shown in place of the network, made of nodes without a shell behind them.
TEST_F(FolderCombo, ChildrenOfANodeWithDisplayNode_AppearBelowThatNode) {
    CNavTree& tree = m_combo.GetNavTree();
    const auto id = [](CNavNode* node, int csidl) {
        node->SetID(NavGetSpecialFolderItem(nullptr, csidl));
        return node;
    };
    CNavNode* const root = id(tree.AddChild(nullptr), CSIDL_DESKTOP);
    root->SetFolder(NavGetDesktopFolder());
    CNavNode* const internet = id(tree.AddChild(nullptr), CSIDL_DRIVES);
    CNavNode* const site = id(internet->AddChild(nullptr), CSIDL_DRIVES);
    CNavNode* const network = id(internet->AddNode(nullptr), CSIDL_NETWORK);
    CNavNode* const nameless = internet->AddNode(nullptr);
    nameless->SetID(buildExtensionRootItem(CNavShell(), L"registered by nobody"));
    id(nameless->AddChild(nullptr), CSIDL_DRIVES);
    internet->SetDisplayNode(network);
    m_combo.FillFromTree(tree);
    ASSERT_EQ(m_combo.GetCount(), 3);
    EXPECT_EQ(m_combo.GetNode(0), root);
    EXPECT_EQ(m_combo.GetNode(1), network);
    EXPECT_EQ(m_combo.GetNode(2), site);
    EXPECT_THAT(indents(), ElementsAre(0, 1, 2));
    tree.DeleteAllNodes();
}

TEST_F(FolderCombo, ExtensionRoot_IsFoundByNameInAnyCase) {
    CNavExtension* const extension = registeredExtensions().AddData();
    extension->SetName(L"Store");
    extension->SetRootFolderDisplayName(L"The store");
    extension->CreateID();
    extension->SetRootFolder(ComPtr<IShellFolder>::adopt(NavGetDrivesFolder()).get());
    m_combo.FillWithTopLevelFolders(nullptr);
    const int index = m_combo.GetExtensionRootIndex(L"sTORE");
    ASSERT_GT(index, 0);
    EXPECT_EQ(m_combo.GetItemIndent(index), 1);
    EXPECT_EQ(m_combo.GetExtensionRootIndex(L"other"), -1);
    EXPECT_EQ(m_combo.GetExtensionRootIndex(nullptr), -1);
    m_combo.SetCurSel(index);
    CNavPathname pathname;
    EXPECT_TRUE(m_combo.GetPathname(pathname));
    EXPECT_TRUE(pathname.GetIsExtension());

    m_combo.SetNoExtraExtensions(1);
    m_combo.FillWithTopLevelFolders(nullptr);
    EXPECT_EQ(m_combo.GetExtensionRootIndex(L"Store"), -1) << "the option counts for a tree that stands already";
    m_combo.GetNavTree().DeleteAllNodes();
    registeredExtensions().RemoveAllData();
}

// --- while the list is dropped down, and drives that come and go -------------------------------------------------

TEST_F(FolderCombo, DroppingDown_ShowsEverythingAndKeepsTheFolder_ReadsAnewOnlyWhatChanged) {
    const int chain = show(m_folder.path()) + 1;
    const auto field = drawn(m_combo, chain - 1, ODS_COMBOBOXEDIT).pixels();
    CNavNode* const root = droppedRoot();
    EXPECT_GT(m_combo.GetCount(), chain);
    EXPECT_EQ(selectedPath(), lower(m_folder.path()));
    EXPECT_EQ(m_combo.GetItemIndent(m_combo.GetCurSel()), chain - 1);
    EXPECT_EQ(m_combo.FillToFolder(parsed(L"C:\\windows").get()), -1) << "not while everything is shown";
    EXPECT_EQ(drawn(m_combo, m_combo.GetCurSel(), ODS_COMBOBOXEDIT).pixels(), field) << "the icon was kept";
    m_combo.ShowDropDown(FALSE);
    EXPECT_EQ(droppedRoot(), root) << "nothing was read again";
    CNavNode mark(m_combo.GetNavTree());
    root->SetDisplayNode(&mark);
    EXPECT_TRUE(m_combo.RefreshFolderInfo(1)) << "a drive came";
    EXPECT_TRUE(m_combo.GetDroppedState());
    EXPECT_EQ(m_combo.GetNavTree().GetRootNode(), root) << "the list in use stays";
    m_combo.ShowDropDown(FALSE);
    EXPECT_EQ(droppedRoot()->GetDisplayNode(), nullptr) << "another tree";
    m_combo.ShowDropDown(FALSE);
    EXPECT_GT(show(L"C:\\windows"), 0) << "chains are allowed again";
}

TEST_F(FolderCombo, DroppingDownNearTheBottomOfTheScreen_EndsAtTheField) {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    SetWindowPos(m_host, nullptr, 0, work.bottom - 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    m_combo.ShowDropDown();
    COMBOBOXINFO info{};
    m_combo.GetComboBoxInfo(&info);
    RECT list{};
    RECT field{};
    GetWindowRect(info.hwndList, &list);
    GetWindowRect(m_combo, &field);
    EXPECT_LT(list.top, field.top);
    EXPECT_NEAR(list.bottom, field.top, 1);
}

TEST_F(FolderCombo, Refresh_KeepsTheFolderOrSelectsTheNearestOneAbove) {
    const int last = show(m_folder.path(L"one\\two"));
    for (const int rebuild : {1, 0}) {
        EXPECT_TRUE(m_combo.RefreshFolderInfo(rebuild));
        EXPECT_EQ(m_combo.GetCurSel(), last);
    }
    RemoveDirectoryW(m_folder.path(L"one\\two"));
    RemoveDirectoryW(m_folder.path(L"one"));
    EXPECT_FALSE(m_combo.RefreshFolderInfo(0)) << "the view must follow";
    EXPECT_EQ(m_combo.GetCurSel(), last - 2);
    EXPECT_EQ(selectedPath(), lower(m_folder.path()));
    m_combo.SetCurSel(0);
    wchar_t desktop[MAX_PATH];
    SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, 0, desktop);
    EXPECT_EQ(selectedPath(), lower(desktop));
}

TEST_F(FolderCombo, FillingAndDropping_LeaksNothing) {
    const ObjectCounts growth = growthOver(10, [&] {
        show(m_folder.path());
        m_combo.ShowDropDown();
        m_combo.ShowDropDown(FALSE);
    });
    EXPECT_EQ(growth, ObjectCounts());
}

// --- drawing ---------------------------------------------------------------------------------------------------

TEST_F(FolderCombo, Draw_ShowsColoursAndIndentation) {
    show(L"C:\\windows");
    EXPECT_THAT(drawn(m_combo, -1).pixels(), testing::Each(kUntouched));
    EXPECT_EQ(background(drawn(m_combo, 0)), systemColor(COLOR_WINDOW));
    EXPECT_EQ(background(drawn(m_combo, 0, ODS_SELECTED)), systemColor(COLOR_HIGHLIGHT));
    int indent = 0;
    ImageList_GetIconSize(NavGetSystemImageList(), &indent, &indent);
    EXPECT_EQ(m_combo.GetItemHeight(0), indent);
    const int atDesktop = firstInk(drawn(m_combo, 0));
    EXPECT_NEAR(atDesktop, 3, 1);
    EXPECT_NEAR(firstInk(drawn(m_combo, 1)), atDesktop + indent, 4);
    EXPECT_NEAR(firstInk(drawn(m_combo, 2)), atDesktop + 2 * indent, 4);
    EXPECT_NEAR(firstInk(drawn(m_combo, 2, ODS_COMBOBOXEDIT)), atDesktop + 3, 4);
}

// The path and the kind of drive alone decide, so that a volume that cannot be reached holds nothing up.
TEST(RowIcons, GeneralPictures_StandForNetworkAndRemovableVolumes) {
    constexpr int kItsOwn = -1;
    const struct {
        const wchar_t* path;
        UINT drive;
        int expected;
    } rows[] = {
        {L"", DRIVE_UNKNOWN, kItsOwn},
        {L"C:\\", DRIVE_FIXED, kItsOwn},
        {L"C:\\plans", DRIVE_FIXED, kItsOwn},
        {L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", DRIVE_NO_ROOT_DIR, kItsOwn},
        {L"N:\\", DRIVE_REMOTE, SIID_DRIVENET},
        {L"N:\\plans", DRIVE_REMOTE, SIID_FOLDER},
        {L"\\\\server\\share", DRIVE_NO_ROOT_DIR, SIID_FOLDER},
        {L"D:\\", DRIVE_CDROM, SIID_DRIVECD},
        {L"E:\\", DRIVE_REMOVABLE, SIID_DRIVEREMOVE},
        {L"E:\\plans", DRIVE_REMOVABLE, SIID_FOLDER},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(generalPicture(row.path, row.drive).value_or(static_cast<SHSTOCKICONID>(kItsOwn)), row.expected)
            << utf8(row.path);
    }
    const Canvas canvas(16, 16, kUntouched);
    RowIcons().draw(canvas.dc(), SIID_DRIVENET, {0, 0}, {16, 16});
    EXPECT_THAT(canvas.pixels(), testing::Contains(testing::Ne(kUntouched)));
}

}  // namespace
