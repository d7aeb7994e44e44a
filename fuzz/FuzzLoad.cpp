#include "FuzzLoad.h"

#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstdlib>
#include <unistd.h>

int fuzzLoad(const uint8_t* data, size_t size, const char* extension, bool gsMode) {
    static const QString dir = QStringLiteral("/dev/shm/recview-fuzz-%1").arg(getpid());
    static const bool made = QDir().mkpath(dir);
    (void)made;
    const QString path = dir + QStringLiteral("/input.") + QLatin1String(extension);
    {
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly)) return 0;
        f.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    SelectionLists& sel = selection();
    sel.clear();
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({path}), gsMode);
    if (sel.SelFileCount == 0) return 0;
    ViewState& view = views(1);
    copySelectionToView(view);
    LoadOptions options;
    options.gsMode = gsMode;
    const LoadOutcome outcome = LoadRecording(view, options);
    if (!outcome.ok() && (view.PointCount != 0 || view.Storage.MaxCols() != 0)) std::abort();
    return 0;
}
