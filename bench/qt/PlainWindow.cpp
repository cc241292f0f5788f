#include "bench/qt/PlainWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

namespace
{
using TMaker = std::function<QWidget*(QWidget* pParent)>;

template <class TButton> TMaker ButtonMaker(const QWidget& rModel)
{
    const QString sText = static_cast<const TButton&>(rModel).text();
    return [sText](QWidget* pParent) { return new TButton(sText, pParent); };
}

TMaker TreeMaker(const QTreeWidget& rModel)
{
    auto pRoot = std::make_shared<QTreeWidgetItem>();
    for (int i = 0; i < rModel.topLevelItemCount(); ++i)
        pRoot->addChild(rModel.topLevelItem(i)->clone());
    return [pRoot](QWidget* pParent) {
        auto* const pTree = new QTreeWidget(pParent);
        pTree->setHeaderHidden(true);
        for (int i = 0; i < pRoot->childCount(); ++i)
            pTree->addTopLevelItem(pRoot->child(i)->clone());
        return pTree;
    };
}

TMaker ComboMaker(const QComboBox& rModel)
{
    QStringList entries;
    for (int i = 0; i < rModel.count(); ++i)
        entries.append(rModel.itemText(i));
    return [entries](QWidget* pParent) {
        auto* const pCombo = new QComboBox(pParent);
        pCombo->addItems(entries);
        return pCombo;
    };
}

TMaker MakerOf(const QWidget& rModel)
{
    if (const auto* const pTree = qobject_cast<const QTreeWidget*>(&rModel))
        return TreeMaker(*pTree);
    if (const auto* const pCombo = qobject_cast<const QComboBox*>(&rModel))
        return ComboMaker(*pCombo);
    if (qobject_cast<const QPushButton*>(&rModel))
        return ButtonMaker<QPushButton>(rModel);
    if (qobject_cast<const QRadioButton*>(&rModel))
        return ButtonMaker<QRadioButton>(rModel);
    if (qobject_cast<const QCheckBox*>(&rModel))
        return ButtonMaker<QCheckBox>(rModel);
    if (qobject_cast<const QLabel*>(&rModel))
        return ButtonMaker<QLabel>(rModel);
    if (qobject_cast<const QLineEdit*>(&rModel))
        return [](QWidget* pParent) { return new QLineEdit(pParent); };
    if (qobject_cast<const QPlainTextEdit*>(&rModel))
        return [](QWidget* pParent) { return new QPlainTextEdit(pParent); };
    if (const auto* const pGroup = qobject_cast<const QGroupBox*>(&rModel))
        return
            [sTitle = pGroup->title()](QWidget* pParent) { return new QGroupBox(sTitle, pParent); };
    return [](QWidget* pParent) { return new QWidget(pParent); };
}

bool IsPane(const QWidget& rWidget)
{
    return rWidget.metaObject() == &QWidget::staticMetaObject;
}
} // namespace

CWindowPlan::CWindowPlan(const QWidget& rWindow) : mParts(PartsOf(rWindow)), mSize(rWindow.size())
{
}

QList<CWindowPlan::TPart> CWindowPlan::PartsOf(const QWidget& rWidget)
{
    QList<TPart> parts;
    for (const QObject* pObject : rWidget.children())
        if (const auto* const pChild = qobject_cast<const QWidget*>(pObject))
            parts.append({MakerOf(*pChild), pChild->geometry(), pChild->isHidden(),
                          IsPane(*pChild) ? PartsOf(*pChild) : QList<TPart>()});
    return parts;
}

int CWindowPlan::CountOf(const QList<TPart>& rParts)
{
    int nCount = 0;
    for (const TPart& rPart : rParts)
        nCount += 1 + CountOf(rPart.parts);
    return nCount;
}

int CWindowPlan::GetCount() const
{
    return CountOf(mParts);
}

void CWindowPlan::MakeParts(const QList<TPart>& rParts, QWidget& rParent)
{
    for (const TPart& rPart : rParts) {
        QWidget* const pWidget = rPart.make(&rParent);
        pWidget->setGeometry(rPart.rect);
        pWidget->setHidden(rPart.bHidden);
        MakeParts(rPart.parts, *pWidget);
    }
}

std::unique_ptr<QDialog> CWindowPlan::Make() const
{
    auto pDialog = std::make_unique<QDialog>();
    pDialog->setFixedSize(mSize);
    MakeParts(mParts, *pDialog);
    return pDialog;
}
