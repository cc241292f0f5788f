#include "quorvahost/NetlistText.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quorvawiz::host
{
namespace
{
constexpr TTextForm kLf{ELineEnds::Lf, false};
constexpr TTextForm kCrLf{ELineEnds::CrLf, false};
constexpr TTextForm kBomLf{ELineEnds::Lf, true};
constexpr TTextForm kBomCrLf{ELineEnds::CrLf, true};

struct TGoodCase {
    const char* pName;
    QByteArray bytes;
    QString sText;
    TTextForm form;
};

TEST(NetlistText, WhatIsAcceptedIsWrittenBackByteForByte)
{
    const std::vector<TGoodCase> cases{
        {"nothing", "", "", kLf},
        {"one line without an end", "R1 a b 1k", "R1 a b 1k", kLf},
        {"LF", "a\nb\n", "a\nb\n", kLf},
        {"CR LF", "a\r\nb\r\n", "a\nb\n", kCrLf},
        {"CR LF, the last line without an end", "a\r\nb", "a\nb", kCrLf},
        {"only line ends", "\r\n\r\n", "\n\n", kCrLf},
        {"a byte order mark", "\xEF\xBB\xBF* \n", "* \n", kBomLf},
        {"a byte order mark and CR LF", "\xEF\xBB\xBF* \r\n", "* \n", kBomCrLf},
        {"only a byte order mark", "\xEF\xBB\xBF", "", kBomLf},
        {"a second byte order mark is a character", "\xEF\xBB\xBF\xEF\xBB\xBFx",
         QStringLiteral("\uFEFFx"), kBomLf},
        {"two, three and four bytes", "\xC2\xB5 \xE2\x84\xA6 \xF0\x9D\x9B\x80",
         QStringLiteral("\u00B5 \u2126 \U0001D6C0"), kLf},
        {"a no-break space",
         "a\xC2\xA0"
         "b",
         QStringLiteral("a\u00A0b"), kLf},
        {"a line separator",
         "a\xE2\x80\xA8"
         "b",
         QStringLiteral("a\u2028b"), kLf},
        {"control characters", "a\tb\fc\vd\x1A", "a\tb\fc\vd\x1A", kLf},
    };
    for (const TGoodCase& rCase : cases) {
        SCOPED_TRACE(rCase.pName);
        const auto decoded = gDecodeNetlist(rCase.bytes);
        const auto* const pText = std::get_if<TNetlistText>(&decoded);
        ASSERT_NE(pText, nullptr);
        EXPECT_EQ(pText->sText, rCase.sText);
        EXPECT_EQ(pText->form, rCase.form);
        EXPECT_EQ(gEncodeNetlist(pText->sText, pText->form), rCase.bytes);
    }
}

struct TBadCase {
    const char* pName;
    QByteArray bytes;
    const char* pMessage;
};

TEST(NetlistText, WhatIsRefusedSaysWhere)
{
    const std::vector<TBadCase> cases{
        {"LF, then CR LF", "a\nb\r\n",
         "line 2, byte 2: mixed line ends: this line ends in CR LF, those before in LF"},
        {"CR LF, then LF", "a\r\nb\r\nccc\n",
         "line 3, byte 4: mixed line ends: this line ends in LF, those before in CR LF"},
        {"a CR alone", "ab\rc\n", "line 1, byte 3: a CR without LF"},
        {"a CR at the end", "a\r\nb\r", "line 2, byte 2: a CR without LF"},
        {"two CR", "a\r\r\n", "line 1, byte 2: a CR without LF"},
        {"a NUL", QByteArray("a\nb\0c", 5), "line 2, byte 2: a NUL: this isn't a text file"},
        {"Windows-1252",
         "* \n* 10 \xB5"
         "F\n",
         "line 2, byte 6: the byte 0xb5 isn't valid UTF-8"},
        {"UTF-16", QByteArray("\xFF\xFE*\0", 4), "line 1, byte 1: the byte 0xff isn't valid UTF-8"},
        {"a tail alone", "\x80", "line 1, byte 1: the byte 0x80 isn't valid UTF-8"},
        {"a cut sequence", "a\xE2\x84", "line 1, byte 2: the byte 0xe2 isn't valid UTF-8"},
        {"an overlong slash", "\xC0\xAF", "line 1, byte 1: the byte 0xc0 isn't valid UTF-8"},
        {"an overlong NUL", "\xE0\x80\x80", "line 1, byte 1: the byte 0xe0 isn't valid UTF-8"},
        {"an overlong four", "\xF0\x80\x80\x80", "line 1, byte 1: the byte 0xf0 isn't valid UTF-8"},
        {"half of a pair", "\xED\xA0\x80", "line 1, byte 1: the byte 0xed isn't valid UTF-8"},
        {"over U+10FFFF", "\xF4\x90\x80\x80", "line 1, byte 1: the byte 0xf4 isn't valid UTF-8"},
        {"a paragraph separator", "a\xE2\x80\xA9",
         "line 1, byte 2: a character that an editor can't keep"},
        {"U+FDD0", "\xEF\xB7\x90", "line 1, byte 1: a character that an editor can't keep"},
        {"a long line", "a\n" + QByteArray(kLongestLine + 1, 'x') + "\n",
         "line 2, byte 1: a line of more than 1000000 bytes"},
        {"a long line at the end", QByteArray(kLongestLine + 1, 'x'),
         "line 1, byte 1: a line of more than 1000000 bytes"},
        {"U+FDD1", "\n\xEF\xB7\x91", "line 2, byte 1: a character that an editor can't keep"},
    };
    for (const TBadCase& rCase : cases) {
        SCOPED_TRACE(rCase.pName);
        const auto decoded = gDecodeNetlist(rCase.bytes);
        const auto* const pFault = std::get_if<TTextFault>(&decoded);
        ASSERT_NE(pFault, nullptr);
        EXPECT_EQ(pFault->Message(), rCase.pMessage);
    }
}

TEST(NetlistText, TheLongestLineMayHaveAnyEnd)
{
    const QByteArray line(kLongestLine, 'x');
    for (const QByteArray& rBytes : {line, line + "\n", line + "\r\n" + line + "\r\n"})
        EXPECT_TRUE(std::holds_alternative<TNetlistText>(gDecodeNetlist(rBytes)));
}

TEST(NetlistText, AnyBytesAreWrittenBackOrRefused)
{
    std::mt19937 random(1); // NOLINT: the same every time
    const QByteArray alphabet("a\n\r\r\n \xC2\xB5\xE2\x80\xA8\xEF\xBB\xBF\xF0\x9F\x92\xA9");
    int nAccepted = 0;
    for (int i = 0; i < 20'000; ++i) {
        QByteArray bytes;
        for (auto n = random() % 7; n > 0; --n)
            bytes += alphabet[static_cast<qsizetype>(random()) % alphabet.size()];
        const auto decoded = gDecodeNetlist(bytes);
        if (const auto* pText = std::get_if<TNetlistText>(&decoded)) {
            ++nAccepted;
            ASSERT_EQ(gEncodeNetlist(pText->sText, pText->form), bytes);
        }
    }
    EXPECT_GT(nAccepted, 1000);
}

TEST(NetlistText, HalfOfASurrogatePairCanNotBeWritten)
{
    EXPECT_EQ(gEncodeNetlist(QString(QChar(0xD835)), kLf), std::nullopt);
    EXPECT_EQ(gEncodeNetlist(QString(QChar(0xDEC0)) + QLatin1Char('x'), kLf), std::nullopt);
}
} // namespace
} // namespace quorvawiz::host
