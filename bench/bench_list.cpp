// The data list over the 64-channel benchmark recording lengthened to 3,599,999 rows, the
// longest a view takes: opening the list (the table built, no row filled), the first block,
// a jump to row 3,000,000 and page-downs, each as the grid asks for them while it paints the
// rows of one screen (30 rows, every column); and the window itself, opened and shown offscreen.
#include "BenchFiles.h"

#include "analysis/DataList.h"
#include "analysis/GridModel.h"
#include "analysis/SkipCount.h"
#include "analysis/widgets/frmItiran.h"
#include "platform/PrintOutput.h"
#include "print/ListPrint.h"
#include "print/clsSpreadPrint.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "trend/AlarmMarks.h"
#include "trend/TrendView.h"

#include <QApplication>
#include <QFile>
#include <QTableView>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

namespace {

constexpr int kRows = 3599999;
constexpr int kScreenRows = 30;

std::unique_ptr<TrendView> gView;

bool loadView(const QStringList& files) {
    gView = BenchFiles::openView(files);
    if (!gView) return false;
    AlarmMarks(*gView).afterLoad();
    return views(1).PointCount == kRows;
}

// Resident memory of the process in MB.
double residentMB() {
    QFile f(QStringLiteral("/proc/self/statm"));
    if (!f.open(QIODevice::ReadOnly)) return 0;
    const QList<QByteArray> fields = f.readAll().split(' ');
    return fields.size() > 1 ? fields[1].toDouble() * 4096 / (1024.0 * 1024.0) : 0;
}

// The texts of one screen of rows from `first`, as a view paints them.
void paintScreen(GridModel& grid, qint32 first) {
    for (qint32 row = first; row < first + kScreenRows && row <= grid.maxRows(); ++row)
        for (int col = 0; col <= grid.maxCols(); ++col)
            benchmark::DoNotOptimize(grid.text(col, row));
}

void BM_ListOpen(benchmark::State& state) {
    for (auto _ : state) {
        GridModel grid;
        DataList list(*gView, grid);
        list.load();
        benchmark::DoNotOptimize(grid.maxRows());
    }
}
BENCHMARK(BM_ListOpen)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ListFirstBlock(benchmark::State& state) {
    GridModel grid;
    DataList list(*gView, grid);
    list.load();
    for (auto _ : state) {
        list.load(); // a fresh table: nothing filled, no text remembered
        paintScreen(grid, 1);
    }
}
BENCHMARK(BM_ListFirstBlock)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ListJumpTo3000000(benchmark::State& state) {
    GridModel grid;
    DataList list(*gView, grid);
    list.load();
    for (auto _ : state) {
        list.load();
        paintScreen(grid, 3000000);
    }
}
BENCHMARK(BM_ListJumpTo3000000)->Unit(benchmark::kMillisecond)->UseRealTime();

// 100 page-downs from row 1 (a screen apart); the time of one page is the figure / 100.
void BM_List100PageDowns(benchmark::State& state) {
    GridModel grid;
    DataList list(*gView, grid);
    list.load();
    const double before = residentMB();
    for (auto _ : state) {
        list.load();
        for (int page = 0; page < 100; ++page) paintScreen(grid, 1 + page * kScreenRows);
    }
    paintScreen(grid, 3000000);
    paintScreen(grid, kRows - kScreenRows + 1);
    state.counters["held_rows"] = double(grid.heldRows());
    state.counters["list_growth_MB"] = residentMB() - before;
}
BENCHMARK(BM_List100PageDowns)->Unit(benchmark::kMillisecond)->UseRealTime();

// The window over all rows, opened, shown and painted once, then scrolled to the last row.
void BM_ListWindowOpen(benchmark::State& state) {
    double growth = 0;
    for (auto _ : state) {
        const double before = residentMB();
        auto* window = new frmItiran(*gView);
        window->show();
        QApplication::processEvents();
        QTableView* table = window->vaSpread1();
        table->scrollTo(table->model()->index(kRows - 1, 2));
        QApplication::processEvents();
        growth = residentMB() - before;
        delete window;
    }
    state.counters["window_MB"] = growth;
}
BENCHMARK(BM_ListWindowOpen)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// The break tables of the longest list (3,599,999 rows) on A4, with every row and with every
// tenth.
void BM_PrintBreakTables(benchmark::State& state) {
    GridModel grid;
    DataList list(*gView, grid);
    list.load();
    clsSpreadPrint p;
    p.Spread = &grid;
    p.RowStep = int(state.range(0));
    qsizetype pages = 0;
    for (auto _ : state) pages = p.rowPages(297).size() * p.columnPages(210).size();
    state.counters["pages"] = double(pages);
}
BENCHMARK(BM_PrintBreakTables)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

// The first 1,000 pages of the list to a PDF file; the resident growth shows that memory follows
// the pages, not the list's rows.
void BM_PrintFirst1000Pages(benchmark::State& state) {
    GridModel grid;
    DataList list(*gView, grid);
    list.load();
    const double before = residentMB();
    for (auto _ : state) {
        std::unique_ptr<PrintOutput> out =
            makePdfOutput(QStringLiteral("/tmp/recview-bench-list.pdf"));
        ListPrintSettings settings;
        settings.fromPage = 1;
        settings.toPage = 1000;
        PrintList(list, settings, *out);
    }
    state.counters["growth_MB"] = residentMB() - before;
    QFile::remove(QStringLiteral("/tmp/recview-bench-list.pdf"));
}
BENCHMARK(BM_PrintFirst1000Pages)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList files = BenchFiles::ensureRecording(
        qEnvironmentVariable("RECVIEW_BENCH_DIR", BenchFiles::defaultDir()), kRows);
    if (!loadView(files)) {
        std::fprintf(stderr, "bench_list: the recording did not load\n");
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    gView.reset();
    return 0;
}
