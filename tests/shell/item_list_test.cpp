#include <knav/NavItemList.h>

#include <gtest/gtest.h>

#include <limits>

#include "support/ItemLists.h"

namespace {

using namespace knav;
using namespace knav::test;

struct Shape {
    const char* why;
    std::vector<BYTE> bytes;
    int firstSize;
    bool hasNext;
    int qualified;
};

const Shape kShapes[] = {
    {"empty list", listBytes({}), 0, false, 0},
    {"one element", listBytes({"a"}), 3, false, 0},
    {"one element without payload", listBytes({""}), 2, false, 0},
    {"two elements", listBytes({"ab", "c"}), 4, true, 1},
    {"three elements", listBytes({"ab", "", "cde"}), 4, true, 1},
    {"a largest element", listBytes({std::string(65533, 'x')}), 65535, false, 0},
};

TEST(ItemList, ShapeOfAListDecidesSizeNextAndQualified) {
    for (const Shape& shape : kShapes) {
        std::vector<BYTE> bytes = shape.bytes;
        ITEMIDLIST* const list = asList(bytes);
        EXPECT_EQ(NavGetItemElementSize(list), shape.firstSize) << shape.why;
        EXPECT_EQ(NavIsItemListQualified(list) != 0, shape.qualified != 0) << shape.why;
        ITEMIDLIST* const next = NavGetNextItemElement(list);
        EXPECT_EQ(next != nullptr, shape.hasNext) << shape.why;
        if (next != nullptr) {
            EXPECT_EQ(next, ILGetNext(list)) << shape.why;
        }
    }
    EXPECT_EQ(NavGetItemElementSize(nullptr), 0);
    EXPECT_EQ(NavGetNextItemElement(nullptr), nullptr);
    EXPECT_EQ(NavIsItemListQualified(nullptr), 0);
}

TEST(ItemList, PartsAndCopiesAgreeWithTheShells) {
    CNavShell shell;
    expectNoTaskMemoryLeft([&] {
        for (const Shape& shape : kShapes) {
            std::vector<BYTE> bytes = shape.bytes;
            ITEMIDLIST* const list = asList(bytes);
            const auto copy = ItemList::adopt(NavCopyItemList(shell, list));
            EXPECT_THAT(copy.get(), HoldsSameBytes(ItemList::adopt(ILClone(list)).get())) << shape.why;
            const auto first = ItemList::adopt(NavExtractItemElement(shell, list));
            const auto expected = ItemList::adopt(shape.firstSize > 0 ? ILCloneFirst(list) : nullptr);
            EXPECT_THAT(first.get(), HoldsSameBytes(expected.get())) << shape.why;
            const auto parent = ItemList::adopt(NavBuildParentList(shell, list));
            auto cut = ItemList::adopt(shape.hasNext ? ILClone(list) : nullptr);
            if (cut) {
                ILRemoveLastID(cut.get());
            }
            EXPECT_THAT(parent.get(), HoldsSameBytes(cut.get())) << shape.why;
        }
    });
}

TEST(ItemList, BuildJoinsWhatItIsGiven) {
    CNavShell shell;
    const ItemList a = makeList({"a", "bb"});
    const ItemList b = makeList({"ccc"});
    const ItemList empty = makeList({});
    struct Row {
        const char* why;
        std::vector<ITEMIDLIST*> lists;
        ItemList expected;
    };
    Row rows[] = {
        {"all null", {nullptr, nullptr}, ItemList()},
        {"one empty", {empty.get()}, makeList({})},
        {"empty and null", {nullptr, empty.get()}, makeList({})},
        {"null between adds nothing", {a.get(), nullptr, b.get()}, makeList({"a", "bb", "ccc"})},
        {"empty between adds nothing", {b.get(), empty.get(), a.get()}, makeList({"ccc", "a", "bb"})},
        {"one null", {nullptr}, ItemList()},
    };
    for (Row& row : rows) {
        const auto built =
            ItemList::adopt(NavBuildItemList(shell, row.lists.data(), static_cast<int>(row.lists.size())));
        EXPECT_THAT(built.get(), HoldsSameBytes(row.expected.get())) << row.why;
    }
    ITEMIDLIST* lists[] = {a.get()};
    EXPECT_EQ(NavBuildItemList(nullptr, lists, 1), nullptr);
    EXPECT_EQ(NavBuildItemList(shell, nullptr, 1), nullptr);
    EXPECT_EQ(NavBuildItemList(shell, lists, 0), nullptr);
    EXPECT_EQ(NavBuildItemList(shell, lists, -1), nullptr);
    EXPECT_EQ(NavCopyItemList(nullptr, a.get()), nullptr);
    EXPECT_EQ(NavExtractItemElement(nullptr, a.get()), nullptr);
    EXPECT_EQ(NavBuildParentList(nullptr, a.get()), nullptr);
}

TEST(ItemList, FreeSetsNullAndTakesNull) {
    const LONG before = AllocationSpy::live();
    ITEMIDLIST* list = makeList({"a"}).release();
    EXPECT_EQ(AllocationSpy::live(), before + 1);
    NavFreeItemList(list);
    EXPECT_EQ(list, nullptr);
    NavFreeItemList(list);
    EXPECT_EQ(AllocationSpy::live(), before);
}

// The elements of which both the count and the payload can be read.
std::vector<BYTE> readablePart(const std::vector<BYTE>& bytes, std::size_t cut) {
    std::size_t end = 0;
    while (end + 2 <= cut && bytes[end] != 0 && end + bytes[end] <= cut) {
        end += bytes[end];
    }
    std::vector<BYTE> part(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(end));
    part.insert(part.end(), {0, 0});
    return part;
}

TEST(ItemList, ListCutByTheEndOfMemoryEndsThereOrFails) {
    CNavShell shell;
    PageEnd page;
    const std::vector<BYTE> whole = listBytes({"first", "", "third element", "4"});
    const LONG before = AllocationSpy::live();
    for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
        ITEMIDLIST* const list = page.put(whole.data(), cut);
        std::vector<BYTE> readable = readablePart(whole, cut);
        const bool isWholeElements =
            readable.size() - 2 == cut || readable.size() - 2 + 1 == cut || cut == whole.size();
        const auto copy = ItemList::adopt(NavCopyItemList(shell, list));
        // Cut inside an element, the count promises bytes that are not there: no copy. Otherwise the list just ends.
        if (isWholeElements) {
            EXPECT_THAT(copy.get(), HoldsSameBytes(asList(readable))) << "cut at " << cut;
        } else {
            EXPECT_EQ(copy.get(), nullptr) << "cut at " << cut;
        }
        EXPECT_EQ(NavGetItemElementSize(list), cut >= 2 ? 7 : 0);
        EXPECT_EQ(NavGetNextItemElement(list) != nullptr, cut >= 9) << "cut at " << cut;
        EXPECT_EQ(NavIsItemListQualified(list) != 0, cut >= 9) << "cut at " << cut;
        const auto parent = ItemList::adopt(NavBuildParentList(shell, list));
        EXPECT_EQ(parent.get() != nullptr, cut >= 9) << "cut at " << cut;
        const auto first = ItemList::adopt(NavExtractItemElement(shell, list));
        EXPECT_EQ(first.get() != nullptr, cut >= 7) << "cut at " << cut;
    }
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(ItemList, WrongCountsNeitherCrashNorHang) {
    CNavShell shell;
    PageEnd page;
    const std::vector<BYTE> whole = listBytes({"first", "second"});
    const LONG before = AllocationSpy::live();
    for (const std::size_t position : {0u, 1u, 7u, 8u}) {
        for (int value = 0; value <= 255; ++value) {
            std::vector<BYTE> bytes = whole;
            bytes[position] = static_cast<BYTE>(value);
            ITEMIDLIST* const list = page.put(bytes.data(), bytes.size());
            const auto copy = ItemList::adopt(NavCopyItemList(shell, list));
            const ListMeasure measure = measureList(list);
            EXPECT_LE(measure.count, static_cast<int>(bytes.size()));
            EXPECT_EQ(copy.get() != nullptr, measure.bytes <= bytes.size()) << position << " " << value;
            ItemList::adopt(NavBuildParentList(shell, list));
            NavIsItemListQualified(list);
        }
    }
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(NavShell, MembersAreTheFunctions) {
    CNavShell shell;
    const ItemList list = makeList({"a", "b"});
    const auto copy = ItemList::adopt(shell.CopyItemList(list.get()));
    EXPECT_THAT(copy.get(), HoldsSameBytes(list.get()));
    const auto first = ItemList::adopt(shell.ExtractItem(list.get()));
    EXPECT_THAT(first.get(), HoldsSameBytes(makeList({"a"}).get()));
    EXPECT_EQ(shell.CopyItemList(nullptr), nullptr);
    ITEMIDLIST* freed = makeList({"a"}).release();
    shell.FreeItemList(freed);
    EXPECT_EQ(freed, nullptr);
    IMalloc* const allocator = shell;
    EXPECT_EQ(allocator->DidAlloc(list.get()), 1);
}

}  // namespace
