// FTP: one collection pass of 1,000 files of 64 KB from the local test server, and the parse of
// a 10,000-line listing.
#include "ftp/FTPFile.h"
#include "ftp/FtpListing.h"
#include "support/FtpTestServer.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int kFiles = 1000;
constexpr int kFileBytes = 64 * 1024;

QByteArray listingOf(int lines) {
    QByteArray text = "total 40000\r\n";
    for (int i = 0; i < lines; ++i) {
        const QByteArray n = QByteArray::number(i);
        text += i % 4 == 3 ? "03-10-24  10:30AM              65536 DOS" + n + ".VXF\r\n"
                           : "-rw-r--r--   1 owner group      65536 Mar  9 10:" +
                                 QByteArray::number(10 + i % 50) + " file " + n + ".vxf\r\n";
    }
    return text;
}

void BM_ParseListing10k(benchmark::State& state) {
    const QByteArray listing = listingOf(10000);
    for (auto _ : state) benchmark::DoNotOptimize(parseListing(listing, 800000000));
}
BENCHMARK(BM_ParseListing10k)->Unit(benchmark::kMillisecond);

// One pass of one row (one login) over 1,000 new files; the pause before each fetch is the
// argument in ms (50 is the default of the settings, 0 shows the transfer alone).
void BM_Collect1000Files(benchmark::State& state) {
    QTemporaryDir remote;
    QDir().mkpath(remote.filePath(QStringLiteral("DATA")));
    const QByteArray content(kFileBytes, 'x');
    for (int i = 0; i < kFiles; ++i) {
        QFile f(remote.filePath(QStringLiteral("DATA/f%1.vxf").arg(i, 4, 10, QLatin1Char('0'))));
        if (f.open(QIODevice::WriteOnly)) f.write(content);
    }
    FtpTestServer server(remote.path(), QStringLiteral("pw"));
    if (!server.port()) {
        state.SkipWithError("the FTP test server did not start");
        return;
    }
    QTemporaryDir local;
    FTPFile ftpFile;
    ftpFile.settings.port = server.port();
    ftpFile.settings.fetchPauseMs = int(state.range(0));
    FtpRow& row = *ftpFile.table.row(1);
    row.IPAddress = QStringLiteral("127.0.0.1");
    row.Password = QStringLiteral("pw");
    row.VXDir = QStringLiteral("DATA");
    row.PCDir = local.filePath(QStringLiteral("pc"));
    int fetched = 0;
    for (auto _ : state) {
        state.PauseTiming();
        QDir(row.PCDir).removeRecursively();
        state.ResumeTiming();
        int result = 0;
        ftpFile.GetFile(1, false, 2, result);
        fetched += ftpFile.lastDetail().filesFetched;
    }
    state.counters["files_per_s"] = benchmark::Counter(fetched, benchmark::Counter::kIsRate);
}
BENCHMARK(BM_Collect1000Files)
    ->Arg(50)
    ->Arg(0)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
