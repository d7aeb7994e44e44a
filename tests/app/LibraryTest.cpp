// The utility library, the stopwatch, colours and the window position file.
#include "app/AppPaths.h"
#include "app/PosIni.h"
#include "app/Stopwatch.h"
#include "app/TextFile.h"
#include "app/WinColor.h"
#include "app/clsLibrary.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(clsLibrary, ColourTexts) {
    const struct {
        const char* text;
        bool ok;
        quint32 value;
    } cases[] = {{"&h0000FF", true, 255},
                 {"&HFF0000", true, 0xFF0000},
                 {"vbRed", true, 255},
                 {"VBBLUE", true, 0xFF0000},
                 {"vbButtonFace", true, 0x8000000F},
                 {"RGB(1, 2, 3)", true, 0x030201},
                 {"123", true, 123},
                 {"vbNoSuch", false, 0},
                 {"&hZZ", false, 0},
                 {"RGB(1,2)", false, 0},
                 {"blue", false, 0}};
    for (const auto& c : cases) {
        quint32 value = 77;
        EXPECT_EQ(clsLibrary::StrToColor(QLatin1String(c.text), value), c.ok) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    EXPECT_EQ(clsLibrary::ColorToStr(255), u"vbRed"_s);
    EXPECT_EQ(clsLibrary::ColorToStr(0xABCDEF), u"&hABCDEF"_s);
    EXPECT_EQ(clsLibrary::ColorToStr(0x80000005), u"&h80000005"_s);
    EXPECT_EQ(clsLibrary::getColorTableUbound(), 44); // 44 colours, then "Option"
    EXPECT_STREQ(clsLibrary::getColorTable().last().name, "Option");
    // Windows colour values are blue-green-red.
    EXPECT_EQ(WinColor::toQColor(0xE1FFFF), QColor(255, 255, 225));
    EXPECT_EQ(WinColor::fromQColor(QColor(255, 255, 225)), 0xE1FFFFu);
    EXPECT_EQ(WinColor::rgb(1, 2, 3), 0x030201u);
}

TEST(clsLibrary, Tokens) {
    const struct {
        const char *text, *data, *key;
    } cases[] = {{"a", "a", "a"},
                 {"=", "=", "="},
                 {"key=value", "value", "key"},
                 {"a=b=c", "b=c", "a"},
                 {"novalue", "novalue", "novalue"},
                 {"=x", "x", ""}};
    for (const auto& c : cases) {
        EXPECT_EQ(clsLibrary::getDataToken(QLatin1String(c.text), u"="_s), QLatin1String(c.data));
        EXPECT_EQ(clsLibrary::getKeyToken(QLatin1String(c.text), u"="_s), QLatin1String(c.key));
    }
    EXPECT_EQ(clsLibrary::get0FillStr(7, 3), u"007"_s);
    EXPECT_EQ(clsLibrary::get0FillStr(1234, 3), u"1234"_s);
    EXPECT_EQ(clsLibrary::matchingPattern(u"a."_s, u"xAbyac"_s), u"1\tAb\n4\tac\n"_s);
    EXPECT_EQ(clsLibrary::matchingPattern(u"q+"_s, u"xyz"_s), QString());
}

TEST(clsLibrary, ConversionsRoundHalvesToEvenAndFailToZero) {
    const std::pair<QString, int> integers[] = {
        {u"2.5"_s, 2}, {u" 3.5 "_s, 4}, {u"40000"_s, 0}, {u"abc"_s, 0}};
    for (const auto& [text, value] : integers)
        EXPECT_EQ(clsLibrary::toInteger(text), value) << text.toStdString();
    EXPECT_EQ(clsLibrary::toLong(u"-2.5"_s), -2);
    EXPECT_TRUE(clsLibrary::toBoolean(u"True"_s));
    EXPECT_TRUE(clsLibrary::toBoolean(u"-1"_s));
    EXPECT_FALSE(clsLibrary::toBoolean(u"0"_s));
    EXPECT_EQ(clsLibrary::HostToNetLong(0x01020304), 0x04030201);
    EXPECT_EQ(clsLibrary::NetToHostDouble(clsLibrary::HostToNetDouble(1.25)), 1.25);
    EXPECT_EQ(clsLibrary::UniToAnsi(u"日本a"_s), QByteArray("\x93\xFA\x96\x7B"
                                                            "a"));
    EXPECT_EQ(clsLibrary::UniToAnsi(u"한"_s), QByteArray("?"));
    EXPECT_EQ(clsLibrary::HexStringToByteArray(clsLibrary::toHexString("\x01\xAB")),
              QByteArray("\x01\xAB"));
}

