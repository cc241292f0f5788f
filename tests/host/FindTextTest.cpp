#include "quorvahost/FindText.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvawiz::host
{
namespace
{
using enum EDirection;

struct TCase {
    const char* pName;
    int nFrom;
    TSearch search;
    EDirection direction;
    int nFound; // -1: nowhere
    bool bWrapped;
};

TEST(FindText, NextPreviousCaseAndWrap)
{
    QTextDocument document(QStringLiteral("R1 a b\nr1 c d\nR2 a b"));
    const std::vector<TCase> cases{
        {"from the start", 0, {"r1", false}, Forward, 0, false},
        {"behind the first", 2, {"r1", false}, Forward, 7, false},
        {"with case", 0, {"r1", true}, Forward, 7, false},
        {"wraps", 8, {"r1", false}, Forward, 0, true},
        {"wraps onto itself", 15, {"R2", true}, Forward, 14, true},
        {"backward", 14, {"r1", false}, Backward, 7, false},
        {"backward wraps", 0, {"r", false}, Backward, 14, true},
        {"nowhere", 0, {"r3", false}, Forward, -1, true},
        {"with case nowhere", 0, {"r2", true}, Forward, -1, true},
        {"no expression", 0, {"R.", false}, Forward, -1, true},
        {"nothing", 0, {"", false}, Forward, -1, false},
    };
    for (const TCase& rCase : cases) {
        QTextCursor from(&document);
        from.setPosition(rCase.nFrom);
        const TFound found = gFindText(document, from, rCase.search, rCase.direction);
        EXPECT_EQ(found.cursor.isNull() ? -1 : found.cursor.selectionStart(), rCase.nFound)
            << rCase.pName;
        EXPECT_EQ(found.bWrapped, rCase.bWrapped) << rCase.pName;
    }
}
} // namespace
} // namespace quorvawiz::host
