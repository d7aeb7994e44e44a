#include "RecordTestSupport.h"

#include "app/AppPaths.h"
#include "recording/Cp932.h"
#include "recording/ViewTables.h"
#include "savedwork/RecordNames.h"
#include "savedwork/SavedWorkRecords.h"
#include "savedwork/clsFileHeader.h"

using namespace RecordBytesAt;

namespace {

// The record of the new layout built by hand: channel c is entry c - 1 of each array.
QByteArray handBuiltHeader(const ChannelTable& ch) {
    QByteArray bytes(11160, '\0');
    for (int c = 1; c <= 372; ++c) {
        const int i = c - 1;
        putLe(bytes, 2 * i, 2, ch.ChExpDigits[size_t(c)]);
        const QByteArray tag = Cp932::encode(ch.ChTag[size_t(c)], 16).leftJustified(16, ' ');
        const QByteArray unit = Cp932::encode(ch.ChUnit[size_t(c)], 8).leftJustified(8, ' ');
        bytes.replace(744 + 16 * i, 16, tag);
        bytes.replace(6696 + 8 * i, 8, unit);
        putLe(bytes, 9672 + 4 * i, 4, ch.ChColor[size_t(c)]);
    }
    return bytes;
}

void fillChannels(ChannelTable& ch) {
    for (int c = 1; c <= 372; ++c) {
        ch.ChExpDigits[size_t(c)] = qint16(c % 5);
        ch.ChTag[size_t(c)] = QStringLiteral("No%1").arg(c);
        ch.ChUnit[size_t(c)] = QStringLiteral("u%1").arg(c);
        ch.ChColor[size_t(c)] = quint32(c * 0x010203);
    }
    ch.ChExpDigits[1] = -32768;
    ch.ChExpDigits[372] = 32767;
    ch.ChTag[1] = QStringLiteral("ABCDEFGHIJKLMNOP"); // exactly 16
    ch.ChTag[2] = QStringLiteral("温度センサ入口側"); // 16 bytes of cp932
    ch.ChUnit[1] = QStringLiteral("kg/cm2xy");
    ch.ChColor[1] = 0xFFFFFFFFu;
    ch.ChColor[372] = 0;
}

} // namespace

using FileHeaderRecordTest = RecordDirs;

TEST_F(FileHeaderRecordTest, WritesTheArraysAtTheirOffsets) {
    ChannelTable& ch = views(kView).Channels;
    fillChannels(ch);
    ASSERT_TRUE(WriteFileHeader(kView));
    const QByteArray written = readAll(AppPaths(1) + RecordNames::FileHeader);
    ASSERT_EQ(written.size(), 11160);
    EXPECT_EQ(written, handBuiltHeader(ch));
    EXPECT_EQ(written.mid(744, 16), QByteArray("ABCDEFGHIJKLMNOP"));
    EXPECT_EQ(written.mid(6696 + 8 * 2, 8), QByteArray("u3      "));
    EXPECT_EQ(quint32(le(written, 9672, 4)), 0xFFFFFFFFu);
}

TEST_F(FileHeaderRecordTest, RoundTripThroughTheArchiveDirectories) {
    fillChannels(views(kView).Channels);
    const ChannelTable before = views(kView).Channels;
    ASSERT_TRUE(WriteFileHeader(kView));
    carryOver(RecordNames::FileHeader);
    views(kView).Channels.clear();
    ASSERT_TRUE(ReadFileHeader(kView));
    const ChannelTable& after = views(kView).Channels;
    EXPECT_EQ(after.ChExpDigits, before.ChExpDigits);
    EXPECT_EQ(after.ChTag, before.ChTag);
    EXPECT_EQ(after.ChUnit, before.ChUnit);
    EXPECT_EQ(after.ChColor, before.ChColor);
}

TEST_F(FileHeaderRecordTest, TextsAreCutOnACharacterBoundaryAndUnencodableBecomesQuestionMark) {
    ChannelTable& ch = views(kView).Channels;
    ch.ChTag[1] = QStringLiteral("あいうえおかきくけ"); // 18 bytes: the ninth does not fit
    ch.ChTag[2] = QStringLiteral("A\u00E9B");           // é has no cp932 form
    ch.ChUnit[1] = QStringLiteral("abcdefg℃");          // the last character would need bytes 8-9
    ASSERT_TRUE(WriteFileHeader(kView));
    carryOver(RecordNames::FileHeader);
    ASSERT_TRUE(ReadFileHeader(kView));
    EXPECT_EQ(ch.ChTag[1], QStringLiteral("あいうえおかきく"));
    EXPECT_EQ(ch.ChTag[2], QStringLiteral("A?B"));
    EXPECT_EQ(ch.ChUnit[1], QStringLiteral("abcdefg"));
}

TEST_F(FileHeaderRecordTest, NulCharactersInTheTextsAreRemoved) {
    QByteArray bytes(11160, '\0');
    bytes.replace(744, 16, QByteArray("Pr\0ess\0\0\0\0\0\0\0\0\0\0", 16));
    bytes.replace(6696, 8, QByteArray("\0kPa    ", 8));
    writeAll(AppPaths(2) + RecordNames::FileHeader, bytes);
    ASSERT_TRUE(ReadFileHeader(kView));
    EXPECT_EQ(views(kView).Channels.ChTag[1], QStringLiteral("Press"));
    EXPECT_EQ(views(kView).Channels.ChUnit[1], QStringLiteral("kPa"));
    EXPECT_EQ(views(kView).Channels.ChTag[2], QString());
}

TEST_F(FileHeaderRecordTest, AnOldLengthFileLeavesTheLaterFieldsZero) {
    fillChannels(views(kView).Channels);
    QByteArray bytes(3840, '\0');
    putLe(bytes, 0, 2, 7);
    bytes.replace(744, 3, "Tag"); // read by the new layout, this is still ChTag of channel 1
    writeAll(AppPaths(2) + RecordNames::FileHeader, bytes);
    ASSERT_TRUE(ReadFileHeader(kView));
    const ChannelTable& ch = views(kView).Channels;
    EXPECT_EQ(ch.ChExpDigits[1], 7);
    EXPECT_EQ(ch.ChTag[1], QStringLiteral("Tag"));
    EXPECT_EQ(ch.ChUnit[1], QString());
    EXPECT_EQ(ch.ChColor[1], 0u);
    EXPECT_EQ(ch.ChColor[372], 0u);
}

TEST_F(FileHeaderRecordTest, AMissingFileLeavesTheChannelTable) {
    views(kView).Channels.setTag(1, QStringLiteral("kept"));
    EXPECT_FALSE(ReadFileHeader(kView));
    EXPECT_EQ(views(kView).Channels.ChTag[1], QStringLiteral("kept"));
}
