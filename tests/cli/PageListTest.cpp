#include "cli/PageList.h"

#include "cli/DescribeCommand.h"
#include "cli/Failure.h"
#include "cli/PagesCommand.h"
#include "cli/TestWizard.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
std::string ErrorOf(const std::string& rsName)
{
    const auto pages = gListPages(gTestWizard());
    try {
        gFindBuiltPage(pages, rsName);
    } catch (const CUsageError& rError) {
        return rError.what();
    }
    return {};
}

TEST(PageList, APageIsFoundByItsPathOrItsClass)
{
    const auto pages = gListPages(gTestWizard());
    EXPECT_EQ(gFindPage(pages, "Tests").sClass, "CTestCategoryPage");
    EXPECT_EQ(gFindPage(pages, "tESTS/aLL KINDS").sClass, "CTestAllKindsPage");
    EXPECT_EQ(gFindPage(pages, "CTestAllKindsPage").sClass, "CTestAllKindsPage");
    EXPECT_EQ(gFindPage(pages, "Tests/Not built").sClass, "CTestNotBuiltPage");
    EXPECT_EQ(gFindPage(pages, "CTestLonePage").sClass, "CTestLonePage");
}

TEST(PageList, AnUnknownNameIsRefusedWithTheNearest)
{
    EXPECT_EQ(ErrorOf("Tests/All kind"),
              R"(there is no page "Tests/All kind"; did you mean "Tests/All kinds"?)");
    EXPECT_EQ(ErrorOf("kinds"), R"(there is no page "kinds"; did you mean "Tests/All kinds"?)");
    EXPECT_EQ(ErrorOf("ctestallkindspage"),
              R"(there is no page "ctestallkindspage"; did you mean "CTestAllKindsPage"?)");
    EXPECT_EQ(ErrorOf("all kinds"),
              R"(there is no page "all kinds"; did you mean "Tests/All kinds"?)");
    EXPECT_EQ(ErrorOf("All kidns"),
              R"(there is no page "All kidns"; did you mean "Tests/All kinds"?)");
    EXPECT_EQ(ErrorOf(""), R"(there is no page "")");
    EXPECT_EQ(ErrorOf("Tests/"), R"(there is no page "Tests/"; did you mean "Tests"?)");
    EXPECT_EQ(ErrorOf("\xff"), R"(there is no page "\xFF"; did you mean "Tests"?)");
}

TEST(PageList, APageThatIsNotBuiltIsRefused)
{
    EXPECT_EQ(ErrorOf("CTestNotBuiltPage"), R"(the page "Tests/Not built" isn't built yet)");
}

TEST(PageList, OfEquallyNearPagesTheOneThatIsBuiltIsNamed)
{
    const std::vector<TPage> pages{{"A/xa", "CFirst", nullptr, false},
                                   {"B/xb", "CSecond", gListPages(gTestWizard())[0].pClass, false}};
    try {
        gFindPage(pages, "xc");
        FAIL() << "found";
    } catch (const CUsageError& rError) {
        EXPECT_STREQ(rError.what(), R"(there is no page "xc"; did you mean "B/xb"?)");
    }
}

TEST(PageList, LabelsAreTranslated)
{
    const CBracketTranslation brackets;
    const auto pages = gListPages(gTestWizard());
    EXPECT_EQ(pages[1].sPath, "[Tests]/[All kinds]");
}

TEST(PagesCommand, APageWithoutANodeHasADashForItsPath)
{
    EXPECT_EQ(gTellPages(gTestWizard(), {}), "Tests            CTestCategoryPage  ready\n"
                                             "Tests/All kinds  CTestAllKindsPage  ready\n"
                                             "Tests/Not built  CTestNotBuiltPage  not built\n"
                                             "-                CTestLonePage      ready\n");
}

TEST(PagesCommand, TheJsonHoldsTheSame)
{
    EXPECT_EQ(gTellPages(gTestWizard(), {true}),
              R"([{"path":"Tests","class":"CTestCategoryPage","category":true,"built":true},)"
              R"({"path":"Tests/All kinds","class":"CTestAllKindsPage","category":false,)"
              R"("built":true},)"
              R"({"path":"Tests/Not built","class":"CTestNotBuiltPage","category":false,)"
              R"("built":false},)"
              R"({"path":null,"class":"CTestLonePage","category":false,"built":true}])"
              "\n");
}
} // namespace
} // namespace quorvawiz::cli
