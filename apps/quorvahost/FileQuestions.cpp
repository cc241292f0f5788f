#include "quorvahost/FileQuestions.h"

#include "quorvahost/Sentence.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace quorvawiz::host
{
namespace
{
QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("FileQuestions", pEnglish);
}

QString Filters()
{
    return Say("SPICE netlists (*.cir *.net *.sp *.spi *.ckt *.lib *.inc);;All files (*)");
}

/// A box whose texts are shown to the letter: a file may be called "<b>".
class CPlainBox : public QMessageBox
{
public:
    CPlainBox(QWidget* pParent, const QString& rsText, StandardButtons buttons)
        : QMessageBox(Warning, QCoreApplication::applicationName(), rsText, buttons, pParent)
    {
        setTextFormat(Qt::PlainText);
    }
};

std::optional<QString> ChosenIn(QFileDialog& rDialog)
{
    if (rDialog.exec() != QDialog::Accepted || rDialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QFileInfo(rDialog.selectedFiles().first()).absoluteFilePath();
}
} // namespace

EUnsaved gAskAboutUnsaved(QWidget* pParent, const QString& rsName)
{
    CPlainBox box(pParent, Say("\"%1\" has changes that aren't saved.").arg(rsName),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.setInformativeText(Say("Save them?"));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return EUnsaved::Save;
    case QMessageBox::Discard:
        return EUnsaved::Discard;
    default:
        return EUnsaved::Cancel;
    }
}

bool gAskToOverwrite(QWidget* pParent, const QString& rsName)
{
    CPlainBox box(pParent,
                  Say("Another program has changed \"%1\" since it was opened.").arg(rsName),
                  QMessageBox::NoButton);
    box.setInformativeText(Say("Saving replaces those changes by what is in the editor."));
    auto* const pReplace = box.addButton(Say("&Replace"), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    return box.clickedButton() == pReplace;
}

bool gAskToSaveFirst(QWidget* pParent, const QString& rsName)
{
    CPlainBox box(pParent, Say("\"%1\" has to be saved first.").arg(rsName),
                  QMessageBox::Save | QMessageBox::Cancel);
    box.setInformativeText(Say("The simulator reads the file."));
    box.setDefaultButton(QMessageBox::Save);
    return box.exec() == QMessageBox::Save;
}

void gShowText(QWidget* pParent, const QString& rsText)
{
    CPlainBox(pParent, rsText, QMessageBox::Ok).exec();
}

void gShowFault(QWidget* pParent, const TFileFault& rFault)
{
    gShowText(pParent, gAsSentence(rFault.sMessage));
}

std::optional<QString> gAskForFileToOpen(QWidget* pParent, const QString& rsFolder)
{
    QFileDialog dialog(pParent, Say("Open Netlist"), rsFolder, Filters());
    dialog.setFileMode(QFileDialog::ExistingFile);
    return ChosenIn(dialog);
}

std::optional<QString> gAskForParamsFile(QWidget* pParent, const QString& rsFolder)
{
    QFileDialog dialog(pParent, Say("Open Params File"), rsFolder,
                       Say("Params files (*.params);;All files (*)"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return ChosenIn(dialog);
}

std::optional<QString> gAskForFileToSave(QWidget* pParent, const QString& rsProposed)
{
    const QFileInfo proposed(rsProposed);
    QFileDialog dialog(pParent, Say("Save Netlist As"),
                       proposed.isDir() ? rsProposed : proposed.absolutePath(), Filters());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("cir"));
    if (!proposed.isDir())
        dialog.selectFile(proposed.fileName());
    return ChosenIn(dialog);
}

} // namespace quorvawiz::host
