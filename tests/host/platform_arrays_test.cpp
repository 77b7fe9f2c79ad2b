#include <platform/Arrays.h>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(Array, TakesElementsOfItself) {
    CStringArray texts;
    texts.Add(L"a");
    texts.Add(L"b");
    for (int round = 0; round < 10; ++round) {  // long enough for a growth to move the elements
        texts.Add(texts[0]);
    }
    texts.InsertAt(0, texts[1], 2);
    texts.RemoveAt(3, 10);
    EXPECT_EQ(texts.Append(texts), 4);
    EXPECT_THAT(texts, ElementsAre(L"b", L"b", L"a", L"a", L"b", L"b", L"a", L"a"));
    texts.RemoveAt(2, 6);
    texts.InsertAt(1, &texts);
    texts.Copy(texts);
    EXPECT_THAT(texts, ElementsAre(L"b", L"b", L"b", L"b"));
}

TEST(Array, IndexOutsideIsAnErrorAndChangesNothing) {
    CDWordArray numbers;
    numbers.Add(1);
    EXPECT_THROW(numbers.GetAt(1), std::out_of_range);
    EXPECT_THROW(numbers.SetAt(-1, 0), std::out_of_range);
    EXPECT_THROW(numbers.SetAtGrow(-1, 0), std::out_of_range);
    EXPECT_THROW(numbers.SetSize(-1), std::out_of_range);
    EXPECT_THROW(numbers.RemoveAt(2, 0), std::out_of_range);
    EXPECT_THROW(numbers.RemoveAt(1, INTPTR_MAX), std::out_of_range);
    numbers.RemoveAt(1, 0);
    EXPECT_THAT(numbers, ElementsAre(1));
}

}  // namespace
