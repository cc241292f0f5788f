#pragma once

#include "foundation/StringU.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/Edit.h"

/// The dialog "Load library file": a library file, which the user types or picks, and the name of a
/// section in it, a free text. No page opens it, and no file is read.
class CBrowseLibraryAndSectionDialog : public CDialog
{
public:
    /// What the dialog shows at first; a character that the system's code page lacks is shown as
    /// its default character.
    CBrowseLibraryAndSectionDialog(const CStringU& rsLibraryPath, const CStringU& rsSection);

    /// What the user has accepted with "OK"; until then what was given to the constructor.
    CStringU GetLibraryPath() const { return msLibraryPath; }
    CStringU GetSection() const { return msSection; }

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnBrowse();

    CEdit mLibrary;
    CString msLibraryPath;
    CString msSection;
};
