#include "wizard/frame/BrowseButton.h"

#include "foundation/Paths.h"
#include "platform/base/FileSystem.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Edit.h"
#include "platform/ui/FileDialog.h"

namespace
{
// Where the folder of the last browse stands in the application's profile.
constexpr const char* kSection = "";
constexpr const char* kEntry = "MRPATH";

constexpr int kLongestFolder = 519;

CString CurrentFolder()
{
    const CString sFolder = gGetCurrentDirectory(false).ToAnsi();
    return sFolder.GetLength() <= kLongestFolder ? sFolder : CString();
}

CString FolderOf(const CString& rsPath)
{
    const CString sFolder = gGetPathWithoutFileName(rsPath).ToAnsi();
    // The root of the Unix side has no name in front of its slash.
    return sFolder.IsEmpty() && rsPath[0] == '/' ? CString("/") : sFolder;
}

/// The path as the Unix side writes it where the program runs there, else as it is.
CString ToUnixForm(const CString& rsPath)
{
    return gToUnixPath(gToDosPath(rsPath)).ToAnsi();
}
} // namespace

bool CBrowseButton::OnReflected(ENotify code)
{
    if (code != ENotify::Clicked)
        return false;
    if (mpTarget)
        Browse();
    return true;
}

CString CBrowseButton::FindStartFolder() const
{
    if (msFilter == kProgramsFilter || msFilter == kCodeLibrariesFilter)
        return gGetPathWithoutFileName(gGetExecutablePath()).ToAnsi();
    const CString sCurrent = CurrentFolder();
    return gDesktop().ReadProfile(kSection, kEntry).value_or(sCurrent);
}

void CBrowseButton::Browse()
{
    TFileDialog dialog;
    dialog.sFolder = FindStartFolder();
    // Meant: it stays the current one, whatever becomes of the dialog.
    gGetFileSystem()->SetCurrentFolder(CStringU(dialog.sFolder).ToWide());
    dialog.sFileName = mpTarget->GetWindowText();
    dialog.bOpen = mnOpen != 0;
    dialog.pParent = this;
    dialog.sFilter = msFilter;
    dialog.nFlags = OFN_HIDEREADONLY | OFN_ENABLESIZING | (mnOpen ? OFN_PATHMUSTEXIST : 0U);

    TFileChoice choice = gChooseFileOrCancel(dialog);
    while (choice.end == TFileChoice::EEnd::InvalidName) {
        dialog.sFileName.Empty(); // a text that is no file name mustn't stand in the dialog's way
        choice = gChooseFileOrCancel(dialog);
    }
    if (choice.end != TFileChoice::EEnd::Chosen)
        return;
    mpTarget->SetWindowText(mnFullPath ? ToUnixForm(choice.sPath)
                                       : gGetFileNameWithoutPath(choice.sPath).ToAnsi());
    gDesktop().WriteProfile(kSection, kEntry, FolderOf(choice.sPath)); // may fail, unnoticed
}
