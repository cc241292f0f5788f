#pragma once

#include "platform/ui/Wnd.h"

/// A label, a text or an empty frame.
class CStatic : public CWnd
{
protected:
    bool AcceptsKind(EControl kind) const override;
};
