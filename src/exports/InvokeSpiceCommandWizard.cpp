#include "exports/Quorvawiz.h"
#include "wizard/frame/QuorvaCommandDlg.h"

void quorvawiz::gInvokeSpiceCommandWizard(CWnd* pParent, QuorvaCommandWizardTarget* pTarget)
{
    CQuorvaCommandDlg wizard(pParent, pTarget);
    wizard.DoModal();
}
