// The browser's list of a million devices on a screen, against a QTableWidget that is filled with
// the same cells in the same run: the table alone to its first painting, in time and in memory, and
// a jump to anywhere in it. Beside it, what the whole list takes from the call to its first
// painting.

#include "bench/ExampleFile.h"
#include "browser/ListTables.h"
#include "browser/ParamBrowserCustomTableCtrl.h"
#include "exports/Quorvawiz.h"
#include "params/CircuitParams.h"
#include "platform/qt/QtDesktop.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/TemplateRows.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <QDir>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>
#include <algorithm>
#include <array>
#include <ctime>
#include <functional>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>

namespace
{
constexpr std::int64_t kMost = QUORVAWIZ_LONG_RUNS ? 3'000'000 : 1'000'000;
constexpr int kTable = 1001;
constexpr TSize kSize{317, 184};
constexpr std::array kRows{
    Row(kTable, "table", EControl::Table, "", {5, 5, kSize.cx - 10, kSize.cy - 10}, kUnlabelled)};
constexpr DialogTemplate kTemplate{"Table", kSize, kRows, "", true};

/// A dialog with the browser's table and no more.
class CTableDialog : public CDialog
{
public:
    explicit CTableDialog(TParamTableData table) : CDialog(kTemplate), mTable(std::move(table)) {}

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mTable.FillTable();
        return true;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, kTable, mTable); }

private:
    TParamBrowserCustomTableCtrl mTable;
};

/// Milliseconds of processor time: others may be at work on the machine.
double Now()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

/// What the program has got from the heap, in MB.
double HeapMegabytes()
{
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
}

void Paint()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

/// What something costs from its beginning to its first painting.
struct TCost {
    double dMilliseconds = 0;
    double dMegabytes = 0;
};

/// Runs a dialog of the library; acts when it has been painted for the first time, and closes it.
TCost InDialog(const std::function<void()>& rRun, const std::function<void(QTableView&)>& rAct)
{
    TCost cost;
    const double dBefore = HeapMegabytes();
    const double dStart = Now();
    QTimer::singleShot(0, qApp, [&] {
        Paint();
        cost = {Now() - dStart, HeapMegabytes() - dBefore};
        CDialog& rDialog = *gOutermostDialog();
        rAct(dynamic_cast<QTableView&>(*gWidgetOf(*gFindField(rDialog, "table").pControl)));
        gDesktop().EndModalRuns();
    });
    rRun();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return cost;
}

/// The longest painting of many jumps to anywhere, in milliseconds.
double LongestJump(QTableView& rView)
{
    std::mt19937 random(1);
    double dLongest = 0;
    constexpr int nJumps = 200;
    for (int i = 0; i < nJumps; ++i) {
        const int nRow =
            static_cast<int>(random() % static_cast<unsigned>(rView.model()->rowCount()));
        const double dStart = Now();
        rView.scrollTo(rView.model()->index(nRow, 0), QAbstractItemView::PositionAtTop);
        rView.viewport()->repaint();
        dLongest = std::max(dLongest, Now() - dStart);
    }
    return dLongest;
}

/// What somebody writes who shows the same with the toolkit's own table.
TCost RunTableWidget(const TParamTableData& rTable, const QSize& rSize)
{
    const double dBefore = HeapMegabytes();
    const double dStart = Now();
    QTableWidget widget(static_cast<int>(rTable.mRows.size()),
                        static_cast<int>(rTable.mColumnTitles.size()));
    for (int nRow = 0; nRow < widget.rowCount(); ++nRow)
        for (int nColumn = 0; nColumn < widget.columnCount(); ++nColumn) {
            const CStringU& rsText =
                rTable.mRows[static_cast<std::size_t>(nRow)][static_cast<std::size_t>(nColumn)]
                    .msText;
            widget.setItem(nRow, nColumn,
                           new QTableWidgetItem(QString::fromStdU16String(rsText.ToWide())));
        }
    widget.resize(rSize);
    widget.show();
    Paint();
    return {Now() - dStart, HeapMegabytes() - dBefore};
}

void BM_FirstPainting(benchmark::State& rState)
{
    const CExampleFile file(rState.range(0));
    TCircuitParams store;
    store.ReadThis(file.Path(), "");
    const TParamTableData table = gMakeDevicesTable(store, store.GetDeviceList(-1), "");
    const QtDesktop desktop(QDir::temp().filePath(QStringLiteral("quorvawiz-bench.ini")));
    // What the toolkit makes once is nobody's cost.
    CTableDialog first{TParamTableData()};
    InDialog([&first] { first.DoModal(); }, [](QTableView&) {});

    TCost ours, theirs, all;
    double dLongestJump = 0;
    QSize size;
    for ([[maybe_unused]] const auto turn : rState) {
        // The cells were composed before; that they are moved in here costs nothing.
        CTableDialog dialog(table);
        const TCost own = InDialog([&dialog] { dialog.DoModal(); },
                                   [&](QTableView& rView) {
                                       size = rView.size();
                                       dLongestJump = std::max(dLongestJump, LongestJump(rView));
                                   });
        const TCost plain = RunTableWidget(table, size);
        const TCost list = InDialog(
            [&store] { quorvawiz::gInvokeParamBrowserDevicesDialog(nullptr, store, true); },
            [](QTableView&) {});
        ours = {ours.dMilliseconds + own.dMilliseconds, std::max(ours.dMegabytes, own.dMegabytes)};
        theirs = {theirs.dMilliseconds + plain.dMilliseconds, plain.dMegabytes};
        all.dMilliseconds += list.dMilliseconds;
    }
    const auto turns = static_cast<double>(rState.iterations());
    // Below a page of the heap there is nothing to measure.
    constexpr double dLeast = 0.004;
    rState.counters["table_ms"] = ours.dMilliseconds / turns;
    rState.counters["widget_ms"] = theirs.dMilliseconds / turns;
    rState.counters["ratio"] = ours.dMilliseconds / theirs.dMilliseconds;
    rState.counters["table_MB"] = ours.dMegabytes;
    rState.counters["widget_MB"] = theirs.dMegabytes;
    rState.counters["ratio_MB"] = std::max(ours.dMegabytes, dLeast) / theirs.dMegabytes;
    rState.counters["longest_jump_ms"] = dLongestJump;
    rState.counters["whole_list_ms"] = all.dMilliseconds / turns;
}
BENCHMARK(BM_FirstPainting)
    ->RangeMultiplier(10)
    ->Range(10'000, kMost)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
} // namespace
