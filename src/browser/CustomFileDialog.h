#pragma once

#include "foundation/StringU.h"
#include "platform/base/StringA.h"
#include "platform/ui/FileDialog.h"

/// A path, as a text.
using TPath = CStringU;

/// A file dialog of the current desktop.
class TCustomFileDialog
{
public:
    /// What the user picks a file for.
    enum class EType { Open, Save };

    /// @param eType what for
    /// @param rsDefaultExtension without the point; may be empty
    /// @param rsInitialName the path that the dialog proposes; it starts in that path's folder
    /// @param nFlags OFN_... (platform/ui/FileDialog.h)
    /// @param rsFilter as in "Text (*.txt)|*.txt|All (*.*)|*.*||"
    /// @param pParent the window that the dialog belongs to, may be null
    TCustomFileDialog(EType eType, const CString& rsDefaultExtension, const TPath& rsInitialName,
                      UINT nFlags, const CString& rsFilter, const CWnd* pParent);

    /// Lets the user pick a file. A dialog that fails counts as cancelled, and a proposed path that
    /// is no file name isn't proposed.
    /// @return IDOK or IDCANCEL
    [[nodiscard]] int DoModal();

    /// The path that was picked; empty before, and where the dialog was cancelled.
    [[nodiscard]] const TPath& GetPathName() const noexcept { return msPath; }

private:
    TFileDialog mDialog;
    TPath msPath;
};
