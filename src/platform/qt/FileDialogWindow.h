#pragma once

#include "platform/ui/FileDialog.h"

#include <memory>

class QFileDialog;

/// True for a text that a file can be called by, also with folders before the name; true for the
/// empty one, which proposes nothing.
bool gIsFileName(const CString& rsName);

/// The dialog with its filters, folder and proposed name, to be run once.
std::unique_ptr<QFileDialog> gMakeFileDialog(const TFileDialog& rDialog);

/// How the dialog's run ended.
TFileChoice gChoiceOf(const QFileDialog& rDialog);
