#include "app/clsINI.h"
#include "app/LogObject.h"
#include "app/TextFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A log object that keeps what it is given; `acceptPutLog` false makes putLog fail.
class MemoryLog final : public LogObject {
public:
    explicit MemoryLog(bool acceptPutLog) : accept_(acceptPutLog) {}
    bool LogWrite(const QString& text) override {
        written.append(text);
        return true;
    }
    bool putLog(const void* sender, int level, const QString& text) override {
        if (!accept_) return false;
        senders.append(sender);
        put.append(QString::number(level) + QLatin1Char(' ') + text);
        return true;
    }
    QStringList written;
    QStringList put;
    QList<const void*> senders;

private:
    bool accept_;
};

class IniTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        ASSERT_TRUE(ini.setIniPath(dir.path()));
        ASSERT_EQ(ini.setIniFileName(QStringLiteral("test.ini")), 0);
    }
    void write(const char* text) {
        ASSERT_TRUE(TextFile::writeAtomically(path(), QByteArray(text)));
    }
    QString path() const { return dir.path() + QStringLiteral("/test.ini"); }
    QString content() const {
        QFile f(path());
        return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
    }

    QTemporaryDir dir;
    clsINI ini;
};

TEST_F(IniTest, AbsentKeyGivesTheDefaultAndWritesItBackUnlessTold) {
    EXPECT_EQ(ini.getIniData(QStringLiteral("Main"), QStringLiteral("Size"), QStringLiteral("12")),
              QLatin1String("12"));
    EXPECT_EQ(content(), QLatin1String("[Main]\nSize=12\n"));
    EXPECT_EQ(
        ini.getIniData(QStringLiteral("Main"), QStringLiteral("Other"), QStringLiteral("x"), true),
        QLatin1String("x"));
    EXPECT_EQ(content(), QLatin1String("[Main]\nSize=12\n"));
}

TEST_F(IniTest, LookupIgnoresCaseAndKeepsOtherLines) {
    write("; settings\r\n[Main]\r\nSize = 7 \r\n\r\n[Next]\r\nA=1\r\n");
    EXPECT_EQ(ini.getIniData(QStringLiteral("MAIN"), QStringLiteral("size"), QStringLiteral("0")),
              QLatin1String("7"));
    ini.putIniData(QStringLiteral("main"), QStringLiteral("Color"), QStringLiteral("red"));
    ini.putIniData(QStringLiteral("New"), QStringLiteral("On"), true);
    ini.putIniData(QStringLiteral("New"), QStringLiteral("Ratio"), 2.5);
    EXPECT_EQ(content(), QLatin1String("; settings\r\n[Main]\r\nSize = 7 \r\nColor=red\r\n\r\n"
                                       "[Next]\r\nA=1\r\n[New]\r\nOn=True\r\nRatio=2.5\r\n"));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("test.ini")});
}

TEST_F(IniTest, VbBlankReadsEmptyAndEmptyReadsAsAbsent) {
    write("[S]\nBlank= vbBlank \nEmpty=\n");
    EXPECT_EQ(ini.getIniData(QStringLiteral("S"), QStringLiteral("Blank"), QStringLiteral("d")),
              QString());
    EXPECT_TRUE(content().contains(QLatin1String("Blank= vbBlank"))); // no write back
    // An empty default equals the empty result: written back.
    EXPECT_EQ(ini.getIniData(QStringLiteral("S"), QStringLiteral("Blank"), QString()), QString());
    EXPECT_FALSE(content().contains(QLatin1String("vbBlank")));
    // A key with an empty value reads as absent: the default, written back.
    EXPECT_EQ(ini.getIniData(QStringLiteral("S"), QStringLiteral("Empty"), QStringLiteral("5")),
              QLatin1String("5"));
    EXPECT_TRUE(content().contains(QLatin1String("Empty=5")));
}

TEST_F(IniTest, ValuesAreCutToBufferSizeLessOne) {
    const QString longValue(600, QLatin1Char('a'));
    ini.putIniData(QStringLiteral("S"), QStringLiteral("Long"), longValue);
    EXPECT_EQ(ini.getIniData(QStringLiteral("S"), QStringLiteral("Long"), QString()).size(), 511);
    ini.setBufferSize(10);
    EXPECT_EQ(ini.getIniData(QStringLiteral("S"), QStringLiteral("Long"), QString()),
              QString(9, QLatin1Char('a')));
    // A default longer than the buffer is cut too, so it no longer equals the default and is
    // not written back.
    ini.setBufferSize(512);
    EXPECT_EQ(ini.getIniData(QStringLiteral("S"), QStringLiteral("New"), longValue).size(), 511);
    EXPECT_FALSE(content().contains(QLatin1String("New=")));
}

