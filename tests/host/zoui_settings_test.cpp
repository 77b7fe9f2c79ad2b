#include <ry/RyRegKey.h>
#include <zoui/CZoUiDialog.h>

#include <gtest/gtest.h>

#include <set>

#include "support/Printers.h"
#include "support/RegistryRedirect.h"

namespace {

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { m_dialog.SetDialogName(L"Sample"); }

    CString stored(const wchar_t* name) const {
        CString value(L"(absent)");
        m_dialog.GetDialogData(name, value);
        return value;
    }

    knav::test::RegistryRedirect m_redirect;
    CZoUiDialog m_dialog{0};
};

TEST_F(SettingsTest, DialogWithoutANameStoresNothing) {
    m_dialog.SetDialogName(L"");
    EXPECT_EQ(m_dialog.SetDialogData(L"value", 1ul), 0);
    EXPECT_EQ(m_dialog.DelDialogData(L"value"), 0);
    EXPECT_EQ(m_dialog.GetSettingsKey(), L"");
    RyRegKey root;
    EXPECT_FALSE(root.open(HKEY_CURRENT_USER, m_dialog.GetRootKey()));
}

TEST_F(SettingsTest, SettingsKeyIsRootAndName) {
    EXPECT_EQ(m_dialog.GetSettingsKey(), L"Software\\Kelvara\\Dialogs\\Sample");
    m_dialog.SetRootKey(L"Software\\Other");
    EXPECT_EQ(m_dialog.GetSettingsKey(), L"Software\\Other\\Sample");
    const CZoUiDialog second(0);
    EXPECT_EQ(second.GetRootKey(), L"Software\\Kelvara\\Dialogs") << "its own root is the dialog's alone";
}

TEST_F(SettingsTest, NamesWithOddCharactersGetKeysOfTheirOwnDirectlyBelowTheRoot) {
    const CString names[] = {
        L"Open / Save: *?",       L"a\\b", L"a%005Cb", L"a_b", L"tab\tname", L"\x30D5\x30A1", CString(L'n', 400) + L"1",
        CString(L'n', 400) + L"2"};
    std::set<CString> keys;
    for (const CString& name : names) {
        m_dialog.SetDialogName(name);
        EXPECT_NE(m_dialog.SetDialogData(L"name", name), 0);
        keys.insert(m_dialog.GetSettingsKey());
    }
    EXPECT_EQ(keys.size(), std::size(names));
    for (const CString& name : names) {
        m_dialog.SetDialogName(name);
        EXPECT_EQ(stored(L"name"), name);
        EXPECT_EQ(m_dialog.GetSettingsKey().ReverseFind(L'\\'), m_dialog.GetRootKey().GetLength());
    }
}

}  // namespace
