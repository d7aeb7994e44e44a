#include "app/ShowMsg.h"
#include "support/RecordingMessageSink.h"

#include "TestTables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class ShowMsgTest : public ::testing::Test {
protected:
    void SetUp() override {
        loadEnglishMessages(dir.path(), {{268, QStringLiteral("Viewer")},
                                         {269, QStringLiteral("Error")},
                                         {360, QStringLiteral("Done.")},
                                         {561, QStringLiteral("Failed.")},
                                         {563, QStringLiteral("Finished.")},
                                         {577, QStringLiteral("Continue?")}});
    }
    QTemporaryDir dir;
};

TEST_F(ShowMsgTest, KindsGiveTheirFlagsAndDefaults) {
    const struct {
        int kind;
        const char* text;
        const char* title;
        const char* shownText;
        int flags;
        const char* shownTitle;
    } cases[] = {
        {1, "Delete?", "", "Delete?", 36, "Viewer"},
        {1, "", "", "", 36, "Viewer"},
        {2, "", "", "Failed.", 48, "Viewer"},
        {2, "Own", "Mine", "Own", 48, "Mine"},
        {3, "", "", "", 16, "Error"},
        {4, "", "", "Finished.", 64, "Viewer"},
        {5, "Go on", "T", "Go on", 33, "T"},
        {6, "Overwrite", "", "Overwrite\nContinue?", 36, "Viewer"},
        {6, "", "", "\nContinue?", 36, "Viewer"},
        {7, "", "", "Done.", 64, "Viewer"},
    };
    RecordingMessageSink sink(kYes);
    for (const auto& c : cases) {
        EXPECT_EQ(ShowMsg(c.kind, QString::fromUtf8(c.text), QString::fromUtf8(c.title)), kYes);
        EXPECT_EQ(sink.last().text, QString::fromUtf8(c.shownText)) << c.kind;
        EXPECT_EQ(sink.last().flags, c.flags) << c.kind;
        EXPECT_EQ(sink.last().title, QString::fromUtf8(c.shownTitle)) << c.kind;
    }
    EXPECT_EQ(sink.calls().size(), std::size(cases));
}

TEST_F(ShowMsgTest, ButtonSetsFollowTheLowThreeBits) {
    const MessageBoxButton ok{kOK, 46}, cancel{kCancel, 47}, abort{kAbort, 263}, retry{kRetry, 264},
        ignore{kIgnore, 265}, yes{kYes, 266}, no{kNo, 267};
    const struct {
        int flags;
        QList<MessageBoxButton> buttons;
    } cases[] = {
        {0, {ok}},
        {1, {ok, cancel}},
        {2, {abort, retry, ignore}},
        {3, {yes, no, cancel}},
        {4, {yes, no}},
        {5, {retry, cancel}},
        {36, {yes, no}},
        {33, {ok, cancel}},
        {48, {ok}},
        {7, {ok}},
    };
    for (const auto& c : cases) EXPECT_EQ(messageBoxButtons(c.flags), c.buttons) << c.flags;
}

TEST_F(ShowMsgTest, WithoutSinkTheFirstButtonAnswers) {
    setMessageSink(nullptr);
    EXPECT_EQ(ShowMsg(1, QStringLiteral("headless question")), kYes);
    EXPECT_EQ(ShowMsg(5, QStringLiteral("headless question")), kOK);
    EXPECT_EQ(MsgBox(QStringLiteral("headless"), kFlagRetryCancel, QString()), kRetry);
}

} // namespace
