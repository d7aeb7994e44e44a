#include "base/clsINI.h"
#include "base/LogObject.h"
#include "base/TextFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A log object that keeps what it is given; `acceptPutLog` false makes putLog fail.
class MemoryLog final : public LogObject {
public:
    explicit MemoryLog(bool acceptPutLog) : accept(acceptPutLog) {}
    bool LogWrite(const QString& text) override {
        written.append(text);
        return true;
    }
    bool putLog(const void* from, int level, const QString& text) override {
        if (!accept) return false;
        put.append(QString::number(level) + u' ' + text);
        sender = from;
        return true;
    }
    bool accept;
    QStringList written, put;
    const void* sender = nullptr;
};

class IniTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(ini.setIniPath(dir.path()));
        ASSERT_EQ(ini.setIniFileName(u"test.ini"_s), 0);
    }
    void write(const char* text) { ASSERT_TRUE(TextFile::writeAtomically(path(), text)); }
    QString path() const { return dir.path() + u"/test.ini"_s; }
    QString content() const {
        QFile f(path());
        return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
    }
    QString get(const QString& key, const QString& fallback, bool noWriteBack = false) {
        return ini.getIniData(u"S"_s, key, fallback, noWriteBack);
    }

    QTemporaryDir dir;
    clsINI ini;
};

TEST_F(IniTest, AbsentKeyGivesTheDefaultAndWritesItBackUnlessTold) {
    EXPECT_EQ(get(u"Size"_s, u"12"_s), u"12"_s);
    EXPECT_EQ(content(), u"[S]\nSize=12\n"_s);
    EXPECT_EQ(get(u"Other"_s, u"x"_s, true), u"x"_s);
    EXPECT_EQ(content(), u"[S]\nSize=12\n"_s);
}

TEST_F(IniTest, LookupIgnoresCaseAndKeepsOtherLines) {
    write("; settings\r\n[Main]\r\nSize = 7 \r\n\r\n[Next]\r\nA=1\r\n");
    EXPECT_EQ(ini.getIniData(u"MAIN"_s, u"size"_s, u"0"_s), u"7"_s);
    ini.putIniData(u"main"_s, u"Color"_s, u"red"_s);
    ini.putIniData(u"New"_s, u"On"_s, true);
    EXPECT_EQ(content(), u"; settings\r\n[Main]\r\nSize = 7 \r\nColor=red\r\n\r\n"
                         u"[Next]\r\nA=1\r\n[New]\r\nOn=True\r\n"_s);
}

TEST_F(IniTest, VbBlankReadsEmptyAndEmptyReadsAsAbsent) {
    write("[S]\nBlank= vbBlank \nEmpty=\n");
    EXPECT_EQ(get(u"Blank"_s, u"d"_s), QString());
    EXPECT_TRUE(content().contains(u"Blank= vbBlank"_s)); // no write back
    // An empty default equals the empty result: written back.
    EXPECT_EQ(get(u"Blank"_s, QString()), QString());
    EXPECT_FALSE(content().contains(u"vbBlank"_s));
    // A key with an empty value reads as absent: the default, written back.
    EXPECT_EQ(get(u"Empty"_s, u"5"_s), u"5"_s);
    EXPECT_TRUE(content().contains(u"Empty=5"_s));
}

TEST_F(IniTest, ValuesAreCutToBufferSizeLessOne) {
    const QString longValue(600, u'a');
    ini.putIniData(u"S"_s, u"Long"_s, longValue);
    EXPECT_EQ(get(u"Long"_s, QString()).size(), 511);
    // A default longer than the buffer is cut too, so it no longer equals the default and is
    // not written back.
    EXPECT_EQ(get(u"New"_s, longValue).size(), 511);
    EXPECT_FALSE(content().contains(u"New="_s));
}

TEST_F(IniTest, SectionsAreEnumeratedAndCleared) {
    write("[Empty]\n[List]\nA=1\nB=\nC=x=y\n; note\n[Other]\nD=4\n");
    QStringList lines;
    EXPECT_EQ(ini.enumSectionString(u"Empty"_s, lines), -1);
    EXPECT_EQ(ini.enumSectionString(u"Missing"_s, lines), -1);
    EXPECT_EQ(ini.enumSectionString(u"list"_s, lines), 3);
    EXPECT_EQ(lines, (QStringList{u"A=1"_s, u"B="_s, u"C=x=y"_s}));
    EXPECT_EQ(ini.clearSection(u"Empty"_s), 0);
    EXPECT_EQ(ini.clearSection(u"List"_s), 2);
    EXPECT_EQ(content(), u"[Empty]\n[List]\nA=\nB=\nC=\n; note\n[Other]\nD=4\n"_s);
    EXPECT_EQ(ini.clearSection(u"List"_s), 0);
}

TEST_F(IniTest, FileNamesWithReservedCharactersAndPlainFilesAsPathsAreRefused) {
    for (const char* bad : {"a/b", "c:", "*.ini", "a|b"})
        EXPECT_EQ(ini.setIniFileName(QLatin1String(bad)), 52) << bad;
    EXPECT_EQ(ini.setIniFileName(QString()), 0);
    EXPECT_EQ(ini.IniFileName(), u"test.ini"_s);

    const QString base = dir.path();
    write("[x]\n");
    EXPECT_FALSE(ini.setIniPath(path()));
    EXPECT_EQ(ini.IniPath(), base + u'/');
    EXPECT_TRUE(ini.setIniPath(base + u"/not/yet//"_s));
    EXPECT_EQ(ini.IniPath(), base + u"/not/yet/"_s);
}

TEST_F(IniTest, FailuresGoToTheLogObjectWithTheirMark) {
    ASSERT_TRUE(ini.setIniPath(dir.path() + u"/missing"_s));
    MemoryLog log(true), refusing(false);
    ini.setErrorLogObj(&log);
    ini.putIniData(u"S"_s, u"K"_s, 1);
    ASSERT_EQ(log.put.size(), 1);
    EXPECT_TRUE(log.put[0].startsWith(u"3 Exception:\u3000556->"_s)) << log.put[0].toStdString();
    EXPECT_EQ(log.sender, &ini);

    ini.setErrorLogObj(&refusing);
    ini.putIniData(u"S"_s, u"K"_s, 1);
    ASSERT_EQ(refusing.written.size(), 1);
    EXPECT_TRUE(refusing.written[0].startsWith(u"clsINI Exception error :\u3000556->"_s));

    // Without a log object the failure goes to LogWrite; the result is left as it was.
    QStringList fallback;
    setLogWriteHandler([&](const QString& text) { fallback.append(text); });
    ini.setErrorLogObj(nullptr);
    ASSERT_TRUE(ini.setIniPath(dir.path()) && QDir(dir.path()).mkdir(u"adir"_s));
    ASSERT_EQ(ini.setIniFileName(u"adir"_s), 0);
    QString result = u"kept"_s;
    ini.getIniData(u"S"_s, u"K"_s, u"d"_s, false, result);
    setLogWriteHandler({});
    EXPECT_EQ(result, u"kept"_s);
    ASSERT_EQ(fallback.size(), 1);
    EXPECT_TRUE(fallback[0].startsWith(u"clsINI Exception error :\u3000759->"_s));
}

} // namespace
