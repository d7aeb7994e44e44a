// Load of the 64-channel benchmark recording into the store: time and the store's memory.
#include "BenchFiles.h"

#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"

#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

namespace {

QStringList gFiles;

void BM_LoadRecording(benchmark::State& state) {
    qint64 fileBytes = 0;
    for (const QString& f : gFiles) fileBytes += QFileInfo(f).size();
    ViewState& view = views(1);
    for (auto _ : state) {
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine(gFiles), false);
        copySelectionToView(view);
        const LoadOutcome out = LoadRecording(view, LoadOptions());
        if (!out.ok()) state.SkipWithError("load failed");
        benchmark::DoNotOptimize(view.PointCount);
    }
    state.counters["channels"] = view.ChannelCount;
    state.counters["rows"] = view.PointCount;
    state.counters["file_MB"] = double(fileBytes) / 1e6;
    state.counters["store_MB"] = double(view.Storage.memoryBytes()) / 1e6;
    state.counters["store_per_file"] = double(view.Storage.memoryBytes()) / double(fileBytes);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peak_rss_MB"] = double(usage.ru_maxrss) / 1e3;
}
BENCHMARK(BM_LoadRecording)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

int main(int argc, char** argv) {
    const QString dir = qEnvironmentVariable("RECVIEW_BENCH_DIR", BenchFiles::defaultDir());
    // --generate [ROWS]: writes the recording (of ROWS rows) if needed and prints its paths.
    if (argc > 1 && QLatin1String(argv[1]) == QLatin1String("--generate")) {
        const int rows = argc > 2 ? std::atoi(argv[2]) : BenchFiles::kRows;
        for (const QString& f :
             BenchFiles::ensureRecording(dir, rows > 0 ? rows : BenchFiles::kRows))
            std::printf("%s\n", qPrintable(f));
        return 0;
    }
    gFiles = BenchFiles::ensureRecording(dir);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
