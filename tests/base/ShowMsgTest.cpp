#include "base/ShowMsg.h"
#include "support/RecordingMessageSink.h"

#include "support/TestTables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ShowMsg, KindsGiveTheirFlagsAndDefaults) {
    QTemporaryDir dir;
    loadEnglishMessages(dir.path(), {{268, u"Viewer"_s},
                                     {269, u"Error"_s},
                                     {360, u"Done."_s},
                                     {561, u"Failed."_s},
                                     {563, u"Finished."_s},
                                     {577, u"Continue?"_s}});
    const struct {
        int kind;
        const char *text, *title, *shownText;
        int flags;
        const char* shownTitle;
    } cases[] = {
        {1, "Delete?", "", "Delete?", 36, "Viewer"},
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

TEST(ShowMsg, ButtonSetsFollowTheLowThreeBitsAndTheFirstAnswersWithoutSink) {
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
        {48, {ok}},
        {7, {ok}},
    };
    for (const auto& c : cases) EXPECT_EQ(messageBoxButtons(c.flags), c.buttons) << c.flags;

    setMessageSink(nullptr);
    EXPECT_EQ(ShowMsg(1, u"headless question"_s), kYes);
    EXPECT_EQ(ShowMsg(5, u"headless question"_s), kOK);
    EXPECT_EQ(MsgBox(u"headless"_s, kFlagRetryCancel, QString()), kRetry);
}

} // namespace
