#include <knav/CNavPathname.h>

#include <intshcut.h>

#include "data/SiteFolderFake.h"
#include "shell/ExtensionItems.h"
#include "shell/ItemList.h"
#include "shell/SiteLocation.h"
#include "support/AllocationSpy.h"
#include "support/Printers.h"
#include "support/ScopedTempFolder.h"

namespace {

using knav::ItemList;
using knav::test::AllocationSpy;
using knav::test::ScopedTempFolder;
using knav::test::SiteFolderFake;

CString fullPath(const CNavPathname& pathname) {
    CString path;
    pathname.GetFullPath(path);
    return path;
}

CNavPathname parsed(const wchar_t* text) {
    CNavPathname pathname;
    pathname.Parse(text, true);
    return pathname;
}

struct UrlRow {
    const wchar_t* text;
    bool isUrl;
};

TEST(CNavPathname, TakesThreeSchemesInLowerCaseForUrls) {
    constexpr UrlRow rows[] = {
        {L"ftp://host/a", true},
        {L"http://host", true},
        {L"https://host/a?b", true},
        {L"ftp://", true},
        {L"FTP://host/a", false},
        {L" ftp://host", false},
        {L"ftp:/host", false},
        {L"file://host/a", false},
        {L"mailto:a@b.c", false},
        {L"C:\\a", false},
        {L"", false},
        {nullptr, false},
    };
    for (const UrlRow& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? knav::test::utf8(row.text) : "null");
        CNavPathname pathname;
        const PathErr result = pathname.Parse(row.text, true);
        EXPECT_EQ(pathname.GetIsURL(), row.isUrl);
        EXPECT_EQ(pathname.GetIsExtension(), row.isUrl);
        if (row.isUrl) {
            EXPECT_EQ(static_cast<int>(result), 4);
            EXPECT_EQ(fullPath(pathname), row.text);
            EXPECT_EQ(pathname.GetPathString(), nullptr);
            EXPECT_EQ(pathname.Exists(), 0);
        }
    }
}

TEST(CNavPathname, TakesUrlsOfEverySchemeWhenToldThatTheyAre) {
    struct Row {
        const wchar_t* text;
        const wchar_t* stored;  // null: refused
    };
    constexpr Row rows[] = {
        {L"HTTP://Host/A.dwg", L"http://Host/A.dwg"},
        {L" Ftp://host/a ", L"ftp://host/a"},
        {L"file:///C:/plan.dwg", L"file:///C:/plan.dwg"},
        {L"MAILTO:A@b", L"mailto:A@b"},
        {L"C:\\plan.dwg", nullptr},
        {L"http://", nullptr},
        {nullptr, nullptr},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? knav::test::utf8(row.text) : "null");
        CNavPathname pathname;
        EXPECT_EQ(pathname.SetURL(row.text) != 0, row.stored != nullptr);
        EXPECT_EQ(pathname.GetIsURL() && pathname.GetIsExtension(), row.stored != nullptr);
        EXPECT_EQ(fullPath(pathname), row.stored);
    }
}

