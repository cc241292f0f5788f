// Our archive against the library's own, over stores of any shape.

#include "params/RandomStore.h"
#include "params/StoreText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr int kRounds = QUORVAWIZ_LONG_RUNS ? 200'000 : 10'000;

TEST(StockArchiveTest, BothWriteTheSameBytesAndReadTheSameStore)
{
    CRandomStore random(1);
    for (int n = 0; n < kRounds; ++n) {
        TCircuitParams store;
        random.Fill(store, true);
        const std::string sOurs = gOursOf(store);
        ASSERT_EQ(sOurs, gStockOf(store)) << "round " << n;
        TCircuitParams ours;
        gReadOurs(sOurs, ours);
        TCircuitParams stock;
        gReadStock(sOurs, stock);
        ASSERT_EQ(gDescribe(ours), gDescribe(stock)) << "round " << n << '\n' << sOurs;
    }
}

// The library writes NaN and infinities, and can't read them.
TEST(StockArchiveTest, WhatIsNoNumberIsReadByOursAlone)
{
    CRandomStore random(2);
    for (int n = 0; n < kRounds / 10; ++n) {
        TCircuitParams store;
        random.Fill(store, false);
        const std::string sOurs = gOursOf(store);
        ASSERT_EQ(sOurs, gStockOf(store)) << "round " << n;
        TCircuitParams ours;
        gReadOurs(sOurs, ours);
        const std::string sRead = gDescribe(ours); // before the save that hides NaN
        TCircuitParams again;
        gReadOurs(gOursOf(ours), again);
        ASSERT_EQ(sRead, gDescribe(again)) << "round " << n;
    }
}

} // namespace
