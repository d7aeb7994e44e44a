#include "recording/FileBytes.h"
#include "recording/clsBatchInfo.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <cstring>
#include <unistd.h>

// The batch block and the "BatchInfo.sys" of a saved archive: the first eight bytes choose the
// head and text offsets into the rest; the whole input is also read as a "BatchInfo.sys". Either
// read succeeds, or it fails and leaves the object empty.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size >= 8) {
        qint32 head, text;
        std::memcpy(&head, data, 4);
        std::memcpy(&text, data + 4, 4);
        const FileBytes bytes(data + 8, qint64(size - 8));
        clsBatchInfo batch;
        if (!batch.ReadBatchInfo(head, text, bytes) && !(batch == clsBatchInfo())) std::abort();
    }
    static const QString dir = QStringLiteral("/dev/shm/recview-fuzz-%1").arg(getpid());
    static const bool made = QDir().mkpath(dir);
    (void)made;
    const QString path = dir + QStringLiteral("/BatchInfo.sys");
    {
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly)) return 0;
        f.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    clsBatchInfo saved;
    if (!saved.Load(path) && !(saved == clsBatchInfo())) std::abort();
    return 0;
}
