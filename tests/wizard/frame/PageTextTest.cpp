#include "wizard/frame/PageText.h"

#include "platform/headless/HeadlessDesktop.h"
#include "support/TranslationScope.h"
#include "wizard/frame/TreeDlg.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
TEST(PageText, TrimTakesWhiteSpaceAwayAtBothEndsOfTheFieldItself)
{
    CString sField = " \t\r\n\v\f a b \f\v\n\r\t ";
    gTrim(sField);
    EXPECT_EQ(sField, "a b");

    sField = "   ";
    gTrim(sField);
    EXPECT_TRUE(sField.IsEmpty());
}

TEST(PageText, TrimTakesEveryFieldInItsTurnAndTheLeftEndAlone)
{
    CString sFirst = " a ";
    CString sSecond = "\tb ";
    gTrimLeft(sFirst, sSecond);
    EXPECT_EQ(sFirst, "a ");
    EXPECT_EQ(sSecond, "b ");
    gTrim(sFirst, sSecond);
    EXPECT_EQ(sFirst, "a");
    EXPECT_EQ(sSecond, "b");
}

TEST(PageText, AnEmptyFieldIsNotAppendedWithWhatStandsBeforeIt)
{
    CString sCommand = ".four";
    gAppendIfAny(sCommand, " nfreqs=", "");
    gAppendIfAny(sCommand, " npoints=", " ");
    EXPECT_EQ(sCommand, ".four npoints= ");
}

TEST(PageText, ALetterIsLookedAtInEitherCaseAndAloneAtTheBeginning)
{
    for (const auto& [pName, bBegins] : {std::pair{"v1", true},
                                         {"V", true},
                                         {"1v", false},
                                         {" v", false},
                                         {"", false},
                                         {"i", false}})
        EXPECT_EQ(gBeginsWithLetter(pName, 'V'), bBegins) << pName;
}

struct TJoinCase {
    const char* pName;
    std::string sText;
    std::string sJoined;
};

const TJoinCase kJoinCases[] = {
    {"one pair is one blank", "a\r\nb", "a b"},
    {"two pairs are two blanks", "a\r\n\r\nb", "a  b"},
    {"a lone LF is dropped", "a\nb", "ab"},
    {"a lone CR is kept", "a\rb", "a\rb"},
    {"a lone LF right behind a pair survives", "a\r\n\nb", "a \nb"},
    {"a lone CR right behind a pair is dropped", "a\r\n\rb", "a b"},
    {"a pair at the end vanishes without a blank", "a\r\n", "a"},
    {"two pairs at the end leave one blank", "a\r\n\r\n", "a "},
    {"a lone CR at the end is kept", "a\r", "a\r"},
    {"a pair at the start is a blank", "\r\na", " a"},
    {"nothing stays nothing", "", ""},
    {"a pair alone vanishes", "\r\n", ""},
    {"text without line ends is copied", "0 27 85", "0 27 85"},
};

TEST(PageText, JoinsLinesByTheLineEndRule)
{
    for (const TJoinCase& rCase : kJoinCases)
        EXPECT_EQ(gJoinLines(rCase.sText), rCase.sJoined) << rCase.pName;
}

/// The rule as it is told, step by step.
std::string JoinByTheBook(const std::string& rsText)
{
    const std::size_t n = rsText.size();
    const auto at = [&](std::size_t k) { return k < n ? rsText[k] : '\0'; };
    std::string sOut;
    std::size_t i = 0;
    while (i < n) {
        if (at(i) == '\r' && at(i + 1) == '\n') {
            while (at(i) == '\r' && at(i + 1) == '\n' && i + 2 < n) {
                sOut += ' ';
                i += 2;
            }
            if (at(i) != '\r')
                sOut += at(i);
            i += 1;
        } else if (at(i) == '\n') {
            i += 1;
        } else {
            sOut += at(i);
            i += 1;
        }
    }
    return sOut;
}

TEST(PageText, JoinsEveryTextOfUpToEightCharactersByTheLineEndRule)
{
    constexpr std::string_view sAlphabet = "ab\r\n";
    for (std::size_t nLength = 0; nLength <= 8; ++nLength) {
        for (std::size_t nText = 0; nText < (std::size_t{1} << (2 * nLength)); ++nText) {
            std::string sText;
            for (std::size_t k = 0; k < nLength; ++k)
                sText += sAlphabet[(nText >> (2 * k)) & 3];
            ASSERT_EQ(gJoinLines(sText).GetString(), JoinByTheBook(sText));
        }
    }
}

TEST(PageText, AMessageIsABoxOfThePageWithTheCaptionSpiceAndAnInformationIcon)
{
    HeadlessDesktop desktop;
    CWnd owner;
    EXPECT_FALSE(gReportMessage(owner, "Missing temperature value."));

    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].box.pOwner, &owner);
    EXPECT_EQ(boxes[0].box.sText, "Missing temperature value.");
    EXPECT_EQ(boxes[0].box.sCaption, CString("SPICE"));
    EXPECT_EQ(boxes[0].box.nFlags, 64U);
}

TEST(PageText, AFailureIsAMessageThatThePageKeepsTranslatedIfItsLiteralSaysSo)
{
    const CBracketTranslation translation;
    HeadlessDesktop desktop;
    CWnd page;
    CString sMessage = "the last one";
    EXPECT_FALSE(gReportFailure(page, sMessage, "__$$Translatable$$_Missing a."));
    EXPECT_EQ(sMessage, "[Missing a.]");
    EXPECT_FALSE(gReportFailure(page, sMessage, "Missing b."));
    EXPECT_EQ(sMessage, "Missing b.");

    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].box.pOwner, &page);
    EXPECT_EQ(boxes[0].box.sText, "[Missing a.]");
    EXPECT_EQ(boxes[1].box.sText, "Missing b.");
}

TEST(PageText, TheFirstEmptyFieldOfThoseRequiredIsReportedAndNoOther)
{
    const CBracketTranslation translation;
    HeadlessDesktop desktop;
    CWnd page;
    CString sMessage;
    const CString sFull = "a";
    const CString sBlank = " ";
    const CString sEmpty;
    EXPECT_TRUE(gAreFilled(page, sMessage, {}));
    EXPECT_TRUE(gAreFilled(page, sMessage, {{sFull, "Missing a."}, {sBlank, "Missing b."}}));
    EXPECT_TRUE(desktop.TakeBoxes().empty());

    EXPECT_FALSE(gAreFilled(page, sMessage,
                            {{sFull, "Missing a."},
                             {sEmpty, "__$$Translatable$$_Missing c."},
                             {sEmpty, "Missing d."}}));
    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].box.sText, "[Missing c.]");
    EXPECT_EQ(sMessage, "[Missing c.]");
}
} // namespace
