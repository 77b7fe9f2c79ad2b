// Every function of lists, folders and names, on items of every kind in the system's own namespace. What is right is
// what the system's functions for the same purpose say.
#include <knav/CNavPathname.h>
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

#include <gtest/gtest.h>

#include "shell/FolderCalls.h"
#include "support/RealNamespace.h"

namespace {

using namespace knav;
using namespace knav::test;

enum class Kind { Root, Folder, File, Shortcut };

struct RealItem {
    const char* why;
    Kind kind;
    ItemList list;
    CString path;  // as it can be parsed; empty for the desktop
};

class RealItems : public testing::Test {
protected:
    RealItems() {
        m_items.push_back({"the desktop", Kind::Root, makeList({}), L""});
        add("My Computer", Kind::Root, L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");
        add("a drive", Kind::Root, L"C:\\");
        const CString three = m_temp.addFolder(L"one\\two\\three \u00c4\u4e16");
        add("the first folder", Kind::Folder, m_temp.path(L"one"));
        add("the second folder", Kind::Folder, m_temp.path(L"one\\two"));
        add("the third folder, not ASCII", Kind::Folder, three);
        const CString file = m_temp.addFile(L"one\\two\\three \u00c4\u4e16\\plan \u00fc.dwg");
        add("a file three deep, not ASCII", Kind::File, file);
        add("a file without extension", Kind::File, m_temp.addFile(L"readme"));
        add("a shortcut to a folder", Kind::Shortcut, addShortcut(m_temp, L"folder \u4e16.lnk", three));
        add("a shortcut to a file", Kind::Shortcut, addShortcut(m_temp, L"one\\file.lnk", file));
        add("a path of 259 characters", Kind::File, addLongestFile());
    }

    const ItemList& listOf(std::string_view why) const { return std::ranges::find(m_items, why, &RealItem::why)->list; }

    ScopedTempFolder m_temp;
    std::vector<RealItem> m_items;
    CNavShell m_shell;

private:
    void add(const char* why, Kind kind, const CString& path) {
        m_items.push_back({why, kind, parsed(path), path});
        EXPECT_TRUE(m_items.back().list) << why;
    }

    CString addLongestFile() {
        CString name = L"fifteen letters";
        while (m_temp.path(name).GetLength() < 220) {
            name += L"\\fifteen letters";
        }
        name += L"\\";
        name += CString(L'x', MAX_PATH - 1 - m_temp.path(name).GetLength());
        const CString path = m_temp.addFile(name);
        EXPECT_EQ(path.GetLength(), 259);
        return path;
    }
};

TEST_F(RealItems, HaveTheNamesThatTheirFoldersGive) {
    for (const RealItem& item : m_items) {
        SCOPED_TRACE(item.why);
        CString name;
        wchar_t* absolute = nullptr;
        ASSERT_EQ(SHGetNameFromIDList(item.list.get(), SIGDN_DESKTOPABSOLUTEPARSING, &absolute), S_OK);
        EXPECT_TRUE(NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, item.list.get(), name));
        EXPECT_STREQ(name, absolute);
        EXPECT_TRUE(NavGetItemNameForParsing(nullptr, item.list.get(), name));
        EXPECT_STREQ(name, absolute);
        CoTaskMemFree(absolute);
        const Child child(item.list);
        ITEMIDLIST* const inFolder = listArgument(child.list);
        for (const DWORD flags : std::initializer_list<DWORD>{SHGDN_NORMAL, SHGDN_INFOLDER,
                                                              SHGDN_INFOLDER | SHGDN_FORPARSING, SHGDN_FORPARSING}) {
            STRRET strret{};
            wchar_t* expected = nullptr;
            const bool named = child.folder && SUCCEEDED(child.folder->GetDisplayNameOf(child.list, flags, &strret)) &&
                               SUCCEEDED(StrRetToStrW(&strret, child.list, &expected)) && expected[0] != 0;
            EXPECT_EQ(NavGetItemDisplayName(flags, child.folder.get(), inFolder, name) != 0, named) << flags;
            EXPECT_STREQ(name, named ? expected : L"") << flags;
            CoTaskMemFree(expected);
        }
        if (item.kind != Kind::Root) {
            const CString leaf = item.path.Mid(item.path.ReverseFind(L'\\') + 1);
            EXPECT_TRUE(NavGetItemNameWithExtensionInFolder(child.folder.get(), inFolder, name));
            EXPECT_EQ(name, leaf);
            EXPECT_TRUE(NavGetItemNameInFolder(child.folder.get(), inFolder, name));
            EXPECT_EQ(leaf.Find(name), 0);
        }
    }
}

TEST_F(RealItems, QualifyToTheListThatTheSystemParses) {
    for (const RealItem& item : m_items) {
        SCOPED_TRACE(item.why);
        const auto byPath = ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(item.path));
        EXPECT_EQ(static_cast<bool>(byPath), !item.path.IsEmpty());
        if (item.path.IsEmpty()) {
            continue;
        }
        EXPECT_TRUE(isSame(byPath, item.list));
        const Child child(item.list);
        ASSERT_TRUE(child.folder);
        const auto byChild =
            ItemList::adopt(NavGetQualifiedItemList(m_shell, child.folder.get(), listArgument(child.list)));
        EXPECT_TRUE(isSame(byChild, item.list));
        EXPECT_EQ(NavGetQualifiedItemList(nullptr, child.folder.get(), listArgument(child.list)), nullptr);
        EXPECT_EQ(NavGetQualifiedItemList(m_shell, child.folder.get(), nullptr), nullptr);
    }
    EXPECT_EQ(NavGetQualifiedItemList(m_shell, nullptr, m_items.back().list.get()), nullptr);
    const CString tooLong = m_items.back().path + L"x";
    EXPECT_TRUE(m_temp.addFile(tooLong.Mid(m_temp.path().GetLength() + 1)) == tooLong);
    for (const CString& path : {tooLong, m_temp.path(L"*"), m_temp.path(L"missing")}) {
        EXPECT_EQ(NavGetQualifiedItemListFromFolderFullPath(path), nullptr) << utf8(path.view());
    }
    EXPECT_EQ(NavGetQualifiedItemListFromFolderFullPath(nullptr), nullptr);
}

