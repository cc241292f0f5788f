#pragma once

#include "platform/base/StringA.h"

#include <QString>
#include <optional>

/// A text of the system's code page for a widget.
QString gToQString(const CString& rsText);

/// A widget's text in the system's code page; none when a character has no place in it.
std::optional<CString> gFromQString(const QString& rsText);

/// The text with every line end (CR LF, CR, LF) as one line feed, as widgets of several lines hold
/// it.
QString gToWidgetLines(const CString& rsText);

/// The other way: every line feed becomes CR LF.
std::optional<CString> gFromWidgetLines(QString sText);

/// A label without the marks of its mnemonics, for those who hear it.
QString gWithoutMnemonic(const CString& rsLabel);

/// A plain text for a widget that takes '&' for the mark of a mnemonic.
QString gWithDoubledAmpersands(const CString& rsText);
