#include "LoadHelpers.h"

#include "app/TimeBase.h"
#include "support/RecordingFixture.h"
#include "support/TmWriter.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

QByteArray tmFile() {
    TmDescription d;
    d.channels = {{1, '0', "0", "100", "", "A", '0', {}, {}}};
    d.rows = {{0}, {1}};
    return buildTm(d);
}

class MsgFiles : public ::testing::Test {
protected:
    void SetUp() override { view.MessageFiles.clear(); }
    void TearDown() override { view.MessageFiles.clear(); }
    LoadOutcome loadWithMessages(const QStringList& msgFiles) {
        view.MessageFiles = msgFiles;
        return loadFiles({dir.write("run.dat", tmFile())});
    }
    FixtureDir dir;
    ViewTables& view = views(1);
};

TEST_F(MsgFiles, RecordsBecomeMessagesOfType7) {
    const QByteArray bytes = buildMsg({{"240506101530", "  Pump started  "},
                                       {"            ", "                "}, // blank: passed over
                                       {"991231235959", "Old"}});
    ASSERT_TRUE(loadWithMessages({dir.write("a.msg", bytes)}).ok());
    ASSERT_EQ(view.ViewMessages.size(), 2);
    EXPECT_EQ(TimeBase::isoText(view.ViewMessages[0].time), QLatin1String("2024-05-06 10:15:30"));
    EXPECT_EQ(view.ViewMessages[0].text, QLatin1String("Pump started"));
    EXPECT_EQ(view.ViewMessages[0].type, 7);
    EXPECT_EQ(TimeBase::isoText(view.ViewMessages[1].time), QLatin1String("1999-12-31 23:59:59"));
}

TEST_F(MsgFiles, AFileGivesAtMost200RecordsAndFilesAddUp) {
    const struct {
        int records, rows;
    } cases[] = {{0, 0}, {1, 1}, {199, 199}, {200, 200}, {201, 200}, {450, 200}};
    for (const auto& c : cases) {
        QVector<MsgRecord> records(c.records, {"240506100000", "m"});
        ASSERT_TRUE(loadWithMessages({dir.write("n.msg", buildMsg(records))}).ok());
        EXPECT_EQ(view.ViewMessages.size(), c.rows) << c.records;
    }
    const QString a = dir.write("a.msg", buildMsg(QVector<MsgRecord>(3, {"240506100000", "a"})));
    const QString b =
        dir.write("b.msg", buildMsg(QVector<MsgRecord>(201, {"240506100000", "b"}), "TM1M"));
    ASSERT_TRUE(loadWithMessages({a, dir.path("missing.msg"), b}).ok());
    EXPECT_EQ(view.ViewMessages.size(), 203);
    EXPECT_EQ(view.ViewMessages[3].text, QLatin1String("b"));
}

} // namespace
