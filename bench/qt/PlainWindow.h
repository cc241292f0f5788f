#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <functional>
#include <memory>

class QDialog;
class QWidget;

/// What a window shows, as far as somebody would write it down who makes the same with the toolkit
/// alone: kinds of widgets, places and texts.
class CWindowPlan
{
public:
    /// Looks at a window and all that is in it, hidden widgets included.
    explicit CWindowPlan(const QWidget& rWindow);

    /// How many widgets the plan holds, the window not counted.
    int GetCount() const;

    /// A dialog with the same widgets and no logic, not shown yet.
    std::unique_ptr<QDialog> Make() const;

private:
    struct TPart {
        std::function<QWidget*(QWidget* pParent)> make;
        QRect rect;
        bool bHidden = false;
        QList<TPart> parts;
    };

    static QList<TPart> PartsOf(const QWidget& rWidget);
    static int CountOf(const QList<TPart>& rParts);
    static void MakeParts(const QList<TPart>& rParts, QWidget& rParent);

    QList<TPart> mParts;
    QSize mSize;
};
