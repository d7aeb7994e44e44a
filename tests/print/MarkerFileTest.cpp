#include "analysis/MarkerFixture.h"
#include "base/LanguageTable.h"
#include "print/MarkerFileWriter.h"
#include "trend/TrendTimeAxis.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

using namespace listtest;

namespace {

std::string readAll(const QString& path) {
    QFile f(path);
    return (f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>")).toStdString();
}

// Only the marker group shown: the header keeps its last separator and names the group by
// message 231; rows hold the shown columns, a channel header keeps its CR LF.
TEST(MarkerFile, TheShownGroupsAndTheRowsAsTheGridHasThem) {
    MarkerFixture f(twoChannels(10));
    ASSERT_TRUE(f.cursors.place(1, 2));
    ASSERT_TRUE(f.cursors.place(2, 5));
    ASSERT_TRUE(f.marker.ToolbarSet(8));
    f.marker.setShowAll(false);
    const QString path = f.list.dir.path("marker.txt");
    ASSERT_TRUE(WriteMarkerFile(f.marker, ExportKind::Txt, path));
    QString expected = "\t" + MsgText(8) + "\t" + MsgText(9) + "\tA-B\t";
    for (int m = 71; m <= 75; ++m) expected += MsgText(231) + MsgText(m) + "\t";
    expected += "\r\n";
    for (int r = 1; r <= 3; ++r) {
        QStringList cells;
        for (int c : {0, 1, 2, 3, 9, 10, 11, 12, 13}) cells << f.cell(c, r);
        expected += cells.join('\t') + "\r\n";
    }
    EXPECT_EQ(readAll(path), expected.toStdString());
    EXPECT_NE(readAll(path).find("\tA-B\t"), std::string::npos);
    EXPECT_NE(readAll(path).find("T1\r\n[degC]\t"), std::string::npos);
}

TEST(MarkerFile, TheCommandLineWritesBothGroupsAndTheSpanStatistics) {
    MarkerFixture f(twoChannels(10));
    ASSERT_TRUE(f.cursors.place(1, 2));
    ASSERT_TRUE(f.cursors.place(2, 5));
    ASSERT_TRUE(f.marker.ToolbarSet(8));
    const QString window = f.list.dir.path("window.csv"), verb = f.list.dir.path("verb.csv");
    ASSERT_TRUE(WriteMarkerFile(f.marker, ExportKind::Csv, window));
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../recview"),
            {QStringLiteral("export"), f.list.dir.path("list.vxf"), QStringLiteral("-o"), verb,
             QStringLiteral("--marker"), QStringLiteral("--cursors"), QStringLiteral("2,5")});
    p.waitForFinished(30000);
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    EXPECT_EQ(readAll(verb), readAll(window));
}

} // namespace
