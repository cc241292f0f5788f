#include "exports/Quorvawiz.h"
#include "host/FileFolder.h"
#include "platform/base/Exceptions.h"
#include "platform/base/ExtensionModule.h"
#include "platform/qt/QtDesktop.h"
#include "platform/ui/Button.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/FieldView.h"
#include "quorvahost/tour/WizardUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <set>
#include <string>

namespace quorvawiz::host
{
namespace
{
using ::testing::ElementsAre;

struct TOutcome {
    QString sOutput;
    QString sErrors;
    int nExitCode = -1;
};

TOutcome Execute(const QString& rsProgram, const QStringList& rArguments)
{
    QProcess process;
    process.start(rsProgram, rArguments);
    EXPECT_TRUE(process.waitForFinished()) << rsProgram.toStdString();
    return {QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()), process.exitCode()};
}

/// What follows each hit of an expression with one group.
std::multiset<std::string> HitsOf(const char* pExpression, const QString& rsText)
{
    std::multiset<std::string> hits;
    const QRegularExpression expression(QString::fromLatin1(pExpression),
                                        QRegularExpression::MultilineOption);
    for (const auto& rMatch : expression.globalMatch(rsText))
        hits.insert(rMatch.captured(1).toStdString());
    return hits;
}

/// The functions that the exported headers declare.
std::multiset<std::string> DeclaredFunctions()
{
    std::multiset<std::string> declared;
    const QDir folder(QStringLiteral(QUORVAWIZ_SOURCE_DIR "/src/exports"));
    for (const QString& rsHeader : folder.entryList({QStringLiteral("*.h")})) {
        QFile file(folder.filePath(rsHeader));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QString sText = QString::fromUtf8(file.readAll());
        sText.remove(QRegularExpression(QStringLiteral("//[^\n]*")));
        declared.merge(HitsOf("\\b(g[A-Z]\\w*)\\s*\\(", sText));
    }
    return declared;
}

TEST(Libraries, TheWizardExportsItsDeclaredFunctionsAndNothingElse)
{
    const TOutcome symbols =
        Execute(QStringLiteral("nm"), {QStringLiteral("-DC"), QStringLiteral("--defined-only"),
                                       QStringLiteral(QUORVAWIZ_LIBRARY_PATH)});
    ASSERT_EQ(symbols.nExitCode, 0) << symbols.sErrors.toStdString();
    const auto declared = DeclaredFunctions();
    EXPECT_EQ(declared.size(), 6U);
    EXPECT_EQ(HitsOf("^[0-9a-f]+ T quorvawiz::(g\\w+)\\(", symbols.sOutput), declared);
    EXPECT_EQ(HitsOf("^(.+)$", symbols.sOutput).size(), declared.size())
        << symbols.sOutput.toStdString();
}

TEST(Libraries, TheHostLinksTheTwoLibrariesAndNoOtherOfOurs)
{
    const TOutcome needed = Execute(QStringLiteral("readelf"),
                                    {QStringLiteral("-d"), QStringLiteral(QUORVAWIZ_HOST_PATH)});
    ASSERT_EQ(needed.nExitCode, 0) << needed.sErrors.toStdString();
    EXPECT_THAT(HitsOf("NEEDED.*\\[(libquorva\\w+)\\.so", needed.sOutput),
                ElementsAre("libquorvaplatform", "libquorvawiz"));
    // The symbols of the platform come from its library: the host has none of its own.
    const TOutcome symbols =
        Execute(QStringLiteral("nm"), {QStringLiteral("-C"), QStringLiteral("--defined-only"),
                                       QStringLiteral(QUORVAWIZ_HOST_PATH)});
    EXPECT_EQ(HitsOf("^[0-9a-f]+ [TBDR] (gDesktop|gFindDesktop|CWnd::GetFocus)\\(", symbols.sOutput)
                  .size(),
              0U);
}

TEST(Libraries, TheWizardIsAnExtensionModuleFromLoadToUnload)
{
    EXPECT_TRUE(CDynLinkLibrary::IsRegistered("quorvawiz")); // this program links it
    const TOutcome loader =
        Execute(QStringLiteral(QUORVAWIZ_LOADER_PATH), {QStringLiteral(QUORVAWIZ_LIBRARY_PATH)});
    QString sExpected =
        QStringLiteral("at the start: 0 modules, quorvawiz isn't one, its pages aren't known\n");
    for (int i = 0; i < 3; ++i)
        sExpected +=
            QStringLiteral("loaded: 1 modules, quorvawiz is one, its pages are known\n"
                           "called: 1 modules, quorvawiz is one, its pages are known\n"
                           "unloaded: 0 modules, quorvawiz isn't one, its pages aren't known\n");
    EXPECT_EQ(loader.sOutput.toStdString(), sExpected.toStdString());
    EXPECT_EQ(loader.nExitCode, 0) << loader.sErrors.toStdString();
}

TEST(Libraries, ExceptionsAndTypesPassFromOneToTheOther)
{
    const CFileFolder folder;
    QtDesktop desktop(folder.Path("profile.ini"));
    CWizardUser user;
    user.Meet([&](QWidget& rWizard) {
        CDialog* const pDialog = gInnermostDialog();
        ASSERT_NE(pDialog, nullptr);
        // The wizard's class is in one library, the classes of its controls in the other.
        EXPECT_EQ(gClassName(*pDialog), "CQuorvaCommandDlg");
        EXPECT_NE(dynamic_cast<CButton*>(gFindField(*pDialog, "insert").pControl), nullptr);
        EXPECT_EQ(dynamic_cast<CDialog*>(gFindField(*pDialog, "insert").pControl), nullptr);
        EXPECT_EQ(&gDesktop(), &desktop);
        user.InsertTemperature(rWizard, "27");
    });
    EXPECT_THROW(gInvokeSpiceCommandWizard(nullptr, nullptr), CInvalidArgException);
    EXPECT_NO_THROW(user.RethrowFailure());
}

TEST(Libraries, TheProgramAnswersWithoutAScreen)
{
    const QString sHost = QStringLiteral(QUORVAWIZ_HOST_PATH);
    const TOutcome version = Execute(sHost, {QStringLiteral("--version")});
    EXPECT_EQ(version.sOutput, "quorvahost " QUORVAWIZ_VERSION "\n");
    EXPECT_EQ(version.nExitCode, 0);
    const TOutcome help = Execute(sHost, {QStringLiteral("--help")});
    EXPECT_TRUE(help.sOutput.startsWith(QStringLiteral("usage: quorvahost [FILE [--import]]\n")));
    EXPECT_EQ(help.nExitCode, 0);
    const TOutcome bad = Execute(sHost, {QStringLiteral("--wizzard")});
    EXPECT_EQ(bad.sOutput, "");
    EXPECT_EQ(bad.sErrors, "quorvahost: unknown option: --wizzard\nTry \"quorvahost --help\".\n");
    EXPECT_EQ(bad.nExitCode, 2);
    const TOutcome append = Execute(
        sHost, {QStringLiteral("--wizard"), QStringLiteral("--append"), QStringLiteral("/")});
    EXPECT_EQ(append.nExitCode, 1);
    EXPECT_TRUE(append.sErrors.contains(QStringLiteral("Is a directory")))
        << append.sErrors.toStdString();
}
} // namespace
} // namespace quorvawiz::host
