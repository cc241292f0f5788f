#pragma once

#include "cli/Wizard.h"

/// A small wizard with a control of every kind, dialogs inside dialogs, boxes and an exception.
///
///     Tests              CTestCategoryPage
///     Tests/All kinds    CTestAllKindsPage
///     Tests/Not built    CTestNotBuiltPage, which isn't
///     -                  CTestLonePage
quorvawiz::cli::TWizard gTestWizard();
