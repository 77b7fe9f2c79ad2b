#include "view/Admission.h"

#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "support/FakeFolder.h"
#include "support/Printers.h"
#include "support/RealNamespace.h"
#include "support/ScopedTempFolder.h"

#include <gtest/gtest.h>

#include <knav/CNavFilter.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

namespace {

using namespace knav;
using namespace knav::test;

constexpr SFGAOF kFile = SFGAO_FILESYSTEM;
constexpr SFGAOF kFolder = SFGAO_FOLDER | SFGAO_FILESYSTEM;
const wchar_t* const kComputersNearMe = L"::{d4480a50-ba28-11d1-8e75-00c04fa31a86}";

class AdmissionOf : public testing::Test {
protected:
    static void put(Admission& admission, ITEMIDLIST* place, const ComPtr<FakeFolder>& folder) {
        admission.setFolder(place, ComPtr<IShellFolder>::retain(folder.get()));
    }
    // Whether an item of a fake folder that stands at `place` is shown.
    bool ask(ITEMIDLIST* place, const wchar_t* name, SFGAOF attributes, const CNavFilter* filter, bool foldersOnly) {
        const auto folder = FakeFolder::make(L"folder");
        folder->add(name, attributes);
        Admission admission;
        put(admission, place, folder);
        return admission.allows(FakeFolder::item(name).get(), filter, foldersOnly);
    }

