// The window and the player, each a program of its own, on one screen.

#include "app/run/runcommands.h"
#include "family/project/familyenginemodel.h"
#include "family/project/familyparentproject.h"
#include "otherwindow.h"
#include "windowfixture.h"

#include <QAction>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QScreen>
#include <QTimer>

class TestRunWithPlayer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void playerFollowsTheWindow();
    void strangersAreTurnedAway();

private:
    /// Starts the player by its key, does something meanwhile, and ends it.
    template <class Steps>
    void run(Steps steps)
    {
        QTimer::singleShot(0, m_fixture->window.get(), [&] {
            steps();
            m_fixture->window->runCommands()->stop();
        });
        QTest::keyClick(m_fixture->edit(), Qt::Key_F5);
    }

    bool isShown(const QByteArray& title) { return m_player.find(title); }
    int leftOfRed() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<WindowFixture> m_fixture;
    QString m_animations;
    OtherWindow m_player;
};

/// Ryn is a red rectangle, and Oda is not seen.
void TestRunWithPlayer::init()
{
    m_fixture.reset();
    m_dir = std::make_unique<QTemporaryDir>();
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
        qputenv(name, m_dir->filePath("own").toLocal8Bit());
    }
    const QString game = QDir(m_dir->path()).canonicalPath() + "/game";
    const QString folder = game + "/characters/ryn/";
    m_animations = folder + "a.anim";
    QVERIFY(writeFile(game + "/characters/oda/oda.character", "[info]\nname = \"Oda\"\n"));
    QVERIFY(writeFile(folder + "ryn.character", "[info]\nname = \"Ryn\"\n[files]\n"
                                                "animations = \"a.anim\"\n"
                                                "sprites = \"pictures\"\n"));
    QVERIFY(writeFile(m_animations, "# Ryn\nanimation 10\nframe 0,0 loop\n"));
    QImage picture(20, 60, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(0, 0, 0), qRgb(255, 0, 0)});
    picture.fill(1);
    QVERIFY(QDir().mkpath(folder + "pictures"));
    QVERIFY(picture.save(folder + "pictures/0_0.png"));
    m_fixture = std::make_unique<WindowFixture>();
    QVERIFY(m_fixture->window->openPath(game));
    QVERIFY(m_fixture->window->openFile(folder + "ryn.character"));
    Family::FamilyEngineModel::instance()->setPlayerOffered(true);
}

/// Where the red begins in what is seen of the player; -1 without any.
int TestRunWithPlayer::leftOfRed() const
{
    const QImage shown = QGuiApplication::primaryScreen()
                             ->grabWindow(m_player.id())
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    for (int x = 0; x < shown.width(); ++x) {
        for (int y = 0; y < shown.height(); y += 4) {
            if (shown.pixel(x, y) == qRgb(255, 0, 0)) {
                return x;
            }
        }
    }
    return -1;
}

void TestRunWithPlayer::playerFollowsTheWindow()
{
    run([this] {
        QTRY_VERIFY_WITH_TIMEOUT(isShown("Ryn against Oda"), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(leftOfRed() >= 0, 10000);
        const int start = leftOfRed();
        m_player.press("d");
        QTRY_VERIFY_WITH_TIMEOUT(leftOfRed() > start + 30, 30000);
        m_player.release("d");

        // What is not saved plays, and nobody goes back to the start.
        QTRY_VERIFY(m_fixture->action("run")->isEnabled());
        m_fixture->goTo(1, 8);
        m_fixture->type("X");
        QTest::keyClick(m_fixture->edit(), Qt::Key_F5);
        QTRY_VERIFY_WITH_TIMEOUT(isShown("XRyn against Oda"), 10000);
        QVERIFY(m_fixture->document()->isModified());
        QTRY_VERIFY_WITH_TIMEOUT(leftOfRed() > start + 30, 10000);
        m_fixture->type("Y");
        QTest::keyClick(m_fixture->edit(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_fixture->document()->isModified());
        QTRY_VERIFY_WITH_TIMEOUT(isShown("XYRyn against Oda"), 10000);

        // The frame is a line of the game, and not of its copy.
        m_player.press("F12");
        m_player.release("F12");
        QTRY_COMPARE_WITH_TIMEOUT(m_fixture->document()->fileName(), m_animations, 10000);
        QCOMPARE(m_fixture->place().line, 2);
    });
    QCOMPARE(m_fixture->dialogs.count(), 0);
    QVERIFY(m_fixture->action("run")->isEnabled());
    QCOMPARE(
        QDir(m_dir->filePath("own/zorv/runs")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList());
}

/// Neither what another program says nor the end of the player is an order.
void TestRunWithPlayer::strangersAreTurnedAway()
{
    QString name;
    connect(m_fixture->window->session()->game(), &Zorv::ParentProject::engineStarted, this,
            [&name](const QString&, const QStringList& arguments) { name = arguments.last(); });
    run([&] {
        QTRY_VERIFY_WITH_TIMEOUT(isShown("Ryn against Oda"), 30000);
        QTRY_VERIFY(m_fixture->action("run")->isEnabled());
        QLocalSocket stranger;
        stranger.connectToServer(name);
        stranger.write("{\"show\":{\"file\":\"" + m_animations.toUtf8() + "\",\"line\":1}}\n");
        QTRY_COMPARE(stranger.state(), QLocalSocket::UnconnectedState);
        QVERIFY(m_fixture->document()->fileName() != m_animations);
        m_player.press("Escape");
        QTRY_VERIFY(!isShown("Ryn against Oda"));
    });
    QCOMPARE(m_fixture->dialogs.count(), 0);
    QVERIFY(!QFile::exists(name));
}

QTEST_MAIN(TestRunWithPlayer)
#include "tst_runwithplayer.moc"
