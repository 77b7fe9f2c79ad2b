#include <knav/NavLinks.h>

#include <gtest/gtest.h>

#include "support/RealNamespace.h"

namespace {

using namespace knav;
using namespace knav::test;

class Links : public testing::Test {
protected:
    ItemList makeLink(const wchar_t* name, const CString& target) { return parsed(addShortcut(m_temp, name, target)); }

    ScopedTempFolder m_temp;
    CString m_folder = m_temp.addFolder(L"target \u00e4");
    CString m_file = m_temp.addFile(L"target.dwg");
};

TEST_F(Links, ShortcutLeadsToItsTarget) {
    for (const CString& path : {m_folder, m_file}) {
        const ItemList target = parsed(path);
        const ItemList link = makeLink(L"short \u4e16.lnk", path);
        ASSERT_TRUE(link && target);
        const auto resolved = ItemList::adopt(NavResolveLink(link.get(), 0));
        const auto recorded = ItemList::adopt(NavGetLinkIDList(link.get()));
        ASSERT_TRUE(resolved && recorded);
        EXPECT_THAT(resolved.get(), HoldsSameBytes(target.get())) << "as good as a list of the file itself";
        EXPECT_TRUE(ILIsEqual(recorded.get(), target.get()));
    }
}

TEST_F(Links, WhatIsNoShortcutLeadsNowhere) {
    EXPECT_EQ(NavResolveLink(nullptr, 0), nullptr);
    EXPECT_EQ(NavGetLinkIDList(nullptr), nullptr);
    const CString fake = m_temp.addFile(L"fake.lnk", "this is no shortcut");
    for (const CString& path : {m_folder, m_file, fake, CString(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}")}) {
        const ItemList list = parsed(path);
        ASSERT_TRUE(list);
        EXPECT_EQ(NavResolveLink(list.get(), 0), nullptr) << utf8(path.view());
        EXPECT_EQ(NavGetLinkIDList(list.get()), nullptr) << utf8(path.view());
    }
}

TEST_F(Links, NothingIsLeftInTaskMemory) {
    const ItemList link = makeLink(L"s.lnk", m_file);
    const ItemList file = parsed(m_file);
    expectNoTaskMemoryLeft([&] {
        ItemList::adopt(NavResolveLink(link.get(), 0)).reset();
        ItemList::adopt(NavGetLinkIDList(link.get())).reset();
        NavResolveLink(file.get(), 0);
    });
}

}  // namespace
