#include "wizard/analysis/SweepRows.h"

SweepRows::SweepRows(CWnd& rPage, const char* pPrefix)
    : mrPage(rPage), mpPrefix(pPrefix), mFirst(rPage, kSweep1), mSecond(rPage, kSweep2),
      mThird(rPage, kSweep3)
{
}

void SweepRows::Press(int nButton)
{
    if (nButton == kSweep1) {
        mFirst.Press(mpPrefix);
        EnableButton(kSweep2, mFirst.IsUsed());
    } else {
        (nButton == kSweep2 ? mSecond : mThird).Press("");
    }
    EnableButton(kSweep3, mFirst.IsUsed() && mSecond.IsUsed());
}

bool SweepRows::Compose(CString& rsCommand) const
{
    if (!mFirst.IsUsed())
        return false;
    rsCommand = mFirst.GetText();
    if (!mSecond.IsUsed())
        return true;
    rsCommand += " sweep " + mSecond.GetText();
    if (mThird.IsUsed())
        rsCommand += " sweep " + mThird.GetText();
    return true;
}

void SweepRows::EnableButton(int nButton, bool bEnable)
{
    mrPage.GetDlgItem(nButton)->EnableWindow(bEnable);
}
