#include "app/stage/stagesight.h"
#include "stagefixture.h"
#include "support/gltest.h"

#include <QDockWidget>
#include <QScreen>

namespace {

const QString Sample = QStringLiteral(SAMPLES "/arena/characters/");

/// What is done in later turns of the event loop is done.
void settle()
{
    for (int turn = 0; turn < 5; ++turn) {
        QCoreApplication::processEvents();
    }
}

/// The window on the sample game.
class SampleWindow
{
public:
    explicit SampleWindow(const QString& settings) : fixture(settings) {}

    void open(const QString& file) const
    {
        QVERIFY(window()->openPath(QStringLiteral(SAMPLES "/arena")));
        QVERIFY(window()->openFile(Sample + file));
        QCoreApplication::processEvents();
    }

    void goTo(int line) const
    {
        fixture.goTo(line);
        settle();
    }

    App::MainWindow* window() const { return fixture.window.get(); }
    App::StageView* view() const { return window()->stage()->view(); }
    App::StageRenderer* stage() const { return window()->stage()->renderer(); }
    Zorv::RenderWidget* widget() const { return window()->stage()->workspace()->renderWidget(); }
    int lines() const { return fixture.edit()->displayedLineCount(); }

    WindowFixture fixture;
};

}  // namespace

/// The window on a small screen and on a large one, each at several scales: the build runs this on
/// screens of several sizes, and it runs itself for each scale.
class TestWindowFit : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void firstWindowFits();
    void textHasRoom();
    void emptyPartsAreLines();
    void jumpsBringFramesIntoSight();
    void restartKeepsTheView_data();
    void restartKeepsTheView();

private:
    QString settings() const { return m_folder->filePath(QStringLiteral("zorv.ini")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestWindowFit::firstWindowFits()
{
    const SampleWindow m(settings());
    const QRect screen = m.window()->screen()->availableGeometry();
    QVERIFY2(
        screen.contains(m.window()->frameGeometry()),
        qPrintable(QStringLiteral("%1 by %2").arg(m.window()->width()).arg(m.window()->height())));
    m.open(QStringLiteral("maren/attacks.anim"));
    m.goTo(20);
    QVERIFY(screen.contains(m.window()->frameGeometry()));
}

void TestWindowFit::textHasRoom()
{
    const SampleWindow m(settings());
    m.open(QStringLiteral("maren/attacks.anim"));
    m.goTo(20);
    QVERIFY(m.widget()->isVisible());
    QVERIFY(m.window()->messagePanel()->isVisible());
    const QString sizes =
        QStringLiteral("%1 lines, stage of %2").arg(m.lines()).arg(m.widget()->height());
    const QSize screen = m.window()->screen()->size();
    const bool isLarge = screen.width() >= 1024 && screen.height() >= 700;
    QVERIFY2(m.lines() >= (isLarge ? 18 : 3), qPrintable(sizes));
    QVERIFY2(m.widget()->height() >= (isLarge ? 60 : 40), qPrintable(sizes));
    // Messages come.
    const int before = m.lines();
    m.fixture.edit()->textCursor().insertText(QStringLiteral("nonsense\n"));
    QTRY_VERIFY(m.window()->messagePanel()->model()->rowCount() > 0);
    QTRY_VERIFY(m.lines() < before || !isLarge);
    m.fixture.document()->undo();
    QTRY_COMPARE(m.lines(), before);
}

void TestWindowFit::emptyPartsAreLines()
{
    TemporaryGame game;
    game.write("characters/ryn/basic.anim", "# nothing yet\r\n");
    const SampleWindow m(settings());
    QVERIFY(m.window()->openPath(game.root()));
    QVERIFY(m.window()->openFile(game.ryn()));
    QVERIFY(m.window()->openFile(game.animations()));
    const int line = 2 * m.fixture.edit()->fontMetrics().height();
    QVERIFY(m.view()->isVisible());
    QTRY_VERIFY(m.view()->height() < line);
    QTRY_VERIFY(m.window()->messagePanel()->height() < line);
    // The first frame brings the stage.
    m.fixture.edit()->textCursor().insertText(QStringLiteral("animation 1\nframe 0,0"));
    QTRY_VERIFY(m.widget() && m.widget()->isVisible());
    QVERIFY(m.view()->height() > line);
}

/// From animations far away, and from a view that shows nothing of what is jumped to.
void TestWindowFit::jumpsBringFramesIntoSight()
{
    const SampleWindow m(settings());
    m.open(QStringLiteral("maren/specials.anim"));
    const App::FamilyAnimationEditor* editor = m.window()->stage()->editor();
    const int lines = m.fixture.document()->blockCount();
    for (int line = 20; line < lines; line += 37) {
        m.goTo(line < lines / 2 ? lines - 5 : 20);
        m.stage()->setOrigin({-1000, 40});
        m.stage()->setZoomLevel(8);
        m.goTo(line);
        const auto isWhole = [&] {
            const Family::FrameNode* frame = editor->frame();
            const QRect area =
                frame ? App::StageSight::areaOf(*frame, m.window()->spritePanel()->sprites(),
                                                m.stage()->zoom())
                      : QRect();
            return !area.isEmpty() &&
                   (m.stage()->zoomLevel() == 0 ||
                    m.widget()->rect().contains(area.translated(m.stage()->origin())));
        };
        QTRY_VERIFY2(isWhole(), qPrintable(QString::number(line)));
    }
    settle();
    // A detail that the person has chosen stays, from frame to frame of the animation.
    m.stage()->setZoomLevel(11);
    m.stage()->setOrigin({0, 0});
    m.fixture.action("anim_next_frame")->trigger();
    settle();
    QCOMPARE(m.stage()->origin(), QPoint());
    QCOMPARE(int(m.stage()->zoomLevel()), 11);
}

void TestWindowFit::restartKeepsTheView_data()
{
    QTest::addColumn<bool>("isLater");
    QTest::newRow("the same size at once") << false;
    QTest::newRow("first another size, as maximised windows have") << true;
}

void TestWindowFit::restartKeepsTheView()
{
    QFETCH(bool, isLater);
    QPoint origin;
    QSize size;
    QSize stage;
    {
        const SampleWindow m(settings());
        m.open(QStringLiteral("maren/attacks.anim"));
        m.goTo(20);
        m.stage()->setZoomLevel(4);
        origin = QPoint(11, 7) + m.widget()->rect().center();
        m.stage()->setOrigin(origin);
        size = m.window()->size();
        stage = m.widget()->size();
        m.window()->close();
    }
    const SampleWindow m(settings());
    if (isLater) {
        m.window()->resize(size - QSize(90, 70));
    }
    m.window()->restoreWork({});
    settle();
    QVERIFY(m.widget()->isVisible());
    m.window()->resize(size);
    QTRY_COMPARE(m.window()->size(), size);
    // Panels may have taken other parts of another size.
    const QSize now = m.widget()->size();
    QCOMPARE(m.stage()->origin().x(), qRound(origin.x() * now.width() / double(stage.width())));
    QCOMPARE(m.stage()->origin().y(), qRound(origin.y() * now.height() / double(stage.height())));
    QVERIFY(isLater || now == stage);
    QCOMPARE(int(m.stage()->zoomLevel()), 4);
}

ZORV_GL_TEST_MAIN_AT_SCALES(TestWindowFit, "1", "1.5", "2")

#include "tst_windowfit.moc"
