#pragma once

#include "platform/ui/PropertyPage.h"

/// The size of every page, in dialog units.
inline constexpr TSize kPageSize{249, 220};

/// A page of the wizard: collects what one command needs, checks it, and composes the text.
/// Every concrete page derives from this class directly.
class CCommandPage : public CPropertyPage
{
public:
    explicit CCommandPage(const DialogTemplate& rTemplate);

    /// Composes the command of the page.
    /// `rsCommand`: the run's one command string, not emptied between calls. A success leaves the
    /// whole text in it, lines joined by CR LF, no line end at the close; a page may also succeed
    /// and leave it as it was. A failed check leaves it as it was unless the page says otherwise.
    /// Result: false when nothing is to be inserted; the page has told the user why by then.
    virtual bool BuildCommand(CString& rsCommand) = 0;

protected:
    /// Exchanges nothing: a page may call it or not.
    void DoDataExchange(CDataExchange* pDX) override;
};
