#include "cli/ComposeArgument.h"

#include "cli/Failure.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace quorvawiz::cli
{
void PrintTo(const TComposeMove& rMove, std::ostream* pOut)
{
    *pOut << "move " << static_cast<int>(rMove.kind) << ' ' << rMove.sKey;
}

namespace
{
using TKeys = std::vector<std::string>;
using EKind = TComposeMove::EKind;

TEST(ComposeArgument, IsReadAsPrefixKeyAndValue)
{
    struct Case {
        const char* pText;
        TKeys prefix;
        const char* pKey;
        std::optional<std::string> value;
    };
    const std::vector<Case> cases{
        {"add", {}, "add", std::nullopt},
        {"start=5", {}, "start", "5"},
        {"start=", {}, "start", ""},
        {"start=a=b.c", {}, "start", "a=b.c"},
        {"start=a\nb", {}, "start", "a\nb"},
        {"sweep.start=5", {"sweep"}, "start", "5"},
        {"sweep.accept", {"sweep"}, "accept", std::nullopt},
        {"sweep.more.start=1.5", {"sweep", "more"}, "start", "1.5"},
    };
    for (const Case& rCase : cases) {
        const TComposeArgument argument = gParseArgument(rCase.pText);
        EXPECT_EQ(argument.prefix, rCase.prefix) << rCase.pText;
        EXPECT_EQ(argument.sKey, rCase.pKey) << rCase.pText;
        EXPECT_EQ(argument.value, rCase.value) << rCase.pText;
    }
}

TEST(ComposeArgument, WithoutAKeyIsRefused)
{
    for (const char* const pText : {"", "=", "=5", ".", ".start=5", "sweep.", "sweep.=5", "a..b"})
        EXPECT_THROW(gParseArgument(pText), CUsageError) << pText;
}

TEST(ComposeMove, FollowsThePrefixes)
{
    struct Case {
        const char* pName;
        TKeys open;
        std::optional<std::string> next;
        TComposeMove move;
    };
    const std::vector<Case> cases{
        {"no dialog, none wanted", {}, "add", {EKind::Act, ""}},
        {"a prefix opens its dialog", {}, "sweep.start=5", {EKind::Open, "sweep"}},
        {"the dialog is open", {"sweep"}, "sweep.start=5", {EKind::Act, ""}},
        {"dialogs are opened one by one", {}, "sweep.more.start=5", {EKind::Open, "sweep"}},
        {"the second", {"sweep"}, "sweep.more.start=5", {EKind::Open, "more"}},
        {"both open", {"sweep", "more"}, "sweep.more.start=5", {EKind::Act, ""}},
        {"the prefix ends", {"sweep"}, "add", {EKind::Accept, ""}},
        {"another prefix", {"sweep"}, "other.start=5", {EKind::Accept, ""}},
        {"another prefix inside", {"sweep", "more"}, "sweep.other.start=5", {EKind::Accept, ""}},
        {"back to the outer dialog", {"sweep", "more"}, "sweep.start=5", {EKind::Accept, ""}},
        {"both end, the inner first", {"sweep", "more"}, "add", {EKind::Accept, ""}},
        {"the arguments end", {"sweep"}, std::nullopt, {EKind::Accept, ""}},
        {"all is done", {}, std::nullopt, {EKind::Insert, ""}},
    };
    for (const Case& rCase : cases) {
        std::optional<TComposeArgument> next;
        if (rCase.next)
            next = gParseArgument(*rCase.next);
        EXPECT_EQ(gNextMove(rCase.open, next ? &*next : nullptr), rCase.move) << rCase.pName;
    }
}
} // namespace
} // namespace quorvawiz::cli
