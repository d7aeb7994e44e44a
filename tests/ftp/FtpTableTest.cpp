// The collection table file and the manual window's file.
#include "ftp/FtpTable.h"
#include "base/LanguageTable.h"
#include "base/TextFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FtpTableTest : public ::testing::Test {
protected:
    QString path(const QString& name = u"FTPDataSet.ini"_s) const { return dir.filePath(name); }
    void write(const QByteArray& bytes, const QString& name = u"FTPDataSet.ini"_s) {
        ASSERT_TRUE(TextFile::writeAtomically(path(name), bytes));
    }
    QTemporaryDir dir;
};

QByteArray rows(int first, int last) {
    QByteArray text;
    for (int n = first; n <= last; ++n)
        text += "[FTPData]=" + QByteArray::number(n) + "\r\nTag=rec" + QByteArray::number(n) +
                "\r\nPCDir=/pc/" + QByteArray::number(n) + "\r\n";
    return text;
}

TEST_F(FtpTableTest, FewerRowsLeaveTheOthersAtTheirDefaults) {
    write("Retry=5\r\nWait=99\r\nRegularH=-3\r\nRegularM=30\r\nUnknown=1\r\n" + rows(1, 2) +
          "[FTPData]=77\r\ntag=lower case key\r\nPassword=a=b\r\nIPAddress=10.0.0.1\r\n");
    FtpTable table;
    ASSERT_TRUE(readFtpDataSet(path(), table));
    EXPECT_EQ(table.Retry, 5);
    EXPECT_EQ(table.Wait, 10);    // clamped
    EXPECT_EQ(table.RegularH, 0); // clamped
    EXPECT_EQ(table.RegularM, 30);
    EXPECT_EQ(table.row(1)->Tag, u"rec1"_s);
    EXPECT_EQ(table.row(2)->PCDir, u"/pc/2"_s);
    EXPECT_EQ(table.row(2)->status, MsgText(496));
    // The third "[FTPData]" line is row 3 whatever its number says.
    EXPECT_EQ(table.row(3)->Tag, QString());
    EXPECT_EQ(table.row(3)->Password, u"a"_s); // split at every "="
    EXPECT_EQ(table.row(3)->IPAddress, u"10.0.0.1"_s);
    EXPECT_EQ(table.row(4)->IPAddress, u"   .   .   .   "_s);
    EXPECT_EQ(table.row(4)->status, QString());
}

TEST_F(FtpTableTest, A31stRowOrABadNumberEndsTheRead) {
    write(rows(1, 31) + "Retry=7\r\n");
    FtpTable table;
    ASSERT_TRUE(readFtpDataSet(path(), table));
    EXPECT_EQ(table.row(30)->Tag, u"rec30"_s);
    EXPECT_EQ(table.Retry, 3);

    write("Retry=4\r\nWait=x\r\nRegularM=9\r\n" + rows(1, 1));
    FtpTable other;
    ASSERT_TRUE(readFtpDataSet(path(), other));
    EXPECT_EQ(other.Retry, 4);
    EXPECT_EQ(other.RegularM, 0);
    EXPECT_EQ(other.row(1)->Tag, QString());

    FtpTable untouched;
    EXPECT_FALSE(readFtpDataSet(path(u"missing.ini"_s), untouched));
    EXPECT_EQ(untouched.Retry, 3);
}

TEST_F(FtpTableTest, WrittenWholeInCrLfLinesAndReadBack) {
    FtpTable table;
    table.AutoReadFlg = 1;
    table.row(2)->Tag = u"炉 2"_s;
    table.row(2)->Password = u"secret"_s;
    table.row(30)->Time = u"2024/03/10 12:00:00"_s;
    ASSERT_TRUE(writeFtpDataSet(path(), table));
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const QList<QByteArray> lines = bytes.split('\n');
    ASSERT_EQ(lines.size(), 6 + 30 * 7 + 1);
    EXPECT_EQ(lines[0], "FileReadFlg=0\r");
    EXPECT_EQ(lines[6], "[FTPData]=1\r");
    EXPECT_EQ(lines[8], "IPAddress=   .   .   .   \r");
    EXPECT_EQ(lines[13], "[FTPData]=2\r");
    EXPECT_EQ(lines[16], "Password=secret\r");
    EXPECT_TRUE(bytes.contains(u"Tag=炉 2\r\n"_s.toUtf8()));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 1);

    FtpTable back;
    ASSERT_TRUE(readFtpDataSet(path(), back));
    EXPECT_EQ(back.AutoReadFlg, 1);
    EXPECT_EQ(back.row(2)->Tag, u"炉 2"_s);
    EXPECT_EQ(back.row(30)->Time, u"2024/03/10 12:00:00"_s);
}

TEST_F(FtpTableTest, ManualWindowFile) {
    const QString name = u"FTPset.ini"_s;
    ASSERT_TRUE(writeFtpSet(path(name), {u" 192.168.1.5 "_s, u" /home/x/data "_s}));
    FtpManualSettings read;
    ASSERT_TRUE(readFtpSet(path(name), read));
    EXPECT_EQ(read.IPaddress, u"192.168.1.5"_s);
    EXPECT_EQ(read.PASSNAME, u"/home/x/data"_s);

    write(" ipaddress = 10.0.0.2\r\nPassName=/a=b\r\n", name);
    ASSERT_TRUE(readFtpSet(path(name), read));
    EXPECT_EQ(read.IPaddress, u" 10.0.0.2"_s);
    EXPECT_EQ(read.PASSNAME, u"/a=b"_s);

    write("", name);
    EXPECT_FALSE(readFtpSet(path(name), read));
}

} // namespace
