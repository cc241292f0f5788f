#pragma once

#include "platform/ui/Button.h"

class CEdit;

// What file dialogs let the user choose from.
inline constexpr const char* kOutputFilesFilter =
    "Output Files (*.out)|*.out|Model Files (*.md)|*.md|All Files (*.*)|*.*||";
inline constexpr const char* kLibraryFilesFilter =
    "Library Files (*.lib)|*.lib|SPICE Files (*.sp;*.spc;*.cir)|*.sp; *.spc; *.cir|Model Files "
    "(*.md)|*.md|All Files (*.*)|*.*||";
inline constexpr const char* kProgramsFilter =
    "Executable Files (*.exe)|*.exe|All Files (*.*)|*.*||";
inline constexpr const char* kCodeLibrariesFilter =
    "Dynamic-Link Library Files (*.dll)|*.dll|All Files (*.*)|*.*||";

/// The button that fills an edit with the path of a file, which the user picks in a file dialog.
///
/// The dialog starts in the folder of the last browse, which the application's profile keeps, or in
/// the current one; for programs and libraries of code, in that of the host's program. A dialog
/// that fails is one that the user has cancelled. A page needs no handler for it.
class CBrowseButton : public CButton
{
public:
    /// `rsFilter`: a file dialog's filter text, as `TFileDialog::sFilter`.
    explicit CBrowseButton(const CString& rsFilter) : msFilter(rsFilter) {}

    /// The edit that the button fills; it lives as long as the button's window. Until then a click
    /// does nothing.
    void SetTarget(CEdit& rEdit) { mpTarget = &rEdit; }

protected:
    bool OnReflected(ENotify code) override;

    int mnOpen = 1;     ///< 1: the dialog is one for opening, 0: for saving
    int mnFullPath = 1; ///< 1: the edit gets the whole path, 0: the file's own name

private:
    void Browse();
    CString FindStartFolder() const;

    CEdit* mpTarget = nullptr;
    CString msFilter;
};
