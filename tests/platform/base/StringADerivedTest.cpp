#include "platform/base/StringA.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace
{

/// A text whose first byte "~" doesn't count: the bytes are more than the text.
class CMarkedText : public CStringA
{
public:
    CMarkedText(const char* pText) : CStringA(pText) { Mark(); }
    CMarkedText(const CStringA& rsText) : CStringA(rsText) { Mark(); }

    std::string_view Text() const { return std::string_view(Bytes()).substr(1); }

    CMarkedText& operator+=(const CMarkedText& rsText)
    {
        Bytes() += rsText.Text();
        return *this;
    }

    friend bool operator==(const CMarkedText& rsLeft, const CMarkedText& rsRight)
    {
        return rsLeft.Text() == rsRight.Text();
    }

    friend bool operator<(const CMarkedText& rsLeft, const CMarkedText& rsRight)
    {
        return rsLeft.Text().size() < rsRight.Text().size();
    }

    friend CMarkedText operator+(CMarkedText sLeft, const CMarkedText& rsRight)
    {
        sLeft += rsRight;
        return sLeft;
    }

private:
    void Mark() { Bytes().insert(0, 1, '~'); }
};

static_assert(sizeof(CMarkedText) == sizeof(std::string));

TEST(StringADerivedTest, OperatorsOfADerivedTextAreItsOwnWhateverTheOtherSide)
{
    const CMarkedText sText("abc");
    EXPECT_TRUE(sText == "abc");
    EXPECT_TRUE("abc" == sText);
    EXPECT_TRUE(sText == CString("abc"));
    EXPECT_TRUE(CString("abc") == sText);
    EXPECT_TRUE(sText != "~abc");
    EXPECT_TRUE(CMarkedText("z") < sText);
    EXPECT_TRUE("z" < sText);
    EXPECT_FALSE(CString("aaaa") < sText);
    EXPECT_EQ((sText + "d").Text(), "abcd");
    EXPECT_EQ(("d" + sText).Text(), "dabc");
    EXPECT_EQ((CString("d") + sText).Text(), "dabc");
    EXPECT_EQ((sText + CString("d")).Text(), "abcd");
}

TEST(StringADerivedTest, BasePartHoldsAllBytes)
{
    const CMarkedText sText("abc");
    const CString& rsBase = sText;
    EXPECT_EQ(rsBase, "~abc");
    EXPECT_EQ(rsBase.GetLength(), 4);
}

} // namespace
