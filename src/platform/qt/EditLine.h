#pragma once

#include <QString>

class QLineEdit;

/// The user's last edit without what came in behind a line end: only the first line of a text that
/// was pasted counts.
QString gWithoutPastedLines(const QLineEdit& rEdit);

/// Writes a text where it differs; the caret stays where it was, as far as it can.
void gWriteLine(QLineEdit& rEdit, const QString& rsText);
