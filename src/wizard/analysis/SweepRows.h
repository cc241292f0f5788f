#pragma once

#include "wizard/analysis/SweepSlot.h"

/// The buttons of a page with three nested sweeps.
enum ESweepButton { kSweep1 = 1001, kSweep2 = 1011, kSweep3 = 1021 };

/// The template of such a page.
inline constexpr auto kSweepRows = PageRows(
    SweepLine(kSweep1, "sweep-1", "&Sweep 1", "sweep-1-summary-1", "sweep-1-summary-2"),
    SweepLine(kSweep2, "sweep-2", "S&weep 2", "sweep-2-summary-1", "sweep-2-summary-2", kDisabled),
    SweepLine(kSweep3, "sweep-3", "Sw&eep 3", "sweep-3-summary-1", "sweep-3-summary-2", kDisabled));

/// Up to three nested sweeps that make a command of their own. A sweep counts only while all before
/// it are used.
class SweepRows
{
public:
    /// `rPage` has the rows of `kSweepRows` and lives longer than this. `pPrefix`: what the command
    /// starts with, a literal.
    SweepRows(CWnd& rPage, const char* pPrefix);

    /// A press on one of the three buttons.
    void Press(int nButton);

    /// Writes the command. False, with `rsCommand` left as it was, when the first sweep isn't used.
    bool Compose(CString& rsCommand) const;

private:
    void EnableButton(int nButton, bool bEnable);

    CWnd& mrPage;
    const char* mpPrefix;
    SweepSlot mFirst;
    SweepSlot mSecond;
    SweepSlot mThird;
};
