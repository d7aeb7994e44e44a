#include "recording/CsvLoader.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <unistd.h>

// A single CSV file is opened as a drop opens it: the command line refuses it. The reader must
// either load the file or fail cleanly with an empty view.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const QString dir = QStringLiteral("/dev/shm/recview-fuzz-%1").arg(getpid());
    static const bool made = QDir().mkpath(dir);
    (void)made;
    const QString path = dir + QStringLiteral("/input.csv");
    {
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly)) return 0;
        f.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    ViewState& view = views(1);
    const LoadOutcome outcome = openSingleCsv(path, view, LoadOptions());
    if (!outcome.ok() && (view.PointCount != 0 || view.Storage.MaxCols() != 0)) std::abort();
    return 0;
}
