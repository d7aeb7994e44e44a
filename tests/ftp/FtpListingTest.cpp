// Listing lines of Unix and DOS servers, entry sizes, addresses, the error mapping and the
// texts of the folder list.
#include "ftp/FtpListing.h"
#include "base/TimeBase.h"
#include "ftp/FtpAddress.h"
#include "ftp/FtpErrors.h"
#include "ftp/FtpListModel.h"

#include <curl/curl.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const qint64 kNow = TimeBase::toSeconds({2024, 3, 10, 12, 0, 0});

qint64 at(int y, int mo, int d, int h = 0, int mi = 0) {
    return TimeBase::toSeconds({y, mo, d, h, mi, 0});
}

struct LineCase {
    const char* line;
    const char* name;
    double size;
    qint16 attr;
    std::optional<qint64> date;
};

TEST(FtpListing, UnixAndDosLines) {
    const LineCase cases[] = {
        {"-rw-r--r--   1 owner group      1234 Mar  9 10:30 a.vxf", "a.vxf", 1234, 0,
         at(2024, 3, 9, 10, 30)},
        // A date with a time that would lie in the future belongs to last year.
        {"-rw-r--r--   1 owner group        10 Dec 24 23:59 b.qdf", "b.qdf", 10, 0,
         at(2023, 12, 24, 23, 59)},
        {"-rw-r--r--   1 owner group        10 Mar 10 12:00 now.txt", "now.txt", 10, 0,
         at(2024, 3, 10, 12, 0)},
        {"-rw-r--r--   1 owner group         7 Jan  2  2019 old", "old", 7, 0, at(2019, 1, 2)},
        {"drwxr-xr-x   2 owner group      4096 Feb  1 09:00 DATA", "DATA", 0, 16,
         at(2024, 2, 1, 9, 0)},
        {"-rw-r--r--   1 1000  1000          5 Mar  1 08:00 name with  blanks.csv",
         "name with  blanks.csv", 5, 0, at(2024, 3, 1, 8, 0)},
        {"lrwxrwxrwx   1 owner group         9 Mar  1 08:00 link -> /target/file", "link", 9, 0,
         at(2024, 3, 1, 8, 0)},
        {"-rw-r--r--   1 owner                3 Mar  1 08:00 nogroup", "nogroup", 3, 0,
         at(2024, 3, 1, 8, 0)},
        {"-rw-r--r--   1 owner group 2147483648 Mar  1 08:00 big", "big", -2147483648.0, 0,
         at(2024, 3, 1, 8, 0)},
        {"-rw-r--r--   1 owner group 4294967296 Mar  1 08:00 huge", "huge", 4294967297.0, 0,
         at(2024, 3, 1, 8, 0)},
        {"-rw-r--r--   1 owner group         3 Foo 31 08:00 baddate", "baddate", 3, 0,
         std::nullopt},
        {"01-12-23  10:30AM       <DIR>          Folder One", "Folder One", 0, 16,
         at(2023, 1, 12, 10, 30)},
        {"12-31-1999  12:05AM             12345 y2k.txt", "y2k.txt", 12345, 0,
         at(1999, 12, 31, 0, 5)},
        {"07-04-98  01:15PM                 1 pm.txt", "pm.txt", 1, 0, at(1998, 7, 4, 13, 15)},
        {"02-30-23  11:00             2 bad day", "bad day", 2, 0, std::nullopt},
    };
    for (const LineCase& c : cases) {
        SCOPED_TRACE(c.line);
        FtpEntry entry;
        ASSERT_TRUE(parseListingLine(c.line, kNow, entry));
        EXPECT_EQ(entry.Name, QString::fromUtf8(c.name));
        EXPECT_EQ(entry.Size, c.size);
        EXPECT_EQ(entry.Attr, c.attr);
        EXPECT_EQ(entry.Date, c.date);
        EXPECT_FALSE(entry.Eof);
    }
}

TEST(FtpListing, WholeListingDropsTotalsDotsAndJunk) {
    const QByteArray listing = "total 12\r\n"
                               "drwxr-xr-x 2 o g 4096 Mar  1 08:00 .\r\n"
                               "drwxr-xr-x 2 o g 4096 Mar  1 08:00 ..\r\n"
                               "this is no listing line\r\n"
                               "-rw-r--r-- 1 o g 3 Mar  1 08:00 \xe6\xb8\xa9\xe5\xba\xa6.vxf\r\n"
                               "-rw-r--r-- 1 o g 3 Mar  1 08:00 \x89\xb7\x93\x78.vxf\r\n"
                               "\r\n"
                               "-rw-r--r-- 1 o g 3 Mar  1 08:00 a\\b\r\n";
    const QList<FtpEntry> entries = parseListing(listing, kNow);
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].Name, u"温度.vxf"_s);
    EXPECT_EQ(entries[1].Name, u"温度.vxf"_s); // cp932 bytes
    EXPECT_EQ(entries[1].rawName, QByteArray("\x89\xb7\x93\x78.vxf"));
    EXPECT_EQ(entries[2].rawName, QByteArray("a\\b"));
}

TEST(FtpListing, PlainFileNames) {
    for (const char* good : {"a.vxf", "name with blanks", "\xe6\xb8\xa9"})
        EXPECT_TRUE(isPlainFileName(good)) << good;
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("."), QByteArray(".."), QByteArray("a/b"), QByteArray("a\\b"),
          QByteArray("a\0b", 3), QByteArray("a\tb"), QByteArray("a\x7f")})
        EXPECT_FALSE(isPlainFileName(bad)) << bad.toHex().constData();
}

