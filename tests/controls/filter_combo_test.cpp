#include "controls/ComboHost.h"

#include <gmock/gmock.h>

#include <knav/CNavFilterArray.h>
#include <knav/CNavFilterComboBox.h>

namespace {

using namespace knav::test;
using testing::ElementsAre;

class FilterCombo : public testing::Test {
protected:
    FilterCombo() { m_combo.Create(CBS_DROPDOWNLIST | WS_CHILD, ComboHost::kPlace, &m_host.window, 1); }

    ComboHost m_host;
    CNavFilterComboBox m_combo;
    CNavFilterArray m_filters;
};

TEST_F(FilterCombo, Fill_ShowsFullDescriptionsInOrderAndSelectsTheFirst) {
    m_filters.SetFrom(L"Text\0*.txt;*.csv\0All files\0*.*\0", 0);
    m_combo.FillWithFilterArray(m_filters);
    EXPECT_THAT(textsOf(m_combo), ElementsAre(L"Text (*.txt, *.csv)", L"All files"));
    EXPECT_EQ(m_combo.GetCurSel(), 0);
}

TEST_F(FilterCombo, FilterWithoutText_HasNoItem) {
    m_filters.SetFrom(L"A\0*.a\0B\0*.b\0", 1);
    m_filters.GetData(0)->SetFullDescription(L"");
    m_combo.FillWithFilterArray(m_filters);
    EXPECT_THAT(textsOf(m_combo), ElementsAre(L"B"));
}

TEST_F(FilterCombo, NullInTheArray_HasNoItem) {
    m_filters.SetFrom(L"A\0*.a\0B\0*.b\0", 1);
    m_filters.InsertAt(1, static_cast<CNavFilter*>(nullptr));
    m_combo.FillWithFilterArray(m_filters);
    EXPECT_THAT(textsOf(m_combo), ElementsAre(L"A", L"B"));
}

TEST_F(FilterCombo, FillAgain_KeepsTheSelectionAsFarAsItExists) {
    const struct {
        const char* why;
        int remembered;
        int selected;
    } rows[] = {
        {"nothing selected", -1, 0},   {"still there", 1, 1},        {"the last one", 2, 2},
        {"just behind the end", 3, 0}, {"far behind the end", 5, 2},
    };
    m_filters.SetFrom(L"A\0*.a\0B\0*.b\0C\0*.c\0", 1);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        m_combo.ResetContent();
        for (int i = 0; i < 6; ++i) {
            m_combo.AddString(L"old");
        }
        m_combo.SetCurSel(row.remembered);
        m_combo.FillWithFilterArray(m_filters);
        EXPECT_EQ(m_combo.GetCurSel(), row.selected);
    }
}

TEST_F(FilterCombo, NoFilters_LeaveAnEmptyCombo) {
    m_combo.AddString(L"old");
    m_combo.FillWithFilterArray(m_filters);
    EXPECT_EQ(m_combo.GetCount(), 0);
}

}  // namespace