TEST_F(IniTest, SectionsAreEnumeratedAndCleared) {
    write("[Empty]\n[List]\nA=1\nB=\nC=x=y\n; note\n[Other]\nD=4\n");
    QStringList lines;
    EXPECT_EQ(ini.enumSectionString(QStringLiteral("Empty"), lines), -1);
    EXPECT_EQ(ini.enumSectionString(QStringLiteral("Missing"), lines), -1);
    EXPECT_EQ(ini.enumSectionString(QStringLiteral("list"), lines), 3);
    EXPECT_EQ(lines,
              (QStringList{QStringLiteral("A=1"), QStringLiteral("B="), QStringLiteral("C=x=y")}));
    EXPECT_EQ(ini.clearSection(QStringLiteral("Empty")), 0);
    EXPECT_EQ(ini.clearSection(QStringLiteral("List")), 2);
    EXPECT_EQ(content(), QLatin1String("[Empty]\n[List]\nA=\nB=\nC=\n; note\n[Other]\nD=4\n"));
    EXPECT_EQ(ini.clearSection(QStringLiteral("List")), 0);
}

TEST_F(IniTest, FileNamesWithReservedCharactersAreRefused) {
    for (const char* bad : {"a\\b", "a/b", "c:", "*.ini", "a?", "\"q\"", "<", ">", "a|b"}) {
        EXPECT_EQ(ini.setIniFileName(QLatin1String(bad)), clsINI::kBadFileName) << bad;
        EXPECT_EQ(ini.IniFileName(), QLatin1String("test.ini"));
    }
    EXPECT_EQ(ini.setIniFileName(QString()), 0);
    EXPECT_EQ(ini.IniFileName(), QLatin1String("test.ini"));
}

TEST_F(IniTest, PathsRefuseOnlyPlainFiles) {
    const QString base = dir.path();
    write("[x]\n");
    EXPECT_FALSE(ini.setIniPath(path()));
    EXPECT_EQ(ini.IniPath(), base + QLatin1Char('/'));
    EXPECT_FALSE(ini.setIniPath(QString()));
    EXPECT_TRUE(ini.setIniPath(base + QStringLiteral("/not/yet//")));
    EXPECT_EQ(ini.IniPath(), base + QStringLiteral("/not/yet/"));
    EXPECT_TRUE(ini.setIniPath(QStringLiteral("///")));
    EXPECT_EQ(ini.IniPath(), QLatin1String("/"));
}

TEST_F(IniTest, FailuresGoToTheLogObjectWithTheirMark) {
    ASSERT_TRUE(ini.setIniPath(dir.path() + QStringLiteral("/missing")));
    MemoryLog log(true);
    ini.setErrorLogObj(&log);
    ini.putIniData(QStringLiteral("S"), QStringLiteral("K"), 1);
    ASSERT_EQ(log.put.size(), 1);
    EXPECT_TRUE(log.put[0].startsWith(QStringLiteral("3 Exception:\u3000556->")))
        << log.put[0].toStdString();
    EXPECT_EQ(log.senders[0], &ini);

    MemoryLog refusing(false);
    ini.setErrorLogObj(&refusing);
    ini.putIniData(QStringLiteral("S"), QStringLiteral("K"), 1);
    ASSERT_EQ(refusing.written.size(), 1);
    EXPECT_TRUE(
        refusing.written[0].startsWith(QStringLiteral("clsINI Exception error :\u3000556->")));

    QStringList fallback;
    setLogWriteHandler([&](const QString& text) { fallback.append(text); });
    ini.setErrorLogObj(nullptr);
    ASSERT_TRUE(ini.setIniPath(dir.path()));
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("adir")));
    ASSERT_EQ(ini.setIniFileName(QStringLiteral("adir")), 0);
    QString result = QStringLiteral("kept");
    ini.getIniData(QStringLiteral("S"), QStringLiteral("K"), QStringLiteral("d"), false, result);
    setLogWriteHandler({});
    EXPECT_EQ(result, QLatin1String("kept"));
    ASSERT_EQ(fallback.size(), 1);
    EXPECT_TRUE(fallback[0].startsWith(QStringLiteral("clsINI Exception error :\u3000759->")));
}

} // namespace
