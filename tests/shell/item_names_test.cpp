#include <knav/NavNames.h>

#include <gtest/gtest.h>

#include "shell/ItemNames.h"
#include "support/FakeFolder.h"
#include "support/ItemLists.h"

namespace {

using namespace knav;
using namespace knav::test;

STRRET wide(const wchar_t* text) {
    STRRET strret{STRRET_WSTR, {}};
    if (text != nullptr) {
        SHStrDupW(text, &strret.pOleStr);
    }
    return strret;
}

STRRET inlined(std::string_view text) {
    STRRET strret{STRRET_CSTR, {}};
    std::memcpy(strret.cStr, text.data(), text.size());
    return strret;
}

STRRET at(UINT offset) {
    STRRET strret{STRRET_OFFSET, {}};
    strret.uOffset = offset;
    return strret;
}

TEST(ConvertToString, EachKindGivesItsText) {
    const ItemList list = makeList({std::string_view("\1\2name\0", 7), "x"});
    const ItemList unended = makeList({"endless"});
    const std::string full(sizeof(STRRET::cStr), 'x');
    struct Row {
        const char* why;
        STRRET strret;
        ITEMIDLIST* list;
        CString text;
    };
    Row rows[] = {
        {"wide", wide(L"\u00e4\u4e16"), list.get(), L"\u00e4\u4e16"},
        {"wide, empty", wide(L""), list.get(), L""},
        {"wide, null", wide(nullptr), list.get(), L""},
        {"wide, no list needed", wide(L"x"), nullptr, L"x"},
        {"offset", at(4), list.get(), L"name"},
        {"offset without a list", at(4), nullptr, L""},
        {"offset of a text without its end", at(2), unended.get(), L"endless"},
        {"offset behind the list", at(4000), list.get(), L""},
        {"offset far behind the list", at(0xFFFFFFFF), list.get(), L""},
        {"inline", inlined("short"), list.get(), L"short"},
        {"inline without its end", inlined(full), list.get(), CString(L'x', static_cast<int>(full.size()))},
        {"unknown kind", STRRET{7, {}}, list.get(), L""},
    };
    for (Row& row : rows) {
        CString text = L"old";
        EXPECT_EQ(NavConvertToString(row.list, row.strret, text) != 0, !row.text.IsEmpty()) << row.why;
        EXPECT_EQ(text, row.text) << row.why;
    }
}

TEST(ConvertToString, WideTextIsFreedEvenWhenItCannotBeRead) {
    expectNoTaskMemoryLeft([] {
        STRRET good = wide(L"some text");
        CString text;
        NavConvertToString(nullptr, good, text);
    });
    STRRET nowhere{STRRET_WSTR, {}};
    nowhere.pOleStr = reinterpret_cast<wchar_t*>(std::uintptr_t{0x10});
    CString text = L"old";
    EXPECT_FALSE(NavConvertToString(nullptr, nowhere, text));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(LastPathComponent, IsWhatFollowsTheLastSeparatorOfTheFirstKindFound) {
    struct Row {
        const wchar_t* folder;
        const wchar_t* item;
        const wchar_t* expected;
    };
    constexpr Row rows[] = {
        {L"C:\\dir", L"leaf", L"dir/leaf"},  // a backslash goes before a slash
        {L"ftp://host", L"leaf", L"leaf"},  {L"C:", L"", L""}, {L"name", L"", L"name"}, {L"C:\\", L"", L""},
    };
    for (const Row& row : rows) {
        const auto folder = FakeFolder::make(row.folder);
        const ItemList list = FakeFolder::item(row.item);
        CString out = L"old";
        EXPECT_TRUE(NavGetItemLastPathComponent(folder.get(), list.get(), out)) << utf8(row.folder);
        EXPECT_EQ(out, row.expected) << utf8(row.folder);
    }
    const auto nameless = FakeFolder::make(L"");
    CString out = L"old";
    EXPECT_FALSE(NavGetItemLastPathComponent(nameless.get(), listArgument(makeList({}).get()), out));
    EXPECT_TRUE(out.IsEmpty());
}

TEST(QualifiedList, ItemThatTheDesktopCannotParseIsTakenAsItIs) {
    CNavShell shell;
    const ItemList item = FakeFolder::item(L"no such thing on the desktop");
    for (const std::wstring& name : {std::wstring(L"root"), std::wstring(MAX_PATH, L'x')}) {
        const auto folder = FakeFolder::make(name);
        EXPECT_THAT(ItemList::adopt(NavGetQualifiedItemList(shell, folder.get(), item.get())).get(),
                    HoldsSameBytes(item.get()));
    }
}

}  // namespace
