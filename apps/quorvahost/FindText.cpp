#include "quorvahost/FindText.h"

namespace quorvawiz::host
{

TFound gFindText(const QTextDocument& rDocument, const QTextCursor& rFrom, const TSearch& rSearch,
                 EDirection direction)
{
    if (rSearch.sText.isEmpty())
        return {};
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, rSearch.bMatchCase);
    flags.setFlag(QTextDocument::FindBackward, direction == EDirection::Backward);

    const QTextCursor next = rDocument.find(rSearch.sText, rFrom, flags);
    if (!next.isNull())
        return {next, false};
    QTextCursor otherEnd = rFrom;
    otherEnd.movePosition(direction == EDirection::Forward ? QTextCursor::Start : QTextCursor::End);
    return {rDocument.find(rSearch.sText, otherEnd, flags), true};
}

} // namespace quorvawiz::host
