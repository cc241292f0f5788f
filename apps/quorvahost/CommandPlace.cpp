#include "quorvahost/CommandPlace.h"

namespace quorvawiz::host
{
namespace
{
// A person sees lines that are farther apart than this as having nothing to do with each other.
constexpr int kFarthest = 100;

/// Lines between a statement and its continuation, which the statement steps over.
bool IsSteppedOver(QStringView sLine)
{
    const QStringView sTrimmed = sLine.trimmed();
    return sTrimmed.isEmpty() || sTrimmed.startsWith(QLatin1Char('*'));
}

/// The last line of the statement that stands in, or around, a line.
int LastLineOfStatement(const TLines& rLines, int nLine)
{
    int nLast = nLine;
    for (int i = nLine + 1; i < rLines.nCount && i <= nLast + kFarthest; ++i) {
        const QString sLine = rLines.lineAt(i);
        if (gIsContinuation(sLine))
            nLast = i;
        else if (!IsSteppedOver(sLine))
            break;
    }
    return nLast;
}

/// The ".end" that closes the netlist at a line, or above with nothing but blanks between; -1 if
/// there is none. In the first line it is a title.
int ClosingLine(const TLines& rLines, int nLine)
{
    for (int i = nLine; i > 0 && i > nLine - kFarthest; --i) {
        const QString sLine = rLines.lineAt(i).trimmed();
        if (!sLine.isEmpty())
            return gIsNetlistEnd(sLine) ? i : -1;
    }
    return -1;
}
} // namespace

TCommandPlace gPlaceOfCommand(const TLines& rLines, TSelection selection)
{
    int nLine = selection.nLine;
    // Whole lines are selected up to the start of the next one, which isn't selected itself.
    if (!selection.bEmpty && selection.nColumn == 0 && nLine > 0)
        --nLine;
    if (const int nClosing = ClosingLine(rLines, nLine); nClosing > 0)
        return gPlaceOfCommand(rLines, {nClosing - 1, 0, true});
    const int nLast = LastLineOfStatement(rLines, nLine);
    if (nLast != nLine)
        return {nLast, false};
    const bool bTitle = nLine == 0;
    return {nLine, !bTitle && selection.bEmpty && rLines.lineAt(nLine).isEmpty()};
}

bool gIsContinuation(QStringView sLine)
{
    return sLine.trimmed().startsWith(QLatin1Char('+'));
}

bool gIsNetlistEnd(QStringView sLine)
{
    constexpr QLatin1StringView kEnd(".end");
    const QStringView sTrimmed = sLine.trimmed();
    return sTrimmed.startsWith(kEnd, Qt::CaseInsensitive) &&
           (sTrimmed.size() == kEnd.size() || sTrimmed[kEnd.size()].isSpace());
}

} // namespace quorvawiz::host
