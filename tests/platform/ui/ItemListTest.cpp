#include "platform/ui/ItemList.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
CItemList Make(const std::vector<const char*>& rTexts, int nSelected = -1)
{
    CItemList list;
    for (const char* pText : rTexts)
        list.Insert(-1, pText);
    list.Select(nSelected);
    return list;
}

std::vector<CString> All(const CItemList& rList)
{
    return {rList.GetAll().begin(), rList.GetAll().end()};
}

struct TInsert {
    int nAt, nSelected;
    int nResult, nSelectedAfter;
};

TEST(ItemListTest, InsertKeepsTheSelectedEntrySelected)
{
    constexpr TInsert kCases[] = {
        {0, 1, 0, 2},  {1, 1, 1, 2},   {2, 1, 2, 1},   {3, 1, 3, 1},    {-1, 1, 3, 1},
        {4, 1, -1, 1}, {-2, 1, -1, 1}, {0, -1, 0, -1}, {-1, -1, 3, -1},
    };
    for (const TInsert& rCase : kCases) {
        SCOPED_TRACE(rCase.nAt);
        CItemList list = Make({"a", "b", "c"}, rCase.nSelected);
        EXPECT_EQ(list.Insert(rCase.nAt, "new"), rCase.nResult);
        EXPECT_EQ(list.GetSelection(), rCase.nSelectedAfter);
        EXPECT_EQ(list.GetCount(), rCase.nResult < 0 ? 3 : 4);
        if (rCase.nResult >= 0) {
            EXPECT_EQ(list.GetText(rCase.nResult), "new");
        }
    }
}

struct TRemove {
    int nAt, nSelected;
    bool bResult;
    int nSelectedAfter;
};

TEST(ItemListTest, RemoveKeepsTheSelectedEntrySelected)
{
    constexpr TRemove kCases[] = {
        {0, 1, true, 0},  {1, 1, true, -1},  {2, 1, true, 1},   {0, 0, true, -1},
        {3, 1, false, 1}, {-1, 1, false, 1}, {0, -1, true, -1}, {2, 2, true, -1},
    };
    for (const TRemove& rCase : kCases) {
        SCOPED_TRACE(rCase.nAt);
        CItemList list = Make({"a", "b", "c"}, rCase.nSelected);
        EXPECT_EQ(list.Remove(rCase.nAt), rCase.bResult);
        EXPECT_EQ(list.GetSelection(), rCase.nSelectedAfter);
        EXPECT_EQ(list.GetCount(), rCase.bResult ? 2 : 3);
    }
}

struct TFind {
    int nAfter;
    const char* pText;
    int nExpected;
};

TEST(ItemListTest, FindExactFoldsCaseAndWraps)
{
    constexpr TFind kCases[] = {
        {-1, "one", 0}, {0, "one", 2},    {1, "one", 2},  {2, "one", 0},
        {3, "one", 0},  {-1, "TWO", 1},   {1, "two", 1},  {-1, "on", -1},
        {-1, "", -1},   {-1, "one ", -1}, {99, "one", 0}, {-99, "one", 0},
    };
    const CItemList list = Make({"One", "two", "ONE", "three"});
    for (const TFind& rCase : kCases) {
        EXPECT_EQ(list.FindExact(rCase.nAfter, rCase.pText), rCase.nExpected)
            << rCase.nAfter << ' ' << rCase.pText;
    }
    EXPECT_EQ(CItemList().FindExact(-1, "one"), -1);
}

TEST(ItemListTest, InsertSortedPutsCaseAside)
{
    CItemList list;
    for (const char* pText : {"m", "B", "a", "M", "b", "z", ""})
        list.InsertSorted(pText);
    EXPECT_EQ(All(list), (std::vector<CString>{"", "a", "B", "b", "m", "M", "z"}));
}

TEST(ItemListTest, SelectClearsWhatIsNoIndex)
{
    CItemList list = Make({"a", "b"});
    EXPECT_TRUE(list.Select(1));
    EXPECT_EQ(list.GetSelection(), 1);
    for (const int nIndex : {2, -1, -5, 100}) {
        list.Select(0);
        EXPECT_FALSE(list.Select(nIndex));
        EXPECT_EQ(list.GetSelection(), -1);
    }
    list.Select(1);
    list.Clear();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetSelection(), -1);
    EXPECT_EQ(list.GetText(0), "");
}
} // namespace
