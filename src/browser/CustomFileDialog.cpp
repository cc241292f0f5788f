#include "browser/CustomFileDialog.h"

#include "foundation/Paths.h"

TCustomFileDialog::TCustomFileDialog(EType eType, const CString& rsDefaultExtension,
                                     const TPath& rsInitialName, UINT nFlags,
                                     const CString& rsFilter, const CWnd* pParent)
{
    mDialog.bOpen = eType == EType::Open;
    mDialog.sDefaultExtension = rsDefaultExtension;
    mDialog.sFileName = rsInitialName.ToAnsi();
    mDialog.sFolder = gGetPathWithoutFileName(rsInitialName).ToAnsi();
    mDialog.nFlags = nFlags;
    mDialog.sFilter = rsFilter;
    mDialog.pParent = pParent;
}

int TCustomFileDialog::DoModal()
{
    msPath.Empty();
    TFileChoice choice = gChooseFileOrCancel(mDialog);
    if (choice.end == TFileChoice::EEnd::InvalidName) {
        mDialog.sFileName.Empty();
        choice = gChooseFileOrCancel(mDialog);
    }
    if (choice.end != TFileChoice::EEnd::Chosen) {
        return IDCANCEL;
    }
    msPath = choice.sPath;
    return IDOK;
}