TEST(CNavPathname, ParsesPathsAsTheBaseDoes) {
    const ScopedTempFolder folder;
    folder.addFile(L"there.txt");
    folder.addFolder(L"sub");
    struct Row {
        const wchar_t* name;
        CZoUiPathname::Type type;
        int exists;
        bool noSlash;
        const wchar_t* basename;
    };
    constexpr Row rows[] = {
        {L"new.txt", CZoUiPathname::NewFile, 0, true, L"new.txt"},
        {L"*.txt", CZoUiPathname::Wildcard, 0, true, L"*.txt"},
        {L"there.txt", CZoUiPathname::ExistingFile, 1, true, L"there.txt"},
        {L"sub", CZoUiPathname::Directory, 1, true, L"sub"},
        {L"sub\\", CZoUiPathname::Directory, 1, false, L"sub"},
        {L"missing\\a.txt", CZoUiPathname::Invalid, 0, false, L"a.txt"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(knav::test::utf8(row.name));
        const CNavPathname pathname = parsed(folder.path(row.name));
        EXPECT_EQ(pathname.GetType(), row.type);
        EXPECT_EQ(pathname.Exists(), row.exists);
        EXPECT_EQ(pathname.hasTrailingSlash(), row.noSlash) << "true when there is none";
        CString name;
        pathname.GetBasename(name);
        EXPECT_EQ(name, row.basename);
        EXPECT_FALSE(pathname.GetIsURL() || pathname.GetIsExtension());
    }
    EXPECT_FALSE(CNavPathname().hasTrailingSlash());
    CString path = L"old";
    EXPECT_EQ(CNavPathname().GetFullPath(path), 0);
}

struct LocationRow {
    const wchar_t* location;
    const wchar_t* prefix;  // empty: none
    const wchar_t* server;
    const wchar_t* basename;
};

TEST(CNavPathname, TakesLocationsApart) {
    constexpr LocationRow rows[] = {
        {L"ftp://host", L"ftp://host", L"host", L"host"},
        {L"ftp://host/dir/f", L"ftp://host", L"host", L"f"},
        {L"ftp://host/dir/", L"ftp://host", L"host", L""},
        {L"ftp://host\\dir\\f", L"ftp://host", L"host", L"host\\dir\\f"},
        {L"ftp://me:pw@host:21/f", L"ftp://me:pw@host:21", L"me:pw@host:21", L"f"},
        {L"ftp://", L"", L"", L""},
        {L"ftp:///f", L"ftp://", L"", L"f"},
        {L"http://a/b://c/d", L"http://a", L"a", L"d"},
    };
    for (const LocationRow& row : rows) {
        SCOPED_TRACE(knav::test::utf8(row.location));
        const CNavPathname pathname = parsed(row.location);
        CString prefix = L"old";
        const bool has = row.prefix[0] != L'\0';
        EXPECT_EQ(pathname.GetSitePrefix(prefix), has ? 1 : 0);
        EXPECT_EQ(prefix, has ? row.prefix : L"old");
        CString text = L"old";
        pathname.GetServerName(text);
        EXPECT_EQ(text, row.server);
        pathname.GetBasename(text);
        EXPECT_EQ(text, row.basename);
    }
    CString text = L"old";
    EXPECT_EQ(parsed(L"C:\\windows").GetSitePrefix(text), 0);
    parsed(L"C:\\windows").GetServerName(text);
    EXPECT_EQ(text, L"");
}

TEST(CNavPathname, NamesPlacesWithoutSlashesByTheirWholeText) {
    const auto basename = [](const wchar_t* location) { return std::wstring(knav::lastName(location)); };
    EXPECT_EQ(basename(L""), L"");
    EXPECT_EQ(basename(L"store"), L"store");
    EXPECT_EQ(basename(L"store\\shelf"), L"shelf");
    EXPECT_EQ(basename(L"a/b\\c"), L"b\\c");
}

struct CanonicalRow {
    const char* why;
    std::wstring in;
    std::wstring out;  // empty: failure
};

TEST(CNavPathname, ResolvesDotsInPathsAndLocations) {
    const std::wstring fits = L"ftp://host/" + std::wstring(241, L'a');
    const CanonicalRow rows[] = {
        {"inside the site", L"ftp://host/a/b/../c", L"ftp://host/a/c"},
        {"backslashes turn", L"ftp://host\\a\\.\\b", L"ftp://host/a/b"},
        {"the site alone", L"http://host", L"http://host"},
        {"a separator at the end stays", L"ftp://host/a/", L"ftp://host/a/"},
        {"not above the root", L"ftp://host/../../a", L"ftp://host/a"},
        {"the root itself", L"ftp://host/a/..", L"ftp://host"},
        {"a folder called as the stand-in root", L"ftp://host/site/a", L"ftp://host/site/a"},
        {"no host", L"ftp://", L""},
        {"a path", L"C:\\a\\..\\b", L"C:\\b"},
        {"a location that just fits", fits, fits},
        {"a location that does not", fits + std::wstring(20, L'a'), L""},
        {"a path that does not", L"C:\\" + std::wstring(260, L'a'), L""},
    };
    for (const CanonicalRow& row : rows) {
        SCOPED_TRACE(row.why);
        CNavPathname pathname;
        wchar_t out[MAX_PATH] = L"";
        EXPECT_EQ(pathname.NavPathCanonicalize(out, row.in.c_str()), row.out.empty() ? 0 : 1);
        if (!row.out.empty()) {
            EXPECT_EQ(out, row.out);
        }
    }
    wchar_t out[MAX_PATH];
    CNavPathname extension;
    extension.SetIsExtension(true);
    EXPECT_EQ(extension.NavPathCanonicalize(out, L"store://shelf/a/../b"), 1);
    EXPECT_STREQ(out, L"store://shelf/b");
    EXPECT_EQ(extension.NavPathCanonicalize(out, L"shelf/a"), 0);
    EXPECT_EQ(extension.NavPathCanonicalize(nullptr, L"a"), 0);
    EXPECT_EQ(extension.NavPathCanonicalize(out, nullptr), 0);
}

TEST(CNavPathname, CopiesAndAssignsDifferentThings) {
    SiteFolderFake object(L"");
    const ItemList list = ItemList::adopt(SiteFolderFake::itemOf(L"x.lnk"));
    const ScopedTempFolder temp;
    CString file = temp.addFile(L"x.lnk");
    object.add(L"x.lnk", SFGAO_LINK);
    const LONG before = AllocationSpy::live();
    {
        CNavPathname source;
        EXPECT_EQ(source.Parse(list.get(), &object, nullptr, file), PathErr::None);
        source.SetIsURL(true);
        source.SetID(list.get());
        source.SetAttachedObject(&object);
        EXPECT_EQ(object.references(), 1);

        const CNavPathname copy(source);
        EXPECT_TRUE(copy.isShortCut());
        EXPECT_TRUE(copy.GetIsURL());
        EXPECT_EQ(copy.GetID(), list.get());
        EXPECT_EQ(copy.GetAttachedObject(), &object);
        EXPECT_EQ(copy.GetType(), CZoUiPathname::ExistingFile);
        EXPECT_STREQ(copy.GetPathString(), file);
        EXPECT_EQ(object.references(), 1) << "the copy takes no reference";

        CNavPathname assigned;
        assigned = source;
        EXPECT_FALSE(assigned.isShortCut());
        EXPECT_EQ(assigned.GetID(), nullptr);
        EXPECT_EQ(assigned.GetAttachedObject(), nullptr);
        EXPECT_TRUE(assigned.GetIsURL());
        EXPECT_STREQ(assigned.GetPathString(), file);

        source = &assigned;
        EXPECT_TRUE(source.isShortCut()) << "the target's own stay";
        EXPECT_EQ(source.GetID(), list.get());
        EXPECT_EQ(source.GetAttachedObject(), &object);
        source = static_cast<const CNavPathname*>(nullptr);
        EXPECT_STREQ(source.GetPathString(), file);
    }
    EXPECT_EQ(object.references(), 0) << "and releases none";
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(CNavPathname, ReportsWhatTheAttachedObjectSays) {
    CString prefix = L"old";
    CNavPathname pathname;
    EXPECT_EQ(pathname.GetAttachedPrefix(prefix), 0);
    EXPECT_EQ(prefix, L"");
    SiteFolderFake mute(L"");
    pathname.SetAttachedObject(&mute);
    EXPECT_EQ(pathname.GetAttachedPrefix(prefix), 0);

    IUniformResourceLocatorW* locator = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_InternetShortcut, nullptr, CLSCTX_INPROC_SERVER, IID_IUniformResourceLocatorW,
                               reinterpret_cast<void**>(&locator)),
              S_OK);
    locator->SetURL(L"ftp://host/dir/", 0);
    pathname.SetAttachedObject(locator);
    EXPECT_EQ(mute.references(), 0);
    EXPECT_EQ(locator->Release(), 1u);
    EXPECT_EQ(pathname.GetAttachedPrefix(prefix), 1);
    EXPECT_EQ(prefix, L"ftp://host/dir/");
}

