#include "base/AppPaths.h"
#include "base/HelpPages.h"
#include "base/LanguageTable.h"
#include "base/clsCommon.h"
#include "base/clsConst.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// An installation in a temporary folder: bin/ for the program, share/recview/ for its files.
class Installation : public ::testing::Test {
protected:
    void SetUp() override {
        saved_ = AppPaths(0);
        root_ = tmp_.path() + u"/"_s;
        QDir().mkpath(root_ + u"bin"_s);
        setAppPath(0, root_ + u"bin/"_s);
    }
    void TearDown() override { setAppPath(0, saved_); }

    void put(const QString& relative) {
        const QString path = root_ + relative;
        QDir().mkpath(path.section(u'/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("x");
    }
    QString shared(const QString& name) const { return root_ + u"share/recview/"_s + name; }

    QTemporaryDir tmp_;
    QString root_, saved_;
};

TEST_F(Installation, ShippedFilesBesideTheProgramComeFirstThenShare) {
    EXPECT_EQ(shippedFile(u"langVX.txt"_s), QString());
    put(u"share/recview/langVX.txt"_s);
    EXPECT_EQ(shippedFile(u"langVX.txt"_s), shared(u"langVX.txt"_s)); // no "bin/.." left in it
    put(u"bin/langVX.txt"_s);
    EXPECT_EQ(shippedFile(u"langVX.txt"_s), root_ + u"bin/langVX.txt"_s);
    // A folder of that name is not a file.
    QDir().mkpath(shared(u"help/index.html"_s));
    EXPECT_EQ(shippedFile(u"help/index.html"_s), QString());
}

TEST_F(Installation, HelpOpensTheWindowsPageOrTheIndex) {
    EXPECT_EQ(HelpPages::pagePath(u"dlgSelect"_s), QString()); // no manual at all
    put(u"share/recview/help/index.html"_s);
    EXPECT_EQ(HelpPages::pagePath(u"dlgSelect"_s), shared(u"help/index.html"_s));
    put(u"share/recview/help/opening.html"_s);
    put(u"share/recview/help/trend.html"_s);
    EXPECT_EQ(HelpPages::pagePath(u"dlgSelect"_s), shared(u"help/opening.html"_s));
    EXPECT_EQ(HelpPages::pagePath(u"frmYAxesStyle"_s), shared(u"help/trend.html"_s));
    EXPECT_EQ(HelpPages::pagePath(u"frmMain"_s), shared(u"help/index.html"_s));
    EXPECT_EQ(HelpPages::pagePath(u"noSuchWindow"_s), shared(u"help/index.html"_s));
    EXPECT_EQ(HelpPages::pagePath(QString()), shared(u"help/index.html"_s));
}

// Every page the table names is shipped with the program.
TEST(HelpPages, EveryWindowPageIsInTheManual) {
    for (const char* window : {"frmMain", "dlgSelect", "frmScrollTime", "frmItiran", "ftpForm",
                               "frmAlarmSymbolSetting", "frmSearch", "frmEthernet"}) {
        const QString page = HelpPages::pageName(QString::fromLatin1(window));
        EXPECT_TRUE(QFile::exists(QStringLiteral(RECVIEW_SOURCE_DIR "/data/help/") + page))
            << window << " -> " << page.toStdString();
    }
}

// Records what the desktop was asked to open.
class UrlRecorder : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

TEST_F(Installation, ShowHelpOpensThePageExceptForChineseInGsMode) {
    put(u"share/recview/help/index.html"_s);
    put(u"share/recview/help/trend.html"_s);
    UrlRecorder desktop;
    QDesktopServices::setUrlHandler(u"file"_s, &desktop, "open");
    const QString table = QStringLiteral(RECVIEW_SOURCE_DIR "/data/langVX.txt");
    clsCommon common(clsConst::shared());

    loadLanguageTable(table, u"04"_s, false);
    ASSERT_EQ(ActiveLanguage(), kChinese);
    EXPECT_TRUE(common.ShowHelp(u"frmScrollTime"_s)); // Chinese, standard mode
    common.setOperationMode(34);
    EXPECT_FALSE(common.ShowHelp(u"frmScrollTime"_s)); // Chinese GS edition: no help
    loadLanguageTable(table, u"09"_s, false);
    EXPECT_TRUE(common.ShowHelp()); // English GS edition
    QDesktopServices::unsetUrlHandler(u"file"_s);

    ASSERT_EQ(desktop.opened.size(), 2);
    EXPECT_EQ(desktop.opened[0], QUrl::fromLocalFile(shared(u"help/trend.html"_s)));
    EXPECT_EQ(desktop.opened[1], QUrl::fromLocalFile(shared(u"help/index.html"_s)));
}

} // namespace

#include "ShippedFilesTest.moc"
