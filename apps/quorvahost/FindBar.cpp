#include "quorvahost/FindBar.h"

#include "quorvahost/NetlistEdit.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace quorvawiz::host
{
namespace
{
constexpr int kGap = 8; // pixels
} // namespace

CFindBar::CFindBar(CNetlistEdit& rEdit, QWidget* pParent)
    : QWidget(pParent), mrEdit(rEdit), mpText(new QLineEdit(this)),
      mpMatchCase(new QCheckBox(tr("Match &case"), this)), mpResult(new QLabel(this))
{
    setObjectName(QStringLiteral("find-bar"));
    mpText->setObjectName(QStringLiteral("find-text"));
    mpText->setClearButtonEnabled(true);
    mpMatchCase->setObjectName(QStringLiteral("find-match-case"));
    mpResult->setObjectName(QStringLiteral("find-result"));
    auto* const pLabel = new QLabel(tr("Fi&nd:"), this);
    pLabel->setBuddy(mpText);
    auto* const pNext = new QPushButton(tr("Ne&xt"), this);
    pNext->setObjectName(QStringLiteral("find-next"));
    auto* const pPrevious = new QPushButton(tr("&Previous"), this);
    pPrevious->setObjectName(QStringLiteral("find-previous"));
    auto* const pClose = new QToolButton(this);
    pClose->setObjectName(QStringLiteral("find-close"));
    pClose->setText(QStringLiteral("\u00d7"));
    pClose->setAutoRaise(true);
    pClose->setToolTip(tr("Close (Esc)"));
    pClose->setAccessibleName(tr("Close"));

    auto* const pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(kGap, kGap / 2, kGap, kGap / 2);
    pLayout->addWidget(pLabel);
    pLayout->addWidget(mpText, 2);
    pLayout->addWidget(pNext);
    pLayout->addWidget(pPrevious);
    pLayout->addWidget(mpMatchCase);
    pLayout->addWidget(mpResult, 1);
    pLayout->addWidget(pClose);

    connect(mpText, &QLineEdit::textEdited, this, &CFindBar::FindAsTyped);
    connect(mpMatchCase, &QCheckBox::toggled, this, &CFindBar::FindAsTyped);
    connect(pNext, &QPushButton::clicked, this, [this] { FindAgain(EDirection::Forward); });
    connect(pPrevious, &QPushButton::clicked, this, [this] { FindAgain(EDirection::Backward); });
    connect(pClose, &QToolButton::clicked, this, &CFindBar::Close);
    hide();
}

void CFindBar::Open()
{
    const QString sSelected = mrEdit.textCursor().selectedText();
    if (!sSelected.isEmpty() && !sSelected.contains(QChar::ParagraphSeparator))
        mpText->setText(sSelected);
    mpResult->clear();
    show();
    mpText->setFocus();
    mpText->selectAll();
}

void CFindBar::Close()
{
    hide();
    mrEdit.setFocus();
}

void CFindBar::FindAgain(EDirection direction)
{
    if (mpText->text().isEmpty())
        return Open();
    Show(gFindText(*mrEdit.document(), mrEdit.textCursor(),
                   {mpText->text(), mpMatchCase->isChecked()}, direction));
}

void CFindBar::keyPressEvent(QKeyEvent* pEvent)
{
    const bool bShift = (pEvent->modifiers() & Qt::ShiftModifier) != 0;
    switch (pEvent->key()) {
    case Qt::Key_Escape:
        return Close();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return FindAgain(bShift ? EDirection::Backward : EDirection::Forward);
    default:
        QWidget::keyPressEvent(pEvent);
    }
}

void CFindBar::FindAsTyped()
{
    // From the start of what is selected: a longer text is found where the shorter one was.
    QTextCursor from = mrEdit.textCursor();
    from.setPosition(from.selectionStart());
    if (mpText->text().isEmpty()) {
        mrEdit.setTextCursor(from);
        return mpResult->clear();
    }
    Show(gFindText(*mrEdit.document(), from, {mpText->text(), mpMatchCase->isChecked()},
                   EDirection::Forward));
}

void CFindBar::Show(const TFound& rFound)
{
    if (rFound.cursor.isNull())
        return mpResult->setText(tr("Not found"));
    mpResult->setText(rFound.bWrapped ? tr("Wrapped around") : QString());
    mrEdit.setTextCursor(rFound.cursor);
}

} // namespace quorvawiz::host
