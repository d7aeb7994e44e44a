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

namespace {

TEST(clsLibrary, ColourTexts) {
    const struct {
        const char* text;
        bool ok;
        quint32 value;
    } cases[] = {
        {"&h0000FF", true, 255},
        {"&HFF0000", true, 0xFF0000},
        {"vbRed", true, 255},
        {"VBBLUE", true, 0xFF0000},
        {"vbButtonFace", true, 0x8000000F},
        {"RGB(1, 2, 3)", true, 1 + 2 * 256 + 3 * 65536},
        {"123", true, 123},
        {"vbNoSuch", false, 0},
        {"&hZZ", false, 0},
        {"RGB(1,2)", false, 0},
        {"blue", false, 0},
    };
    for (const auto& c : cases) {
        quint32 value = 77;
        EXPECT_EQ(clsLibrary::StrToColor(QLatin1String(c.text), value), c.ok) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    EXPECT_EQ(clsLibrary::ColorToStr(255), QLatin1String("vbRed"));
    EXPECT_EQ(clsLibrary::ColorToStr(0xABCDEF), QLatin1String("&hABCDEF"));
    EXPECT_EQ(clsLibrary::ColorToStr(0x80000005), QLatin1String("&h80000005"));
    EXPECT_EQ(clsLibrary::getColorTableUbound(), 44); // 44 colours, then "Option"
    EXPECT_STREQ(clsLibrary::getColorTable().last().name, "Option");
}

TEST(clsLibrary, WindowsColourValuesAreBlueGreenRed) {
    EXPECT_EQ(WinColor::toQColor(0xE1FFFF), QColor(255, 255, 225));
    EXPECT_EQ(WinColor::toQColor(0x0000FF), QColor(Qt::red));
    EXPECT_EQ(WinColor::fromQColor(QColor(255, 255, 225)), 0xE1FFFFu);
    EXPECT_EQ(WinColor::rgb(1, 2, 3), 0x030201u);
}

TEST(clsLibrary, Tokens) {
    const struct {
        const char* text;
        const char* data;
        const char* key;
    } cases[] = {
        {"a", "a", "a"},
        {"=", "=", "="},
        {"key=value", "value", "key"},
        {"novalue", "novalue", "novalue"},
        {"a=b=c", "b=c", "a"},
        {"=x", "x", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(clsLibrary::getDataToken(QLatin1String(c.text), QStringLiteral("=")),
                  QLatin1String(c.data));
        EXPECT_EQ(clsLibrary::getKeyToken(QLatin1String(c.text), QStringLiteral("=")),
                  QLatin1String(c.key));
    }
    EXPECT_EQ(clsLibrary::get0FillStr(7, 3), QLatin1String("007"));
    EXPECT_EQ(clsLibrary::get0FillStr(1234, 3), QLatin1String("1234"));
    EXPECT_EQ(clsLibrary::matchingPattern(QStringLiteral("a."), QStringLiteral("xAbyac")),
              QLatin1String("1\tAb\n4\tac\n"));
    EXPECT_EQ(clsLibrary::matchingPattern(QStringLiteral("q+"), QStringLiteral("xyz")), QString());
}

TEST(clsLibrary, ConversionsRoundHalvesToEvenAndFailToZero) {
    EXPECT_EQ(clsLibrary::toInteger(QStringLiteral("2.5")), 2);
    EXPECT_EQ(clsLibrary::toInteger(QStringLiteral(" 3.5 ")), 4);
    EXPECT_EQ(clsLibrary::toInteger(QStringLiteral("40000")), 0);
    EXPECT_EQ(clsLibrary::toInteger(QStringLiteral("abc")), 0);
    EXPECT_EQ(clsLibrary::toLong(QStringLiteral("-2.5")), -2);
    EXPECT_TRUE(clsLibrary::toBoolean(QStringLiteral("True")));
    EXPECT_TRUE(clsLibrary::toBoolean(QStringLiteral("-1")));
    EXPECT_FALSE(clsLibrary::toBoolean(QStringLiteral("0")));
    EXPECT_EQ(clsLibrary::HostToNetLong(0x01020304), 0x04030201);
    EXPECT_EQ(clsLibrary::NetToHostDouble(clsLibrary::HostToNetDouble(1.25)), 1.25);
    EXPECT_EQ(clsLibrary::reverseByteArray(QByteArray("abc")), QByteArray("cba"));
    EXPECT_EQ(clsLibrary::UniToAnsi(QStringLiteral("日本a")), QByteArray("\x93\xFA\x96\x7B"
                                                                         "a"));
    EXPECT_EQ(clsLibrary::UniToAnsi(QStringLiteral("한")), QByteArray("?"));
    EXPECT_EQ(clsLibrary::HexStringToByteArray(clsLibrary::toHexString("\x01\xAB")),
              QByteArray("\x01\xAB"));
}

TEST(clsLibrary, ListingsAreSortedAndMatchRegardlessOfCase) {
    QTemporaryDir dir;
    const QString d = dir.path();
    EXPECT_TRUE(clsLibrary::getFolderList(d).isEmpty());
    EXPECT_TRUE(clsLibrary::getFileList(d, QStringLiteral("*.vxf")).isEmpty());
    for (const char* name : {"x.VXF", "a.vxf", "b.txt", "noext"})
        ASSERT_TRUE(TextFile::writeAtomically(d + QLatin1Char('/') + QLatin1String(name), "1234"));
    ASSERT_TRUE(QDir(d).mkdir(QStringLiteral("b")));
    ASSERT_TRUE(QDir(d).mkdir(QStringLiteral("A")));
    EXPECT_EQ(clsLibrary::getFileList(d, QStringLiteral("*.vxf")),
              (QStringList{QStringLiteral("a.vxf"), QStringLiteral("x.VXF")}));
    EXPECT_EQ(clsLibrary::getFileList(d, QStringLiteral("*.*")).size(), 4);
    EXPECT_EQ(clsLibrary::getFileListEx(d, QStringLiteral("^[ab]\\.")),
              (QStringList{QStringLiteral("a.vxf"), QStringLiteral("b.txt")}));
    EXPECT_EQ(clsLibrary::getFileList(d + QStringLiteral("/none"), QStringLiteral("*")),
              QStringList{QString()});
    EXPECT_EQ(clsLibrary::getFolderList(d),
              (QStringList{QStringLiteral("A"), QStringLiteral("b")}));
    EXPECT_EQ(clsLibrary::getFileSize(d + QStringLiteral("/b.txt"), false), QLatin1String("4"));
    EXPECT_EQ(clsLibrary::getFileSize(d + QStringLiteral("/none"), false), QString());
}

TEST(clsLibrary, PathsAndNames) {
    QTemporaryDir dir;
    EXPECT_FALSE(clsLibrary::makeDir(QStringLiteral("relative/path")));
    EXPECT_TRUE(clsLibrary::makeDir(dir.path() + QStringLiteral("/one/two/three")));
    EXPECT_TRUE(clsLibrary::DirExists(dir.path() + QStringLiteral("/one/two/three")));
    EXPECT_TRUE(clsLibrary::makeDir(dir.path() + QStringLiteral("/one")));
    EXPECT_EQ(clsLibrary::getFileTitle(QStringLiteral("/a/b.c.vxf")), QLatin1String("b.c.vxf"));
    EXPECT_EQ(clsLibrary::getFileTitleEx(QStringLiteral("/a/b.c.vxf")), QLatin1String("b.c"));
    EXPECT_EQ(clsLibrary::getFileExt(QStringLiteral("/a/b.c.vxf")), QLatin1String("vxf"));
    EXPECT_EQ(clsLibrary::getDirName(QStringLiteral("/a/b.c.vxf")), QLatin1String("/a/"));
    EXPECT_TRUE(clsLibrary::checkFileName(QStringLiteral("run 1.vxf")));
    EXPECT_FALSE(clsLibrary::checkFileName(QStringLiteral("a:b")));
    EXPECT_FALSE(clsLibrary::checkFileNameWithLen(QStringLiteral("abcdef"), 5));
    EXPECT_TRUE(clsLibrary::checkPathName(QStringLiteral("/data/run 1")));
    EXPECT_FALSE(clsLibrary::checkPathName(QStringLiteral("data/run")));
    EXPECT_EQ(clsLibrary::checkDriveType(dir.path() + QStringLiteral("/not/yet")), 3);
    EXPECT_EQ(clsLibrary::getSPFolder(26), userDataFolder());
}

TEST(clsLibrary, SettingsDirectoryAndParameters) {
    QTemporaryDir dir;
    setAppPath(0, dir.path() + QLatin1Char('/'));
    EXPECT_EQ(clsLibrary::getIniFilePath(QString(), false), dir.path() + QLatin1Char('/'));
    const QString sub = clsLibrary::getIniFilePath(QStringLiteral("sub"), false);
    EXPECT_EQ(sub, dir.path() + QStringLiteral("/sub/"));
    EXPECT_TRUE(clsLibrary::DirExists(sub));
    clsLibrary::saveINIParam(QStringLiteral("S"), QStringLiteral("K"), QStringLiteral("v"));
    QString value;
    clsLibrary::loadINIParam(QStringLiteral("S"), QStringLiteral("K"), QStringLiteral("d"), value);
    EXPECT_EQ(value, QLatin1String("v"));
    EXPECT_TRUE(QFile::exists(dir.path() + QLatin1Char('/') + clsLibrary::getIniFileName()));
    EXPECT_EQ(clsLibrary::shared().tranStr(QStringLiteral("Hello")), QLatin1String("Hello"));
}

qint64 fakeNow = 0;
qint64 fakeTick() {
    return fakeNow;
}

TEST(Stopwatch, StartedTwiceKeepsTheFirstStart) {
    Stopwatch::setTickSource(&fakeTick);
    Stopwatch watch;
    fakeNow = 1000;
    watch.Start();
    fakeNow = 1500;
    watch.Start();
    fakeNow = 1700;
    EXPECT_EQ(watch.ElapsedMillSeconds(), 700);
    watch.Stop_();
    fakeNow = 5000;
    EXPECT_EQ(watch.ElapsedMillSeconds(), 700);
    EXPECT_FALSE(watch.IsRunning());
    watch.Start();
    fakeNow = 5100;
    EXPECT_EQ(watch.ElapsedMillSeconds(), 800);
    watch.Restart();
    fakeNow = 5130;
    EXPECT_EQ(watch.ElapsedMillSeconds(), 30);
    watch.Reset();
    EXPECT_EQ(watch.ElapsedMillSeconds(), 0);
    Stopwatch::setTickSource(nullptr);
}

TEST(PosIni, WindowsOutsideTheScreenAreCentred) {
    const QSize screen(1920, 1080);
    const struct {
        QRect window;
        QPoint placed;
    } cases[] = {
        {QRect(100, 50, 800, 600), QPoint(100, 50)},
        {QRect(-100, -100, 800, 600), QPoint(560, 96)}, // the first start
        {QRect(100, 1080, 800, 600), QPoint(560, 96)},
        {QRect(1920, 10, 801, 601), QPoint(559, 95)},
        {QRect(0, 0, 2000, 1200), QPoint(0, 0)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PosIni::placeOnScreen(c.window, screen).topLeft(), c.placed) << c.window.x();

    QTemporaryDir dir;
    setAppPath(0, dir.path() + QLatin1Char('/'));
    const QRect first =
        PosIni::loadFormSize(QStringLiteral("frmMain"), QRect(0, 0, 800, 600), screen);
    EXPECT_EQ(first, QRect(560, 96, 800, 600));
    PosIni::saveFormSize(QStringLiteral("frmMain"), QRect(10, 20, 300, 200), 150);
    EXPECT_EQ(PosIni::loadFormSize(QStringLiteral("frmMain"), QRect(0, 0, 800, 600), screen),
              QRect(10, 20, 300, 200));
    EXPECT_EQ(PosIni::filePath(), dir.path() + QStringLiteral("/Pos.ini"));
}

} // namespace
