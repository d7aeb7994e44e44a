#include "LoadHelpers.h"

#include "base/TimeBase.h"
#include "recording/FileRecognition.h"
#include "support/JlmWriter.h"
#include "support/RecordingFixture.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

JlmDescription threeRows() {
    JlmDescription d;
    d.channels = {{"Temperat", "degC", 1}, {"P", "kPa abs", 2}, {"Level", "", 0}};
    d.keys = jlmKeys(2024, 5, 6, 10, 0, 0, 3, 10);
    d.rows = {{12.34f, 1.005f, 7.5f}, {-0.05f, 327.6f, 32760.4f}, {1e9f, -2.0f, 6.5f}};
    return d;
}

using JlmReader = RecordingTest;

TEST_F(JlmReader, HeaderRowsAndValuesRoundedToTheirDecimals) {
    ASSERT_TRUE(loadFiles({dir.write("v.jlm", buildJlm(threeRows()))}).ok());
    EXPECT_EQ(view.SampleInterval, 10000);
    EXPECT_FALSE(view.IrregularTime);
    EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("Temperat"));
    EXPECT_EQ(view.Channels.ChUnit[2], QLatin1String("kPa ab")); // 4 + 2 characters
    const struct {
        int col, row;
        const char* text;
    } cells[] = {
        {2, 1, "12.3"},  {4, 1, "1.00"},   {6, 1, "8"}, // 7.5 rounds to even
        {2, 2, "-0.1"},  {4, 2, "327.60"}, {6, 2, "32760"}, {2, 3, "1000000000.0"},
        {4, 3, "-2.00"}, {6, 3, "6"},      {1, 1, "0000"},  {5, 3, "0000"},
    };
    for (const auto& c : cells) {
        // Values beyond 16 bits keep their number, cut to the cell's 8 characters.
        EXPECT_EQ(cellText(c.col, c.row), QLatin1String(c.text).left(8)) << c.col << "," << c.row;
    }
}

TEST_F(JlmReader, KeysHaveTheDayBeforeTheMonth) {
    JlmDescription d = threeRows();
    d.keys[0] = {24, 2, 3, 4, 5, 6};
    d.keys[1] = {24, 2, 3, 4, 5, 16};
    d.keys[2] = {24, 2, 3, 4, 5, 26};
    const QString path = dir.write("k.jlm", buildJlm(d));
    ASSERT_TRUE(loadFiles({path}).ok());
    EXPECT_EQ(TimeBase::isoText(view.ViewStart), QLatin1String("2024-03-02 04:05:06"));
    HeadInfo info;
    ASSERT_TRUE(FileRecognition::ScanJlmHeader(path, info));
    EXPECT_EQ(info.start, view.ViewStart);
    EXPECT_EQ(info.points, 3);
}

TEST_F(JlmReader, OneDataRowHasIntervalZero) {
    JlmDescription d = threeRows();
    d.rows.resize(1);
    d.keys.resize(1);
    ASSERT_TRUE(loadFiles({dir.write("one.jlm", buildJlm(d))}).ok());
    EXPECT_EQ(view.PointCount, 1);
    EXPECT_EQ(view.SampleInterval, 0);
    EXPECT_EQ(cellText(2, 1), QLatin1String("12.3"));
}

} // namespace
