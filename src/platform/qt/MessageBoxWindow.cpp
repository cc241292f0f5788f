#include "platform/qt/MessageBoxWindow.h"

#include "platform/qt/QtText.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

namespace
{
constexpr UINT kIconMask = 0xF0;

/// A box that asks for an answer takes nothing else for one.
class CQuestionBox : public QMessageBox
{
public:
    CQuestionBox()
    {
        setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        setDefaultButton(QMessageBox::Yes);
        setWindowFlag(Qt::WindowCloseButtonHint, false);
    }

protected:
    void closeEvent(QCloseEvent* pEvent) override { pEvent->ignore(); }

    void keyPressEvent(QKeyEvent* pEvent) override
    {
        if (!pEvent->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(pEvent);
    }
};

bool IsQuestion(const TMessageBox& rBox)
{
    return (rBox.nFlags & MB_TYPEMASK) == MB_YESNO;
}

QMessageBox::Icon IconOf(UINT nFlags)
{
    switch (nFlags & kIconMask) {
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONEXCLAMATION:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}
} // namespace

std::unique_ptr<QMessageBox> gMakeMessageBox(const TMessageBox& rBox,
                                             const CString& rsDefaultCaption)
{
    std::unique_ptr<QMessageBox> pBox;
    if (IsQuestion(rBox)) {
        pBox = std::make_unique<CQuestionBox>();
    } else {
        pBox = std::make_unique<QMessageBox>();
        pBox->setStandardButtons(QMessageBox::Ok);
    }
    pBox->setTextFormat(Qt::PlainText);
    pBox->setText(gToWidgetLines(rBox.sText));
    pBox->setWindowTitle(gToQString(rBox.sCaption.value_or(rsDefaultCaption)));
    pBox->setIcon(IconOf(rBox.nFlags));
    return pBox;
}

int gResultOf(const TMessageBox& rBox, int nButton)
{
    if (!IsQuestion(rBox))
        return IDOK;
    return nButton == QMessageBox::Yes ? IDYES : IDNO;
}
