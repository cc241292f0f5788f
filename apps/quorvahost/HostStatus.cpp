#include "quorvahost/HostStatus.h"

#include "quorvahost/NetlistEdit.h"

#include <QLabel>
#include <QStatusBar>

namespace quorvawiz::host
{
namespace
{
QLabel* AddLabel(QStatusBar& rBar, const QString& rsName)
{
    auto* const pLabel = new QLabel(&rBar);
    pLabel->setObjectName(rsName);
    pLabel->setContentsMargins(6, 0, 6, 0);
    rBar.addPermanentWidget(pLabel);
    return pLabel;
}
} // namespace

CHostStatus::CHostStatus(CNetlistEdit& rEdit, QStatusBar& rBar)
    : QObject(&rBar), mrEdit(rEdit), mpParams(AddLabel(rBar, QStringLiteral("status-params"))),
      mpColoured(AddLabel(rBar, QStringLiteral("status-coloured"))),
      mpPlace(AddLabel(rBar, QStringLiteral("status-place"))),
      mpForm(AddLabel(rBar, QStringLiteral("status-form")))
{
    connect(&rEdit, &QPlainTextEdit::cursorPositionChanged, this, &CHostStatus::ShowPlace);
    connect(&rEdit, &CNetlistEdit::ColouredChanged, this, &CHostStatus::ShowColoured);
    mpParams->setTextFormat(Qt::PlainText);
    mpParams->hide();
    mpColoured->setText(tr("Large file: no colours"));
    ShowPlace();
    ShowColoured();
    ShowForm({});
}

void CHostStatus::ShowForm(TTextForm form)
{
    const QString sLineEnds = gLineEndsName(form.lineEnds);
    mpForm->setText(form.bBom ? tr("UTF-8 BOM, %1").arg(sLineEnds)
                              : tr("UTF-8, %1").arg(sLineEnds));
}

void CHostStatus::ShowParams(const QString& rsName)
{
    constexpr int kMostCharacters = 24;
    const QString sShown = rsName.size() <= kMostCharacters
                               ? rsName
                               : rsName.left(kMostCharacters - 1) + QStringLiteral("\u2026");
    mpParams->setText(tr("Parameters: %1").arg(sShown));
    mpParams->setToolTip(rsName.toHtmlEscaped());
    mpParams->show();
}

void CHostStatus::ShowPlace()
{
    const QTextCursor cursor = mrEdit.textCursor();
    mpPlace->setText(
        tr("Line %1, Column %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

void CHostStatus::ShowColoured()
{
    mpColoured->setVisible(!mrEdit.IsColoured());
}

} // namespace quorvawiz::host
