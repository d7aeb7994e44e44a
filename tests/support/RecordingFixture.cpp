#include "support/RecordingFixture.h"

#include "support/VxfWriter.h"

QString FixtureDir::write(const QString& name, const QByteArray& bytes) {
    const QString p = dir_.filePath(name);
    fixtures::writeFile(p, bytes);
    return p;
}
