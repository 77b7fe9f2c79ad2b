#include <knav/CNavNode.h>
#include <knav/CNavPathname.h>
#include <knav/CNavShell.h>

#include "data/SiteHierarchy.h"
#include "shell/ExtensionItems.h"
#include "shell/ItemList.h"
#include "support/AllocationSpy.h"
#include "support/MemoryShortage.h"
#include "support/Printers.h"
#include "support/ScopedTempFolder.h"

namespace {

using knav::ItemList;
using knav::test::AllocationSpy;
using knav::test::Conduct;
using knav::test::FakeFolder;
using knav::test::FolderCall;
using knav::test::HoldsSameBytes;
using knav::test::ScopedTempFolder;
using knav::test::SiteHierarchy;

constexpr ULONG kFolder = SFGAO_FOLDER | SFGAO_FILESYSTEM;

CString fullPath(const CNavPathname& pathname) {
    CString path;
    pathname.GetFullPath(path);
    return path;
}

TEST(CNavPathnameRelative, TakesAbsolutePathsInOrdinaryFolders) {
    const ScopedTempFolder temp;
    temp.addFile(L"there.txt");
    CNavShell shell;
    CNavNode ordinary(shell);
    struct Row {
        const char* why;
        CString text;
        int wildcards;
        PathErr result;
        CZoUiPathname::Type type;
    };
    const Row rows[] = {
        {"a file", temp.path(L"there.txt"), 1, PathErr::None, CZoUiPathname::ExistingFile},
        {"a pattern", temp.path(L"*.txt"), 1, PathErr::None, CZoUiPathname::Wildcard},
        {"a pattern where none may be", temp.path(L"*.txt"), 0, PathErr::NotFileSystem, CZoUiPathname::NoPath},
        {"a name", L"there.txt", 1, PathErr::NotFileSystem, CZoUiPathname::NoPath},
    };
    CNavPathname base;
    base.Parse(temp.path(), false);
    SiteHierarchy hierarchy(NavNodeExtensionRoot);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        for (CNavNode* const node : {&ordinary, static_cast<CNavNode*>(nullptr)}) {
            CNavPathname pathname;
            EXPECT_EQ(pathname.ParseRelative(row.text, &base, node, row.wildcards), row.result);
            EXPECT_EQ(pathname.GetType(), row.type);
            EXPECT_FALSE(pathname.GetIsURL() || pathname.GetIsExtension());
        }
    }
    for (CNavNode* const node : {&hierarchy.item, &hierarchy.root}) {
        CNavPathname pathname;
        EXPECT_EQ(pathname.ParseRelative(rows[0].text, nullptr, node, 1), PathErr::None) << "it leaves the site";
        EXPECT_FALSE(pathname.GetIsExtension());
        EXPECT_EQ(fullPath(pathname), rows[0].text);
    }
    EXPECT_EQ(hierarchy.siteFolder->lastParsed(), L"");
    EXPECT_EQ(CNavPathname().ParseRelative(nullptr, nullptr, nullptr, 1), PathErr::NotFileSystem);
}

