#pragma once

class QLineEdit;
class QString;

/// Cuts what the user has just put in at its first line end: of a text that is pasted only the
/// first line counts. The caret stands behind it.
void gCutPastedLines(QLineEdit& rEdit);

/// Writes a text where it differs; the caret stays where it was, as far as it can.
void gWriteLine(QLineEdit& rEdit, const QString& rsText);