// Items of the extension "Store".
ItemList storeRoot() {
    return ItemList::adopt(knav::buildExtensionRootItem(CNavShell(), L"Store"));
}

ItemList inStore(const wchar_t* name) {
    const ItemList item = ItemList::adopt(SiteFolderFake::itemOf(name));
    return ItemList::join(storeRoot().get(), item.get());
}

ItemList internetRoot() {
    ITEMIDLIST* list = nullptr;
    SHGetSpecialFolderLocation(nullptr, CSIDL_INTERNET, &list);
    return ItemList::adopt(list);
}

ItemList webFolders() {
    constexpr wchar_t path[] = L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{BDEADF00-C265-11D0-BCED-00A0C90AB50F}";
    ITEMIDLIST* list = nullptr;
    SHParseDisplayName(path, nullptr, &list, 0, nullptr);
    return ItemList::adopt(list);
}

TEST(CNavPathname, TakesItemsOfExtensionsAndSitesAsTheyAre) {
    struct Row {
        const char* why;
        ItemList item;
        ItemList parent;
        CZoUiPathname::Type type;
        bool isUrl = false;
    };
    const ItemList drawer = ItemList::adopt(SiteFolderFake::itemOf(L"drawer"));
    const Row rows[] = {
        {"the root", storeRoot(), {}, CZoUiPathname::ExistingFile},
        {"a child item that its folder does not know", inStore(L"shelf"), {}, CZoUiPathname::ExistingFile},
        {"a child item that its folder knows", inStore(L"drawer"), storeRoot(), CZoUiPathname::Directory},
        {"a site, known by its parent", ItemList::adopt(SiteFolderFake::itemOf(L"shelf")), storeRoot(),
         CZoUiPathname::Directory},
        {"an internet site", ItemList::join(internetRoot().get(), drawer.get()), internetRoot(),
         CZoUiPathname::Directory, true},
        {"the Web Folders", webFolders(), {}, CZoUiPathname::ExistingFile, true},
        {"an item below the Web Folders", ItemList::join(webFolders().get(), drawer.get()), webFolders(),
         CZoUiPathname::Directory, true},
    };
    SiteFolderFake folder(L"");
    folder.add(L"drawer", SFGAO_FOLDER);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        CNavPathname pathname;
        CString name = L"store://shelf";
        EXPECT_EQ(pathname.Parse(row.item.get(), &folder, row.parent.get(), name), PathErr::None);
        EXPECT_EQ(pathname.GetIsExtension(), !row.isUrl);
        EXPECT_EQ(pathname.GetIsURL(), row.isUrl);
        EXPECT_EQ(pathname.GetType(), row.type);
        EXPECT_EQ(pathname.Exists(), 1);
        EXPECT_EQ(fullPath(pathname), L"store://shelf");
        EXPECT_FALSE(pathname.hasTrailingSlash());
    }
}

