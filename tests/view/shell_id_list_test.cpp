#include "view/ShellIdList.h"

#include "support/ItemLists.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace knav;

// An array as the shell writes it: count, offsets (the folder's first), lists of one element with one letter each.
std::vector<std::byte> makeArray(std::string_view letters) {
    const UINT count = static_cast<UINT>(letters.size());
    const std::size_t lists = sizeof(UINT) * (count + 2);
    const std::size_t folder = sizeof(USHORT);
    const std::size_t item = sizeof(USHORT) * 2 + 1;
    std::vector<std::byte> bytes(lists + folder + item * count);
    const auto put = [&bytes](std::size_t at, auto value) { std::memcpy(bytes.data() + at, &value, sizeof(value)); };
    put(0, count);
    put(sizeof(UINT), static_cast<UINT>(lists));
    for (UINT i = 0; i < count; ++i) {
        const std::size_t at = lists + folder + item * i;
        put(sizeof(UINT) * (i + 2), static_cast<UINT>(at));
        put(at, static_cast<USHORT>(sizeof(USHORT) + 1));
        put(at + sizeof(USHORT), letters[i]);
    }
    return bytes;
}

std::string lettersOf(const std::vector<ItemList>& items) {
    std::string letters;
    for (const auto& item : items) {
        letters += static_cast<char>(item.get()->mkid.abID[0]);
    }
    return letters;
}

TEST(ShellIdList, DamagedArray_NothingIsReadOutsideOfIt) {
    const auto sound = makeArray("abc");
    const auto with = [&sound](std::size_t at, UINT value) {
        auto bytes = sound;
        std::memcpy(bytes.data() + at, &value, sizeof(value));
        return bytes;
    };
    const struct {
        const char* why;
        std::vector<std::byte> bytes;
        const char* letters;
        bool hasFolder = true;
    } rows[] = {
        {"no bytes at all", {}, "", false},
        {"cut in the count", {sound.begin(), sound.begin() + 2}, "", false},
        {"cut in the offsets", {sound.begin(), sound.begin() + 14}, "", false},
        {"cut before the last terminator", {sound.begin(), sound.end() - 2}, "ab"},
        {"a count far too large", with(0, 0xFFFFFFFF), "abc"},
        {"an offset behind the end", with(12, 10000), "a"},
        {"an offset near the largest number", with(8, 0xFFFFFFFE), ""},
        {"the folder's offset behind the end", with(4, 10000), "abc", false},
        {"an element longer than the rest", with(sound.size() - 5, 0x61FFFF), "ab"},
    };
    knav::test::PageEnd page;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const auto* const start = reinterpret_cast<const std::byte*>(
            page.put(reinterpret_cast<const BYTE*>(row.bytes.data()), row.bytes.size()));
        const ShellIdList array = readShellIdList({start, row.bytes.size()});
        EXPECT_EQ(lettersOf(array.items), row.letters);
        EXPECT_EQ(static_cast<bool>(array.folder), row.hasFolder);
    }
}

}  // namespace
