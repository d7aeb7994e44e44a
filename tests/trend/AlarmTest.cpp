#include "CursorTestSupport.h"
#include "trend/AlarmMarks.h"
#include "trend/AlarmSymbolSettings.h"
#include "trend/AlarmTable.h"

#include <gtest/gtest.h>

using namespace cursortest;
using namespace trendtest;

namespace {

// The four levels of a table cell as digits, level 1 first ("0100").
QString levels(const AlarmTable& table, qint32 row, int channel) {
    QString t;
    for (int level = 1; level <= AlarmTable::kLevels; ++level)
        t += QString::number(table(level, row, channel));
    return t;
}

// A view of one channel whose alarm column holds the given texts at rows 1..n.
struct AlarmView : CursorView {
    AlarmView(std::vector<qint16> values, const QStringList& alarms, int number = 6)
        : CursorView(number, {std::move(values)}) {
        for (int r = 1; r <= alarms.size(); ++r) views(number).Storage.SetText(1, r, alarms[r - 1]);
    }
    AlarmMarks marks() { return AlarmMarks(view); }
    const std::map<qsizetype, PointStyle>& styles() const {
        return view.chart().series(1).pointStyles();
    }
};

} // namespace

// Each character of an alarm text is the kind of one level; after a load a character that is
// not a digit empties the whole table, while the saved-work path reads it as 0.
TEST(AlarmTable, FillFromAlarmTexts) {
    AlarmView v({1, 2, 3, 4, 5}, {"0100", "9", "", "1234", "0 5"});
    AlarmTable& table = alarmTable(6);
    EXPECT_FALSE(table.fill(6, AlarmTable::Path::AfterLoad));
    EXPECT_EQ(levels(table, 1, 1), QStringLiteral("0000"));

    EXPECT_TRUE(table.fill(6, AlarmTable::Path::SavedWork));
    const char* expected[] = {"0100", "9000", "0000", "1234", "0050"};
    for (qint32 r = 1; r <= 5; ++r)
        EXPECT_EQ(levels(table, r, 1), QLatin1String(expected[r - 1])) << r;
    EXPECT_FALSE(table.any(3, 1));
    EXPECT_EQ(table(2, 9, 1), 0); // outside the table

    views(6).Storage.SetText(1, 5, QStringLiteral("0010"));
    EXPECT_TRUE(table.fill(6, AlarmTable::Path::AfterLoad));
    EXPECT_EQ(levels(table, 1, 1), QStringLiteral("0100"));
    EXPECT_EQ(levels(table, 5, 1), QStringLiteral("0010"));
}

// A point in alarm gets the symbol, size and colour of its first set level with a visible
// symbol: level 1's default symbol 1 lets level 2 show through. Holes get no mark.
TEST(AlarmMarks, FirstVisibleLevelWins) {
    AlarmView v({1, 2, kBurn, 4, 5}, {"1100", "0010", "1000", "0000", "1000"});
    AlarmMarks marks = v.marks();
    ASSERT_TRUE(marks.afterLoad());
    EXPECT_EQ(marks.draw(), 0); // chkShow is off
    AlarmMarks::ShowAlarmMarks(6) = true;
    TrendViewState& st = v.view.state();
    st.AlarmSize[1][0] = 7;
    st.AlarmColor[2][0] = 0x00FF00; // rgb(0,255,0)
    EXPECT_EQ(marks.draw(), 3);
    ASSERT_EQ(v.styles().size(), 3u);
    EXPECT_EQ(v.styles().at(0).symbol, Chart::SymbolShape(2));
    EXPECT_EQ(v.styles().at(0).symbolSize, 7);
    EXPECT_EQ(v.styles().at(1).color, QColor(0, 255, 0));
    EXPECT_EQ(v.styles().at(4).symbol, Chart::SymbolShape::None);
    EXPECT_EQ(v.styles().count(2), 0u); // the hole

    st.AlarmSymbol[0][0] = 6;
    marks.clear();
    marks.draw();
    EXPECT_EQ(v.styles().at(0).symbol, Chart::SymbolShape(6));
}

// A fresh load turns chkShow off and takes the marks away, even when the earlier file had them
// on; a saved-work load restores them as saved.
TEST(AlarmMarks, FreshLoadResetsShow) {
    AlarmView v(ramp(5), {"0100"});
    AlarmMarks marks = v.marks();
    ASSERT_TRUE(marks.afterSavedWorkLoad(true));
    EXPECT_EQ(v.styles().size(), 1u);
    ASSERT_TRUE(marks.afterLoad());
    EXPECT_FALSE(AlarmMarks::ShowAlarmMarks(6));
    EXPECT_TRUE(v.styles().empty());
}

// The dialog: a preview shows the working style, Cancel goes back to the record of the
// opening, OK keeps the working style and the flag.
TEST(AlarmSymbolSettings, PreviewCancelAndOK) {
    AlarmView v(ramp(5), {"0100"});
    v.marks().afterLoad();
    TrendViewState& st = v.view.state();
    {
        AlarmSymbolSettings dialog(v.view);
        dialog.working().setSymbol(2, 1, 9);
        dialog.chkShow = true;
        dialog.preview();
        EXPECT_EQ(st.AlarmSymbol[1][0], 9);
        EXPECT_EQ(v.styles().at(0).symbol, Chart::SymbolShape(9));
        dialog.Cancel();
        EXPECT_EQ(st.AlarmSymbol[1][0], 2);
        EXPECT_TRUE(v.styles().empty()) << "chkShow back off";
    }
    {
        AlarmSymbolSettings dialog(v.view);
        dialog.working().setColor(2, 1, 0xFF0000);
        dialog.chkShow = true;
        dialog.OK();
        EXPECT_EQ(st.AlarmColor[1][0], 0xFF0000u);
        EXPECT_EQ(v.styles().at(0).color, QColor(0, 0, 255));
    }
}

TEST(AlarmStyle, TypedSymbolSizeIsHeldToItsRange) {
    AlarmStyle style;
    const struct {
        int typed;
        qint16 kept;
    } cases[] = {{0, 1}, {-5, 1}, {1, 1}, {42, 42}, {99, 99}, {100, 99}, {70000, 99}};
    for (const auto& c : cases) {
        style.setSize(2, 7, c.typed);
        EXPECT_EQ(style.Size(2, 7), c.kept) << c.typed;
    }
}
