#pragma once

#include "platform/base/StringA.h"
#include "platform/ui/Messages.h"

class CWnd;

inline constexpr UINT OFN_HIDEREADONLY = 0x00000004;
inline constexpr UINT OFN_OVERWRITEPROMPT = 0x00000002;
inline constexpr UINT OFN_PATHMUSTEXIST = 0x00000800;
inline constexpr UINT OFN_FILEMUSTEXIST = 0x00001000;
inline constexpr UINT OFN_ENABLESIZING = 0x00800000;

/// A file dialog, as a desktop is asked to show it.
struct TFileDialog {
    bool bOpen = true;             ///< open, or save as
    const CWnd* pParent = nullptr; ///< the window that the dialog belongs to, or null
    CString sFolder;               ///< where it starts
    CString sFileName;             ///< the file name that it proposes
    CString sFilter;               ///< "Text (*.txt)|*.txt|All (*.*)|*.*||"
    CString sDefaultExtension;     ///< without the point; may be empty
    UINT nFlags = 0;               ///< OFN_...
};

/// How a file dialog ended.
struct TFileChoice {
    enum class EEnd {
        Chosen,
        Cancelled,
        InvalidName, ///< the proposed file name isn't one (FNERR_INVALIDFILENAME)
    };
    EEnd end = EEnd::Cancelled;
    CString sPath; ///< the whole path, when chosen
};

/// Shows a file dialog through the current desktop; user actions on windows are refused meanwhile.
TFileChoice gChooseFile(const TFileDialog& rDialog);

/// The same for who doesn't tell a failure from a cancelled dialog: one that fails ends like that,
/// whatever came up while it was open.
TFileChoice gChooseFileOrCancel(const TFileDialog& rDialog);
