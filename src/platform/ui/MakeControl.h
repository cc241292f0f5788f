#pragma once

#include "platform/ui/Wnd.h"

#include <memory>

/// A fresh control object for a template's row of this kind.
std::unique_ptr<CWnd> gMakeControl(EControl kind);
