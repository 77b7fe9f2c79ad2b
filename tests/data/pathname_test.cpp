#include <knav/CNavPathname.h>

#include <intshcut.h>

#include "shell/ExtensionItems.h"
#include "shell/ItemList.h"
#include "shell/SiteLocation.h"
#include "support/AllocationSpy.h"
#include "support/FakeFolder.h"
#include "support/RealNamespace.h"

namespace {

using knav::ItemList;
using knav::test::AllocationSpy;
using knav::test::FakeFolder;
using knav::test::parsed;
using knav::test::ScopedTempFolder;
using knav::test::special;

CString fullPath(const CNavPathname& pathname) {
    CString path;
    pathname.GetFullPath(path);
    return path;
}

CNavPathname pathnameOf(const wchar_t* text) {
    CNavPathname pathname;
    pathname.Parse(text, true);
    return pathname;
}

TEST(CNavPathname, TakesThreeSchemesForUrlsAndOthersWhenTold) {
    struct Row {
        const wchar_t* text;
        bool isUrl;             // by itself
        const wchar_t* stored;  // when told that it is one; null: refused
    };
    constexpr Row rows[] = {
        {L"ftp://host/a", true, L"ftp://host/a"},
        {L"https://host/a?b", true, L"https://host/a?b"},
        {L"ftp://", true, nullptr},
        {L"HTTP://Host/A.dwg", false, L"http://Host/A.dwg"},
        {L" Ftp://host/a ", false, L"ftp://host/a"},
        {L"ftp:/host", false, nullptr},
        {L"file:///C:/plan.dwg", false, L"file:///C:/plan.dwg"},
        {L"MAILTO:A@b", false, L"mailto:A@b"},
        {L"C:\\plan.dwg", false, nullptr},
        {nullptr, false, nullptr},
    };
    for (const Row& row : rows) {
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
        CNavPathname told;
        EXPECT_EQ(told.SetURL(row.text) != 0, row.stored != nullptr);
        EXPECT_EQ(told.GetIsURL() && told.GetIsExtension(), row.stored != nullptr);
        EXPECT_EQ(fullPath(told), row.stored);
    }
}

TEST(CNavPathname, SaysWhetherThereIsNoTrailingSlash) {
    const ScopedTempFolder folder;
    folder.addFile(L"there.txt");
    folder.addFolder(L"sub");
    const std::pair<const wchar_t*, bool> rows[] = {
        {L"new.txt", true}, {L"*.txt", true},  {L"there.txt", true},
        {L"sub", true},     {L"sub\\", false}, {L"missing\\a.txt", false},
    };
    for (const auto& [name, noSlash] : rows) {
        EXPECT_EQ(pathnameOf(folder.path(name)).hasTrailingSlash(), noSlash) << knav::test::utf8(name);
    }
    EXPECT_FALSE(CNavPathname().hasTrailingSlash());
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
        {L"ftp://host/dir/", L"ftp://host", L"host", L""},
        {L"ftp://host\\dir\\f", L"ftp://host", L"host", L"host\\dir\\f"},
        {L"ftp://me:pw@host:21/f", L"ftp://me:pw@host:21", L"me:pw@host:21", L"f"},
        {L"ftp://", L"", L"", L""},
        {L"ftp:///f", L"ftp://", L"", L"f"},
        {L"http://a/b://c/d", L"http://a", L"a", L"d"},
    };
    for (const LocationRow& row : rows) {
        SCOPED_TRACE(knav::test::utf8(row.location));
        const CNavPathname pathname = pathnameOf(row.location);
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
    EXPECT_EQ(knav::lastName(L"store\\shelf"), L"shelf") << "without a slash";
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
        {"a separator at the end stays", L"ftp://host/a/", L"ftp://host/a/"},
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
    const auto object = FakeFolder::make(L"");
    const ItemList list = FakeFolder::item(L"x.lnk");
    const ScopedTempFolder temp;
    CString file = temp.addFile(L"x.lnk");
    object->add(L"x.lnk", SFGAO_LINK);
    const LONG before = AllocationSpy::live();
    {
        CNavPathname source;
        EXPECT_EQ(source.Parse(list.get(), object.get(), nullptr, file), PathErr::None);
        source.SetIsURL(true);
        source.SetID(list.get());
        source.SetAttachedObject(object.get());
        EXPECT_EQ(object->references(), 2);

        const CNavPathname copy(source);
        EXPECT_EQ(object->references(), 2) << "the copy takes no reference";
        CNavPathname assigned;
        assigned = source;
        source = &assigned;  // the target's own stay
        source = static_cast<const CNavPathname*>(nullptr);
        for (const CNavPathname* const each :
             {&copy, static_cast<const CNavPathname*>(&assigned), static_cast<const CNavPathname*>(&source)}) {
            const bool all = each != &assigned;
            EXPECT_EQ(each->isShortCut(), all);
            EXPECT_EQ(each->GetID(), all ? list.get() : nullptr);
            EXPECT_EQ(each->GetAttachedObject(), all ? object.get() : nullptr);
            EXPECT_TRUE(each->GetIsURL());
            EXPECT_EQ(each->GetType(), CZoUiPathname::ExistingFile);
            EXPECT_STREQ(each->GetPathString(), file);
        }
    }
    EXPECT_EQ(object->references(), 1) << "and releases none";
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(CNavPathname, ReportsWhatTheAttachedObjectSays) {
    CString prefix = L"old";
    CNavPathname pathname;
    EXPECT_EQ(pathname.GetAttachedPrefix(prefix), 0);
    EXPECT_EQ(prefix, L"");
    const auto mute = FakeFolder::make(L"");
    pathname.SetAttachedObject(mute.get());
    EXPECT_EQ(pathname.GetAttachedPrefix(prefix), 0);

    IUniformResourceLocatorW* locator = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_InternetShortcut, nullptr, CLSCTX_INPROC_SERVER, IID_IUniformResourceLocatorW,
                               reinterpret_cast<void**>(&locator)),
              S_OK);
    locator->SetURL(L"ftp://host/dir/", 0);
    pathname.SetAttachedObject(locator);
    EXPECT_EQ(mute->references(), 1);
    EXPECT_EQ(locator->Release(), 1u);
    EXPECT_EQ(pathname.GetAttachedPrefix(prefix), 1);
    EXPECT_EQ(prefix, L"ftp://host/dir/");
}