TEST(CNavPathnameRelative, ResolvesTextsInsideASite) {
    struct SiteRow {
        const char* why;
        const wchar_t* site;
        std::wstring text;
        PathErr result;
        std::wstring location;
        const wchar_t* asked;  // what the site's folder is asked for
    };
    const std::wstring long240(240, L'a');
    const SiteRow rows[] = {
        {"a name", L"ftp://host", L"f.dwg", PathErr::None, L"ftp://host/f.dwg", L"f.dwg"},
        {"below a site with a path", L"ftp://host/home/", L"d/f", PathErr::None, L"ftp://host/home/d/f", L"d/f"},
        {"backslashes", L"ftp://host", L"d\\f", PathErr::None, L"ftp://host/d/f", L"d/f"},
        {"from the site's root", L"ftp://host/home", L"/d/f", PathErr::None, L"ftp://host/d/f", L"ftp://host/d/f"},
        {"the whole location", L"ftp://host", L"ftp://host/d/f", PathErr::None, L"ftp://host/d/f", L"d/f"},
        {"in another case", L"ftp://host", L"FTP://Host/d", PathErr::None, L"FTP://Host/d", L"d"},
        {"a folder by its separator", L"ftp://host", L"d/", PathErr::None, L"ftp://host/d/", L"d"},
        {"dots", L"ftp://host/home", L"a/../b/./c", PathErr::None, L"ftp://host/home/b/c", L"b/c"},
        {"dots stop at the root", L"ftp://host/home", L"../../../b", PathErr::None, L"ftp://host/b", L"ftp://host/b"},
        {"another site", L"ftp://host", L"ftp://host2/f", PathErr::NotFileSystem, L"", L""},
        {"an extension's own scheme", L"store://shelf", L"a/../b", PathErr::None, L"store://shelf/b", L"b"},
        {"a site without a scheme", L"Shelf", L"a/b", PathErr::None, L"Shelf/a/b", L"a/b"},
        {"dots in one", L"A\\Shelf\\", L"x\\..\\..\\b/./c", PathErr::None, L"A\\Shelf/b/c", L"b/c"},
        {"nothing", L"ftp://host", L"", PathErr::Empty, L"", L""},
        {"a text that is too long", L"ftp://host", std::wstring(260, L'a'), PathErr::TooLong, L"", L""},
        {"too long when joined", L"ftp://host/0123456789", long240, PathErr::TooLong, L"", L""},
    };
    for (const SiteRow& row : rows) {
        SCOPED_TRACE(row.why);
        SiteHierarchy hierarchy(NavNodeExtensionRoot, row.site);
        for (CNavNode* const node : {&hierarchy.site, &hierarchy.item}) {
            CNavPathname pathname;
            EXPECT_EQ(pathname.ParseRelative(row.text.c_str(), nullptr, node, 1), row.result);
            EXPECT_EQ(fullPath(pathname), row.location.c_str());
            EXPECT_TRUE(pathname.GetIsExtension() && !pathname.GetIsURL());
            EXPECT_EQ(hierarchy.siteFolder->lastParsed(), row.asked);
            if (row.result == PathErr::None) {
                EXPECT_EQ(pathname.GetType(), CZoUiPathname::ExistingFile) << "the folder does not know it";
                EXPECT_EQ(pathname.GetID(), nullptr);
            }
        }
    }
}

TEST(CNavPathnameRelative, AsksTheSitesFolderWhatAnItemIs) {
    SiteHierarchy hierarchy(NavNodeExtensionRoot);
    hierarchy.siteFolder->add(L"d", kFolder).add(L"f", SFGAO_FILESYSTEM);
    struct Row {
        const wchar_t* text;
        CZoUiPathname::Type type;
        const wchar_t* element;
    };
    constexpr Row rows[] = {
        {L"d", CZoUiPathname::Directory, L"d"},    {L"d/", CZoUiPathname::Directory, L"d"},
        {L"f", CZoUiPathname::ExistingFile, L"f"}, {L"ftp://host/", CZoUiPathname::Directory, L""},
        {L"..", CZoUiPathname::Directory, L""},
    };
    const ItemList site = ItemList::adopt(hierarchy.site.CalculateQualifiedItemList());
    for (const Row& row : rows) {
        SCOPED_TRACE(knav::test::utf8(row.text));
        const LONG before = AllocationSpy::live();
        {
            CNavPathname pathname;
            EXPECT_EQ(pathname.ParseRelative(row.text, nullptr, &hierarchy.item, 1), PathErr::None);
            EXPECT_EQ(pathname.GetType(), row.type);
            const ItemList expected = ItemList::join(site.get(), FakeFolder::item(row.element).get());
            EXPECT_THAT(pathname.GetID(), HoldsSameBytes(expected.get()));

            const CNavPathname copy(pathname);
            EXPECT_EQ(copy.GetID(), pathname.GetID());
            pathname.ParseRelative(L"unknown", nullptr, &hierarchy.item, 1);
            EXPECT_EQ(pathname.GetID(), nullptr);
        }
        EXPECT_EQ(AllocationSpy::live(), before) << "the list goes with the path name";
    }
}

