// When memory runs out, nothing is thrown at the caller, nothing is lost, and no answer is half of one.
#include <knav/CNavPathname.h>
#include <knav/CNavTree.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <knav/NavUrl.h>

#include <gtest/gtest.h>

#include "shell/ExtensionItems.h"
#include "shell/ItemNames.h"
#include "support/MemoryShortage.h"
#include "support/RealNamespace.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

class MemoryShortage : public testing::Test {
protected:
    MemoryShortage() : m_extension(m_registered.add(L"An extension with a long name", m_root)) {
        m_root->add(L"a site with a long name", SFGAO_FOLDER | SFGAO_FILESYSTEM, m_site);
        m_site->add(L"a folder with a long name", SFGAO_FOLDER, FakeFolder::make(L"folder"));
    }

    // `call` answers whether what it got is in order. It is tried once with memory, so that caches are full.
    void expectSurvives(const char* what, const std::function<bool()>& call) {
        SCOPED_TRACE(what);
        EXPECT_TRUE(call());
        const LONG before = AllocationSpy::live();
        const LONG references = m_root->references();
        int wrong = 0;
        EXPECT_GT(withEachAllocationFailing([&] { wrong += !call(); }), 0);
        EXPECT_EQ(wrong, 0);
        EXPECT_EQ(AllocationSpy::live(), before);
        EXPECT_EQ(m_root->references(), references);
    }

    // Either a whole name or none.
    void expectName(const wchar_t* expected, const std::function<int(CString&)>& call) {
        expectSurvives(utf8(expected).c_str(), [&] {
            CString name;
            return call(name) ? name == expected : name.IsEmpty();
        });
    }

    ScopedTempFolder m_temp;
    CString m_file = m_temp.addFile(L"a folder with a long name\\a plan with a rather long name.dwg");
    ItemList m_list = parsed(m_file);
    RegisteredForTest m_registered;
    ComPtr<FakeFolder> m_site = FakeFolder::make(L"site");
    ComPtr<FakeFolder> m_root = FakeFolder::make(L"root folder of an extension");
    CNavExtension& m_extension;
    ItemList m_path = FakeFolder::item(L"a site with a long name/a folder with a long name");
    ItemList m_child = ItemList::join(m_extension.GetID(), m_path.get());
    CNavShell m_shell;
};

TEST_F(MemoryShortage, NamesAreWholeOrEmpty) {
    ITEMIDLIST* const list = m_list.get();
    ITEMIDLIST* const root = m_extension.GetID();
    expectName(m_file, [&](CString& name) { return NavGetItemNameForParsing(nullptr, list, name); });
    expectName(L"a plan with a rather long name.dwg",
               [&](CString& name) { return NavGetItemLastPathComponent(nullptr, list, name); });
    expectName(L"root folder of an extension",
               [&](CString& name) { return NavGetItemNameInFolder(nullptr, root, name); });
    expectName(L"An extension with a long name", [&](CString& name) {
        NavGetExtensionNameFromItem(root, name);
        return name.GetLength();
    });
}

TEST_F(MemoryShortage, ListsAndFoldersAreFoundOrNot) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    expectSurvives("extension of an item", [&] {
        CNavExtension* const found = NavFindExtensionForItem(m_child.get());
        return found == nullptr || found == &m_extension;
    });
    expectSurvives("folder of an extension item", [&] {
        NavReleaseFolder(NavGetFolderFromDesktop(m_child.get()));
        return true;
    });
    expectSurvives("order of extension items", [&] {
        const auto copy = ItemList::copyOf(m_child.get());
        NavCompareFolderItems(desktop.get(), m_child.get(), copy.get());
        return true;
    });
    expectSurvives("qualified list", [&] {
        return isSame(ItemList::adopt(NavGetQualifiedItemList(m_shell, desktop.get(), m_list.get())), m_list);
    });
}

