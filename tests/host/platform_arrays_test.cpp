#include <platform/Arrays.h>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

struct Counted : CObject {
    DECLARE_DYNAMIC(Counted)
    Counted() { ++alive; }
    ~Counted() override { --alive; }
    static inline int alive = 0;
};
IMPLEMENT_DYNAMIC(Counted, CObject)

struct MoreCounted : Counted {
    DECLARE_DYNAMIC(MoreCounted)
};
IMPLEMENT_DYNAMIC(MoreCounted, Counted)

TEST(Array, GrowsToTheIndexWithDefaultElements) {
    CDWordArray numbers;
    numbers.SetAtGrow(2, 7);
    EXPECT_THAT(numbers, ElementsAre(0, 0, 7));
    numbers.SetAtGrow(1, 5);
    EXPECT_THAT(numbers, ElementsAre(0, 5, 7));
    numbers.InsertAt(1, 9, 2);
    EXPECT_THAT(numbers, ElementsAre(0, 9, 9, 5, 7));
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
    EXPECT_EQ(texts[11], L"a");
    texts.InsertAt(0, texts[1], 2);
    EXPECT_EQ(texts[0], L"b");
    EXPECT_EQ(texts[2], L"a");
    texts.SetSize(3);
    EXPECT_EQ(texts.Append(texts), 3);
    EXPECT_THAT(texts, ElementsAre(L"b", L"b", L"a", L"b", L"b", L"a"));
    texts.RemoveAt(2, 4);
    texts.InsertAt(1, &texts);
    EXPECT_THAT(texts, ElementsAre(L"b", L"b", L"b", L"b"));
    texts.Copy(texts);
    EXPECT_EQ(texts.GetSize(), 4);
}

TEST(Array, IndexOutsideIsAnErrorAndChangesNothing) {
    CDWordArray numbers;
    numbers.Add(1);
    EXPECT_THROW(numbers.GetAt(1), std::out_of_range);
    EXPECT_THROW(numbers.SetAt(-1, 0), std::out_of_range);
    EXPECT_THROW(numbers.SetAtGrow(-1, 0), std::out_of_range);
    EXPECT_THROW(numbers.SetSize(-1), std::out_of_range);
    EXPECT_THROW(numbers.RemoveAt(0, 2), std::out_of_range);
    EXPECT_THROW(numbers.RemoveAt(2, 0), std::out_of_range);
    EXPECT_THROW(numbers.RemoveAt(1, INTPTR_MAX), std::out_of_range);
    EXPECT_THAT(numbers, ElementsAre(1));
    numbers.RemoveAt(1, 0);
    EXPECT_EQ(numbers.GetSize(), 1);
}

TEST(Array, OfPointersIsTypedAndDoesNotOwn) {
    Counted first;
    MoreCounted second;
    {
        CTypedPtrArray<CObArray, Counted*> objects;
        objects.Add(&first);
        objects.SetAtGrow(2, &second);
        objects.ElementAt(1) = objects[2];
        Counted* const read = objects.GetAt(1);
        EXPECT_EQ(read, &second);
        objects.RemoveAt(0);
        EXPECT_EQ(objects.GetSize(), 2);
    }
    EXPECT_EQ(Counted::alive, 2);
}

TEST(RuntimeClass, KnowsItsBasesAndNothingElse) {
    MoreCounted derived;
    Counted base;
    CObject* const object = &derived;
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(MoreCounted)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(Counted)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(base.IsKindOf(RUNTIME_CLASS(MoreCounted)));
    EXPECT_FALSE(base.IsKindOf(nullptr));
    EXPECT_STREQ(object->GetRuntimeClass()->m_name, "MoreCounted");
    EXPECT_EQ(DYNAMIC_DOWNCAST(Counted, object), &derived);
    EXPECT_EQ(DYNAMIC_DOWNCAST(MoreCounted, static_cast<CObject*>(&base)), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Counted, static_cast<CObject*>(nullptr)), nullptr);
}

}  // namespace