TEST(CNavPathnameRelative, DecodesLocationsInWebFolders) {
    SiteHierarchy hierarchy(NavNodeWebFoldersRoot, L"http://host/my%20files");
    CNavPathname pathname;
    EXPECT_EQ(pathname.ParseRelative(L"http://host/my%20files/a%20b", nullptr, &hierarchy.item, 1), PathErr::None);
    EXPECT_EQ(fullPath(pathname), L"http://host/my files/a b");
    EXPECT_EQ(hierarchy.siteFolder->lastParsed(), L"a b");
    EXPECT_TRUE(pathname.GetIsURL());

    SiteHierarchy internet(NavNodeInternetRoot, L"http://host");
    EXPECT_EQ(pathname.ParseRelative(L"a%20b", nullptr, &internet.site, 1), PathErr::None);
    EXPECT_EQ(fullPath(pathname), L"http://host/a%20b");
    EXPECT_TRUE(pathname.GetIsURL());
    EXPECT_FALSE(pathname.GetIsExtension());
}

TEST(CNavPathnameRelative, LooksUpSitesAtARoot) {
    SiteHierarchy hierarchy(NavNodeExtensionRoot, L"ftp://");
    hierarchy.rootFolder->add(L"host", kFolder);
    const LONG before = AllocationSpy::live();
    {
        CNavPathname pathname;
        EXPECT_EQ(pathname.ParseRelative(L"host", nullptr, &hierarchy.root, 1), PathErr::None);
        EXPECT_EQ(pathname.GetType(), CZoUiPathname::Directory);
        EXPECT_EQ(fullPath(pathname), L"ftp://host");
        EXPECT_TRUE(NavIsExtensionChildItem(pathname.GetID()));
        EXPECT_EQ(pathname.ParseRelative(L"nowhere", nullptr, &hierarchy.root, 1), PathErr::NotFileSystem);
        EXPECT_EQ(pathname.GetID(), nullptr);
    }
    EXPECT_EQ(AllocationSpy::live(), before);

    CNavShell shell;
    CNavNode folderless(shell);
    folderless.SetType(NavNodeExtensionRoot);
    EXPECT_EQ(CNavPathname().ParseRelative(L"host", nullptr, &folderless, 1), PathErr::NotFileSystem);
    CNavNode orphan(shell);
    orphan.SetType(NavNodeInternetItem);
    EXPECT_EQ(CNavPathname().ParseRelative(L"host", nullptr, &orphan, 1), PathErr::NotFileSystem);
}

TEST(CNavPathnameRelative, HoldsAllOrNothingWhenMemoryRunsOut) {
    SiteHierarchy hierarchy(NavNodeExtensionRoot, L"ftp://a.host.with.a.long.name");
    hierarchy.siteFolder->add(L"drawings of the house", kFolder);
    hierarchy.rootFolder->add(L"a site with a long name", kFolder);
    int right = 0;
    int wrong = 0;
    const auto take = [&](const wchar_t* text, CNavNode& node, const wchar_t* expected) {
        CNavPathname pathname;
        const PathErr result = pathname.ParseRelative(text, nullptr, &node, 1);
        CString location;
        pathname.GetFullPath(location);
        // The folder may lack the memory too: then the item has no name but the typed one, or is taken for a file.
        right += location == expected && pathname.GetType() == CZoUiPathname::Directory;
        wrong += result == PathErr::None && !location.IsEmpty() && location != expected && location != text;
    };
    const LONG before = AllocationSpy::live();
    const int failures = knav::test::withEachAllocationFailing([&] {
        take(L"drawings of the house", hierarchy.item, L"ftp://a.host.with.a.long.name/drawings of the house");
    });
    EXPECT_GT(failures, 3);
    EXPECT_GT(right, 0) << "with enough memory";
    knav::test::withEachAllocationFailing(
        [&] { take(L"a site with a long name", hierarchy.root, L"ftp://a site with a long name"); });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(CNavPathnameRelative, SurvivesAFolderThatFaults) {
    SiteHierarchy hierarchy(NavNodeExtensionRoot);
    hierarchy.siteFolder->set(FolderCall::ParseDisplayName, Conduct::Faults);
    hierarchy.rootFolder->set(FolderCall::ParseDisplayName, Conduct::Faults);
    CNavPathname pathname;
    EXPECT_EQ(pathname.ParseRelative(L"a", nullptr, &hierarchy.site, 1), PathErr::None);
    EXPECT_EQ(pathname.GetType(), CZoUiPathname::ExistingFile);
    EXPECT_EQ(pathname.ParseRelative(L"a", nullptr, &hierarchy.root, 1), PathErr::NotFileSystem);
}

}  // namespace
