// A browse in a session: its file dialogs are answered by requests.

#include "support/RunProgram.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace
{
using TReplies = std::vector<nlohmann::json>;

TReplies RepliesTo(const std::string& rsRequests)
{
    std::istringstream lines(gRunQuorvawiz({"session"}, rsRequests).sOut);
    TReplies replies;
    for (std::string sLine; std::getline(lines, sLine);)
        replies.push_back(nlohmann::json::parse(sLine));
    return replies;
}

constexpr const char* kOpenPage = R"({"op":"open","page":"Files/Library file"})"
                                  "\n";
constexpr const char* kBrowse = R"({"op":"click","field":"browse"})"
                                "\n";

TEST(Browse, ARequestAnswersTheFileDialogWithAPath)
{
    const TReplies replies = RepliesTo(std::string(kOpenPage) +
                                       R"({"op":"file","path":"/models/tech.lib"})"
                                       "\n" +
                                       kBrowse +
                                       R"({"op":"insert"})"
                                       "\n");
    ASSERT_EQ(replies.size(), 4U);
    const auto& rShown = replies[2]["file_dialogs"];
    ASSERT_EQ(rShown.size(), 1U);
    EXPECT_EQ(rShown[0]["kind"], "open");
    EXPECT_EQ(rShown[0]["name"], "");
    EXPECT_EQ(rShown[0]["flags"], 0x00800804);
    EXPECT_EQ(rShown[0]["default_extension"], "");
    EXPECT_EQ(rShown[0]["filter"], "Library Files (*.lib)|*.lib|SPICE Files (*.sp;*.spc;*.cir)|"
                                   "*.sp; *.spc; *.cir|Model Files (*.md)|*.md|All Files "
                                   "(*.*)|*.*||");
    EXPECT_EQ(replies[2]["fields"]["file"]["text"], "/models/tech.lib");
    EXPECT_EQ(replies[3]["inserted"], nlohmann::json::array({".lib \"/models/tech.lib\""}));
}

TEST(Browse, TheNextOneStartsInTheFolderOfTheLastUntilAllIsForgotten)
{
    const TReplies replies = RepliesTo(std::string(kOpenPage) +
                                       R"({"op":"file","path":"/tmp/tech.lib"})"
                                       "\n" +
                                       kBrowse + kBrowse +
                                       R"({"op":"fresh"})"
                                       "\n" +
                                       kOpenPage + kBrowse);
    ASSERT_EQ(replies.size(), 7U);
    EXPECT_EQ(replies[3]["file_dialogs"][0]["folder"], "/tmp");
    EXPECT_EQ(replies[3]["file_dialogs"][0]["name"], "/tmp/tech.lib");
    EXPECT_EQ(replies[6]["file_dialogs"][0]["folder"], replies[2]["file_dialogs"][0]["folder"]);
    EXPECT_EQ(replies[6]["fields"]["file"]["text"], "");
}

TEST(Browse, ATextThatIsNoFileNameIsAskedForAgainWithoutIt)
{
    const TReplies replies = RepliesTo(std::string(kOpenPage) +
                                       R"({"op":"set","field":"file","text":"a<b>?"})"
                                       "\n"
                                       R"({"op":"file","invalid":true})"
                                       "\n" +
                                       kBrowse);
    ASSERT_EQ(replies.size(), 4U);
    const auto& rShown = replies[3]["file_dialogs"];
    ASSERT_EQ(rShown.size(), 2U);
    EXPECT_EQ(rShown[0]["name"], "a<b>?");
    EXPECT_EQ(rShown[1]["name"], "");
    EXPECT_EQ(replies[3]["fields"]["file"]["text"], "a<b>?") << "the second dialog is cancelled";
}
} // namespace
