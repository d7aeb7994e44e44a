#include "RecordTestSupport.h"

using namespace RecordBytesAt;

using FileHeaderRecordTest = RecordDirs;

TEST_F(FileHeaderRecordTest, ArraysStandAtTheirOffsetsAndRoundTrip) {
    ChannelTable& ch = views(kView).Channels;
    for (int c = 1; c <= 372; ++c) {
        ch.ChExpDigits[size_t(c)] = qint16(c % 5);
        ch.ChTag[size_t(c)] = QStringLiteral("No%1").arg(c);
        ch.ChUnit[size_t(c)] = QStringLiteral("u%1").arg(c);
        ch.ChColor[size_t(c)] = quint32(c * 0x010203);
    }
    ch.ChExpDigits[1] = -32768;
    ch.ChTag[1] = QStringLiteral("ABCDEFGHIJKLMNOP"); // exactly 16
    ch.ChTag[2] = QStringLiteral("温度センサ入口側"); // 16 bytes of cp932
    ch.ChColor[1] = 0xFFFFFFFFu;
    ASSERT_TRUE(WriteFileHeader(kView));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::FileHeader);
    ASSERT_EQ(b.size(), 11160);
    EXPECT_EQ(le(b, 0, 2), -32768);
    EXPECT_EQ(b.mid(744, 16), QByteArray("ABCDEFGHIJKLMNOP"));
    EXPECT_EQ(b.mid(6696 + 8 * 2, 8), QByteArray("u3      "));
    EXPECT_EQ(quint32(le(b, 9672, 4)), 0xFFFFFFFFu);
    EXPECT_EQ(le(b, 9672 + 4 * 371, 4), 372 * 0x010203);

    const ChannelTable before = ch;
    carryOver(RecordNames::FileHeader);
    ch.clear();
    ASSERT_TRUE(ReadFileHeader(kView));
    EXPECT_EQ(ch.ChExpDigits, before.ChExpDigits);
    EXPECT_EQ(ch.ChTag, before.ChTag);
    EXPECT_EQ(ch.ChUnit, before.ChUnit);
    EXPECT_EQ(ch.ChColor, before.ChColor);
}

TEST_F(FileHeaderRecordTest, TextsAreCutOnACharacterBoundaryAndNulsAreRemoved) {
    ChannelTable& ch = views(kView).Channels;
    ch.ChTag[1] = QStringLiteral("あいうえおかきくけ"); // 18 bytes: the ninth does not fit
    ch.ChTag[2] = QStringLiteral("A\u00E9B");           // é has no cp932 form
    ch.ChUnit[1] = QStringLiteral("abcdefg℃");          // the last character would need bytes 8-9
    ASSERT_TRUE(WriteFileHeader(kView));
    QByteArray b = readAll(AppPaths(1) + RecordNames::FileHeader);
    b.replace(744 + 16 * 2, 16, QByteArray("Pr\0ess\0\0\0\0\0\0\0\0\0\0", 16));
    b.replace(6696 + 8, 8, QByteArray("\0kPa    ", 8));
    b.replace(744 + 16 * 3, 16, QByteArray(16, '\0'));
    writeAll(AppPaths(2) + RecordNames::FileHeader, b);
    ch.ChTag[4] = QStringLiteral("x");
    ASSERT_TRUE(ReadFileHeader(kView));
    EXPECT_EQ(ch.ChTag[1], QStringLiteral("あいうえおかきく"));
    EXPECT_EQ(ch.ChTag[2], QStringLiteral("A?B"));
    EXPECT_EQ(ch.ChUnit[1], QStringLiteral("abcdefg"));
    EXPECT_EQ(ch.ChTag[3], QStringLiteral("Press"));
    EXPECT_EQ(ch.ChUnit[2], QStringLiteral("kPa"));
    EXPECT_EQ(ch.ChTag[4], QString());
}

TEST_F(FileHeaderRecordTest, AnOldLengthFileLeavesTheLaterFieldsZero) {
    ChannelTable& ch = views(kView).Channels;
    ch.ChUnit[1] = QStringLiteral("kg");
    ch.ChColor[1] = ch.ChColor[372] = 0x123456;
    QByteArray bytes(3840, '\0');
    putLe(bytes, 0, 2, 7);
    bytes.replace(744, 3, "Tag"); // read by the new layout, this is still ChTag of channel 1
    writeAll(AppPaths(2) + RecordNames::FileHeader, bytes);
    ASSERT_TRUE(ReadFileHeader(kView));
    EXPECT_EQ(ch.ChExpDigits[1], 7);
    EXPECT_EQ(ch.ChTag[1], QStringLiteral("Tag"));
    EXPECT_EQ(ch.ChUnit[1], QString());
    EXPECT_EQ(ch.ChColor[1], 0u);
    EXPECT_EQ(ch.ChColor[372], 0u);
}
