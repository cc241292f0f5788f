#include "platform/ui/PropertyPage.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
/// Names the protected functions.
struct TExposed : CPropertyPage {
    using CPropertyPage::DoDataExchange;
    using CPropertyPage::GetMessageMap;
};

TEST(VirtualOrderTest, MessageMapBeforeDataExchangeBeforeInitDialog)
{
    const std::size_t nMap = gVirtualSlot(&TExposed::GetMessageMap);
    const std::size_t nExchange = gVirtualSlot(&TExposed::DoDataExchange);
    const std::size_t nInit = gVirtualSlot(&CPropertyPage::OnInitDialog);
    // The two entries of the destructor come first.
    EXPECT_EQ(nMap, 2U);
    EXPECT_EQ(nExchange, nMap + 1);
    EXPECT_GT(nInit, nExchange);
}

struct TLadder {
    virtual ~TLadder() = default;
    virtual int First() { return 1; }
    virtual int Second() { return 2; }
    int Plain() { return 3; }
};
struct TLonger : TLadder {
    int Second() override { return 4; }
    virtual int Third() { return 5; }
};

TEST(VirtualOrderTest, TheSlotIsTheOneOfTheClassTree)
{
    EXPECT_EQ(gVirtualSlot(&TLadder::First), 2U);
    EXPECT_EQ(gVirtualSlot(&TLadder::Second), 3U);
    EXPECT_EQ(gVirtualSlot(&TLonger::Second), 3U);
    EXPECT_EQ(gVirtualSlot(&TLonger::Third), 4U);
    EXPECT_THROW(gVirtualSlot(&TLadder::Plain), std::invalid_argument);
}
} // namespace
