#include "quorvahost/CommandPlace.h"

#include "host/PrintQt.h"
#include "quorvahost/NetlistEdit.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextCursor>
#include <vector>

namespace quorvawiz::host
{
namespace
{
constexpr QChar kCaret(QLatin1Char('|'));
constexpr QChar kOpen(QLatin1Char('['));
constexpr QChar kClose(QLatin1Char(']'));

/// Loads a text with "|" at the caret, or "[" and "]" around what is selected.
void Load(CNetlistEdit& rEdit, QString sMarked)
{
    auto nFrom = static_cast<int>(sMarked.indexOf(sMarked.contains(kOpen) ? kOpen : kCaret));
    const bool bSelection = sMarked.contains(kOpen);
    sMarked.remove(bSelection ? kOpen : kCaret);
    const auto nTo = bSelection ? static_cast<int>(sMarked.indexOf(kClose)) : nFrom;
    if (bSelection)
        sMarked.remove(kClose);
    rEdit.LoadText(sMarked);
    QTextCursor cursor = rEdit.textCursor();
    cursor.setPosition(nFrom);
    cursor.setPosition(nTo, QTextCursor::KeepAnchor);
    rEdit.setTextCursor(cursor);
}

QString Marked(const CNetlistEdit& rEdit)
{
    EXPECT_FALSE(rEdit.textCursor().hasSelection());
    QString sText = rEdit.Text();
    return sText.insert(rEdit.textCursor().position(), kCaret);
}

struct TInsertion {
    const char* pName;
    const char* pBefore;
    const char* pCommand;
    const char* pAfter;
};

const std::vector<TInsertion> kInsertions{
    {"into nothing: below the title", "|", ".op", "\n.op|"},
    {"an empty line is taken", "a\n|\nb", ".op", "a\n.op|\nb"},
    {"the empty last line is taken", "a\n|", ".op", "a\n.op|"},
    {"an empty first line is the title", "|\na", ".op", "\n.op|\na"},
    {"in the middle of a line: below it", "R1 a| b 1k\n.end", ".op", "R1 a b 1k\n.op|\n.end"},
    {"at the start of a line: below it", "|title\n.end", ".op", "title\n.op|\n.end"},
    {"at the end of a line: below it", "title|\n.end", ".op", "title\n.op|\n.end"},
    {"at the end of all", "title|", ".op", "title\n.op|"},
    {"a line of blanks is no empty one", "a\n | \nb", ".op", "a\n  \n.op|\nb"},
    {"several lines", "a|b\nc", ".x\n+ 1\n+ 2", "ab\n.x\n+ 1\n+ 2|\nc"},
    {"several lines on an empty one", "a\n|\nc", ".x\n+ 1", "a\n.x\n+ 1|\nc"},
    {"an empty line inside a command", "a|", ".x\n\n.y", "a\n.x\n\n.y|"},
    {"a selection stays: below it", "a[bc]d\ne", ".op", "abcd\n.op|\ne"},
    {"over several lines: below the last", "a[b\nc]d\ne", ".op", "ab\ncd\n.op|\ne"},
    {"whole lines: below the last of them", "[a\nb\n]c", ".op", "a\nb\n.op|\nc"},
    {"all of the text", "[a\nb]", ".op", "a\nb\n.op|"},
    {"a selected line end is no empty line", "a\n[\n]b", ".op", "a\n\n.op|\nb"},
    {"a statement isn't cut from its continuation", "R1 a|\n+ b\n+ 1k\n.end", ".op",
     "R1 a\n+ b\n+ 1k\n.op|\n.end"},
    {"from a continuation: below its last line", "R1 a\n+| b\n+ 1k\n.end", ".op",
     "R1 a\n+ b\n+ 1k\n.op|\n.end"},
    {"an indented continuation", "R1 a|\n  + b\n.end", ".op", "R1 a\n  + b\n.op|\n.end"},
    {"a comment inside a statement", "R1 a|\n* c\n+ b\n.end", ".op", "R1 a\n* c\n+ b\n.op|\n.end"},
    {"an empty line inside a statement isn't taken", "R1 a\n|\n+ b\n.end", ".op",
     "R1 a\n\n+ b\n.op|\n.end"},
    {"a comment behind a statement isn't part of it", "R1 a|\n* c\nR2 b", ".op",
     "R1 a\n.op|\n* c\nR2 b"},
    {"at .end: in front of it", "t\na\n.en|d\n", ".op", "t\na\n.op|\n.end\n"},
    {"at .end: into the empty line in front of it", "t\n\n.end|", ".op", "t\n.op|\n.end"},
    {"behind .end: in front of it", "t\na\n .END x\n\n|", ".op", "t\na\n.op|\n .END x\n\n"},
    {"all of a netlist: in front of .end", "[t\na\n.end\n]", ".op", "t\na\n.op|\n.end\n"},
    {"in front of .end a statement stays whole", "t\nR1 a\n+ b\n.end|", ".op",
     "t\nR1 a\n+ b\n.op|\n.end"},
    {"another netlist begins behind .end", "t\n.end\nu|", ".op", "t\n.end\nu\n.op|"},
    {"the end of a subcircuit is none", "t\n.ends|\n", ".op", "t\n.ends\n.op|\n"},
    {"a title that says .end", ".end|", ".op", ".end\n.op|"},
    {"characters of two units", "\xF0\x9D\x9B\x80|x\ny", ".op", "\xF0\x9D\x9B\x80x\n.op|\ny"},
};

TEST(CommandPlace, ACommandGoesOnLinesOfItsOwn)
{
    CNetlistEdit edit;
    for (const TInsertion& rCase : kInsertions) {
        SCOPED_TRACE(rCase.pName);
        Load(edit, QString::fromUtf8(rCase.pBefore));
        const QString sBefore = edit.Text();
        edit.InsertCommand(QString::fromUtf8(rCase.pCommand));
        EXPECT_EQ(Marked(edit), QString::fromUtf8(rCase.pAfter));
        EXPECT_TRUE(edit.document()->isModified());

        const QString sAfter = edit.Text();
        edit.undo();
        EXPECT_EQ(edit.Text(), sBefore);
        EXPECT_FALSE(edit.document()->isUndoAvailable());
        edit.redo();
        EXPECT_EQ(edit.Text(), sAfter);
    }
}

TEST(CommandPlace, CommandsFollowEachOther)
{
    CNetlistEdit edit;
    Load(edit, QStringLiteral("title\n|\n.end"));
    edit.InsertCommand(QStringLiteral(".temp 0\n+ 27"));
    edit.InsertCommand(QStringLiteral(".op"));
    edit.InsertCommand(QStringLiteral(".op"));
    EXPECT_EQ(Marked(edit), QStringLiteral("title\n.temp 0\n+ 27\n.op\n.op|\n.end"));
    edit.undo();
    EXPECT_EQ(edit.Text(), QStringLiteral("title\n.temp 0\n+ 27\n.op\n.end"));
    edit.undo();
    EXPECT_EQ(edit.Text(), QStringLiteral("title\n.temp 0\n+ 27\n.end"));
    edit.undo();
    EXPECT_EQ(edit.Text(), QStringLiteral("title\n\n.end"));
}

TEST(CommandPlace, WhatIsTypedBeforeAndBehindIsAStepOfItsOwn)
{
    for (const char* const pStart : {"|", "a|"}) {
        CNetlistEdit edit;
        Load(edit, QString::fromLatin1(pStart));
        edit.textCursor().insertText(QStringLiteral("x"));
        const QString sTyped = edit.Text();
        edit.InsertCommand(QStringLiteral(".temp 27"));
        const QString sInserted = edit.Text();
        edit.textCursor().insertText(QStringLiteral("y"));
        edit.undo();
        EXPECT_EQ(edit.Text(), sInserted);
        edit.undo();
        EXPECT_EQ(edit.Text(), sTyped);
    }
    CNetlistEdit edit; // on the empty line, too
    edit.InsertCommand(QStringLiteral(".temp 27"));
    edit.textCursor().insertText(QStringLiteral("y"));
    edit.undo();
    EXPECT_EQ(edit.Text(), QStringLiteral("\n.temp 27"));
}

TEST(CommandPlace, AnEmptyCommandChangesNothing)
{
    CNetlistEdit edit;
    Load(edit, QStringLiteral("a|"));
    edit.InsertCommand({});
    EXPECT_EQ(Marked(edit), QStringLiteral("a|"));
    EXPECT_FALSE(edit.document()->isUndoAvailable());
}

TEST(CommandPlace, EveryPlaceOfATextKeepsWhatIsThere)
{
    const QString sText = QStringLiteral("title\n\nR1 a b\n+ 1k\n* c\n\n+ 2\n \n.end\n");
    const QStringList lines = sText.split(QLatin1Char('\n'));
    CNetlistEdit edit;
    for (qsizetype nFrom = 0; nFrom <= sText.size(); ++nFrom) {
        for (qsizetype nTo = 0; nTo <= sText.size(); ++nTo) {
            edit.LoadText(sText);
            QTextCursor cursor = edit.textCursor();
            cursor.setPosition(static_cast<int>(nFrom));
            cursor.setPosition(static_cast<int>(nTo), QTextCursor::KeepAnchor);
            edit.setTextCursor(cursor);
            edit.InsertCommand(QStringLiteral(".op"));

            QStringList after = edit.Text().split(QLatin1Char('\n'));
            const qsizetype nLine = after.indexOf(QStringLiteral(".op"));
            ASSERT_EQ(edit.textCursor().blockNumber(), nLine);
            after.removeAt(nLine);
            if (after.size() < lines.size())
                after.insert(nLine, QString()); // it took an empty line
            ASSERT_EQ(after, lines) << nFrom << " to " << nTo;
            ASSERT_FALSE(nLine + 1 < lines.size() && gIsContinuation(after.value(nLine)));
        }
    }
}

TEST(CommandPlace, OnlyTheLinesAroundTheCaretAreRead)
{
    int nRead = 0;
    const TLines lines{1'000'000, [&nRead](int) {
                           ++nRead;
                           return QStringLiteral("* comment");
                       }};
    EXPECT_EQ(gPlaceOfCommand(lines, {500'000, 0, true}), (TCommandPlace{500'000, false}));
    EXPECT_LT(nRead, 200);
}
} // namespace
} // namespace quorvawiz::host
