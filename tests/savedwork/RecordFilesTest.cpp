#include "RecordTestSupport.h"

#include "savedwork/OleDate.h"
#include "savedwork/clsAlmStyle.h"
#include "savedwork/clsFileHeader.h"
#include "savedwork/clsSaveParaData.h"
#include "savedwork/clsTrndParaSet.h"

#include <QFile>

#include <memory>

using namespace RecordBytesAt;

namespace {

// Old and new length answers of a record class for the file in the archive work directory.
template <typename Pair> std::pair<bool, bool> answers() {
    auto record = std::make_unique<Pair>();
    bool isOld = false;
    bool isNew = false;
    record->CheckOldFileSize(isOld);
    record->CheckNewFileSize(isNew);
    return {isOld, isNew};
}

struct Layout {
    QString name;
    qint64 oldLength;
    qint64 newLength;
    std::pair<bool, bool> (*checks)();
};

const Layout kLayouts[] = {{RecordNames::FileHeader, 3840, 11160, answers<clsFileHeader>},
                           {RecordNames::TrndParaSet, 4214, 13514, answers<clsTrndParaSet>},
                           {RecordNames::SaveParaData, 3742, 3732, answers<clsSaveParaData>},
                           {RecordNames::AlmStyle, 6144, 17856, answers<clsAlmStyle>}};

} // namespace

using RecordFilesTest = RecordDirs;

TEST_F(RecordFilesTest, RecordsAreToldApartByLengthAlone) {
    for (const Layout& l : kLayouts) {
        SCOPED_TRACE(l.name.toStdString());
        const QString path = AppPaths(2) + l.name;
        EXPECT_EQ(l.checks(), std::make_pair(false, false)) << "missing";
        const std::pair<qint64, std::pair<bool, bool>> cases[] = {{l.oldLength, {true, false}},
                                                                  {l.newLength, {false, true}},
                                                                  {l.newLength - 1, {false, false}},
                                                                  {0, {false, false}}};
        for (const auto& [length, expected] : cases) {
            writeAll(path, QByteArray(length, '\x5A'));
            EXPECT_EQ(l.checks(), expected) << length;
        }
    }
}

TEST_F(RecordFilesTest, TheOldArchiveCheckStopsAtTheFirstRecordThatIsNotOld) {
    for (const Layout& l : kLayouts) writeAll(AppPaths(2) + l.name, QByteArray(l.oldLength, 0));
    QString failing;
    EXPECT_TRUE(CheckOldArchive(&failing));
    EXPECT_TRUE(failing.isEmpty());

    // Order: AlmStyle, FileHeader, SaveParaData, TrndParaSet.
    const QString order[] = {RecordNames::TrndParaSet, RecordNames::SaveParaData,
                             RecordNames::FileHeader, RecordNames::AlmStyle};
    for (const QString& name : order) {
        writeAll(AppPaths(2) + name, QByteArray(10, 0));
        EXPECT_FALSE(CheckOldArchive(&failing));
        EXPECT_EQ(failing, name);
    }
    QFile::remove(AppPaths(2) + RecordNames::AlmStyle);
    EXPECT_FALSE(CheckOldArchive(&failing));
    EXPECT_EQ(failing, RecordNames::AlmStyle);
}

TEST_F(RecordFilesTest, AnOldArchiveIsConvertedInPlace) {
    // An old channel header: 128 channels, tags at 256, units at 2304, colours at 3328.
    QByteArray old(3840, '\0');
    putLe(old, 2 * 127, 2, 2);
    old.replace(256 + 16 * 127, 16, "Flow            ");
    old.replace(2304 + 8 * 127, 8, "m3/h    ");
    putLe(old, 3328 + 4 * 127, 4, 0x00FF00);
    writeAll(AppPaths(2) + RecordNames::FileHeader, old);

    clsFileHeader header;
    ASSERT_TRUE(header.ReadFile());
    bool result = false;
    ASSERT_TRUE(header.CopyStructure(result));
    ASSERT_TRUE(header.WriteFile());
    EXPECT_TRUE(header.CheckNewFileSize(result));

    ASSERT_TRUE(ReadFileHeader(kView));
    const ChannelTable& ch = views(kView).Channels;
    EXPECT_EQ(ch.ChExpDigits[128], 2);
    EXPECT_EQ(ch.ChTag[128], QStringLiteral("Flow"));
    EXPECT_EQ(ch.ChUnit[128], QStringLiteral("m3/h"));
    EXPECT_EQ(ch.ChColor[128], 0x00FF00u);
    EXPECT_EQ(ch.ChColor[129], 0u);
}

TEST_F(RecordFilesTest, OldLayoutsReadBackWhatTheyHold) {
    auto trend = std::make_unique<clsTrndParaSet>();
    TrndParaSetOld& o = trend->OldRecord;
    o.Fixed.ViewStart = -1.25;
    o.SourceColumn[128] = 128;
    o.Constant[0] = -1.7976931348623157e308;
    o.Decimals[128] = -32768;
    o.ViewTail = {-1, 32767, 0, 1};
    writeAll(AppPaths(2) + RecordNames::TrndParaSet, o.toBytes());
    EXPECT_EQ(le(o.toBytes(), 78 + 2 * 128, 2), 128); // no enabled array in the old layout
    auto again = std::make_unique<clsTrndParaSet>();
    ASSERT_TRUE(again->ReadFile());
    EXPECT_EQ(again->OldRecord.Fixed.ViewStart, -1.25);
    EXPECT_EQ(again->OldRecord.SourceColumn, o.SourceColumn);
    EXPECT_EQ(again->OldRecord.Constant, o.Constant);
    EXPECT_EQ(again->OldRecord.Decimals, o.Decimals);
    EXPECT_EQ(again->OldRecord.ViewTail, o.ViewTail);

    clsSaveParaData zoom;
    zoom.OldRecord.Flags = {std::numeric_limits<qint32>::min(), 1, -1};
    zoom.OldRecord.ScrollScale = -7;
    writeAll(AppPaths(2) + RecordNames::SaveParaData, zoom.OldRecord.toBytes());
    clsSaveParaData zoomAgain;
    ASSERT_TRUE(zoomAgain.ReadFile());
    EXPECT_EQ(zoomAgain.OldRecord.Flags, zoom.OldRecord.Flags);
    EXPECT_EQ(zoomAgain.OldRecord.ScrollScale, -7);
}

TEST(OleDate, ViewStartTravelsAsDaysSince1899) {
    const struct {
        qint64 seconds;
        double date;
    } cases[] = {
        {0, 36526.0},                                      // 2000-01-01 00:00
        {86400 + 43200, 36527.5},                          // 2000-01-02 12:00
        {-36526LL * 86400, 0.0},                           // 1899-12-30 00:00
        {-36527LL * 86400 + 21600, -1.25},                 // 1899-12-29 06:00
        {-36526LL * 86400 - 86400 + 64800, -1.75},         // 1899-12-29 18:00
        {8401LL * 86400 + 3661, 44927.0 + 3661 / 86400.0}, // 2023-01-01 01:01:01
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.seconds);
        EXPECT_DOUBLE_EQ(OleDate::fromSeconds2000(c.seconds), c.date);
        EXPECT_EQ(OleDate::toSeconds2000(c.date), c.seconds);
    }
    for (qint64 s = -5 * 86400; s < 40LL * 365 * 86400; s += 86400 * 97 + 3599)
        EXPECT_EQ(OleDate::toSeconds2000(OleDate::fromSeconds2000(s)), s);
    EXPECT_EQ(OleDate::toSeconds2000(std::numeric_limits<double>::quiet_NaN()), 0);
}
