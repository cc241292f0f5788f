#include "platform/qt/FileDialogWindow.h"

#include "platform/qt/FileFilter.h"
#include "platform/qt/QtText.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <algorithm>
#include <string_view>

namespace
{
/// Stays open over a name in a folder that doesn't exist, if it is told to.
class CFileWindow : public QFileDialog
{
public:
    explicit CFileWindow(bool bFolderMustExist) : mbFolderMustExist(bFolderMustExist) {}

protected:
    void accept() override
    {
        const QStringList files = selectedFiles();
        const QString sFolder = files.isEmpty() ? QString() : QFileInfo(files.front()).path();
        if (mbFolderMustExist && !sFolder.isEmpty() && !QFileInfo(sFolder).isDir()) {
            QMessageBox::warning(
                this, windowTitle(),
                QStringLiteral("%1\nPath does not exist.\nCheck the path and try again.")
                    .arg(QDir::toNativeSeparators(sFolder)));
            return;
        }
        QFileDialog::accept();
    }

private:
    bool mbFolderMustExist;
};
} // namespace

bool gIsFileName(const CString& rsName)
{
    constexpr std::string_view sNeverInAName = "<>\"|?*";
    constexpr std::size_t nLongestName = 255; // in bytes, on every usual file system
    const std::string_view sName = rsName;
    const bool bControl =
        std::ranges::any_of(sName, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
    const std::string_view sLast = sName.substr(sName.find_last_of('/') + 1);
    const bool bFolder = !sName.empty() && (sLast.empty() || sLast == "." || sLast == "..");
    return !bControl && !bFolder && sName.find_first_of(sNeverInAName) == std::string_view::npos &&
           sLast.size() <= nLongestName;
}

std::unique_ptr<QFileDialog> gMakeFileDialog(const TFileDialog& rDialog)
{
    auto pDialog = std::make_unique<CFileWindow>((rDialog.nFlags & OFN_PATHMUSTEXIST) != 0);
    pDialog->setAcceptMode(rDialog.bOpen ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    pDialog->setFileMode(rDialog.nFlags & OFN_FILEMUSTEXIST ? QFileDialog::ExistingFile
                                                            : QFileDialog::AnyFile);
    if (!(rDialog.nFlags & OFN_OVERWRITEPROMPT))
        pDialog->setOption(QFileDialog::DontConfirmOverwrite);
    if (const QStringList filters = gToNameFilters(rDialog.sFilter); !filters.isEmpty())
        pDialog->setNameFilters(filters);
    pDialog->setDefaultSuffix(gToQString(rDialog.sDefaultExtension));
    if (!rDialog.sFolder.IsEmpty())
        pDialog->setDirectory(gToQString(rDialog.sFolder));
    if (!rDialog.sFileName.IsEmpty())
        pDialog->selectFile(gToQString(rDialog.sFileName));
    return pDialog;
}

TFileChoice gChoiceOf(const QFileDialog& rDialog)
{
    const QStringList files = rDialog.selectedFiles();
    if (rDialog.result() != QDialog::Accepted || files.isEmpty())
        return {};
    // A path that the code page can't hold can't be handed on.
    const auto path = gFromQString(QDir::toNativeSeparators(files.front()));
    return path ? TFileChoice{TFileChoice::EEnd::Chosen, *path} : TFileChoice{};
}
