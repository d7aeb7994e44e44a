// The marker view's statistics and the search over the 64-channel benchmark recording (1,000,000
// rows): All_Cal_Set (five statistics of every channel's whole data), the marker statistics between
// cursors 500,000 points apart (button 8), a cursor step with MarkerAutoCalc off, the search,
// and channel settings that derive 64 lines C = A - B.
#include "BenchFiles.h"

#include "analysis/ChannelSettings.h"
#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "analysis/Search.h"
#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<TrendView> gView;
std::unique_ptr<TrendCursors> gCursors;

bool loadView(const QStringList& files) {
    gView = BenchFiles::openView(files);
    if (!gView) return false;
    gCursors = std::make_unique<TrendCursors>(*gView);
    gCursors->afterLoad();
    return gCursors->place(1, 250000) && gCursors->place(2, 750000);
}

// Every series' statistics are computed afresh: the cache of the chart is dropped first.
void BM_AllCalSet(benchmark::State& state) {
    GridModel grid;
    MarkerView marker(*gView, *gCursors, grid);
    marker.load();
    for (auto _ : state) {
        state.PauseTiming();
        for (int s = 1; s <= 64; ++s) gView->chart().refreshSeries(s);
        state.ResumeTiming();
        marker.All_Cal_Set();
    }
}
BENCHMARK(BM_AllCalSet)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_MarkerStatistics500k(benchmark::State& state) {
    GridModel grid;
    MarkerView marker(*gView, *gCursors, grid);
    marker.load();
    for (auto _ : state) marker.ToolbarSet(8);
}
BENCHMARK(BM_MarkerStatistics500k)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_CursorStepWithoutAutoCalc(benchmark::State& state) {
    GridModel grid;
    MarkerView marker(*gView, *gCursors, grid);
    marker.load();
    marker.setAutoCalc(false);
    int step = 1;
    for (auto _ : state) {
        marker.ToolbarSet(step == 1 ? 2 : 1);
        step = -step;
    }
}
BENCHMARK(BM_CursorStepWithoutAutoCalc)->Unit(benchmark::kMicrosecond);

// Kind 5, option 1 (>=) over all 64 channels: one read and one compare a point.
void BM_SearchValueAllChannels(benchmark::State& state) {
    Search::Input in;
    in.kind = Search::SearchKindValue;
    in.channelItem = 64; // all channels
    in.option = 1;
    in.text1 = QStringLiteral("600");
    size_t hits = 0;
    for (auto _ : state) hits = Search::run(*gView, in).hits.size();
    state.counters["hits"] = double(hits);
}
BENCHMARK(BM_SearchValueAllChannels)->Unit(benchmark::kMillisecond)->Iterations(5);

// Kind 0 over all channels with the statistics computed afresh.
void BM_SearchMaximumAllChannels(benchmark::State& state) {
    Search::Input in;
    in.kind = Search::KindMaximum;
    in.channelItem = 64;
    for (auto _ : state) {
        state.PauseTiming();
        for (int s = 1; s <= 64; ++s) gView->chart().refreshSeries(s);
        state.ResumeTiming();
        benchmark::DoNotOptimize(Search::run(*gView, in).hits.size());
    }
}
BENCHMARK(BM_SearchMaximumAllChannels)->Unit(benchmark::kMillisecond)->Iterations(5);

// Channel settings applied with 64 lines C = A - B (each channel minus its neighbour) and the
// statistics of every line taken, so that each point is computed.
void BM_ApplyDerived64(benchmark::State& state) {
    int round = 0;
    for (auto _ : state) {
        ChannelSettings settings(*gView);
        for (int c = 1; c <= 64; ++c) {
            settings.line(c).secondColumn = qint16(round % 2 == 0 ? c % 64 + 1 : 0);
            settings.line(c).addFlag = false;
        }
        settings.apply();
        for (int c = 1; c <= 64; ++c) benchmark::DoNotOptimize(gView->chart().Maximum(c));
        ++round;
    }
}
BENCHMARK(BM_ApplyDerived64)->Unit(benchmark::kMillisecond)->Iterations(4);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList files = BenchFiles::ensureRecording(
        qEnvironmentVariable("RECVIEW_BENCH_DIR", BenchFiles::defaultDir()));
    if (files.isEmpty() || !loadView(files)) {
        std::fprintf(stderr, "bench_stats: the benchmark recording could not be loaded\n");
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    gCursors.reset();
    gView.reset();
    return 0;
}
