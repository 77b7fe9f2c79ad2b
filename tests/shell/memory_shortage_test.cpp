// When memory runs out, nothing is thrown at the caller, nothing is lost, and no answer is half of one.
#include <knav/CNavPathname.h>
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
        m_root->add(L"site", SFGAO_FOLDER, FakeFolder::make(L"site"));
        m_child = ItemList::join(m_extension.GetID(), FakeFolder::item(L"site").get());
    }

    // `call` answers whether what it got is in order. It is tried once with memory, so that caches are full.
    void expectSurvives(const char* what, const std::function<bool()>& call) {
        SCOPED_TRACE(what);
        EXPECT_TRUE(call());
        const LONG before = AllocationSpy::live();
        int wrong = 0;
        EXPECT_GT(withEachAllocationFailing([&] { wrong += !call(); }), 0);
        EXPECT_EQ(wrong, 0);
        EXPECT_EQ(AllocationSpy::live(), before);
    }

    // Either a whole name or none.
    bool names(const wchar_t* expected, const std::function<int(CString&)>& call) {
        CString name;
        const int named = call(name);
        return named ? name == expected : name.IsEmpty();
    }

    ScopedTempFolder m_temp;
    CString m_file = m_temp.addFile(L"a plan with a rather long name.dwg");
    ItemList m_list = parsed(m_file);
    RegisteredForTest m_registered;
    ComPtr<FakeFolder> m_root = FakeFolder::make(L"root folder of an extension");
    CNavExtension& m_extension;
    ItemList m_child;
    CNavShell m_shell;
};

TEST_F(MemoryShortage, NamesAreWholeOrEmpty) {
    expectSurvives("parsing name", [&] {
        return names(m_file, [&](CString& name) { return NavGetItemNameForParsing(nullptr, m_list.get(), name); });
    });
    expectSurvives("last component", [&] {
        return names(L"a plan with a rather long name.dwg",
                     [&](CString& name) { return NavGetItemLastPathComponent(nullptr, m_list.get(), name); });
    });
    expectSurvives("extension root", [&] {
        return names(L"root folder of an extension",
                     [&](CString& name) { return NavGetItemNameInFolder(nullptr, m_extension.GetID(), name); });
    });
    expectSurvives("extension name", [&] {
        return names(L"An extension with a long name", [&](CString& name) {
            NavGetExtensionNameFromItem(m_extension.GetID(), name);
            return name.GetLength();
        });
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
        const auto list = ItemList::adopt(NavGetQualifiedItemList(m_shell, desktop.get(), m_list.get()));
        return list && ILIsEqual(list.get(), m_list.get());
    });
}

TEST_F(MemoryShortage, UrlsAreDecodedOrNot) {
    CString in = L"ftp://a.host.with.a.long.name/a%20b";
    expectSurvives("decoding", [&] {
        CString out;
        const int decoded = NavDecodeURL(in, out);
        return decoded ? out == L"ftp://a.host.with.a.long.name/a b" : out == in || out.IsEmpty();
    });
}

TEST_F(MemoryShortage, PathNamesHoldAllOrNothing) {
    CString location = L"ftp://a.host.with.a.long.name/dir/plan.dwg";
    CNavPathname whole;
    whole.Parse(location, false);
    const auto holds = [](const CNavPathname& pathname, const CString& expected) {
        CString path;
        pathname.GetFullPath(path);
        return path.IsEmpty() || path == expected;
    };
    expectSurvives("parsing a URL", [&] {
        CNavPathname pathname;
        pathname.Parse(location, false);
        return holds(pathname, location);
    });
    expectSurvives("taking a URL", [&] {
        CNavPathname pathname;
        return pathname.SetURL(location) == 0 ? !pathname.GetIsURL() : holds(pathname, location);
    });
    expectSurvives("an item of an extension", [&] {
        CNavPathname pathname;
        pathname.Parse(m_child.get(), m_root.get(), nullptr, location);
        return holds(pathname, location);
    });
    expectSurvives("copying and assigning", [&] {
        const CNavPathname copy(whole);
        CNavPathname assigned;
        assigned = whole;
        return holds(copy, location) && holds(assigned, location);
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
