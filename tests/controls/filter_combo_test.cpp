#include "controls/ControlHost.h"

#include <gmock/gmock.h>

#include <knav/CNavFilterArray.h>
#include <knav/CNavFilterComboBox.h>

namespace {

using namespace knav::test;
using testing::ElementsAre;

class FilterCombo : public testing::Test {
protected:
    FilterCombo() { m_combo.Create(CBS_DROPDOWNLIST | WS_CHILD, kComboPlace, &m_host, kControlId); }

    ControlHost m_host;
    CNavFilterComboBox m_combo;
    CNavFilterArray m_filters;
};

TEST_F(FilterCombo, Fill_ShowsFullDescriptionsInOrder) {
    m_combo.AddString(L"old");
    m_combo.FillWithFilterArray(m_filters);
    EXPECT_EQ(m_combo.GetCount(), 0);
    m_filters.SetFrom(L"Text\0*.txt;*.csv\0No text\0*.a\0All files\0*.*\0", 0);
    m_filters.GetData(1)->SetFullDescription(L"");
    m_filters.InsertAt(1, static_cast<CNavFilter*>(nullptr));
    m_combo.FillWithFilterArray(m_filters);
    EXPECT_THAT(textsOf(m_combo), ElementsAre(L"Text (*.txt, *.csv)", L"All files"));
    EXPECT_EQ(m_combo.GetCurSel(), 0);
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
        m_combo.ResetContent();
        for (int i = 0; i < 6; ++i) {
            m_combo.AddString(L"old");
        }
        m_combo.SetCurSel(row.remembered);
        m_combo.FillWithFilterArray(m_filters);
        EXPECT_EQ(m_combo.GetCurSel(), row.selected) << row.why;
    }
}

}  // namespace
