#include <platform/Arrays.h>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

struct Base : CObject {
    DECLARE_DYNAMIC(Base)
};
IMPLEMENT_DYNAMIC(Base, CObject)

struct Derived : Base {
    DECLARE_DYNAMIC(Derived)
};
IMPLEMENT_DYNAMIC(Derived, Base)

TEST(Array, GrowsToTheIndexWithDefaultElements) {
    CDWordArray numbers;
    numbers.SetAtGrow(2, 7);
    numbers.SetAtGrow(1, 5);
    numbers.InsertAt(1, 9, 2);
    numbers.InsertAt(6, 1);
    EXPECT_THAT(numbers, ElementsAre(0, 9, 9, 5, 7, 0, 1));
    numbers.SetSize(2);
    EXPECT_EQ(numbers.GetUpperBound(), 1);
    EXPECT_EQ(numbers.Add(3), 2);
}

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

TEST(RuntimeClass, KnowsItsBasesAndNothingElse) {
    Derived derived;
    Base base;
    CObject* const object = &derived;
    EXPECT_FALSE(base.IsKindOf(nullptr));
    EXPECT_EQ(DYNAMIC_DOWNCAST(Base, object), &derived);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Derived, static_cast<CObject*>(&base)), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Base, static_cast<CObject*>(nullptr)), nullptr);
}

}  // namespace
