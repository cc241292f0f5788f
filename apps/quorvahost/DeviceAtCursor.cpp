#include "quorvahost/DeviceAtCursor.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <optional>
#include <vector>

namespace quorvawiz::host
{
namespace
{
QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("DeviceAtCursor", pEnglish);
}

bool Equal(const QString& rsLeft, const QString& rsRight)
{
    return rsLeft.compare(rsRight, Qt::CaseInsensitive) == 0;
}

/// Blank lines and comments; a statement may go on behind them.
bool IsNoStatement(const QString& rsLine)
{
    const QStringView sTrimmed = QStringView(rsLine).trimmed();
    return sTrimmed.isEmpty() || sTrimmed.startsWith(QLatin1Char('*')) ||
           sTrimmed.startsWith(QLatin1Char(';'));
}

QStringList WordsOf(const QString& rsLine)
{
    static const QRegularExpression kBlanks(QStringLiteral("[\\s,()]+"));
    static const QRegularExpression kComment(QStringLiteral(";|\\s\\$"));
    const QString sText = rsLine.left(rsLine.indexOf(kComment));
    return sText.split(kBlanks, Qt::SkipEmptyParts);
}

/// The subcircuit that an instance's words call: the last one in front of parameters.
QString CalledBy(const QStringList& rWords)
{
    qsizetype nEnd = 1;
    for (; nEnd < rWords.size(); ++nEnd) {
        const QString& rsWord = rWords[nEnd];
        if (Equal(rsWord, QStringLiteral("params:")))
            break;
        const qsizetype nEqual = rsWord.indexOf(QLatin1Char('='));
        if (nEqual == 0)
            --nEnd; // "W = 1": the word before is the parameter's
        if (nEqual >= 0)
            break;
    }
    return nEnd >= 2 ? rWords[nEnd - 1] : QString();
}

struct TInstance {
    QString sName;
    QString sCalled; ///< the subcircuit
    QString sWithin; ///< the subcircuit that it stands in; empty: none
};

/// A netlist's subcircuits, as far as one reading of its lines tells.
class CHierarchy
{
public:
    /// Reads all lines; the first one is the title.
    /// @param nLine of which to remember the subcircuit that it stands in
    CHierarchy(const TLines& rLines, int nLine)
    {
        QStringList open;
        QStringList instance; // the words of the one whose lines are being read
        QString sWithin;
        const auto finish = [&] {
            if (!instance.isEmpty())
                mInstances.push_back({instance.front(), CalledBy(instance), sWithin});
            instance.clear();
        };
        for (int i = 1; i < rLines.nCount; ++i) {
            const QString sLine = rLines.lineAt(i);
            if (i == nLine)
                msWithinAtLine = open.isEmpty() ? QString() : open.back();
            if (IsNoStatement(sLine))
                continue;
            if (gIsContinuation(sLine)) {
                if (!instance.isEmpty())
                    instance += WordsOf(sLine.trimmed().mid(1));
                continue;
            }
            finish();
            const QStringList words = WordsOf(sLine);
            if (words.isEmpty())
                continue;
            if (words.front().startsWith(QLatin1Char('x'), Qt::CaseInsensitive)) {
                instance = words;
                sWithin = open.isEmpty() ? QString() : open.back();
            } else if (Equal(words.front(), QStringLiteral(".subckt")) && words.size() > 1) {
                open.append(words[1]);
            } else if (Equal(words.front(), QStringLiteral(".ends")) && !open.isEmpty()) {
                open.removeLast();
            }
        }
        finish();
    }

    const QString& WithinAtLine() const { return msWithinAtLine; }

    /// The path of the first instance of a subcircuit that the top level leads to.
    std::optional<QString> PathTo(const QString& rsSubckt, QSet<QString> seen = {}) const
    {
        // One that calls itself leads nowhere.
        if (seen.contains(rsSubckt.toLower()))
            return std::nullopt;
        seen.insert(rsSubckt.toLower());
        for (const TInstance& rInstance : mInstances) {
            if (!Equal(rInstance.sCalled, rsSubckt))
                continue;
            if (rInstance.sWithin.isEmpty())
                return rInstance.sName;
            if (const auto above = PathTo(rInstance.sWithin, seen))
                return *above + QLatin1Char('.') + rInstance.sName;
        }
        return std::nullopt;
    }

private:
    std::vector<TInstance> mInstances;
    QString msWithinAtLine;
};

/// The first line of the statement around a line; 0, the title, if there is none.
int StatementAt(const TLines& rLines, int nLine)
{
    if (IsNoStatement(rLines.lineAt(nLine)))
        return 0;
    if (!gIsContinuation(rLines.lineAt(nLine)))
        return nLine;
    do
        --nLine;
    while (nLine > 0 &&
           (gIsContinuation(rLines.lineAt(nLine)) || IsNoStatement(rLines.lineAt(nLine))));
    return std::max(nLine, 0);
}
} // namespace

std::variant<TDeviceName, TNoDevice> gDeviceAt(const TLines& rLines, int nLine)
{
    const int nStatement = StatementAt(rLines, nLine);
    const QStringList words = WordsOf(rLines.lineAt(nStatement));
    if (nStatement == 0 || words.isEmpty() || !words.front().front().isLetter())
        return TNoDevice{Say("the cursor isn't in the line of a device")};

    const QString& rsName = words.front();
    const CHierarchy hierarchy(rLines, nStatement);
    QString sPath;
    if (const QString& rsWithin = hierarchy.WithinAtLine(); !rsWithin.isEmpty()) {
        const auto path = hierarchy.PathTo(rsWithin);
        if (!path)
            return TNoDevice{
                Say("the netlist has no instance of the subcircuit \"%1\"").arg(rsWithin)};
        sPath = *path;
    }
    // What a params file calls the level that no instance leads to.
    const QString sTopLevel = QStringLiteral("top");
    if (!rsName.startsWith(QLatin1Char('x'), Qt::CaseInsensitive))
        return TDeviceName{sPath.isEmpty() ? sTopLevel : sPath, rsName};
    return TDeviceName{{}, sPath.isEmpty() ? rsName : sPath + QLatin1Char('.') + rsName};
}

} // namespace quorvawiz::host