TEST_F(RealItems, CompareAsTheSystemComparesThem) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    for (const RealItem& a : m_items) {
        for (const RealItem& b : m_items) {
            SCOPED_TRACE(std::string(a.why) + " and " + b.why);
            const auto copy = ItemList::copyOf(b.list.get());
            const int order = NavCompareFolderItems(desktop.get(), a.list.get(), copy.get());
            const auto expected = static_cast<short>(HRESULT_CODE(desktop->CompareIDs(0, a.list.get(), b.list.get())));
            EXPECT_EQ(order, expected);
            EXPECT_EQ(order == 0, ILIsEqual(a.list.get(), b.list.get()) != FALSE);
            EXPECT_EQ(NavCompareFolderItems(nullptr, a.list.get(), copy.get()), 0);
        }
        EXPECT_LT(NavCompareFolderItems(desktop.get(), nullptr, a.list.get()), 0);
        EXPECT_GT(NavCompareFolderItems(desktop.get(), a.list.get(), nullptr), 0);
    }
}

TEST_F(RealItems, LeadToTheirFoldersAndTargets) {
    for (const RealItem& item : m_items) {
        SCOPED_TRACE(item.why);
        const auto folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(item.list.get()));
        EXPECT_EQ(static_cast<bool>(folder), item.kind == Kind::Root || item.kind == Kind::Folder);
        if (folder) {
            EXPECT_TRUE(isSame(placeOf(folder.get()), item.list));
        }
        const auto target = ItemList::adopt(NavResolveLink(item.list.get(), 0));
        const auto recorded = ItemList::adopt(NavGetLinkIDList(item.list.get()));
        EXPECT_EQ(static_cast<bool>(target), item.kind == Kind::Shortcut);
        EXPECT_EQ(static_cast<bool>(recorded), item.kind == Kind::Shortcut);
    }
    const auto toFolder = ItemList::adopt(NavResolveLink(listOf("a shortcut to a folder").get(), 0));
    EXPECT_TRUE(isSame(toFolder, listOf("the third folder, not ASCII")));
    EXPECT_TRUE(ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(toFolder.get())));
    const auto toFile = ItemList::adopt(NavResolveLink(listOf("a shortcut to a file").get(), 0));
    EXPECT_TRUE(isSame(toFile, listOf("a file three deep, not ASCII")));
    const ItemList documents = special(CSIDL_PERSONAL);
    const ItemList link = parsed(addShortcut(m_temp, L"documents.lnk", L"", documents.get()));
    EXPECT_THAT(ItemList::adopt(NavResolveLink(link.get(), 0)).get(), HoldsSameBytes(documents.get()))
        << "a virtual folder with a path stays what it is";
    const ItemList damaged = parsed(m_temp.addFile(L"damaged.lnk", "this is no shortcut"));
    for (ITEMIDLIST* const list : {damaged.get(), static_cast<ITEMIDLIST*>(nullptr)}) {
        EXPECT_EQ(NavResolveLink(list, 0), nullptr);
        EXPECT_EQ(NavGetLinkIDList(list), nullptr);
    }
}

TEST_F(RealItems, BecomePathNamesOfTheirKind) {
    for (const RealItem& item : m_items) {
        if (item.kind == Kind::Root) {
            continue;
        }
        SCOPED_TRACE(item.why);
        const Child child(item.list);
        const auto parent = ItemList::adopt(NavBuildParentList(m_shell, item.list.get()));
        CString name;
        NavGetItemNameForParsing(child.folder.get(), listArgument(child.list), name);
        for (ITEMIDLIST* const list : {listArgument(child.list), item.list.get()}) {
            CNavPathname pathname;
            EXPECT_EQ(pathname.Parse(list, child.folder.get(), parent.get(), name), PathErr::None);
            EXPECT_EQ(pathname.GetType(),
                      item.kind == Kind::Folder ? CZoUiPathname::Directory : CZoUiPathname::ExistingFile);
            EXPECT_EQ(pathname.isShortCut(), item.kind == Kind::Shortcut);
            EXPECT_STREQ(pathname.GetPathString(), item.path);
        }
        CNavPathname unasked;
        EXPECT_EQ(unasked.Parse(item.list.get(), nullptr, nullptr, name), PathErr::None);
        EXPECT_FALSE(unasked.isShortCut()) << "there is no folder to ask";
    }
    CString url = L"http://host/a";
    CString nothing;
    EXPECT_EQ(CNavPathname().Parse(m_items.back().list.get(), nullptr, nullptr, url), PathErr::NotFileSystem);
    EXPECT_EQ(CNavPathname().Parse(nullptr, nullptr, nullptr, nothing), PathErr::Empty);
}

}  // namespace
