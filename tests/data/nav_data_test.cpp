#include <knav/CNavDataArray.h>
#include <knav/CNavPathname.h>
#include <knav/CNavShell.h>
#include <knav/NavFolders.h>

#include "support/AllocationSpy.h"
#include "support/Printers.h"

namespace {

using knav::test::AllocationSpy;

TEST(CNavData, TrimsItsTextsDifferently) {
    CNavData data;
    data.SetText(L" \t plan.dwg \t");
    data.SetTextInFolder(L" \t plan.dwg \t");
    EXPECT_STREQ(data.GetText(), L"plan.dwg \t");
    EXPECT_STREQ(data.GetTextInFolder(), L"plan.dwg");

    data.SetText(data.GetText() + 1);  // its own text
    EXPECT_STREQ(data.GetText(), L"lan.dwg \t");
    data.SetText(nullptr);
    EXPECT_STREQ(data.GetText(), L"");
    data.SetUserName(L" me ");
    EXPECT_STREQ(data.GetUserName(), L" me ");
    EXPECT_EQ(data.SetUserData(&data), &data);
}

TEST(CNavData, FreesEachItemListOnce) {
    const auto drives = [] { return NavGetDrivesFolderItem(nullptr); };
    {
        CNavData warmUp;
        warmUp.SetID(drives());
    }
    const LONG before = AllocationSpy::live();
    {
        CNavDataArray array;
        CNavData* const data = array.AddData();
        data->SetID(drives());
        const LONG one = AllocationSpy::live();
        ITEMIDLIST* const second = drives();
        data->SetID(second);
        EXPECT_EQ(AllocationSpy::live(), one) << "the first list went when the second came";
        data->SetID(second);
        EXPECT_EQ(data->GetID(), second) << "the list held already is not freed";
        EXPECT_EQ(AllocationSpy::live(), one);
        array.AddData()->SetID(drives());
    }
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(CNavData, AssignsAPathNameWithoutTakingIt) {
    CNavData data;
    CNavPathname* const own = data.GetPathname();
    ASSERT_NE(own, nullptr);
    {
        CNavPathname given;
        given.Parse(L"ftp://host/a", false);
        data.SetPathname(&given);
    }
    EXPECT_EQ(data.GetPathname(), own);
    CString path;
    EXPECT_EQ(own->GetFullPath(path), 1);
    EXPECT_EQ(path, L"ftp://host/a");
    EXPECT_TRUE(own->GetIsURL());
    EXPECT_TRUE(own->GetIsExtension());

    data.SetPathname(nullptr);
    data.SetPathname(own);
    own->GetFullPath(path);
    EXPECT_EQ(path, L"ftp://host/a");
}

TEST(CNavData, TellsRemoteItemsByTheirType) {
    struct TypeRow {
        NAV_DATA_TYPE type;
        int remote;
        int extension;
    };
    constexpr TypeRow rows[] = {
        {NAV_DATA_UNKNOWN, 0, 0}, {NAV_DATA_FILE, 0, 0},      {NAV_DATA_URL, 1, 0},
        {NAV_DATA_NETWORK, 0, 0}, {NAV_DATA_EXTENSION, 1, 1}, {NAV_DATA_FTP, 1, 0},
    };
    for (const TypeRow& row : rows) {
        SCOPED_TRACE(row.type);
        CNavData data;
        data.GetPathname()->Parse(L"http://host/f", false);
        data.SetDataType(row.type);
        EXPECT_EQ(data.IsRemote(), row.remote);
        EXPECT_EQ(data.IsExtension(), row.extension);
        CString url = L"old";
        EXPECT_EQ(data.GetURL(url), row.remote);
        EXPECT_EQ(url, row.remote != 0 ? L"http://host/f" : L"");
    }
}

}  // namespace
