#include <gmock/gmock.h>

#include <knav/CNavExtension.h>

#include "PlacesFixture.h"
#include "places/AddedPlaces.h"
#include "resources/ids.h"
#include "shell/ItemList.h"
#include "shell/RegisteredExtensions.h"
#include "support/ItemLists.h"
#include "support/ObjectCounts.h"

namespace knav::test {
namespace {

using testing::ElementsAre;

using PlacesModel = PlacesTest;

/// Registers extensions for one test.
class Extensions {
public:
    explicit Extensions(std::initializer_list<const wchar_t*> names) {
        for (const wchar_t* name : names) {
            CNavExtension* extension = registeredExtensions().AddData();
            extension->SetName(name);
            extension->SetPlacesLabel(CString(name) + L" label");
            extension->SetPlacesTip(L"tip");
        }
    }
    ~Extensions() { registeredExtensions().RemoveAllData(); }
    Extensions(const Extensions&) = delete;
    Extensions& operator=(const Extensions&) = delete;
};

// --- the default order -----------------------------------------------------------------------------------------

TEST_F(PlacesModel, defaultOrder_standardPlacesFtpHostPlacesOthers) {
    const Extensions extensions{L"Vault", L"ftpsites"};
    AddedPlaces::ofProcess().queue(L"Project", m_folder.path());
    ASSERT_EQ(1, m_list.OnAutoLoad());
    EXPECT_THAT(m_window.names(), ElementsAre(L"History", L"Personal", L"Favorites", L"ftpsites", L"Desktop",
                                              std::wstring(m_folder.path()), L"Vault"));
    EXPECT_EQ(1, m_window.saved) << "a new host place saves the order";
    CString spoken;
    m_list.GetText(5, spoken);
    EXPECT_EQ(CString(L"Project"), spoken) << "what assistive tools read";
    EXPECT_EQ(2u, m_list.GetItemFlags(0));
    EXPECT_EQ(0, m_list.CanEdit(0));
    EXPECT_EQ(1, m_list.CanDelete(0));
    EXPECT_EQ(PlacesItemExtensionRoot, m_list.GetItemType(3));
    EXPECT_EQ(CString(L"Vault label"), m_list.GetItemDisplayText(6));
    EXPECT_NE(nullptr, m_list.GetItemExtension(6));
    EXPECT_EQ(nullptr, m_list.GetItemExtension(0));
}

TEST_F(PlacesModel, options_leaveRowsOut) {
    const Extensions extensions{L"FTPSites", L"Vault"};
    m_list.SetNoHistory(1);
    m_list.SetNoFavorites(1);
    m_list.SetNoDesktop(1);
    m_list.SetNoFTPInPlaces(1);
    m_list.SetNoExtraExtensionsInPlaces(1);
    ASSERT_EQ(1, m_list.OnAutoLoad());
    EXPECT_THAT(m_window.names(), ElementsAre(L"Personal"));
}

TEST_F(PlacesModel, deletedExtension_staysAway) {
    const Extensions extensions{L"Vault"};
    m_window.deleted = L"Vault";
    EXPECT_EQ(0, m_list.AddExtensionRoot(registeredExtensions().GetData(0)));
    m_window.deleted.clear();
    EXPECT_EQ(1, m_list.AddExtensionRoot(registeredExtensions().GetData(0)));
    EXPECT_EQ(1, m_list.AddExtensionRoot(registeredExtensions().GetData(0))) << "it is there: success";
    EXPECT_EQ(1, m_list.GetCount());
}

// --- the stored order ------------------------------------------------------------------------------------------

TEST_F(PlacesModel, storedOrder_resolvesEachKindOfEntry) {
    const Extensions extensions{L"Vault", L"New"};
    const CString folder = m_folder.addFolder(L"plans");
    m_window.stored = {
        {L"PlacesOrder0", L"desktop"},
        {L"PlacesOrder0Display", L"ignored"},
        {L"PlacesOrder1", L"vault"},
        {L"PlacesOrder1Display", L"My vault"},
        {L"PlacesOrder2", std::wstring(folder)},
        {L"PlacesOrder2Display", L"Plans"},
        {L"PlacesOrder3", L"relative"},
        {L"PlacesOrder3Display", L"dropped"},
        {L"PlacesOrder4", L"a/b\\c"},
        {L"PlacesOrder4Ext", L"vault"},
        {L"PlacesOrder5", L"site\\docs"},
        {L"PlacesOrder5Ext", L"webfolders"},
        {L"PlacesOrder6", L"x"},
        {L"PlacesOrder6Ext", L"unknown"},
        {L"PlacesOrder7", L"DESKTOP"},
        {L"PlacesOrder9", L"History"},
    };
    m_list.LoadFromOrder();
    EXPECT_THAT(m_window.names(),
                ElementsAre(L"Desktop", L"Vault", std::wstring(folder), L"a/b\\c", L"site\\docs", L"New"));
    CString desktop;
    desktop.LoadString(IDS_KNAV_DESKTOP);
    EXPECT_EQ(desktop, m_list.GetItemDisplayText(0)) << "its label comes from the resources";
    EXPECT_EQ(CString(L"My vault"), m_list.GetItemDisplayText(1));
    EXPECT_NE(nullptr, m_list.GetItemIdList(2));
    EXPECT_EQ(CString(L"b\\c"), m_list.GetItemDisplayText(3)) << "a slash wins over a backslash";
    EXPECT_EQ(CString(L"docs"), m_list.GetItemDisplayText(4));
    EXPECT_EQ(CString(L"Vault"), m_list.GetItemExtensionName(3));
    EXPECT_EQ(4u, m_list.GetItemFlags(3));
    EXPECT_EQ(CString(L"WebFolders"), m_list.GetItemExtensionName(4));

    m_window.stored = {{L"PlacesOrder0", L""}, {L"PlacesOrder1", L"Desktop"}};
    m_list.LoadFromOrder();
    EXPECT_THAT(m_window.names(), ElementsAre(L"Vault", L"New")) << "the order is empty; extensions come anyway";
}

TEST_F(PlacesModel, savedOrder_comesBackAsItWas) {
    const Extensions extensions{L"Vault"};
    for (int i = 0; i < 6; ++i)
        m_window.stored[std::wstring(L"PlacesOrder") + std::to_wstring(i)] = L"old";
    m_list.OnAutoLoad();
    m_list.AddExtensionFolder(registeredExtensions().GetData(0), L"a/b", L"B");
    m_list.MoveItemFromIndex(0, 2);
    const auto before = m_window.names();
    ASSERT_EQ(6u, before.size());
    m_window.savePlaces();
    EXPECT_EQ(L"", m_window.stored[L"PlacesOrder6"]) << "the end is marked";
    EXPECT_EQ(L"", m_window.stored[L"PlacesOrder4Ext"]) << "an extension root has none";
    m_list.LoadFromOrder();
    EXPECT_EQ(before, m_window.names());
    EXPECT_EQ(CString(L"Vault"), m_list.GetItemExtensionName(5));
}

// --- rows ------------------------------------------------------------------------------------------------------

TEST_F(PlacesModel, indexOutOfRange_isNeutral) {
    m_list.OnAutoLoad();
    for (const int index : {-1, m_list.GetCount(), 1000}) {
        EXPECT_EQ(PlacesItemNone, m_list.GetItemType(index));
        EXPECT_EQ(0u, m_list.GetItemFlags(index));
        EXPECT_EQ(nullptr, m_list.GetItemExtension(index));
        EXPECT_EQ(1, m_list.CanDelete(index));
        EXPECT_EQ(1, m_list.CanEdit(index));
        EXPECT_EQ(-1, m_list.MoveItemFromIndex(index, 0));
        EXPECT_TRUE(m_list.GetItemDisplayText(index).IsEmpty());
        m_list.SetItemName(index, L"x");
        m_list.SetItemIdList(index, ItemList::copyOf(ItemList::adopt(nullptr).get()).release());
    }
    EXPECT_THAT(m_window.names(), ElementsAre(L"History", L"Personal", L"Favorites", L"Desktop"));
}

TEST_F(PlacesModel, rowOfTheSameNameOrWithoutPicture_isNotAdded) {
    m_list.OnAutoLoad();
    EXPECT_EQ(1, m_list.AddItem(L"PERSONAL", IDB_KNAV_FOLDER, nullptr, nullptr, L"", 0, PlacesItemFolder, 0));
    EXPECT_EQ(4, m_list.GetCount());
    EXPECT_EQ(-1, m_list.AddItem(L"x", 0, nullptr, nullptr, L"x", 0, PlacesItemFolder, 0));
    EXPECT_EQ(-1, m_list.AddItem(L"x", 65000, nullptr, nullptr, L"x", 0, PlacesItemFolder, 0));
    EXPECT_EQ(4, m_list.AddItem(L"x", 0, nullptr, CreateBitmap(32, 32, 1, 32, nullptr), L"x", 0, PlacesItemFolder, 0));
}

TEST_F(PlacesModel, userItem_goesWhereItIsAsked) {
    m_list.OnAutoLoad();
    const CString folder = m_folder.addFolder(L"plans");
    EXPECT_EQ(1, m_list.InsertUserItem(1, folder, L"Plans"));
    EXPECT_EQ(PlacesItemFolder, m_list.TypeFromName(folder));
    EXPECT_NE(nullptr, m_list.GetUserItemIdFromName(folder));
    EXPECT_EQ(nullptr, m_list.GetUserItemIdFromName(L"Desktop")) << "not a folder row";
    EXPECT_EQ(-1, m_list.InsertUserItem(0, L"relative", L"x"));
    EXPECT_EQ(PlacesItemNone, m_list.TypeFromName(L"relative"));
    EXPECT_EQ(PlacesItemDesktop, m_list.TypeFromName(L"desktop"));
}

TEST_F(PlacesModel, movedRow_keepsEverythingAndItsSelection) {
    m_list.OnAutoLoad();
    const CString folder = m_folder.addFolder(L"plans");
    m_list.InsertUserItem(0, folder, L"Plans");
    m_list.SetCurSel(0);
    const ITEMIDLIST* id = m_list.GetItemIdList(0);
    EXPECT_EQ(3, m_list.MoveItemFromIndex(0, 3));
    EXPECT_EQ(folder, m_list.GetItemName(3));
    EXPECT_EQ(CString(L"Plans"), m_list.GetItemDisplayText(3));
    EXPECT_EQ(id, m_list.GetItemIdList(3));
    EXPECT_EQ(3, m_list.GetCurSel());
    EXPECT_EQ(4, m_list.MoveItemFromIndex(3, 100)) << "behind the last row";
    EXPECT_EQ(5, m_list.GetCount());
}

TEST_F(PlacesModel, listAndRows_leaveNothingBehind) {
    const CString folder = m_folder.addFolder(L"plans");
    const ObjectCounts growth = growthOver(3, [&] {
        PlacesWindow window;
        window.list.OnAutoLoad();
        window.list.InsertUserItem(-1, folder, L"Plans");
        window.list.DeleteString(0);
        window.list.InsertUserItem(-1, folder, L"Twice");
        window.list.UpdateWindow();
    });
    EXPECT_EQ(ObjectCounts{}, growth);
}

// --- places that hosts ask for -----------------------------------------------------------------------------------

TEST_F(PlacesModel, hostPlace_isOfferedOncePerUser) {
    const CString path = m_folder.addFolder(L"Offered");
    AddedPlaces first;
    EXPECT_FALSE(first.queue(L"Relative", L"plans"));
    EXPECT_TRUE(first.queue(L"Offered", path));
    EXPECT_FALSE(first.queue(L"Again", CString(path).MakeUpper()));
    ASSERT_EQ(1, first.waiting().GetCount());
    AddedPlaces::remember(path);
    AddedPlaces nextProcess;
    EXPECT_FALSE(nextProcess.queue(L"Later", path));
}

TEST_F(PlacesModel, hostPlaceThatIsARowAlready_isNotRememberedAsOffered) {
    const CString path = m_folder.addFolder(L"Known");
    m_list.InsertUserItem(-1, path, L"Known");
    ASSERT_TRUE(AddedPlaces::ofProcess().queue(L"Known too", CString(path).MakeUpper()));
    m_list.LoadAddedPlaces();
    EXPECT_EQ(1, m_list.GetCount());
    EXPECT_EQ(0, m_window.saved);
    EXPECT_EQ(0, AddedPlaces::ofProcess().waiting().GetCount());
    AddedPlaces nextProcess;
    EXPECT_TRUE(nextProcess.queue(L"Known", path));
}

// --- dropping --------------------------------------------------------------------------------------------------

TEST_F(PlacesModel, droppedFolder_goesUnderThePointer) {
    m_list.OnAutoLoad();
    const CString folder = m_folder.addFolder(L"plans");
    const CString file = m_folder.addFile(L"plan.dwg");
    RECT second{};
    m_list.GetItemRect(1, &second);
    EXPECT_EQ(1, m_list.AddDroppedItem(folder, POINT{second.left + 5, second.top + 5}));
    EXPECT_EQ(CString(L"plans"), m_list.GetItemDisplayText(1));
    EXPECT_EQ(-1, m_list.AddDroppedItem(file, POINT{5, 5})) << "a file is no place";
    EXPECT_EQ(-1, m_list.AddDroppedItem(ItemList::adopt(ILCreateFromPathW(file)).get(), POINT{5, 5}));
    EXPECT_EQ(-1, m_list.AddDroppedItem(static_cast<const ITEMIDLIST*>(nullptr), POINT{5, 5}));
    PageEnd page;
    const BYTE cut[] = {4, 0, 1, 2};
    EXPECT_EQ(-1, m_list.AddDroppedItem(page.put(cut, sizeof(cut)), POINT{5, 5})) << "no terminator";
    EXPECT_EQ(1, m_window.changed);
    const auto more = ItemList::adopt(ILCreateFromPathW(m_folder.addFolder(L"more")));
    EXPECT_EQ(5, m_list.AddDroppedItem(more.get(), POINT{5, 10'000})) << "beyond the rows: at the end";
    EXPECT_EQ(CString(L"more"), m_list.GetItemDisplayText(5));
}

}  // namespace
}  // namespace knav::test
