#include "quorvahost/Sentence.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

namespace quorvawiz::host
{
namespace
{
TEST(Sentence, HasACapitalAndAFullStop)
{
    EXPECT_EQ(gAsSentence(QStringLiteral("can't open \"a\": it is gone")),
              QStringLiteral("Can't open \"a\": it is gone."));
    EXPECT_EQ(gAsSentence({}), QStringLiteral("."));
}
} // namespace
} // namespace quorvawiz::host
