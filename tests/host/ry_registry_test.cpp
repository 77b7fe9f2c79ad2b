#include <ry/RyRegKey.h>

#include <gtest/gtest.h>

#include "support/Printers.h"
#include "support/RegistryRedirect.h"

namespace {

class RegistryTest : public testing::Test {
protected:
    RegistryTest() { EXPECT_TRUE(m_key.create(HKEY_CURRENT_USER, L"Software\\A\\B")); }

    void storeRaw(const wchar_t* name, DWORD type, const void* data, DWORD bytes) {
        ASSERT_EQ(RegSetValueExW(m_key.get(), name, 0, type, static_cast<const BYTE*>(data), bytes), ERROR_SUCCESS);
    }

    knav::test::RegistryRedirect m_redirect;
    RyRegKey m_key;
};

TEST_F(RegistryTest, TextsOfOthersEndAtTheirTerminatorOrWithTheirData) {
    storeRaw(L"open", REG_SZ, L"abc", 6);
    storeRaw(L"two", REG_EXPAND_SZ, L"%PATH%\0x", 18);
    CString text;
    EXPECT_EQ(ryRegGetValue(m_key.get(), L"open", text), ERROR_SUCCESS);
    EXPECT_EQ(text, L"abc");
    EXPECT_EQ(ryRegGetValue(m_key.get(), L"two", text), ERROR_SUCCESS);
    EXPECT_EQ(text, L"%PATH%");
}

TEST_F(RegistryTest, ValuesThatAreNotWhatWasAskedForAreErrorsAndChangeNothing) {
    const struct {
        const char* what;
        DWORD type;
        DWORD bytes;
        LONG asNumber;
        LONG asText;
    } stored[] = {
        {"short number", REG_DWORD, 2, ERROR_INVALID_DATA, ERROR_UNSUPPORTED_TYPE},
        {"long number", REG_DWORD, 8, ERROR_INVALID_DATA, ERROR_UNSUPPORTED_TYPE},
        {"other byte order", REG_DWORD_BIG_ENDIAN, 4, ERROR_UNSUPPORTED_TYPE, ERROR_UNSUPPORTED_TYPE},
        {"binary", REG_BINARY, 4, ERROR_UNSUPPORTED_TYPE, ERROR_UNSUPPORTED_TYPE},
        {"list", REG_MULTI_SZ, 6, ERROR_UNSUPPORTED_TYPE, ERROR_UNSUPPORTED_TYPE},
        {"odd text", REG_SZ, 5, ERROR_UNSUPPORTED_TYPE, ERROR_INVALID_DATA},
        {"text", REG_SZ, 4, ERROR_UNSUPPORTED_TYPE, ERROR_SUCCESS},
        {"number", REG_DWORD, 4, ERROR_SUCCESS, ERROR_UNSUPPORTED_TYPE},
        {"missing", REG_NONE, 0, ERROR_FILE_NOT_FOUND, ERROR_FILE_NOT_FOUND},
    };
    for (const auto& [what, type, bytes, asNumber, asText] : stored) {
        SCOPED_TRACE(what);
        if (type != REG_NONE) {
            storeRaw(L"value", type, L"abcd", bytes);
        } else {
            ryRegDeleteValue(m_key.get(), L"value");
        }
        DWORD number = 77;
        EXPECT_EQ(ryRegGetValue(m_key.get(), L"value", number), asNumber);
        EXPECT_EQ(number == 77, asNumber != ERROR_SUCCESS);
        CString text(L"kept");
        EXPECT_EQ(ryRegGetValue(m_key.get(), L"value", text), asText);
        EXPECT_EQ(text == L"kept", asText != ERROR_SUCCESS);
    }
}

TEST_F(RegistryTest, OverlongTextIsRefusedBothWays) {
    const CString longest(L'x', ryRegMaxText);
    const CString tooLong(L'x', ryRegMaxText + 1);
    CString text;
    EXPECT_EQ(ryRegSetValue(m_key.get(), L"long", longest), ERROR_SUCCESS);
    EXPECT_EQ(ryRegGetValue(m_key.get(), L"long", text), ERROR_SUCCESS);
    EXPECT_EQ(text, longest);
    EXPECT_EQ(ryRegSetValue(m_key.get(), L"long", tooLong), ERROR_MORE_DATA);
    storeRaw(L"long", REG_SZ, tooLong.GetString(), (ryRegMaxText + 2) * sizeof(wchar_t));
    EXPECT_EQ(ryRegGetValue(m_key.get(), L"long", text), ERROR_MORE_DATA);
    storeRaw(L"long", REG_SZ, tooLong.GetString(), (ryRegMaxText + 1) * sizeof(wchar_t));
    EXPECT_EQ(ryRegGetValue(m_key.get(), L"long", text), ERROR_MORE_DATA) << "unterminated, as long as one that fits";
}

TEST_F(RegistryTest, DeleteTreeTakesTheKeyWithEverythingBelowButNeverAWholeHive) {
    EXPECT_EQ(ryRegDeleteTree(HKEY_CURRENT_USER, L""), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ryRegDeleteTree(HKEY_CURRENT_USER, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ryRegDeleteTree(HKEY_CURRENT_USER, L"Software\\A"), ERROR_SUCCESS);
    EXPECT_FALSE(m_key.open(HKEY_CURRENT_USER, L"Software\\A"));
    EXPECT_TRUE(m_key.open(HKEY_CURRENT_USER, L"Software"));
}

TEST_F(RegistryTest, EnumValueGivesEachNameAndTypeOnce) {
    ryRegSetValue(m_key.get(), L"one", CString(L"1"));
    ryRegSetValue(m_key.get(), CString(L'n', 300), 2);
    std::map<CString, DWORD> found;
    CString name;
    DWORD type = 0;
    DWORD index = 0;
    for (; ryRegEnumValue(m_key.get(), index, name, &type) == ERROR_SUCCESS; ++index) {
        found[name] = type;
    }
    EXPECT_EQ(ryRegEnumValue(m_key.get(), index, name), ERROR_NO_MORE_ITEMS);
    EXPECT_EQ(found, (std::map<CString, DWORD>{{L"one", REG_SZ}, {CString(L'n', 300), REG_DWORD}}));
}

}  // namespace
