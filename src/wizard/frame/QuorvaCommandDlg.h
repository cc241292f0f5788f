#pragma once

#include "wizard/frame/TreeDlg.h"

#include <memory>
#include <span>
#include <vector>

class CCommandPage;
struct TTreeRow;

/// The SPICE Command Wizard: the tree dialog with the pages of all commands.
///
/// A new set of pages lives exactly as long as the dialog. Each page is created through its
/// run-time class, so that this file needn't know 57 headers and a new page is one row of the
/// tree's table.
class CQuorvaCommandDlg : public CTreeDlg
{
public:
    /// `pParent` (may be null) owns the modal run; `pTarget` receives the commands, is not owned.
    CQuorvaCommandDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget);
    /// The same with another tree, for tests of the dialog itself. `tree` lives as long as the
    /// dialog.
    CQuorvaCommandDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget,
                      std::span<const TTreeRow> tree);
    ~CQuorvaCommandDlg() override;

    /// The pages in the order of their construction; they end in the reverse order.
    const std::vector<CCommandPage*>& GetPages() const { return mPages; }

protected:
    void BuildTree() override;

private:
    void ConstructPage(std::size_t nRow);

    std::span<const TTreeRow> mRows;
    std::vector<CCommandPage*> mPageOfRow; ///< null where the page isn't built
    std::vector<std::unique_ptr<CObject>> mObjects;
    std::vector<CCommandPage*> mPages; ///< the same objects
};
