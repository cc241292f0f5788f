#include "platform/base/Exceptions.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace
{

TEST(ExceptionsTest, ThrownWithItsTextAndCaughtAsTheStandardOne)
{
    try {
        gThrowInvalidArg("index 7");
    } catch (const std::invalid_argument& rError) {
        EXPECT_STREQ(rError.what(), "index 7");
    }
    EXPECT_THROW(gThrowInvalidArg("x"), CInvalidArgException);
}

TEST(ExceptionsTest, NullTextReadsAsEmpty)
{
    try {
        gThrowInvalidArg(nullptr);
    } catch (const CInvalidArgException& rError) {
        EXPECT_STREQ(rError.what(), "");
    }
}

} // namespace
