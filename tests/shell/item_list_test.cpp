#include <knav/NavItemList.h>

#include <gtest/gtest.h>

#include "support/RealNamespace.h"

namespace {

using namespace knav;
using namespace knav::test;

// Lists of every shape, made by hand and by the shell.
std::vector<ItemList> listsOfEveryShape() {
    std::vector<ItemList> lists;
    for (const auto& payloads : std::initializer_list<std::initializer_list<std::string_view>>{
             {}, {"a"}, {""}, {"ab", "c"}, {"ab", "", "cde"}, {"a", "b", "c", "d"}}) {
        lists.push_back(makeList(payloads));
    }
    lists.push_back(makeList({std::string(65533, 'x')}));
    lists.push_back(special(CSIDL_DRIVES));
    lists.push_back(parsed(L"C:\\"));
    lists.push_back(parsed(L"C:\\windows\\system32\\shell32.dll"));
    return lists;
}

int countOf(const ITEMIDLIST* list) {
    int count = 0;
    for (; list != nullptr && list->mkid.cb != 0; list = ILGetNext(list)) {
        ++count;
    }
    return count;
}

TEST(ItemList, IsCopiedSplitAndJoinedAsTheSystemDoes) {
    CNavShell shell;
    expectNoTaskMemoryLeft([&] {
        for (const ItemList& each : listsOfEveryShape()) {
            SCOPED_TRACE(utf8(describe(each.get())));
            ITEMIDLIST* const list = each.get();
            const int count = countOf(list);
            EXPECT_EQ(NavGetItemElementSize(list), int{list->mkid.cb});
            EXPECT_EQ(NavIsItemListQualified(list) != 0, count > 1);
            EXPECT_EQ(NavGetNextItemElement(list), count > 1 ? ILGetNext(list) : nullptr);
            const auto copy = ItemList::adopt(shell.CopyItemList(list));
            EXPECT_THAT(copy.get(), HoldsSameBytes(ItemList::adopt(ILClone(list)).get()));
            const auto first = ItemList::adopt(shell.ExtractItem(list));
            EXPECT_THAT(first.get(), HoldsSameBytes(ItemList::adopt(count > 0 ? ILCloneFirst(list) : nullptr).get()));
            auto cut = ItemList::adopt(count > 1 ? ILClone(list) : nullptr);
            if (cut) {
                ILRemoveLastID(cut.get());
            }
            const auto parent = ItemList::adopt(NavBuildParentList(shell, list));
            EXPECT_THAT(parent.get(), HoldsSameBytes(cut.get()));

            // Taken apart at every element and put together again.
            for (ITEMIDLIST* at = list; (at = NavGetNextItemElement(at)) != nullptr;) {
                const auto front = ItemList::adopt(ILClone(list));
                std::memset(reinterpret_cast<BYTE*>(front.get()) + ILGetSize(list) - ILGetSize(at), 0, sizeof(USHORT));
                ITEMIDLIST* parts[] = {front.get(), nullptr, at};
                EXPECT_THAT(ItemList::adopt(NavBuildItemList(shell, parts, 3)).get(), HoldsSameBytes(list));
            }
        }
    });
    EXPECT_EQ(NavGetItemElementSize(nullptr), 0);
    EXPECT_EQ(NavGetNextItemElement(nullptr), nullptr);
    EXPECT_EQ(NavIsItemListQualified(nullptr), 0);
}

TEST(ItemList, BuildJoinsWhatItIsGiven) {
    CNavShell shell;
    const ItemList a = makeList({"a", "bb"});
    const ItemList b = makeList({"ccc"});
    const ItemList empty = makeList({});
    const auto built = [&shell](std::vector<ITEMIDLIST*> lists) {
        return ItemList::adopt(NavBuildItemList(shell, lists.data(), static_cast<int>(lists.size())));
    };
    EXPECT_FALSE(built({nullptr}));
    EXPECT_THAT(built({nullptr, empty.get()}).get(), HoldsSameBytes(empty.get()));
    EXPECT_THAT(built({b.get(), empty.get(), a.get()}).get(), HoldsSameBytes(makeList({"ccc", "a", "bb"}).get()));
    std::vector<BYTE> torn = {1, 0, 0};  // its only element's count ends in the terminator
    EXPECT_FALSE(built({asList(torn), a.get()})) << "would read on behind its block";
    EXPECT_FALSE(isWhole(asList(torn)));
    EXPECT_THAT(built({asList(torn)}).get(), HoldsSameBytes(asList(torn)));
    ITEMIDLIST* lists[] = {a.get()};
    EXPECT_EQ(NavBuildItemList(nullptr, lists, 1), nullptr);
    EXPECT_EQ(NavBuildItemList(shell, nullptr, 1), nullptr);
    EXPECT_EQ(NavBuildItemList(shell, lists, 0), nullptr);
    EXPECT_EQ(NavBuildItemList(shell, lists, -1), nullptr);
    EXPECT_EQ(NavCopyItemList(nullptr, a.get()), nullptr);
    EXPECT_EQ(NavExtractItemElement(nullptr, a.get()), nullptr);
    EXPECT_EQ(NavBuildParentList(nullptr, a.get()), nullptr);
}

// Cut inside an element, the count promises bytes that are not there: no copy. Elsewhere the list just ends.
TEST(ItemList, ListCutByTheEndOfMemoryEndsThereOrFails) {
    CNavShell shell;
    PageEnd page;
    const std::vector<BYTE> whole = listBytes({"first", "", "third element", "4"});
    const std::size_t ends[] = {0, 7, 9, 24, 27};
    for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
        SCOPED_TRACE(cut);
        ITEMIDLIST* const list = page.put(whole.data(), cut);
        const std::size_t end = *std::prev(std::ranges::upper_bound(ends, cut));
        const auto copy = ItemList::adopt(NavCopyItemList(shell, list));
        ASSERT_EQ(static_cast<bool>(copy), cut - end < 2 || cut == whole.size());
        EXPECT_TRUE(!copy || std::memcmp(copy.get(), whole.data(), end) == 0);
        EXPECT_EQ(copy ? ILGetSize(copy.get()) : end + 2, end + 2);
        EXPECT_EQ(NavGetItemElementSize(list), cut >= 2 ? 7 : 0);
        EXPECT_EQ(NavGetNextItemElement(list) != nullptr, cut >= 9);
        EXPECT_EQ(NavIsItemListQualified(list) != 0, cut >= 9);
        EXPECT_EQ(static_cast<bool>(ItemList::adopt(NavBuildParentList(shell, list))), cut >= 9);
        EXPECT_EQ(static_cast<bool>(ItemList::adopt(NavExtractItemElement(shell, list))), cut >= 7);
    }
}

TEST(NavShell, FreesAListAndForgetsIt) {
    CNavShell shell;
    const LONG before = AllocationSpy::live();
    ITEMIDLIST* freed = makeList({"a"}).release();
    EXPECT_EQ(AllocationSpy::live(), before + 1);
    shell.FreeItemList(freed);
    EXPECT_EQ(freed, nullptr);
    NavFreeItemList(freed);
    EXPECT_EQ(AllocationSpy::live(), before);
}

}  // namespace