TEST(FtpListing, FindPatternStarDotStarMatchesEveryName) {
    EXPECT_TRUE(matchesFindPattern(u"noext"_s, u"*.*"_s));
    EXPECT_TRUE(matchesFindPattern(u"a.VXF"_s, u"*.vxf"_s));
    EXPECT_FALSE(matchesFindPattern(u"a.qdf"_s, u"*.vxf"_s));
}

TEST(FtpAddress, TableFormBecomesPlainDecimal) {
    EXPECT_EQ(plainHostAddress(u"192.168.  1.  1"_s), u"192.168.1.1"_s);
    EXPECT_EQ(plainHostAddress(u"010.001.000.009"_s), u"10.1.0.9"_s);
    EXPECT_EQ(plainHostAddress(u"  127.  0.  0.  1 "_s), u"127.0.0.1"_s);
    EXPECT_EQ(plainHostAddress(u"   .   .   .   "_s), QString());
    EXPECT_EQ(plainHostAddress(u" recorder-1.plant "_s), u"recorder-1.plant"_s);
}

TEST(FtpErrors, CurlResultsMapToTheNumbersCallersKnow) {
    using namespace FtpErrors;
    // libcurl's 18 is a partial file: a dropped connection, never the end of a listing.
    EXPECT_EQ(numberForCurlCode(CURLE_PARTIAL_FILE), kConnectionAborted);
    EXPECT_NE(numberForCurlCode(CURLE_PARTIAL_FILE), kNoMoreFiles);
    EXPECT_EQ(numberForCurlCode(CURLE_COULDNT_RESOLVE_HOST), kNameNotResolved);
    EXPECT_EQ(numberForCurlCode(CURLE_LOGIN_DENIED), kServerRefused);
    EXPECT_EQ(numberForCurlCode(CURLE_FTP_COULDNT_RETR_FILE), kServerRefused);
    EXPECT_EQ(numberForCurlCode(CURLE_OPERATION_TIMEDOUT), kTimeout);
    EXPECT_EQ(numberForCurlCode(CURLE_COULDNT_CONNECT), kCannotConnect);
    EXPECT_EQ(numberForCurlCode(CURLE_OUT_OF_MEMORY), kInternal);

    EXPECT_EQ(troubleText(kServerRefused, u"530 Login incorrect."_s, u"lib"_s),
              u"530 Login incorrect."_s);
    EXPECT_EQ(troubleText(kNameNotResolved, u"220 hi"_s, u"lib"_s),
              u"サーバー名を解決できませんでした。"_s);
    EXPECT_EQ(troubleText(kTimeout, u"220 hi"_s, u"Timeout was reached"_s),
              u"Timeout was reached"_s);
    EXPECT_EQ(troubleText(kInternal, QString(), QString()), u"エラーが発生しています。"_s);
}

TEST(FtpListModel, SizeTextsAndPictures) {
    const VbFormat::Separators seps;
    EXPECT_EQ(ftpSizeText(1023, seps), u"1,023B"_s);
    EXPECT_EQ(ftpSizeText(0, seps), u"0B"_s);
    EXPECT_EQ(ftpSizeText(1024, seps), u"1KB"_s);
    EXPECT_EQ(ftpSizeText(5 * 1024 * 1024 + 1000, seps), u"5,120KB"_s);

    const auto entry = [](const QString& name, double size = 0, qint16 attr = 0) {
        FtpEntry e;
        e.Name = name;
        e.Size = size;
        e.Attr = attr;
        return e;
    };
    const FtpEntry dir = entry(u"DATA"_s, 0, FtpEntry::kDirectory);
    const FtpEntry vxf = entry(u"x.vxn"_s, 1023);
    const FtpEntry prm = entry(u"x.PRM"_s);
    const FtpEntry other = entry(u"readme"_s);
    FtpListModel model;
    model.setListing(u"/"_s, {dir, vxf, prm, other});
    ASSERT_EQ(model.rowCount(), 5);
    EXPECT_EQ(model.index(0, 0).data().toString(), u". "_s);
    EXPECT_EQ(model.index(1, 1).data().toString(), u"  DATA"_s);
    EXPECT_EQ(model.index(1, 2).data().toString(), QString());
    const int role = FtpListModel::kImageRole;
    EXPECT_EQ(model.index(1, 0).data(role).toInt(), FtpListModel::kFolder);
    EXPECT_EQ(model.index(2, 0).data(role).toInt(), FtpListModel::kVxfFile);
    EXPECT_EQ(model.index(3, 0).data(role).toInt(), FtpListModel::kQdfFile);
    EXPECT_EQ(model.index(4, 0).data(role).toInt(), FtpListModel::kFile);
    model.setListing(u"/DATA"_s, {});
    EXPECT_EQ(model.index(0, 0).data(role).toInt(), FtpListModel::kWayUp);
    EXPECT_EQ(model.index(0, 0).data().toString(), QString());
    EXPECT_EQ(ftpChosenPath(u"/DATA"_s, u"SUB"_s), u"DATA/SUB"_s);
    EXPECT_EQ(ftpChosenPath(u"/"_s, u"DATA"_s), u"/DATA"_s);
}

} // namespace
