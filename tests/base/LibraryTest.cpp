// The utility library, the stopwatch, colours and the window position file.
#include "base/AppPaths.h"
#include "base/PosIni.h"
#include "base/Stopwatch.h"
#include "base/TextFile.h"
#include "base/WinColor.h"
#include "base/clsLibrary.h"

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
    } cases[] = {{"&h0000FF", true, 255},          {"VBBLUE", true, 0xFF0000},
                 {"RGB(1, 2, 3)", true, 0x030201}, {"123", true, 123},
                 {"vbNoSuch", false, 0},           {"&hZZ", false, 0}};
    for (const auto& c : cases) {
        quint32 value = 77;
        EXPECT_EQ(clsLibrary::StrToColor(QLatin1String(c.text), value), c.ok) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    EXPECT_EQ(clsLibrary::ColorToStr(255), u"vbRed"_s);
    EXPECT_EQ(clsLibrary::ColorToStr(0xABCDEF), u"&hABCDEF"_s);
    // Windows colour values are blue-green-red.
    EXPECT_EQ(WinColor::toQColor(0xE1FFFF), QColor(255, 255, 225));
}

TEST(clsLibrary, Tokens) {
    const struct {
        const char *text, *data, *key;
    } cases[] = {{"a", "a", "a"}, {"key=value", "value", "key"}, {"a=b=c", "b=c", "a"}};
    for (const auto& c : cases) {
        EXPECT_EQ(clsLibrary::getDataToken(QLatin1String(c.text), u"="_s), QLatin1String(c.data));
        EXPECT_EQ(clsLibrary::getKeyToken(QLatin1String(c.text), u"="_s), QLatin1String(c.key));
    }
}

TEST(clsLibrary, ConversionsRoundHalvesToEvenAndFailToZero) {
    const std::pair<QString, int> integers[] = {
        {u"2.5"_s, 2}, {u" 3.5 "_s, 4}, {u"40000"_s, 0}, {u"abc"_s, 0}};
    for (const auto& [text, value] : integers)
        EXPECT_EQ(clsLibrary::toInteger(text), value) << text.toStdString();
    EXPECT_TRUE(clsLibrary::toBoolean(u"-1"_s));
    EXPECT_EQ(clsLibrary::UniToAnsi(u"日本a"_s), QByteArray("\x93\xFA\x96\x7B"
                                                            "a"));
}

TEST(clsLibrary, FileTitlesWithAndWithoutTheExtension) {
    EXPECT_EQ(clsLibrary::getFileTitle("/a/b.c/furnace.day1.vxf"), "furnace.day1.vxf");
    EXPECT_EQ(clsLibrary::getFileTitleEx("/a/b.c/furnace.day1.vxf"), "furnace.day1");
    EXPECT_EQ(clsLibrary::getFileTitleEx("/a/b.c/noext"), "noext");
    EXPECT_EQ(clsLibrary::getFileTitleEx(".hidden"), ".hidden");
    EXPECT_EQ(clsLibrary::getFileTitleEx(""), "");
}

TEST(clsLibrary, ListingsAreSortedAndMatchRegardlessOfCase) {
    QTemporaryDir dir;
    const QString d = dir.path();
    EXPECT_TRUE(clsLibrary::getFolderList(d).isEmpty());
    for (const char* name : {"x.VXF", "a.vxf", "b.txt"})
        ASSERT_TRUE(TextFile::writeAtomically(d + u'/' + QLatin1String(name), "1234"));
    ASSERT_TRUE(QDir(d).mkdir(u"b"_s) && QDir(d).mkdir(u"A"_s));
    EXPECT_EQ(clsLibrary::getFileList(d, u"*.vxf"_s), (QStringList{u"a.vxf"_s, u"x.VXF"_s}));
    EXPECT_EQ(clsLibrary::getFolderList(d), (QStringList{u"A"_s, u"b"_s}));
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
    } cases[] = {
        {QRect(100, 50, 800, 600), QPoint(100, 50)},
        {QRect(-100, -100, 800, 600), QPoint(560, 96)}, // the first start
        {QRect(1920, 10, 801, 601), QPoint(559, 95)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PosIni::placeOnScreen(c.window, screen).topLeft(), c.placed) << c.window.x();

    QTemporaryDir dir;
    setAppPath(0, dir.path() + u'/');
    const QRect fallback(0, 0, 800, 600);
    EXPECT_EQ(PosIni::loadFormSize(u"frmMain"_s, fallback, screen), QRect(560, 96, 800, 600));
    PosIni::saveFormSize(u"frmMain"_s, QRect(10, 20, 300, 200), 150);
    EXPECT_EQ(PosIni::loadFormSize(u"frmMain"_s, fallback, screen), QRect(10, 20, 300, 200));
}

} // namespace
