#include "base/TimeBase.h"
#include "support/RecordingFixture.h"
#include "support/VxfWriter.h"

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace fixtures;
using nlohmann::json;

struct ProcessRun {
    int exitCode = -1;
    QByteArray out, err;
};

ProcessRun recview(const QStringList& args) {
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../recview"), args);
    p.waitForFinished(60000);
    return {p.exitCode(), p.readAllStandardOutput(), p.readAllStandardError()};
}

TEST(DumpCommand, PrintsTheRecordingAsTheReaderStoresIt) {
    FixtureDir dir;
    const quint32 start = quint32(TimeBase::toSeconds({2025, 12, 31, 23, 59, 58}));
    VxfDescription d = simpleVxf(2, 4, start, 5, [](int r, int c) { return qint16(r * 100 + c); });
    d.startTenths = 3;
    d.channels[0] = {"Temp", "degC", 1, false, 2, 0};
    d.rows[2][1] = {-32767, 0x13, 0, 0};
    d.messages = {{start + 1, 2, "Door open", 4}};
    const QString path = dir.write(QStringLiteral("d.vxf"), buildVxf(d));

    const ProcessRun run = recview({QStringLiteral("dump"), QStringLiteral("--json"),
                                    QStringLiteral("--rows"), QStringLiteral("2:3"), path});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const json j = json::parse(run.out.toStdString());
    EXPECT_EQ(j["family"], 0);
    EXPECT_EQ(j["interval_ms"], 500);
    EXPECT_EQ(j["start"], "2025-12-31 23:59:58");
    EXPECT_EQ(j["point_count"], 4);
    ASSERT_EQ(j["channels"].size(), 2u);
    EXPECT_EQ(j["channels"][0]["tag"], "Temp");
    EXPECT_EQ(j["channels"][0]["color"], 100 + 256 * 65 + 65536 * 205); // colour code 1
    ASSERT_EQ(j["messages"].size(), 1u);
    EXPECT_EQ(j["messages"][0]["text"], "Door open");
    const json expectedCells = {{"0000", "2.01", "0000", "20.2"},
                                {"0000", "3.01", "1000", "UNDER"}};
    EXPECT_EQ(j["cells"], expectedCells);
}

TEST(DumpCommand, InfoSummarisesAndFailuresGiveAnErrorStatus) {
    FixtureDir dir;
    const QString path =
        dir.write(QStringLiteral("i.vxf"),
                  buildVxf(simpleVxf(3, 7, 0, 10, [](int, int) { return qint16(1); })));
    const ProcessRun info = recview({QStringLiteral("info"), path});
    EXPECT_EQ(info.exitCode, 0);
    EXPECT_TRUE(info.out.contains("rows:     7"));
    EXPECT_TRUE(info.out.contains("T3"));
    EXPECT_EQ(recview({QStringLiteral("dump"), QStringLiteral("--json"), QStringLiteral("--rows"),
                       QStringLiteral("5:2"), path})
                  .exitCode,
              2);
    EXPECT_EQ(recview({QStringLiteral("info")}).exitCode, 2);
    // A mistyped verb gives the usage at once instead of starting the desktop program.
    const ProcessRun typo = recview({QStringLiteral("frobnicate"), path});
    EXPECT_EQ(typo.exitCode, 2);
    EXPECT_TRUE(typo.err.contains("Usage")) << typo.err.toStdString();
    EXPECT_NE(recview({QStringLiteral("info"), dir.path(QStringLiteral("none.vxf"))}).exitCode, 0);

    QByteArray bytes = buildVxf(simpleVxf(2, 10, 0, 10, [](int, int) { return qint16(1); }));
    bytes.chop(8);
    const ProcessRun run = recview({QStringLiteral("dump"), QStringLiteral("--json"),
                                    dir.write(QStringLiteral("x.vxf"), bytes)});
    EXPECT_NE(run.exitCode, 0);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_TRUE(run.err.contains("CHCount = 2")) << run.err.toStdString();
}

} // namespace
