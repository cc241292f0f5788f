#pragma once

#include "platform/base/StringA.h"

class QAbstractButton;

/// Writes a button's label where it differs. Its mnemonic is drawn, but the key is the model's.
void gWriteButtonText(QAbstractButton& rButton, const CString& rsText);
