#include "wizard/setup/BrowseLibraryAndSectionDialog.h"

#include "foundation/Paths.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/TemplateRows.h"

namespace
{
enum EControlId { kLibrary = 1001, kBrowse, kSection };

constexpr TControlRow kLibraryEdit =
    Row(kLibrary, "library-file", EControl::Edit, "", {70, 7, 177, kEditHeight});
constexpr TControlRow kSectionEdit =
    Row(kSection, "section-name", EControl::Edit, "", {70, 25, 198, kEditHeight});
constexpr auto kRows =
    JoinRows(LabelFor(kLibraryEdit, "&Library file:", {7, 9, 60, kLabelHeight}), kLibraryEdit,
             Row(kBrowse, "browse", EControl::PushButton, "...", {251, 7, 17, 14}),
             LabelFor(kSectionEdit, "&Section name:", {7, 27, 60, kLabelHeight}), kSectionEdit,
             Row(IDOK, "ok", EControl::DefaultButton, "OK", {164, 47, 50, 14}),
             Row(IDCANCEL, "cancel", EControl::PushButton, "Cancel", {218, 47, 50, 14}));
constexpr DialogTemplate kTemplate{"Load library file", {275, 68}, kRows};
} // namespace

CBrowseLibraryAndSectionDialog::CBrowseLibraryAndSectionDialog(const CStringU& rsLibraryPath,
                                                               const CStringU& rsSection)
    : CDialog(kTemplate), msLibraryPath(rsLibraryPath.ToAnsi()), msSection(rsSection.ToAnsi())
{
}

TMessageMap CBrowseLibraryAndSectionDialog::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CBrowseLibraryAndSectionDialog::OnBrowse>(ENotify::Clicked, kBrowse),
    };
    return kHandlers;
}

void CBrowseLibraryAndSectionDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kLibrary, mLibrary);
    DDX_Text(pDX, kLibrary, msLibraryPath);
    DDX_Text(pDX, kSection, msSection);
}

void CBrowseLibraryAndSectionDialog::OnBrowse()
{
    TFileDialog dialog;
    dialog.pParent = this;
    dialog.sFolder = gGetPathWithoutFileName(mLibrary.GetWindowText()).ToAnsi();
    dialog.sFilter = "Spice Library Files (*.lib)|*.lib|All Files (*.*)|*.*||";
    dialog.sDefaultExtension = "lib";
    const TFileChoice choice = gChooseFile(dialog);
    if (choice.end == TFileChoice::EEnd::Chosen)
        mLibrary.SetWindowText(choice.sPath);
}
