#pragma once

#include "platform/base/StringA.h"

#include <QStringList>

/// A file dialog's filter text, "Text (*.txt)|*.txt|All (*.*)|*.*||", as the list that Qt takes:
/// "Text (*.txt)", "All (*)". A part without patterns is left out.
QStringList gToNameFilters(const CString& rsFilter);