    ItemList m_plain = special(CSIDL_WINDOWS);
    ItemList m_drives = special(CSIDL_DRIVES);
    ItemList m_network = special(CSIDL_NETWORK);
};

TEST_F(AdmissionOf, Items_DependsOnAttributesFilterAndPlace) {
    CNavFilter drawings;
    drawings.Add(L"*.dwg");
    CNavFilter everything;
    const auto extension = ItemList::adopt(buildExtensionRootItem(CNavShell(), L"A"));
    const struct {
        const char* why;
        ITEMIDLIST* place;
        const wchar_t* name;
        SFGAOF attributes;
        const CNavFilter* filter;
        bool foldersOnly;
        bool shown;
    } rows[] = {
        {"no filter shows all", m_plain.get(), L"a.txt", 0, nullptr, false, true},
        {"a file that matches", m_plain.get(), L"a.DWG", kFile, &drawings, false, true},
        {"a file that does not", m_plain.get(), L"a.txt", kFile, &drawings, false, false},
        {"any file without patterns", m_plain.get(), L"a.txt", kFile, &everything, false, true},
        {"a file outside of the file system", m_plain.get(), L"a.dwg", 0, &everything, false, false},
        {"an ancestor is enough to ask the filter", m_plain.get(), L"a.dwg", SFGAO_FILESYSANCESTOR, &drawings, false,
         true},
        {"a file where only folders are wanted", m_plain.get(), L"a.dwg", kFile, &drawings, true, false},
        {"the same without a filter", m_plain.get(), L"a.dwg", kFile, nullptr, true, false},
        {"a folder whatever its name", m_plain.get(), L"a.txt", kFolder, &drawings, false, true},
        {"a folder where only folders are wanted", m_plain.get(), L"a", kFolder, nullptr, true, true},
        {"an ancestor of folders", m_plain.get(), L"a", SFGAO_FOLDER | SFGAO_FILESYSANCESTOR, &drawings, false, true},
        {"a foreign folder", m_plain.get(), L"a", SFGAO_FOLDER, &everything, false, false},
        {"a foreign folder in My Computer", m_drives.get(), L"a", SFGAO_FOLDER, &everything, false, false},
        {"a foreign folder in an extension", extension.get(), L"site", SFGAO_FOLDER, &everything, false, true},
        {"the computers near me in the network", m_network.get(), kComputersNearMe, 0, &drawings, false, true},
        {"something else in the network", m_network.get(), L"a.dwg", 0, &drawings, false, false},
        {"the computers near me elsewhere", m_plain.get(), kComputersNearMe, 0, &drawings, false, false},
        {"the computers near me are no folder", m_network.get(), kComputersNearMe, 0, &drawings, true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(ask(row.place, row.name, row.attributes, row.filter, row.foldersOnly), row.shown);
    }
}

TEST_F(AdmissionOf, MyComputerAndNetwork_AreShownThoughTheyAreForeignFolders) {
    CNavFilter drawings;
    drawings.Add(L"*.dwg");
    const auto desktop = special(CSIDL_DESKTOP);
    Admission admission;
    put(admission, desktop.get(), FakeFolder::make(L"desktop"));
    EXPECT_TRUE(admission.allows(m_drives.get(), &drawings, false));
    EXPECT_TRUE(admission.allows(m_network.get(), &drawings, true));
    EXPECT_FALSE(admission.allows(special(CSIDL_BITBUCKET).get(), &drawings, false));
    EXPECT_FALSE(admission.allows(nullptr, &drawings, false));
}

TEST_F(AdmissionOf, FolderThatCannotBeAsked_ShowsNothing) {
    CNavFilter everything;
    for (const Conduct conduct : {Conduct::Fails, Conduct::Faults, Conduct::Throws}) {
        const auto folder = FakeFolder::make(L"folder");
        folder->add(L"a.dwg", kFile);
        folder->set(FolderCall::GetAttributesOf, conduct);
        Admission admission;
        put(admission, m_plain.get(), folder);
        EXPECT_FALSE(admission.allows(FakeFolder::item(L"a.dwg").get(), &everything, false));
    }
    Admission unbound;
    unbound.setFolder(nullptr, nullptr);
    EXPECT_FALSE(unbound.allows(FakeFolder::item(L"a.dwg").get(), &everything, false));
}

TEST_F(AdmissionOf, ManyItems_NamesAreAskedOnlyWhereTheyDecide) {
    CNavFilter everything;
    CNavFilter drawings;
    drawings.Add(L"*.dwg");
    const auto folder = FakeFolder::make(L"folder");
    folder->add(L"a.dwg", kFile).add(L"b", kFolder);
    Admission admission;
    put(admission, m_plain.get(), folder);
    const auto file = FakeFolder::item(L"a.dwg");
    const auto sub = FakeFolder::item(L"b");
    admission.allows(file.get(), &everything, false);
    admission.allows(sub.get(), &drawings, false);
    EXPECT_EQ(folder->calls(FolderCall::GetDisplayNameOf), 0);
    admission.allows(file.get(), &drawings, false);
    EXPECT_EQ(folder->calls(FolderCall::GetDisplayNameOf), 1);
    EXPECT_EQ(folder->calls(FolderCall::GetAttributesOf), 3);
}

TEST(AdmissionOfShortcuts, Target_Decides) {
    const ScopedTempFolder temp;
    temp.addFolder(L"place");
    addShortcut(temp, L"folder.lnk", temp.path(L"place"));
    addShortcut(temp, L"drawing.lnk", temp.addFile(L"a.dwg"));
    addShortcut(temp, L"text.lnk", temp.addFile(L"b.txt"));
    temp.addFile(L"damaged.lnk", "no shortcut at all");

    CNavFilter drawings;
    drawings.Add(L"*.dwg");
    const auto place = ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(temp.path()));
    const auto folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(place.get()));
    const struct {
        const wchar_t* name;
        bool withFilter;
        bool foldersOnly;
    } rows[] = {
        {L"folder.lnk", true, true},
        {L"drawing.lnk", true, false},
        {L"text.lnk", false, false},
        {L"damaged.lnk", false, false},
    };
    Admission admission;
    admission.setFolder(place.get(), nullptr);
    for (const auto& row : rows) {
        SCOPED_TRACE(utf8(row.name));
        const auto item = parseName(folder.get(), row.name);
        ASSERT_TRUE(item);
        EXPECT_EQ(admission.allows(item.get(), &drawings, false), row.withFilter);
        EXPECT_EQ(admission.allows(item.get(), &drawings, true), row.foldersOnly);
    }
}

}  // namespace
