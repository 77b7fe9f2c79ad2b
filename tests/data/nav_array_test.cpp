#include <knav/CNavArray.h>

namespace {

using testing::ElementsAre;

// Writes its number into a log when it is deleted.
struct Logged {
    Logged() = default;
    Logged(int itsNumber, std::vector<int>* itsLog) : number(itsNumber), log(itsLog) {}
    ~Logged() {
        if (log != nullptr) {
            log->push_back(number);
        }
    }
    int number = 0;
    std::vector<int>* log = nullptr;
};

class LoggedArray : public CNavArray<Logged> {
public:
    explicit LoggedArray(std::vector<int>& log) : m_log(log) {}
    Logged* NewData() override { return new Logged(++m_made, &m_log); }

private:
    std::vector<int>& m_log;
    int m_made = 0;
};

TEST(CNavArray, GivesNullForAnIndexOutside) {
    CNavArray<Logged> array;
    Logged* const first = array.AddData();
    Logged* const second = array.AddData();
    EXPECT_EQ(array.GetData(0), first);
    EXPECT_EQ(array.GetData(1), second);
    for (const __int64 outside : {-1LL, 2LL, 1LL << 40, -(1LL << 62)}) {
        EXPECT_EQ(array.GetData(outside), nullptr) << outside;
        EXPECT_EQ(array.IsIndexValid(outside), 0) << outside;
        array.RemoveData(outside);
    }
    EXPECT_EQ(array.GetCount(), 2);
    EXPECT_EQ(array.IsIndexValid(1), 1);
}

TEST(CNavArray, DeletesWhatItRemovesAndNothingThatTheBaseDoes) {
    std::vector<int> deleted;
    {
        LoggedArray array(deleted);
        for (int i = 0; i < 5; ++i) {
            array.AddData();
        }
        array.RemoveData(1);
        EXPECT_THAT(deleted, ElementsAre(2));
        EXPECT_EQ(array.GetData(1)->number, 3);
        array.RemoveAllData();
        EXPECT_THAT(deleted, ElementsAre(2, 1, 3, 4, 5)) << "in the order of the indices";
        EXPECT_EQ(array.GetCount(), 0);
        const std::unique_ptr<Logged> taken(array.AddData());
        array.AddData();
        array.RemoveAt(0);
        EXPECT_EQ(deleted.size(), 5u);
    }
    EXPECT_THAT(deleted, ElementsAre(2, 1, 3, 4, 5, 6, 7)) << "the destructor deletes the rest once";
}

}  // namespace
