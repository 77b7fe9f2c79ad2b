// Lists that somebody stored, damaged or cut off: whatever the shell makes of them, the process and its memory survive.
#include <knav/CNavPathname.h>
#include <knav/CNavTree.h>
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

#include <gtest/gtest.h>

#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/ItemNames.h"
#include "shell/SpecialItems.h"
#include "support/RealNamespace.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

// Every function that takes a list, on lists of a real file, a real shortcut and an item of an extension.
class HostileLists : public testing::Test {
protected:
    HostileLists() {
        const CString file = m_temp.addFile(L"sub\\plan \u00e4.dwg");
        m_root->add(L"site", SFGAO_FOLDER, FakeFolder::make(L"site"));
        const CNavExtension& extension = m_registered.add(L"Foo", m_root);
        m_wholes.push_back(bytesOf(parsed(file).get()));
        m_wholes.push_back(bytesOf(parsed(addShortcut(m_temp, L"s.lnk", file)).get()));
        m_wholes.push_back(bytesOf(ItemList::join(extension.GetID(), FakeFolder::item(L"site").get()).get()));
    }

    void takeApart(ITEMIDLIST* list) {
        ItemList::adopt(NavCopyItemList(m_shell, list)).reset();
        ItemList::adopt(NavExtractItemElement(m_shell, list)).reset();
        ItemList::adopt(NavBuildParentList(m_shell, list)).reset();
        ITEMIDLIST* twice[] = {list, list};
        ItemList::adopt(NavBuildItemList(m_shell, twice, 2)).reset();
        for (ITEMIDLIST* element = list; element != nullptr; element = NavGetNextItemElement(element)) {
        }
        NavIsItemListQualified(list);
        NavGetExtensionNameFromItem(list, m_name);
        NavFindExtensionForItem(list);
    }

    void askTheShell(ITEMIDLIST* list) {
        NavGetItemNameInFolder(nullptr, list, m_name);
        NavGetItemNameWithExtensionInFolder(m_desktop.get(), list, m_name);
        NavGetItemNameForParsing(m_desktop.get(), list, m_name);
        NavGetItemLastPathComponent(nullptr, list, m_name);
        ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(m_name)).reset();
        NavReleaseFolder(NavGetFolderFromDesktop(list));
        NavReleaseFolder(NavGetFolderFromExtensionItem(list));
        ItemList::adopt(NavGetQualifiedItemList(m_shell, m_desktop.get(), list)).reset();
        ItemList::adopt(NavResolveLink(list, 0)).reset();
        ItemList::adopt(NavGetLinkIDList(list)).reset();
        NavCompareFolderItems(m_desktop.get(), list, m_drives.get());
        NavCompareFolderItems(m_desktop.get(), m_drives.get(), list);
        NavIsDesktop(list);
        NavIsNetwork(list);
        NavIsInternetSiteItem(list);
        NavIsWebFoldersItem(list);
        m_tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, list);
        m_tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, nullptr);
        for (ITEMIDLIST* const parent : {list, m_drives.get()}) {
            CNavPathname pathname;
            CString name = L"C:\\plan.dwg";
            pathname.Parse(list, m_desktop.get(), parent, name);
            pathname.Parse(m_drives.get(), m_desktop.get(), list, name);
        }
    }

    // Whether the shell's own calls leave nothing behind for this list: it loses memory over some damaged ones.
    bool isShellTight(ITEMIDLIST* list) {
        const LONG before = AllocationSpy::live();
        if (auto strret = displayNameOf(m_desktop.get(), list, SHGDN_FORPARSING)) {
            StrRetToStrW(&*strret, list, &m_text);
            CoTaskMemFree(std::exchange(m_text, nullptr));
        }
        bindFolder(m_desktop.get(), list).reset();
        uiObjectOf<IShellFolder>(m_desktop.get(), list).reset();
        ComPtr<IShellFolder> folder = m_desktop;
        for (ITEMIDLIST* element = list; element != nullptr && folder; element = NavGetNextItemElement(element)) {
            const ItemList single = ItemList::firstOf(element);
            attributesOf(folder.get(), single.get(), SFGAO_FOLDER);
            folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromItem(folder.get(), single.get()));
        }
        return AllocationSpy::live() == before;
    }

    ScopedTempFolder m_temp;
    RegisteredForTest m_registered;
    ComPtr<FakeFolder> m_root = FakeFolder::make(L"root");
    ComPtr<IShellFolder> m_desktop = desktopFolder();
    ItemList m_drives = special(CSIDL_DRIVES);
    std::vector<std::vector<BYTE>> m_wholes;
    CNavShell m_shell;
    CNavTree m_tree;
    CString m_name;
    wchar_t* m_text = nullptr;
    PageEnd m_page;
};

TEST_F(HostileLists, CutAtEveryByteByTheEndOfMemory) {
    for (std::vector<BYTE>& whole : m_wholes) {
        askTheShell(asList(whole));  // fills the system's caches
    }
    const LONG before = AllocationSpy::live();
    for (const std::vector<BYTE>& whole : m_wholes) {
        for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
            ITEMIDLIST* const list = m_page.put(whole.data(), cut);
            EXPECT_EQ(isWhole(list), cut == whole.size()) << cut;
            takeApart(list);
            askTheShell(list);
        }
    }
    EXPECT_EQ(AllocationSpy::live(), before);
}

// Calls `visit` with a list for every value that each byte of each count can be given.
template <class Visit>
void forEachWrongCount(const std::vector<BYTE>& whole, PageEnd& page, Visit visit) {
    std::vector<BYTE> bytes = whole;
    const auto countAt = [&whole](std::size_t at) { return whole[at] + std::size_t{256} * whole[at + 1]; };
    for (std::size_t at = 0; countAt(at) != 0; at += countAt(at)) {
        for (const std::size_t position : {at, at + 1}) {
            for (int value = 0; value <= 0xFF; ++value) {
                bytes[position] = static_cast<BYTE>(value);
                visit(page.put(bytes.data(), bytes.size()), value);
            }
            bytes[position] = whole[position];
        }
    }
}

TEST_F(HostileLists, WithEveryWrongCountInHandAndManyGivenToTheShell) {
    int lists = 0;
    int tight = 0;
    for (const std::vector<BYTE>& whole : m_wholes) {
        forEachWrongCount(whole, m_page, [&](ITEMIDLIST* list, int value) {
            const LONG before = AllocationSpy::live();
            takeApart(list);
            EXPECT_EQ(AllocationSpy::live(), before) << value;
            ++lists;
            if (value > 12 && value % 32 != 21 && value != 0xFF) {
                return;
            }
            askTheShell(list);
            if (!isShellTight(list)) {
                return;
            }
            const LONG asked = AllocationSpy::live();
            askTheShell(list);
            EXPECT_EQ(AllocationSpy::live(), asked) << value;
            ++tight;
        });
    }
    EXPECT_GT(lists, 5000);
    EXPECT_GT(tight, 500);
}

}  // namespace
