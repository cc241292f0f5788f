#pragma once

#include "wizard/frame/TreeDlg.h"

#include <memory>

class CCommandPage;
class CRuntimeClass;

/// The tree dialog with one page only: for a page that no node of the wizard's tree leads to.
class CSinglePageDlg : public CTreeDlg
{
public:
    /// `pParent` and `pTarget` as for `CTreeDlg`; `rPageClass` is a concrete page's. Throws
    /// CInvalidArgException when it isn't.
    CSinglePageDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget,
                   const CRuntimeClass& rPageClass);
    ~CSinglePageDlg() override;

    bool OnInitDialog() override;

protected:
    void BuildTree() override;

private:
    std::unique_ptr<CObject> mpObject;
    CCommandPage* mpPage;
};