TEST_F(MemoryShortage, UrlsAndPathNamesHoldAllOrNothing) {
    CString encoded = L"ftp://a.host.with.a.long.name/a%20b";
    expectSurvives("decoding", [&] {
        CString out;
        const int decoded = NavDecodeURL(encoded, out);
        return decoded ? out == L"ftp://a.host.with.a.long.name/a b" : out == encoded || out.IsEmpty();
    });
    CString location = L"ftp://a.host.with.a.long.name/dir/plan.dwg";
    CNavPathname whole;
    whole.Parse(location, false);
    const auto holds = [&location](const CNavPathname& pathname) {
        CString path;
        pathname.GetFullPath(path);
        return path.IsEmpty() || path == location;
    };
    expectSurvives("parsing a URL", [&] {
        CNavPathname pathname;
        pathname.Parse(location, false);
        return holds(pathname);
    });
    expectSurvives("taking a URL", [&] {
        CNavPathname pathname;
        return pathname.SetURL(location) == 0 ? !pathname.GetIsURL() : holds(pathname);
    });
    expectSurvives("an item of an extension", [&] {
        CNavPathname pathname;
        pathname.Parse(m_child.get(), m_root.get(), nullptr, location);
        return holds(pathname);
    });
    expectSurvives("copying and assigning", [&] {
        const CNavPathname copy(whole);
        CNavPathname assigned;
        assigned = whole;
        return holds(copy) && holds(assigned);
    });
    expectSurvives("the parts", [&] {
        CString part;
        const bool prefixed = whole.GetSitePrefix(part) == 0 || part == L"ftp://a.host.with.a.long.name";
        whole.GetServerName(part);
        const bool served = part.IsEmpty() || part == L"a.host.with.a.long.name";
        wchar_t out[MAX_PATH];
        CNavPathname canonical;
        return prefixed && served && (canonical.NavPathCanonicalize(out, location) == 0 || location == out);
    });
}

TEST_F(MemoryShortage, HierarchyGrowsAsFarAsMemoryGoes) {
    const ItemList parent = makeList({"parent"});
    const ItemList expected = ItemList::join(parent.get(), m_path.get());
    expectSurvives("nodes", [&] {
        CNavNode node(m_shell);
        node.SetFolder(ComPtr<FakeFolder>(m_root).release());
        node.SetID(ItemList::copyOf(parent.get()).release());
        node.SetExtensionName(L"an extension of a rather long name");
        node.ExpandFolder(nullptr, 1, SHCONTF_FOLDERS);
        ItemList list;
        if (CNavNode* const child = node.GetChild()) {
            child->FindName(L"a site with a long name");
            CNavNode* const found = child->FindOrAddItemList(m_path.get(), 1, nullptr);
            list = ItemList::adopt(found != nullptr ? found->CalculateQualifiedItemList() : nullptr);
        }
        node.AddChild(nullptr);
        node.Dump(40);
        return !list || ILIsEqual(list.get(), expected.get());
    });
    expectSurvives("a tree", [&] {
        CNavTree tree;
        tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, m_list.get());
        tree.BuildSimpleHierarchy(nullptr, m_list.get());
        tree.Dump();
        return true;
    });
}

// An allocator that has nothing left.
class EmptyMalloc final : public IMalloc {
public:
    virtual ~EmptyMalloc() = default;
    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP_(void*) Alloc(SIZE_T) override { return nullptr; }
    STDMETHODIMP_(void*) Realloc(void*, SIZE_T) override { return nullptr; }
    STDMETHODIMP_(void) Free(void*) override {}
    STDMETHODIMP_(SIZE_T) GetSize(void*) override { return 0; }
    STDMETHODIMP_(int) DidAlloc(void*) override { return 0; }
    STDMETHODIMP_(void) HeapMinimize() override {}
};

TEST(EmptyAllocator, MakesNoList) {
    EmptyMalloc nothing;
    const ItemList list = makeList({"a", "b"});
    ITEMIDLIST* lists[] = {list.get(), list.get()};
    EXPECT_EQ(NavCopyItemList(&nothing, list.get()), nullptr);
    EXPECT_EQ(NavExtractItemElement(&nothing, list.get()), nullptr);
    EXPECT_EQ(NavBuildParentList(&nothing, list.get()), nullptr);
    EXPECT_EQ(NavBuildItemList(&nothing, lists, 2), nullptr);
}

}  // namespace
