// What the wizard costs on a screen, each time against a QDialog with the same widgets and no
// logic, turn by turn, so that both see the same machine: to open and close it, to switch between
// two pages, to insert a command. All of it painted. Counters: microseconds of each, and their
// ratio.

#include "bench/qt/PlainWindow.h"
#include "exports/Quorvawiz.h"
#include "platform/qt/QtDesktop.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/Edit.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/TreeCtrl.h"
#include "wizard/frame/CommandWizardTarget.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
using TClock = std::chrono::steady_clock;

class CCountingTarget : public quorvawiz::QuorvaCommandWizardTarget
{
public:
    void InsertCommand(CString sCommand) override
    {
        ++mnCommands;
        benchmark::DoNotOptimize(sCommand.GetLength());
    }

    int mnCommands = 0;
};

class CBenchDesktop
{
public:
    QtDesktop mDesktop{QDir::temp().filePath(QStringLiteral("quorvawiz-bench.ini"))};
};

double MicrosecondsOf(const std::function<void()>& rWork)
{
    const auto start = TClock::now();
    rWork();
    return std::chrono::duration<double, std::micro>(TClock::now() - start).count();
}

/// Lets the windows paint and answer what waits.
void Paint()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

/// Opens the wizard, acts in its event loop, and closes it.
int InWizard(const std::function<void(CDialog& rWizard)>& rAct)
{
    CCountingTarget target;
    QTimer::singleShot(0, qApp, [&rAct] {
        rAct(*gOutermostDialog());
        gDesktop().EndModalRuns();
    });
    quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return target.mnCommands;
}

/// Selects the page of a label.
void Select(CDialog& rWizard, const char* pLabel)
{
    auto& rTree = dynamic_cast<CTreeCtrl&>(*gFindField(rWizard, "tree").pControl);
    for (HTREEITEM h = rTree.GetRootItem(); h; h = rTree.GetNextSiblingItem(h))
        for (HTREEITEM c = rTree.GetChildItem(h); c; c = rTree.GetNextSiblingItem(c))
            if (rTree.GetItemText(c) == pLabel) {
                rTree.SelectItem(c);
                return;
            }
    throw std::logic_error("the wizard has no such page");
}

/// Adds up what both cost, and tells.
class CContest
{
public:
    explicit CContest(benchmark::State& rState) : mrState(rState) {}
    ~CContest()
    {
        const auto nTurns = static_cast<double>(mrState.iterations());
        mrState.counters["wizard_us"] = mdWizard / nTurns;
        mrState.counters["plain_us"] = mdPlain / nTurns;
        mrState.counters["ratio"] = mdWizard / mdPlain;
    }
    CContest(const CContest&) = delete;
    CContest& operator=(const CContest&) = delete;

    void Turn(const std::function<void()>& rWizard, const std::function<void()>& rPlain)
    {
        mdWizard += MicrosecondsOf(rWizard);
        mdPlain += MicrosecondsOf(rPlain);
    }

private:
    benchmark::State& mrState;
    double mdWizard = 0;
    double mdPlain = 0;
};

void BM_OpenAndClose(benchmark::State& rState)
{
    const CBenchDesktop desktop;
    std::unique_ptr<CWindowPlan> pPlan;
    InWizard([&pPlan](CDialog& rWizard) {
        Paint();
        pPlan = std::make_unique<CWindowPlan>(*gWidgetOf(rWizard));
    });
    CContest contest(rState);
    for ([[maybe_unused]] const auto turn : rState)
        contest.Turn([] { InWizard([](CDialog&) { Paint(); }); },
                     [&pPlan] {
                         const auto pDialog = pPlan->Make();
                         QTimer::singleShot(0, pDialog.get(), [&pDialog] {
                             Paint();
                             pDialog->done(0);
                         });
                         pDialog->exec();
                     });
    rState.counters["widgets"] = pPlan->GetCount();
}
BENCHMARK(BM_OpenAndClose)->Unit(benchmark::kMicrosecond);

void BM_SwitchPage(benchmark::State& rState)
{
    const CBenchDesktop desktop;
    InWizard([&rState](CDialog& rWizard) {
        // Pages are made when they are first shown: that is not a switch.
        Select(rWizard, "AC");
        Select(rWizard, "Transient");
        Paint();
        const CWindowPlan plan(*gWidgetOf(rWizard));
        const auto pPlain = plan.Make();
        pPlain->show();
        Paint();
        // The page that is shown, and the one that was before.
        std::vector<QWidget*> panes;
        for (auto* const pPane : pPlain->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (!pPane->findChildren<QLineEdit*>().isEmpty())
                panes.push_back(pPane);
        if (panes.size() != 2)
            throw std::logic_error("the plain window has other panes than the wizard");

        bool bFirst = false;
        CContest contest(rState);
        for ([[maybe_unused]] const auto turn : rState) {
            bFirst = !bFirst;
            contest.Turn(
                [&] {
                    Select(rWizard, bFirst ? "AC" : "Transient");
                    Paint();
                },
                [&] {
                    for (QWidget* const pPane : panes)
                        if (!pPane->isHidden())
                            pPane->hide();
                    panes[bFirst ? 0 : 1]->show();
                    Paint();
                });
        }
        rState.counters["widgets"] = plan.GetCount();
    });
}
BENCHMARK(BM_SwitchPage)->Unit(benchmark::kMicrosecond);

void BM_Insert(benchmark::State& rState)
{
    const CBenchDesktop desktop;
    const int nCommands = InWizard([&rState](CDialog& rWizard) {
        Select(rWizard, "Temperature");
        const auto temperatures = gFindField(rWizard, "temperature-list");
        dynamic_cast<CEdit&>(*temperatures.pControl).UserType("0 27 85");
        auto& rInsert = dynamic_cast<QPushButton&>(*gWidgetOf(*rWizard.GetDlgItem(IDOK)));
        Paint();

        // Whoever does without the library reads the field, checks it and keeps the line.
        const auto pPlain = CWindowPlan(*gWidgetOf(rWizard)).Make();
        pPlain->show();
        auto* const pField = pPlain->findChild<QPlainTextEdit*>();
        pField->setPlainText(QStringLiteral("0 27 85"));
        auto* const pButton = pPlain->findChild<QPushButton*>();
        std::string sKept;
        QObject::connect(pButton, &QPushButton::clicked, pPlain.get(), [&] {
            const QString sText = pField->toPlainText().trimmed();
            if (!sText.isEmpty())
                sKept = ".temp " + sText.toStdString();
        });
        Paint();

        CContest contest(rState);
        for ([[maybe_unused]] const auto turn : rState)
            contest.Turn(
                [&] {
                    rInsert.click();
                    Paint();
                },
                [&] {
                    pButton->click();
                    Paint();
                });
        if (sKept != ".temp 0 27 85")
            throw std::logic_error("the plain window has kept another line");
    });
    if (nCommands != static_cast<int>(rState.iterations()))
        throw std::logic_error("the wizard has inserted another number of commands");
}
BENCHMARK(BM_Insert)->Unit(benchmark::kMicrosecond);
} // namespace
