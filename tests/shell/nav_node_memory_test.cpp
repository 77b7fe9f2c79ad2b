// When memory runs out while the folder hierarchy grows, nothing is thrown at the host and nothing is lost.
#include <knav/CNavTree.h>

#include <gtest/gtest.h>

#include "support/MemoryShortage.h"
#include "support/RealNamespace.h"
#include "support/TestExtension.h"

namespace {

using namespace knav;
using namespace knav::test;

TEST(HierarchyMemoryShortage, NodesAreWholeOrMissing) {
    const auto leaf = FakeFolder::make(L"leaf");
    const auto root = FakeFolder::make(L"root folder of a rather long name");
    root->add(L"a folder of a rather long name", SFGAO_FOLDER | SFGAO_FILESYSTEM, leaf);
    leaf->add(L"a leaf of a rather long name", SFGAO_FILESYSTEM);
    const ItemList path = FakeFolder::item(L"a folder of a rather long name/a leaf of a rather long name");
    const ItemList parent = makeList({"parent"});
    const ItemList expected = ItemList::join(parent.get(), path.get());
    int wrong = 0;
    const auto grow = [&] {
        CNavShell shell;
        CNavNode node(shell);
        node.SetFolder(ComPtr<FakeFolder>(root).release());
        node.SetID(ItemList::copyOf(parent.get()).release());
        node.SetExtensionName(L"an extension of a rather long name");
        node.ExpandFolder(nullptr, 1, SHCONTF_FOLDERS);
        if (CNavNode* const child = node.GetChild()) {
            child->FindName(L"a folder of a rather long name");
            CNavNode* const found = child->FindOrAddItemList(path.get(), 1, nullptr);
            const auto list = ItemList::adopt(found != nullptr ? found->CalculateQualifiedItemList() : nullptr);
            wrong += list && !ILIsEqual(list.get(), expected.get());
        }
        node.AddChild(nullptr);
        node.Dump(40);
    };
    grow();
    const LONG before = AllocationSpy::live();
    EXPECT_GT(withEachAllocationFailing(grow), 0);
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(AllocationSpy::live(), before);
    EXPECT_EQ(root->references(), 1);
}

TEST(HierarchyMemoryShortage, TreeIsBuiltAsFarAsMemoryGoes) {
    RegisteredForTest registered;
    const auto folder = FakeFolder::make(L"root folder of a rather long name");
    registered.add(L"an extension of a rather long name", folder);
    const ScopedTempFolder temp;
    const ItemList deep = parsed(temp.addFolder(L"one\\two"));
    const LONG references = folder->references();
    const auto build = [&] {
        CNavTree tree;
        tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, deep.get());
        tree.BuildSimpleHierarchy(nullptr, deep.get());
        tree.Dump();
    };
    build();
    const LONG before = AllocationSpy::live();
    EXPECT_GT(withEachAllocationFailing(build), 0);
    EXPECT_EQ(AllocationSpy::live(), before);
    EXPECT_EQ(folder->references(), references);
}

}  // namespace
