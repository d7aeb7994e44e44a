// A second program started while this one runs hands its files over and ends at once.
#include "DesktopFixture.h"

#include "app/SubMain.h"

#include "app/ClickFile.h"
#include "app/widgets/frmMain.h"
#include "base/AppPaths.h"
#include "recording/ViewState.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace {

class SecondInstanceTest : public DesktopFixture {
protected:
    // Runs the real program as a second instance: same user folders, same runtime folder.
    int runSecond(const QStringList& args) {
        const QString program =
            QCoreApplication::applicationDirPath() + QStringLiteral("/../recview");
        EXPECT_TRUE(QFileInfo(program).isExecutable()) << "build the recview target first";
        QProcess second;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        second.setProcessEnvironment(env);
        second.start(program, args);
        // The program ends by itself; the events of this one keep running meanwhile.
        bool ended = false;
        waitFor([&] { return ended = second.state() == QProcess::NotRunning; }, 20000);
        if (!ended) second.kill();
        EXPECT_TRUE(ended);
        EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
        return second.exitCode();
    }

    // The first instance listens where the program looks: the user's runtime folder.
    void startFirst(const QStringList& files = {}) {
        host = std::make_unique<DesktopStartup>(files);
        ASSERT_EQ(SubMain(*host), StartResult::Started);
    }
};

TEST_F(SecondInstanceTest, FilesOfASecondStartOpenInTheFirst) {
    startFirst({vxf(QStringLiteral("first.vxf"))});
    ASSERT_EQ(main().openViewCount(), 1);
    const QString file = vxf(QStringLiteral("double clicked.vxf"), 0, 10, 33);
    EXPECT_EQ(runSecond({file}), 0);
    ASSERT_TRUE(waitFor([&] { return main().ViewForm(2) != nullptr && views(2).PointCount > 0; }));
    EXPECT_EQ(views(2).FileName.value(0), file);
    EXPECT_EQ(views(2).PointCount, 33);
    EXPECT_FALSE(QFile::exists(clickFilePath()));
}

TEST_F(SecondInstanceTest, ASecondStartWithoutFilesEndsSilently) {
    startFirst();
    EXPECT_EQ(runSecond({}), 0);
    processEventsFor(2 * frmMain::kDoubleClickPollMs);
    EXPECT_FALSE(QFile::exists(clickFilePath()));
    EXPECT_EQ(main().openViewCount(), 0);
}

} // namespace