TEST(CNavPathname, ParsesOtherItemsByTheirName) {
    const ScopedTempFolder temp;
    CString file = temp.addFile(L"a.lnk");
    const ItemList item = ItemList::adopt(SiteFolderFake::itemOf(L"a.lnk"));
    SiteFolderFake folder(L"");
    folder.add(L"a.lnk", SFGAO_LINK | SFGAO_FILESYSTEM);

    CNavPathname withFolder;
    EXPECT_EQ(withFolder.Parse(item.get(), &folder, nullptr, file), PathErr::None);
    EXPECT_EQ(withFolder.GetType(), CZoUiPathname::ExistingFile);
    EXPECT_TRUE(withFolder.isShortCut());

    const ItemList parent = ItemList::adopt(SiteFolderFake::itemOf(L"folder"));
    CNavPathname qualified;
    qualified.Parse(ItemList::join(parent.get(), item.get()).get(), &folder, parent.get(), file);
    EXPECT_TRUE(qualified.isShortCut()) << "the folder knows the item by its own element";

    CNavPathname withoutFolder;
    EXPECT_EQ(withoutFolder.Parse(item.get(), nullptr, nullptr, file), PathErr::None);
    EXPECT_FALSE(withoutFolder.isShortCut());

    CNavPathname url;
    CString address = L"http://host/a";
    EXPECT_EQ(url.Parse(item.get(), &folder, nullptr, address), PathErr::NotFileSystem);
    EXPECT_FALSE(url.isShortCut()) << "the folder is not asked after a failure";
    CNavPathname nothing;
    CString none;
    EXPECT_NE(nothing.Parse(nullptr, nullptr, nullptr, none), PathErr::None);
}

class ExtractingPathname : public CNavPathname {
public:
    using CNavPathname::ExtractString;
};

TEST(CNavPathname, ExtractsShortTextsOnly) {
    ExtractingPathname pathname;
    const std::wstring text(300, L'a');
    CString out = L"old";
    pathname.ExtractString(text.c_str(), 0, out);
    pathname.ExtractString(text.c_str(), 260, out);
    pathname.ExtractString(nullptr, 5, out);
    EXPECT_EQ(out, L"old");
    pathname.ExtractString(text.c_str(), 259, out);
    EXPECT_EQ(out.GetLength(), 259);
    pathname.ExtractString(L"ab", 100, out);
    EXPECT_EQ(out, L"ab") << "not behind the end of the text";
}

}  // namespace
