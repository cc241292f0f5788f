#pragma once

#include <QString>
#include <QTextCursor>
#include <QTextDocument>

namespace quorvawiz::host
{

/// Which way to look.
enum class EDirection {
    Forward,
    Backward,
};

/// What is looked for.
struct TSearch {
    QString sText;
    bool bMatchCase = false;
};

/// Where it was found.
struct TFound {
    QTextCursor cursor;    ///< selects it; null if it is nowhere
    bool bWrapped = false; ///< the search has gone past an end of the document, and on at the other
};

/// Finds the next place behind a cursor's selection, or before it, and goes on at the other end of
/// the document. An empty text is nowhere.
TFound gFindText(const QTextDocument& rDocument, const QTextCursor& rFrom, const TSearch& rSearch,
                 EDirection direction);

} // namespace quorvawiz::host
