// The program's icon and manual, found in a build or in an installation.
#include "DesktopFixture.h"

#include "app/widgets/AppIcon.h"
#include "app/widgets/frmMain.h"
#include "base/AppPaths.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void writePng(const QString& theme, int size) {
    const QString dir = theme + u"%1x%1/apps/"_s.arg(size);
    QDir().mkpath(dir);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(dir + u"recview.png"_s));
}

TEST(recviewIcon, TakesEverySizeOfTheInstalledTheme) {
    const QString saved = AppPaths(0);
    QTemporaryDir root;
    QDir().mkpath(root.path() + u"/bin"_s);
    setAppPath(0, root.path() + u"/bin/"_s);
    writePng(root.path() + u"/share/icons/hicolor/"_s, 16);
    writePng(root.path() + u"/share/icons/hicolor/"_s, 48);
    const QList<QSize> sizes = recviewIcon().availableSizes();
    EXPECT_TRUE(sizes.contains(QSize(16, 16)));
    EXPECT_TRUE(sizes.contains(QSize(48, 48)));

    // A build's icons beside the program come first.
    writePng(root.path() + u"/bin/icons/hicolor/"_s, 32);
    EXPECT_EQ(recviewIcon().availableSizes(), QList<QSize>{QSize(32, 32)});
    setAppPath(0, saved);
}

// Records what the desktop was asked to open.
class UrlRecorder : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

using HelpButtonTest = DesktopFixture;

TEST_F(HelpButtonTest, OpensTheInstalledManual) {
    start();
    const QString saved = AppPaths(0);
    QTemporaryDir root;
    QDir().mkpath(root.path() + u"/bin"_s);
    setAppPath(0, root.path() + u"/bin/"_s);
    const QString index = root.path() + u"/share/recview/help/index.html"_s;
    QDir().mkpath(root.path() + u"/share/recview/help"_s);
    QFile file(index);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    UrlRecorder desktop;
    QDesktopServices::setUrlHandler(u"file"_s, &desktop, "open");
    main().Toolbar1_ButtonClick(8);
    QDesktopServices::unsetUrlHandler(u"file"_s);
    setAppPath(0, saved);
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(index)});
}

} // namespace

#include "DesktopFilesTest.moc"
