#include "shell/ExtensionItems.h"

#include <gtest/gtest.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <platform/GdiOwners.h>

#include "support/RealNamespace.h"
#include "support/RegistryRedirect.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

// A list of raw text elements, as an extension's root and items below it look.
ItemList textList(std::initializer_list<std::wstring_view> texts) {
    ItemList list = makeList({});
    for (const std::wstring_view text : texts) {
        const std::string_view bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
        list = ItemList::join(list.get(), makeList({bytes}).get());
    }
    return list;
}

constexpr std::wstring_view operator""_z(const wchar_t* text, std::size_t length) {
    return {text, length + 1};  // with its terminator
}

TEST(ExtensionRoot, IsOneElementWithThePrefixAndTheName) {
    CNavExtension extension;
    extension.SetName(L"A");
    EXPECT_EQ(extension.CreateID(), 1);
    EXPECT_EQ(NavGetItemElementSize(extension.GetID()), 26);
    EXPECT_THAT(extension.GetID(), HoldsSameBytes(textList({L"Extension-A"_z}).get()));
    EXPECT_TRUE(NavIsExtensionRootItem(extension.GetID()));
    extension.SetName(CString(L'x', 40'000));
    EXPECT_EQ(extension.CreateID(), 0) << "does not fit into an element";
    EXPECT_EQ(extension.GetID(), nullptr);
}

TEST(ExtensionItem, KindFollowsFromPrefixAndElements) {
    using enum ExtensionItem;
    struct Row {
        const char* why;
        ItemList list;
        ExtensionItem kind;
        const wchar_t* name;
    };
    const Row rows[] = {
        {"null", ItemList(), None, L""},
        {"desktop", makeList({}), None, L""},
        {"shell item", makeList({"some bytes that are long enough for a prefix"}), None, L""},
        {"root", textList({L"Extension-Foo"_z}), Root, L"Foo"},
        {"root without an end of its text", textList({L"Extension-Foo"}), Root, L"Foo"},
        {"root without a name", textList({L"Extension-"_z}), Root, L""},
        {"text behind the end is not the name", textList({L"Extension-Foo\0bar"_z}), Root, L"Foo"},
        {"prefix too short", textList({L"Extension"_z}), None, L""},
        {"prefix in other letters", textList({L"extension-Foo"_z}), None, L""},
        {"child", textList({L"Extension-Foo"_z, L"site"}), Child, L"Foo"},
        {"deeper child", textList({L"Extension-Foo"_z, L"site", L"x"}), Child, L"Foo"},
        {"root element that is not the first", textList({L"site", L"Extension-Foo"_z}), None, L""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        ITEMIDLIST* const list = row.list.get();
        EXPECT_EQ(NavIsExtensionRootItem(list) != 0, row.kind == Root);
        EXPECT_EQ(NavIsExtensionChildItem(list) != 0, row.kind == Child);
        EXPECT_EQ(NavIsExtensionItem(list) != 0, row.kind != None);
        CString name = L"old";
        NavGetExtensionNameFromItem(list, name);
        EXPECT_EQ(name, row.name);
    }
}

// An extension with a site in it that holds a plan.
class Extensions : public testing::Test {
protected:
    Extensions() {
        m_root->add(L"site", SFGAO_FOLDER, m_site);
        m_site->add(L"plan", 0);
    }

    ItemList item(std::wstring_view path) const { return below(m_foo, path); }
    static ItemList below(const CNavExtension& extension, std::wstring_view path) {
        return ItemList::join(extension.GetID(), FakeFolder::item(path).get());
    }

    RegisteredForTest m_registered;
    ComPtr<FakeFolder> m_site = FakeFolder::make(L"site");
    ComPtr<FakeFolder> m_root = FakeFolder::make(L"root");
    CNavExtension& m_foo = m_registered.add(L"Foo", m_root);
    LONG m_references = m_root->references();
};

TEST_F(Extensions, AreFoundByNameAndByItemIgnoringCase) {
    CNavExtension& bar = m_registered.add(L"Bar", m_root);
    m_registered.add(L"FOO", m_root);
    EXPECT_EQ(NavFindExtensionByName(L"BAR"), &bar);
    EXPECT_EQ(NavFindExtensionByName(L"foo"), &m_foo) << "the first registered";
    EXPECT_EQ(NavFindExtensionByName(L"fo"), nullptr);
    EXPECT_EQ(NavFindExtensionByName(L""), nullptr);
    EXPECT_EQ(NavFindExtensionByName(nullptr), nullptr);
    EXPECT_EQ(NavFindExtensionForItem(textList({L"Extension-FOO"_z}).get()), &m_foo);
    EXPECT_EQ(NavFindExtensionForItem(textList({L"Extension-bar"_z, L"site"}).get()), &bar);
    EXPECT_EQ(NavFindExtensionForItem(textList({L"Extension-Other"_z}).get()), nullptr);
    EXPECT_EQ(NavFindExtensionForItem(makeList({"shell item"}).get()), nullptr);
}

TEST_F(Extensions, FolderComesFromTheirRootAndNotFromTheParent) {
    const auto parent = FakeFolder::make(L"parent");
    {
        const auto root = ComPtr<IShellFolder>::adopt(NavGetFolderFromItem(parent.get(), m_foo.GetID()));
        EXPECT_EQ(root.get(), m_root.get());
        EXPECT_EQ(m_root->references(), m_references + 1);
        const auto below = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(item(L"site").get()));
        EXPECT_EQ(below.get(), m_site.get());
    }
    EXPECT_EQ(m_root->references(), m_references);
    EXPECT_EQ(parent->calls(FolderCall::BindToObject), 0);
    EXPECT_EQ(NavGetFolderFromItem(parent.get(), textList({L"Extension-None"_z}).get()), nullptr);
    EXPECT_EQ(NavGetFolderFromItem(parent.get(), textList({L"Extension-None"_z, L"site"}).get()), nullptr);
    EXPECT_EQ(NavGetFolderFromExtensionItem(m_foo.GetID()), nullptr) << "the root is no child";
    EXPECT_EQ(NavGetFolderFromExtensionItem(item(L"missing").get()), nullptr);
}

TEST_F(Extensions, FolderOfAnItemIsItsUiObjectWhenBindingFails) {
    const ItemList site = FakeFolder::item(L"site");
    for (const bool throughUiObject : {false, true}) {
        m_root->setBindThroughUiObject(throughUiObject);
        const auto folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromItem(m_root.get(), site.get()));
        EXPECT_EQ(folder.get(), m_site.get());
        EXPECT_EQ(m_root->calls(FolderCall::GetUIObjectOf), throughUiObject);
    }
}

TEST_F(Extensions, CompareByNamesOfTheirOwn) {
    const CNavExtension& bar = m_registered.add(L"bar", m_root);
    const CNavExtension& unloaded = m_registered.add(L"unloaded");
    const auto root = [](std::wstring_view text) { return textList({text}); };
    struct Row {
        const char* why;
        ItemList left, right;
        int order;
    };
    const Row rows[] = {
        {"roots by name", root(L"Extension-Foo"), root(L"Extension-bar"), 1},
        {"roots by name, reversed", root(L"Extension-bar"), root(L"Extension-Foo"), -1},
        {"roots ignoring case", root(L"Extension-Foo"), root(L"Extension-FOO"), 0},
        {"children by parsing name", item(L"site"), item(L"site/plan"), -1},
        {"children ignoring case", item(L"site"), item(L"SITE"), 0},
        {"children of two extensions in the first one's folder", item(L"site"), below(bar, L"site"), 0},
        {"unloaded extension on the left", below(unloaded, L"site"), item(L"site"), -1},
        {"unloaded extension on the right", item(L"site"), below(unloaded, L"site"), -1},
        {"shell item on the left", FakeFolder::item(L"site"), item(L"site"), -1},
        {"child of no extension", textList({L"Extension-zzz"_z, L"site"}), item(L"site"), -1},
    };
    const auto folder = FakeFolder::make(L"desktop");
    for (const Row& row : rows) {
        const int order = NavCompareFolderItems(folder.get(), row.left.get(), row.right.get());
        EXPECT_EQ((order > 0) - (order < 0), row.order) << row.why;
    }
    EXPECT_EQ(folder->calls(FolderCall::CompareIDs), 0);
    NavCompareFolderItems(folder.get(), m_foo.GetID(), root(L"Extension-zzz").get());
    EXPECT_EQ(folder->calls(FolderCall::CompareIDs), 1) << "a root that no extension matches is an ordinary item";
}

TEST_F(Extensions, NamesInsideAreParsedBehindTheirScheme) {
    const ItemList expected = item(L"site/plan");
    for (const wchar_t* const path : {L"site/plan", L"foo://site/plan"}) {
        EXPECT_THAT(ItemList::adopt(NavBuildExtensionItemList(&m_foo, path)).get(), HoldsSameBytes(expected.get()));
        EXPECT_EQ(m_foo.GetItemListFromName(path), nullptr) << "names cannot be parsed";
        m_foo.SetAttributes(3);
        EXPECT_THAT(ItemList::adopt(m_foo.GetItemListFromName(path)).get(), HoldsSameBytes(expected.get()));
        m_foo.SetAttributes(2);
    }
    for (const wchar_t* const path : {L"missing", L"foo://", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_EQ(NavBuildExtensionItemList(&m_foo, path), nullptr);
    }
    EXPECT_EQ(NavBuildExtensionItemList(nullptr, L"site"), nullptr);
    EXPECT_EQ(NavBuildExtensionItemList(&m_registered.add(L"unloaded"), L"site"), nullptr);
}

TEST_F(Extensions, OwnTheirFolderAndTheirItem) {
    expectNoTaskMemoryLeft([this] {
        CNavExtension extension;
        extension.SetRootFolder(m_root.get());
        extension.SetRootFolder(m_root.get());
        extension.SetID(makeList({"a"}).release());
        extension.SetID(makeList({"b"}).release());
        extension.SetID(extension.GetID());
        EXPECT_THAT(extension.GetID(), HoldsSameBytes(makeList({"b"}).get()));
        EXPECT_EQ(m_root->references(), m_references + 1);
    });
    EXPECT_EQ(m_root->references(), m_references);
}

TEST_F(Extensions, RootFolderIsCreatedOnceAndOnDemand) {
    CLSID myComputer{};
    ASSERT_EQ(CLSIDFromString(L"{20D04FE0-3AEA-1069-A2D8-08002B30309D}", &myComputer), S_OK);
    CNavExtension& extension = m_registered.add(L"later");
    EXPECT_EQ(extension.FetchRootFolder(), nullptr) << "no class is known";
    extension.SetRootFolderCLSID(myComputer);
    const auto first = ComPtr<IShellFolder>::adopt(extension.FetchRootFolder());
    const auto second = ComPtr<IShellFolder>::adopt(extension.FetchRootFolder());
    EXPECT_TRUE(isSame(placeOf(first.get()), special(CSIDL_DRIVES)));
    EXPECT_EQ(second.get(), first.get());
    EXPECT_EQ(extension.GetRootFolder(), first.get());
}

TEST_F(Extensions, PictureIsHandedOutAsACopy) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, 3, 2, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    EXPECT_EQ(m_foo.GetBitmapCopy(), nullptr);
    void* pixels = nullptr;
    m_foo.SetBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    std::memset(pixels, 0x5A, 3 * 2 * 4);
    const zoui::UniqueBitmap copy(m_foo.GetBitmapCopy());
    DIBSECTION section{};
    ASSERT_EQ(GetObjectW(copy.get(), sizeof section, &section), static_cast<int>(sizeof section));
    EXPECT_EQ(section.dsBm.bmWidth, 3);
    EXPECT_EQ(section.dsBm.bmHeight, 2);
    EXPECT_EQ(section.dsBm.bmBitsPixel, 32);
    EXPECT_NE(section.dsBm.bmBits, pixels);
    EXPECT_EQ(std::memcmp(section.dsBm.bmBits, pixels, 3 * 2 * 4), 0);
}

constexpr wchar_t kDisableKey[] = L"Software\\Kelvara\\Dialogs\\AllNavDialogs";

TEST_F(Extensions, AreSwitchedOffOnTheMachine) {
    RegistryRedirect machine(HKEY_LOCAL_MACHINE);
    const CNavExtension& ftp = m_registered.add(L"ftpSITES");
    EXPECT_FALSE(m_foo.IsFTP());
    EXPECT_TRUE(ftp.IsFTP());
    struct Row {
        const char* why;
        const wchar_t* value;
        DWORD data;
        int fooOff, ftpOff, allOff;
    };
    constexpr Row rows[] = {
        {"no value", nullptr, 0, 0, 0, 0},
        {"its own switch", L"FooExtensionOff", 1, 1, 0, 0},
        {"only bit 0 counts", L"FooExtensionOff", 2, 0, 0, 0},
        {"the switch of the FTP sites", L"ftpSITESExtensionOff", 3, 0, 1, 0},
        {"all", L"AllExtraExtensionsOff", 1, 1, 0, 1},
        {"all, only bit 0 counts", L"AllExtraExtensionsOff", 6, 0, 0, 0},
    };
    for (const Row& row : rows) {
        machine.remove(kDisableKey);
        if (row.value != nullptr) {
            machine.set(kDisableKey, row.value, row.data);
        }
        EXPECT_EQ(m_foo.IsDisabled(), row.fooOff) << row.why;
        EXPECT_EQ(ftp.IsDisabled(), row.ftpOff) << row.why;
        EXPECT_EQ(CNavExtension::AllDisabled(), row.allOff) << row.why;
    }
}

}  // namespace
