#include "platform/base/CodePage.h"
#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

namespace
{
TEST(Text, TheCodePageDecides)
{
    EXPECT_EQ(gToQString("\xC3\xA4"), QStringLiteral("\u00E4"));
    EXPECT_EQ(gFromQString(QStringLiteral("\u00E4")), CString("\xC3\xA4"));
    EXPECT_EQ(gFromQString(QString(QChar(0xD800))), std::nullopt);
    gSetSystemCodePage(kCodePageWindows1252);
    EXPECT_EQ(gToQString("\xE4"), QStringLiteral("\u00E4"));
    EXPECT_EQ(gFromQString(QStringLiteral("\u00E4")), CString("\xE4"));
    EXPECT_EQ(gFromQString(QStringLiteral("\u2603")), std::nullopt);
    gSetSystemCodePage(kCodePageUtf8);
}

TEST(Text, LineEndsOfEveryKindAreOneToAWidget)
{
    EXPECT_EQ(gToWidgetLines("a\r\nb\nc\rd\r\r\ne"), QStringLiteral("a\nb\nc\nd\n\ne"));
    EXPECT_EQ(gFromWidgetLines(QStringLiteral("a\n\nb")), CString("a\r\n\r\nb"));
}

TEST(Text, AmpersandsAreMarksOrTexts)
{
    EXPECT_EQ(gWithoutMnemonic("&Name:"), QStringLiteral("Name:"));
    EXPECT_EQ(gWithoutMnemonic("Salt && &pepper"), QStringLiteral("Salt & pepper"));
    EXPECT_EQ(gWithoutMnemonic("End&"), QStringLiteral("End"));
    EXPECT_EQ(gWithDoubledAmpersands("a & b"), QStringLiteral("a && b"));
}
} // namespace
