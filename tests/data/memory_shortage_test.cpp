// When memory runs out, nothing is thrown at the host, and a text is the old one, the new one or empty.
#include <knav/CNavDataArray.h>
#include <knav/CNavFilterArray.h>
#include <knav/CNavPathname.h>

#include <functional>

#include "support/MemoryShortage.h"

namespace {

constexpr wchar_t kOld[] = L"an old text that is too long to be kept without memory";
constexpr wchar_t kNew[] = L"  a new text that is too long to be kept without memory";

// `body` counts what it finds wrong.
void expectSurvives(const std::function<void(int& wrong)>& body) {
    int wrong = 0;
    EXPECT_GT(knav::test::withEachAllocationFailing([&] { body(wrong); }), 0);
    EXPECT_EQ(wrong, 0);
}

TEST(DataMemoryShortage, TextsOfAnItemAreOldOrNew) {
    using Set = void (CNavData::*)(const wchar_t*);
    using Get = const wchar_t* (CNavData::*)() const;
    const struct {
        Set set;
        Get get;
        const wchar_t* set_to;
    } rows[] = {
        {&CNavData::SetText, &CNavData::GetText, kNew + 2},
        {&CNavData::SetTextInFolder, &CNavData::GetTextInFolder, kNew + 2},
        {&CNavData::SetUserName, &CNavData::GetUserName, kNew},
        {&CNavData::SetPassword, &CNavData::GetPassword, kNew},
        {&CNavData::SetExtensionName, &CNavData::GetExtensionName, kNew},
    };
    for (const auto& row : rows) {
        expectSurvives([&](int& wrong) {
            CNavData data;
            (data.*row.set)(kOld);
            (data.*row.set)(kNew);
            const std::wstring_view text = (data.*row.get)();
            wrong += text != row.set_to && text != kOld && !text.empty();
        });
    }
}

TEST(DataMemoryShortage, ItemsAreMadeOrNot) {
    expectSurvives([](int& wrong) {
        CNavDataArray array;
        const CNavData* const data = array.AddData();
        wrong += array.GetCount() != (data != nullptr ? 1 : 0);
        CString url;
        wrong += data != nullptr && data->GetPathname() == nullptr && data->GetURL(url) != 0;
    });
}

TEST(DataMemoryShortage, FilterListsAreReadAsFarAsMemoryGoes) {
    constexpr wchar_t list[] =
        L"Drawings of a rather long name\0*.drawing-of-a-long-name;*.dwg\0Texts of a rather long name\0*.txt;*.csv\0";
    expectSurvives([&](int& wrong) {
        CNavFilterArray filters;
        filters.SetFrom(list, 0);
        wrong += filters.GetCount() > 2;
        if (filters.GetCount() > 0) {
            filters[0]->SetMultiSelectAllowed(1);
            filters[0]->SetFullDescription(kNew);
        }
        filters.FindExact(L"*.csv");
    });
}

TEST(DataMemoryShortage, NamesThatMatchAreAllowedOrNot) {
    CNavFilter filter;
    const std::wstring name(600, L'a');
    filter.Add(CString(L"**" + name));
    CString whole;
    filter.GetFullDescription(whole);
    expectSurvives([&](int& wrong) {
        wrong += filter.IsAllowed((name.substr(0, 3)).c_str()) != 0;
        filter.IsAllowed(name.c_str());
        CString shown;
        filter.GetFullDescription(shown);
        wrong += shown != whole && !shown.IsEmpty();
    });
}

}  // namespace