TEST(clsLibrary, ListingsAreSortedAndMatchRegardlessOfCase) {
    QTemporaryDir dir;
    const QString d = dir.path();
    EXPECT_TRUE(clsLibrary::getFolderList(d).isEmpty());
    EXPECT_TRUE(clsLibrary::getFileList(d, u"*.vxf"_s).isEmpty());
    for (const char* name : {"x.VXF", "a.vxf", "b.txt", "noext"})
        ASSERT_TRUE(TextFile::writeAtomically(d + u'/' + QLatin1String(name), "1234"));
    ASSERT_TRUE(QDir(d).mkdir(u"b"_s) && QDir(d).mkdir(u"A"_s));
    EXPECT_EQ(clsLibrary::getFileList(d, u"*.vxf"_s), (QStringList{u"a.vxf"_s, u"x.VXF"_s}));
    EXPECT_EQ(clsLibrary::getFileList(d, u"*.*"_s).size(), 4);
    EXPECT_EQ(clsLibrary::getFileListEx(d, u"^[ab]\\."_s), (QStringList{u"a.vxf"_s, u"b.txt"_s}));
    EXPECT_EQ(clsLibrary::getFileList(d + u"/none"_s, u"*"_s), QStringList{QString()});
    EXPECT_EQ(clsLibrary::getFolderList(d), (QStringList{u"A"_s, u"b"_s}));
    EXPECT_EQ(clsLibrary::getFileSize(d + u"/b.txt"_s, false), u"4"_s);
    EXPECT_EQ(clsLibrary::getFileSize(d + u"/none"_s, false), QString());
}

TEST(clsLibrary, PathsAndNames) {
    QTemporaryDir dir;
    EXPECT_FALSE(clsLibrary::makeDir(u"relative/path"_s));
    EXPECT_TRUE(clsLibrary::makeDir(dir.path() + u"/one/two/three"_s));
    EXPECT_TRUE(clsLibrary::DirExists(dir.path() + u"/one/two/three"_s));
    const QString file = u"/a/b.c.vxf"_s;
    EXPECT_EQ(clsLibrary::getFileTitleEx(file), u"b.c"_s);
    EXPECT_EQ(clsLibrary::getFileExt(file), u"vxf"_s);
    EXPECT_TRUE(clsLibrary::checkFileName(u"run 1.vxf"_s));
    EXPECT_FALSE(clsLibrary::checkFileName(u"a:b"_s));
    EXPECT_FALSE(clsLibrary::checkFileNameWithLen(u"abcdef"_s, 5));
    EXPECT_TRUE(clsLibrary::checkPathName(u"/data/run 1"_s));
    EXPECT_FALSE(clsLibrary::checkPathName(u"data/run"_s));
    EXPECT_EQ(clsLibrary::getSPFolder(26), userDataFolder());
}

TEST(clsLibrary, SettingsDirectoryAndParameters) {
    QTemporaryDir dir;
    const QString base = dir.path() + u'/';
    setAppPath(0, base);
    EXPECT_EQ(clsLibrary::getIniFilePath(QString(), false), base);
    EXPECT_EQ(clsLibrary::getIniFilePath(u"sub"_s, false), base + u"sub/"_s);
    EXPECT_TRUE(clsLibrary::DirExists(base + u"sub/"_s));
    clsLibrary::saveINIParam(u"S"_s, u"K"_s, u"v"_s);
    QString value;
    clsLibrary::loadINIParam(u"S"_s, u"K"_s, u"d"_s, value);
    EXPECT_EQ(value, u"v"_s);
    EXPECT_TRUE(QFile::exists(base + clsLibrary::getIniFileName()));
}

qint64 fakeNow = 0;
qint64 fakeTick() {
    return fakeNow;
}

TEST(Stopwatch, StartedTwiceKeepsTheFirstStart) {
    Stopwatch::setTickSource(&fakeTick);
    Stopwatch watch;
    const auto at = [&](qint64 now) {
        fakeNow = now;
        return watch.ElapsedMillSeconds();
    };
    fakeNow = 1000;
    watch.Start();
    fakeNow = 1500;
    watch.Start();
    EXPECT_EQ(at(1700), 700);
    watch.Stop_();
    EXPECT_EQ(at(5000), 700);
    EXPECT_FALSE(watch.IsRunning());
    watch.Start();
    EXPECT_EQ(at(5100), 800);
    watch.Restart();
    EXPECT_EQ(at(5130), 30);
    watch.Reset();
    EXPECT_EQ(watch.ElapsedMillSeconds(), 0);
    Stopwatch::setTickSource(nullptr);
}

TEST(PosIni, WindowsOutsideTheScreenAreCentred) {
    const QSize screen(1920, 1080);
    const struct {
        QRect window;
        QPoint placed;
    } cases[] = {{QRect(100, 50, 800, 600), QPoint(100, 50)},
                 {QRect(-100, -100, 800, 600), QPoint(560, 96)}, // the first start
                 {QRect(100, 1080, 800, 600), QPoint(560, 96)},
                 {QRect(1920, 10, 801, 601), QPoint(559, 95)},
                 {QRect(0, 0, 2000, 1200), QPoint(0, 0)}};
    for (const auto& c : cases)
        EXPECT_EQ(PosIni::placeOnScreen(c.window, screen).topLeft(), c.placed) << c.window.x();

    QTemporaryDir dir;
    setAppPath(0, dir.path() + u'/');
    const QRect fallback(0, 0, 800, 600);
    EXPECT_EQ(PosIni::loadFormSize(u"frmMain"_s, fallback, screen), QRect(560, 96, 800, 600));
    PosIni::saveFormSize(u"frmMain"_s, QRect(10, 20, 300, 200), 150);
    EXPECT_EQ(PosIni::loadFormSize(u"frmMain"_s, fallback, screen), QRect(10, 20, 300, 200));
    EXPECT_EQ(PosIni::filePath(), dir.path() + u"/Pos.ini"_s);
}

} // namespace