// Items of the extension "Store".
ItemList storeRoot() {
    return ItemList::adopt(knav::buildExtensionRootItem(CNavShell(), L"Store"));
}

ItemList inStore(const wchar_t* name) {
    return ItemList::join(storeRoot().get(), FakeFolder::item(name).get());
}

TEST(CNavPathname, TakesItemsOfExtensionsAndSitesAsTheyAre) {
    struct Row {
        const char* why;
        ItemList item;
        ItemList parent;
        CZoUiPathname::Type type;
        bool isUrl = false;
    };
    const ItemList drawer = FakeFolder::item(L"drawer");
    const ItemList internet = special(CSIDL_INTERNET);
    const ItemList webFolders =
        parsed(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{BDEADF00-C265-11D0-BCED-00A0C90AB50F}");
    const Row rows[] = {
        {"a child item", inStore(L"sheet"), storeRoot(), CZoUiPathname::ExistingFile},
        {"a child item that is a folder", inStore(L"drawer"), storeRoot(), CZoUiPathname::Directory},
        {"a site, known by its parent", FakeFolder::item(L"shelf"), storeRoot(), CZoUiPathname::Directory},
        {"an internet site", ItemList::join(internet.get(), drawer.get()), ItemList::copyOf(internet.get()),
         CZoUiPathname::Directory, true},
        {"the Web Folders", ItemList::copyOf(webFolders.get()), {}, CZoUiPathname::Directory, true},
        {"an item below the Web Folders", ItemList::join(webFolders.get(), drawer.get()),
         ItemList::copyOf(webFolders.get()), CZoUiPathname::Directory, true},
    };
    const auto folder = FakeFolder::make(L"");
    folder->add(L"drawer", SFGAO_FOLDER).add(L"sheet", 0);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        CNavPathname pathname;
        CString name = L"store://shelf";
        EXPECT_EQ(pathname.Parse(row.item.get(), folder.get(), row.parent.get(), name), PathErr::None);
        EXPECT_EQ(pathname.GetIsExtension(), !row.isUrl);
        EXPECT_EQ(pathname.GetIsURL(), row.isUrl);
        EXPECT_EQ(pathname.GetType(), row.type);
        EXPECT_EQ(pathname.Exists(), 1);
        EXPECT_EQ(fullPath(pathname), L"store://shelf");
        EXPECT_FALSE(pathname.hasTrailingSlash());
    }
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
