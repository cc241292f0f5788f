#include "quorvahost/CommandPlace.h"

namespace quorvawiz::host
{
namespace
{
/// Lines between a statement and its continuation, which the statement steps over.
bool IsSteppedOver(QStringView sLine)
{
    const QStringView sTrimmed = sLine.trimmed();
    return sTrimmed.isEmpty() || sTrimmed.startsWith(QLatin1Char('*'));
}

/// The last line of the statement that stands in, or around, a line.
int LastLineOfStatement(const TLines& rLines, int nLine)
{
    // Comments and empty lines can go on for long; a statement that is interrupted for longer than
    // this isn't one that a person would see as one.
    constexpr int kFarthest = 100;

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
} // namespace

TCommandPlace gPlaceOfCommand(const TLines& rLines, TSelection selection)
{
    int nLine = selection.nLine;
    // Whole lines are selected up to the start of the next one, which isn't selected itself.
    if (!selection.bEmpty && selection.nColumn == 0 && nLine > 0)
        --nLine;
    const int nLast = LastLineOfStatement(rLines, nLine);
    if (nLast != nLine)
        return {nLast, false};
    return {nLine, selection.bEmpty && rLines.lineAt(nLine).isEmpty()};
}

bool gIsContinuation(QStringView sLine)
{
    return sLine.trimmed().startsWith(QLatin1Char('+'));
}

} // namespace quorvawiz::host
