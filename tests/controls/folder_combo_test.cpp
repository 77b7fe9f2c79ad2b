#include "controls/ComboHost.h"
#include "controls/RowIcons.h"
#include "shell/ComPtr.h"
#include "shell/ExtensionItems.h"
#include "shell/ItemList.h"
#include "shell/RegisteredExtensions.h"
#include "support/ObjectCounts.h"
#include "support/Printers.h"
#include "support/RealNamespace.h"
#include "support/ScopedTempFolder.h"

#include <gmock/gmock.h>

#include <knav/CNavFolderComboBox.h>
#include <knav/CNavPathname.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include <platform/GdiOwners.h>

namespace {

using namespace knav;
using namespace knav::test;
using testing::ElementsAre;

class FolderCombo : public testing::Test {
protected:
    FolderCombo() {
        m_folder.addFolder(L"one\\two");
        m_combo.Create(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_CHILD | WS_VISIBLE,
                       ComboHost::kPlace, &m_host.window, 1);
        m_combo.OnAutoLoad();
    }

    std::vector<int> indents() const {
        std::vector<int> found;
        for (int index = 0; index < m_combo.GetCount(); ++index) {
            found.push_back(m_combo.GetItemIndent(index));
        }
        return found;
    }

    ScopedTempFolder m_folder;
    ComboHost m_host;
    CNavFolderComboBox m_combo;
};

TEST_F(FolderCombo, AutoLoad_TakesTheSizeOfSmallIcons) {
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(NavGetSystemImageList(), &width, &height);
    EXPECT_NEAR(m_combo.GetItemHeight(-1), height, 2) << "some systems add the field's margin";
    EXPECT_EQ(m_combo.GetItemHeight(0), height);
    MEASUREITEMSTRUCT measure{};
    m_combo.MeasureItem(&measure);
    EXPECT_EQ(measure.itemHeight, static_cast<UINT>(height));
}

TEST_F(FolderCombo, FillToFolder_ShowsTheChainEachOneDeeper) {
    const auto list = parsed(L"C:\\windows\\system32\\drivers");
    EXPECT_EQ(m_combo.FillToFolder(list.get()), 5);
    EXPECT_THAT(indents(), ElementsAre(0, 1, 2, 3, 4, 5));
    EXPECT_EQ(textsOf(m_combo).back(), L"drivers");
    EXPECT_TRUE(NavIsDesktop(m_combo.GetNode(0)->GetID()));
    EXPECT_TRUE(NavIsDrives(m_combo.GetNode(1)->GetID()));
    EXPECT_EQ(m_combo.FindItemByList(list.get()), 5);
    EXPECT_EQ(m_combo.FindItemByNode(m_combo.GetNode(3)), 3);
    for (int index = 0; index < 6; ++index) {
        EXPECT_EQ(m_combo.FindParentItemIndex(index), index - 1);
    }
    CString text;
    EXPECT_TRUE(m_combo.GetItemText(5, text));
    EXPECT_EQ(text, L"drivers");
}

TEST_F(FolderCombo, WrongArguments_GiveNoneOrNothing) {
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

TEST_F(FolderCombo, StandardHierarchy_RefusesTheChainAndHoldsDrivesAndChain) {
    const auto list = parsed(m_folder.path(L"one\\two"));
    const int last = m_combo.FillToFolder(list.get());
    m_combo.SetStandardHierarchy(1);
    EXPECT_EQ(m_combo.FillToFolder(list.get()), -1);
    EXPECT_EQ(m_combo.GetCount(), last + 1);
    m_combo.FillToNode(m_combo.GetNode(last));
    EXPECT_GT(m_combo.GetCount(), last + 1);
    const int found = m_combo.FindItemByList(list.get());
    ASSERT_GT(found, 0);
    EXPECT_EQ(m_combo.GetItemIndent(found), last);
    const int drive = m_combo.FindItemByList(parsed(L"C:\\").get());
    EXPECT_EQ(m_combo.GetItemIndent(drive), 2);
    EXPECT_EQ(textsOf(m_combo)[static_cast<std::size_t>(m_combo.FindParentItemIndex(found))], L"one");
}

TEST_F(FolderCombo, DroppingDown_ShowsEverythingAndKeepsTheFolder_ClosingAllowsChainsAgain) {
    const auto list = parsed(m_folder.path());
    m_combo.SetCurSel(m_combo.FillToFolder(list.get()));
    const int chain = m_combo.GetCount();
    m_host.window.ShowWindow(SW_SHOW);
    m_combo.ShowDropDown();
    EXPECT_GT(m_combo.GetCount(), chain);
    EXPECT_EQ(m_combo.GetCurSel(), m_combo.FindItemByList(list.get()));
    EXPECT_GE(m_combo.GetCurSel(), 0);
    EXPECT_TRUE(m_combo.GetStandardHierarchy());
    CNavNode* const root = m_combo.GetNavTree().GetRootNode();
    m_combo.ShowDropDown(FALSE);
    EXPECT_FALSE(m_combo.GetStandardHierarchy());
    m_combo.ShowDropDown();
    EXPECT_EQ(m_combo.GetNavTree().GetRootNode(), root) << "nothing was read again";
    m_combo.ShowDropDown(FALSE);
    EXPECT_GT(m_combo.FillToFolder(parsed(L"C:\\windows").get()), 0);
}

TEST_F(FolderCombo, GetPathname_GivesThePlaceOfTheSelectedFolder) {
    m_combo.SetCurSel(m_combo.FillToFolder(parsed(m_folder.path()).get()));
    CNavPathname pathname;
    ASSERT_TRUE(m_combo.GetPathname(pathname));
    CString path;
    pathname.GetFullPath(path);
    EXPECT_EQ(path.CompareNoCase(m_folder.path()), 0);
    EXPECT_EQ(pathname.GetType(), CZoUiPathname::Directory);

    m_combo.SetCurSel(0);
    CNavPathname desktop;
    ASSERT_TRUE(m_combo.GetPathname(desktop));
    desktop.GetFullPath(path);
    wchar_t expected[MAX_PATH];
    SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, 0, expected);
    EXPECT_EQ(path.CompareNoCase(expected), 0);
}

// A tree that stands for an internet root shown in place of the network, made of nodes without a shell behind them.
TEST_F(FolderCombo, ChildrenOfANodeWithDisplayNode_AppearBelowThatNode) {
    CNavTree& tree = m_combo.GetNavTree();
    const auto special = [](int csidl) { return NavGetSpecialFolderItem(nullptr, csidl); };
    CNavNode* const root = tree.AddChild(nullptr);
    root->SetID(special(CSIDL_DESKTOP));
    root->SetFolder(NavGetDesktopFolder());
    CNavNode* const internet = tree.AddChild(nullptr);
    internet->SetID(special(CSIDL_DRIVES));
    CNavNode* const site = internet->AddChild(nullptr);
    site->SetID(special(CSIDL_DRIVES));
    CNavNode* const network = internet->AddNode(nullptr);
    network->SetID(special(CSIDL_NETWORK));
    CNavNode* const nameless = internet->AddNode(nullptr);
    nameless->SetID(buildExtensionRootItem(CNavShell(), L"registered by nobody"));
    CNavNode* const below = nameless->AddChild(nullptr);
    below->SetID(special(CSIDL_DRIVES));
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

TEST_F(FolderCombo, Refresh_FolderStillThere_ReadsItAnewAndKeepsIt) {
    EXPECT_FALSE(m_combo.RefreshFolderInfo(1)) << "nothing selected";
    m_combo.SetCurSel(m_combo.FillToFolder(parsed(m_folder.path(L"one\\two")).get()));
    const int selected = m_combo.GetCurSel();
    EXPECT_TRUE(m_combo.RefreshFolderInfo(1));
    EXPECT_EQ(m_combo.GetCurSel(), selected);
    EXPECT_TRUE(m_combo.RefreshFolderInfo(0));
    EXPECT_EQ(m_combo.GetCurSel(), selected);
}

TEST_F(FolderCombo, Refresh_FolderGone_SelectsTheNearestOneAboveAndSaysSo) {
    const int last = m_combo.FillToFolder(parsed(m_folder.path(L"one\\two")).get());
    m_combo.SetCurSel(last);
    RemoveDirectoryW(m_folder.path(L"one\\two"));
    RemoveDirectoryW(m_folder.path(L"one"));
    EXPECT_FALSE(m_combo.RefreshFolderInfo(0));
    EXPECT_EQ(m_combo.GetCurSel(), last - 2);
    CNavPathname pathname;
    CString path;
    ASSERT_TRUE(m_combo.GetPathname(pathname));
    pathname.GetFullPath(path);
    EXPECT_EQ(path.CompareNoCase(m_folder.path()), 0);
}

// A picture of one item: where it differs from the background, column by column.
class DrawnItem {
public:
    DrawnItem(CNavFolderComboBox& combo, int index, UINT state) : m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{{sizeof(BITMAPINFOHEADER), kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        m_bitmap.reset(CreateDIBSection(m_dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_pixels = static_cast<DWORD*>(bits);
        std::fill_n(m_pixels, kWidth * kHeight, kUntouched);
        const SelectedObject select(m_dc.get(), m_bitmap.get());
        DRAWITEMSTRUCT item{ODT_COMBOBOX,
                            1,
                            static_cast<UINT>(index),
                            ODA_DRAWENTIRE,
                            state,
                            combo.m_hWnd,
                            m_dc.get(),
                            {0, 0, kWidth, kHeight},
                            0};
        combo.DrawItem(&item);
        GdiFlush();
    }

    bool untouched() const {
        return std::all_of(m_pixels, m_pixels + kWidth * kHeight, [](DWORD p) { return p == kUntouched; });
    }
    /// Colour of the right edge, where nothing but the background is.
    COLORREF background() const {
        const DWORD pixel = m_pixels[kWidth * (kHeight / 2) - 3];
        return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
    }
    /// The first column that shows something else.
    int firstInk() const {
        for (int x = 2; x < kWidth - 2; ++x) {
            for (int y = 2; y < kHeight - 2; ++y) {
                if (m_pixels[y * kWidth + x] != m_pixels[kWidth * (kHeight / 2) - 3]) {
                    return x;
                }
            }
        }
        return -1;
    }

private:
    using SelectedObject = zoui::SelectedObject;
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 20;
    static constexpr DWORD kUntouched = 0x00123456;
    zoui::UniqueMemoryDC m_dc;
    zoui::UniqueBitmap m_bitmap;
    DWORD* m_pixels = nullptr;
};

TEST_F(FolderCombo, Draw_ShowsColoursAndIndentation) {
    m_combo.FillToFolder(parsed(L"C:\\windows").get());
    EXPECT_TRUE(DrawnItem(m_combo, -1, 0).untouched());
    EXPECT_EQ(DrawnItem(m_combo, 0, 0).background(), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(DrawnItem(m_combo, 0, ODS_SELECTED).background(), GetSysColor(COLOR_HIGHLIGHT));
    const int atDesktop = DrawnItem(m_combo, 0, 0).firstInk();
    EXPECT_GE(atDesktop, 2);
    const int indent = m_combo.GetItemHeight(0);
    EXPECT_NEAR(DrawnItem(m_combo, 1, 0).firstInk(), atDesktop + indent, 4);
    EXPECT_NEAR(DrawnItem(m_combo, 2, 0).firstInk(), atDesktop + 2 * indent, 4);
    EXPECT_NEAR(DrawnItem(m_combo, 2, ODS_COMBOBOXEDIT).firstInk(), atDesktop + 3, 4);
}

// The path and the kind of drive alone decide, so that a volume that cannot be reached holds nothing up.
TEST(RowIcons, GeneralPictures_StandForNetworkAndRemovableVolumes) {
    struct Row {
        const wchar_t* path;
        UINT drive;
        int expected;  // -1: the location's own
    };
    constexpr Row rows[] = {
        {L"", DRIVE_UNKNOWN, -1},
        {L"C:\\", DRIVE_FIXED, -1},
        {L"C:\\plans", DRIVE_FIXED, -1},
        {L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", DRIVE_NO_ROOT_DIR, -1},
        {L"N:\\", DRIVE_REMOTE, SIID_DRIVENET},
        {L"N:\\plans", DRIVE_REMOTE, SIID_FOLDER},
        {L"\\\\server\\share", DRIVE_NO_ROOT_DIR, SIID_FOLDER},
        {L"D:\\", DRIVE_CDROM, SIID_DRIVECD},
        {L"E:\\", DRIVE_REMOVABLE, SIID_DRIVEREMOVE},
        {L"E:\\plans", DRIVE_REMOVABLE, SIID_FOLDER},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(generalPicture(row.path, row.drive).value_or(static_cast<SHSTOCKICONID>(-1)), row.expected)
            << utf8(row.path);
    }
}

TEST_F(FolderCombo, FillingAndDropping_LeaksNothing) {
    const auto list = parsed(m_folder.path());
    const ObjectCounts growth = growthOver(10, [&] {
        m_combo.SetCurSel(m_combo.FillToFolder(list.get()));
        m_combo.ShowDropDown();
        m_combo.ShowDropDown(FALSE);
    });
    EXPECT_EQ(growth, ObjectCounts());
}

}  // namespace
