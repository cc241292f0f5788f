#include "browser/Export.h"

#include "browser/CustomFileDialog.h"
#include "foundation/TextFile.h"
#include "platform/base/FileException.h"
#include "platform/ui/Translate.h"

namespace
{

CStringU sLastExportPath;

} // namespace

CStringU& gGetLastExportPath() noexcept
{
    return sLastExportPath;
}

CStringU gWriteExport(const CStringU& rsPath, const CStringU& rsText)
{
    TTextFile file(rsPath);
    if (!file.IsOpen()) {
        return file.GetLastErrorText();
    }
    try {
        file.WriteText(rsText);
        file.Flush();
    } catch (const CFileException& rException) {
        if (file.GetLastErrorText().IsEmpty()) {
            return CStringU(rException.what());
        }
    }
    file.Close();
    return file.GetLastErrorText();
}

void gExportToFile(const CStringU& rsText, const CWnd* pOwner)
{
    TCustomFileDialog dialog(
        TCustomFileDialog::EType::Save, "csv", sLastExportPath,
        OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
        xlang::gTranslate("__$$Translatable$$_Comma-Separated Value Files (*.csv)|*.csv|"
                          "All Files (*.*)|*.*||"),
        pOwner);
    if (dialog.DoModal() != IDOK) {
        return;
    }
    sLastExportPath = dialog.GetPathName();
    static_cast<void>(gWriteExport(sLastExportPath, rsText)); // kept: a failure isn't shown
}
