#pragma once

#include "platform/ui/Wnd.h"

/// Enables or disables a field of `rPane` together with its label and its unit.
void gEnableField(CWnd& rPane, int nId, bool bEnable);

/// Shows or hides a field of `rPane` together with its label and its unit.
void gShowField(CWnd& rPane, int nId, bool bShow);

/// Sets the text of the label that belongs to a field of `rPane`.
void gSetFieldLabel(CWnd& rPane, int nId, const CString& rsLabel);

/// Shows the controls of `rPane` whose layers have a bit in common with `nMask`, and hides the
/// others. Controls without layers stay as they are.
void gShowLayers(CWnd& rPane, unsigned nMask);
