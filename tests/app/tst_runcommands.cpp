#include "app/run/outputpanel.h"
#include "app/run/runcommands.h"
#include "family/project/familyenginemodel.h"
#include "family/project/familyparentproject.h"
#include "family/project/gameprogram.h"
#include "operations/agreements.h"
#include "support/testtable.h"
#include "windowfixture.h"

#include <zorv/core/run/temporarycopies.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <QToolButton>

using App::OutputPanel;
using App::OutputText;

class TestRunCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void outputIsShownAsText_data();
    void outputIsShownAsText();
    void piecesMakeTheSameText();
    void panelKeepsTheLastLines();
    void unsavedWorkRuns();
    void programOfTheGameIsAskedAbout();
    void floodLeavesTheWindowAlive_data();
    void floodLeavesTheWindowAlive();
    void engineIsEnded();
    void secondRunIsRefused();
    void closingEndsTheEngineFirst_data();
    void closingEndsTheEngineFirst();
    void everythingMayCloseMeanwhile();
    void leftoversAreOffered();

private:
    void makeEngine(const QByteArray& script, bool isAgreed = true);
    QString recorded(const char* name) const;
    OutputPanel* panel() const { return m_fixture->window->runCommands()->panel(); }
    QStringList copiesInGame() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestRunCommands::init()
{
    m_fixture.reset();
    m_dir = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TemporaryGame>();
    qputenv("RECORD", m_dir->path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", m_dir->path().toLocal8Bit());
}

/// The game's own engine is a script, which the person trusts.
void TestRunCommands::makeEngine(const QByteArray& script, bool isAgreed)
{
    m_game->write("zorv-player", "#!/bin/sh\n" + script);
    QFile::setPermissions(m_game->path("zorv-player"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_fixture = std::make_unique<WindowFixture>(m_dir->filePath("settings.ini"));
    m_fixture->open(*m_game, m_game->ryn());
    QVERIFY(!isAgreed ||
            Operations::agreeTo(Family::GameProgram(m_game->root()), m_fixture->settings));
}

QString TestRunCommands::recorded(const char* name) const
{
    QFile file(m_dir->filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList TestRunCommands::copiesInGame() const
{
    return QDir(m_game->path("characters")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

void TestRunCommands::outputIsShownAsText_data()
{
    columns<QByteArray, QString>("bytes", "text");
    row("lines", QByteArray("a\r\nb\n\tc"), QString("a\nb\n\tc"));
    row("beyond ASCII", QByteArray("\xc3\xa4\xe2\x82\xac\xf0\x9f\x99\x82"),
        QString::fromUtf8("\xc3\xa4\xe2\x82\xac\xf0\x9f\x99\x82"));
    row("no UTF-8", QByteArray("a\xe4z\xc3(\x80\xff"), QString("a\\xE4z\\xC3(\\x80\\xFF"));
    row("too long", QByteArray("\xc0\xaf\xe0\x80\xaf"), QString("\\xC0\\xAF\\xE0\\x80\\xAF"));
    row("half a pair", QByteArray("\xed\xa0\x80"), QString("\\xED\\xA0\\x80"));
    row("cut", QByteArray("a\xe2\x82"), QString("a\\xE2\\x82"));
    row("controls", QByteArray("\x1b[2J\a\bx\ry\x7f", 10), QString("^[[2J^G^Hx^My^?"));
    row("direction",
        QByteArray("\xe2\x80\xae"
                   "abc\xe2\x80\xa9"),
        QString("<U+202E>abc<U+2029>"));
    row("long line", QByteArray(OutputText::MaxLine + 1, 'x'),
        QString(OutputText::MaxLine, 'x') + "\nx");
}

void TestRunCommands::outputIsShownAsText()
{
    const auto [bytes, text] = fetched<QByteArray, QString>();
    OutputText decoder;
    const QString whole = decoder.decode(bytes);
    QCOMPARE(whole + decoder.finish(), text);
}

void TestRunCommands::piecesMakeTheSameText()
{
    QByteArray bytes;
    for (int i = 0; i < 2000; ++i) {
        bytes += char((i * 37) ^ (i >> 3));
    }
    bytes += QString::fromUtf8("\xc3\xa4\xe2\x82\xac\xf0\x9f\x99\x82\r\n").repeated(20).toUtf8();
    OutputText whole;
    const QString expected = whole.decode(bytes) + QString();
    for (int size : {1, 2, 3, 7}) {
        OutputText decoder;
        QString text;
        for (int at = 0; at < bytes.size(); at += size) {
            text += decoder.decode(bytes.mid(at, size));
        }
        QCOMPARE(text, expected);
    }
}

void TestRunCommands::panelKeepsTheLastLines()
{
    OutputPanel panel;
    for (int i = 0; i < 60000; ++i) {
        panel.add("line " + QByteArray::number(i) + " of many that the engine prints\n");
    }
    panel.addNote("the end");
    QTRY_VERIFY(panel.text().endsWith("the end\n"));
    const QStringList lines = panel.text().split('\n');
    QVERIFY(lines.size() <= OutputPanel::MaxLines);
    QCOMPARE(lines.at(lines.size() - 3), QString("line 59999 of many that the engine prints"));
    panel.clear();
    panel.add(QByteArray(3 * OutputPanel::MaxCharacters, 'x') + "\nlast\n");
    QTRY_VERIFY(panel.text().endsWith("last\n"));
    QVERIFY(panel.text().size() <= OutputPanel::MaxCharacters);
}

void TestRunCommands::unsavedWorkRuns()
{
    makeEngine(
        "printf '%s\\n' \"$@\" > \"$RECORD/args\"\npwd > \"$RECORD/folder\"\n"
        "cat \"$2\" > \"$RECORD/main\"\ncat \"$(dirname \"$2\")/moves.code\" > \"$RECORD/moves\"\n"
        "echo hello\necho trouble >&2\nexit 3\n");
    m_fixture->type("unsaved ");
    m_fixture->action("run")->trigger();
    QCOMPARE(recorded("args").section('\n', 0, 0), QString("--character"));
    QCOMPARE(QDir(recorded("folder").trimmed()).canonicalPath(), m_game->root());
    QVERIFY(recorded("main").startsWith("unsaved [info]"));
    QVERIFY(recorded("moves").startsWith("[move jab]"));
    QVERIFY(m_game->read("characters/ryn/ryn.character").startsWith("[info]"));
    QVERIFY(m_fixture->document()->isModified());
    QCOMPARE(copiesInGame(), QStringList({"oda", "ryn"}));
    QTRY_VERIFY(panel()->text().contains("code 3"));
    QVERIFY(panel()->isVisible());
    QVERIFY(panel()->text().contains("hello\n"));
    QVERIFY(panel()->text().contains("trouble\n"));
    QVERIFY(panel()->text().indexOf("Started") < panel()->text().indexOf("hello"));
    QCOMPARE(m_fixture->dialogs.count(), 0);

    for (QToolButton* button : panel()->findChildren<QToolButton*>()) {
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(QGuiApplication::clipboard()->text().contains("trouble\n"));
    QVERIFY(panel()->text().isEmpty());
}

void TestRunCommands::programOfTheGameIsAskedAbout()
{
    makeEngine("echo >> \"$RECORD/runs\"\n", false);
    PlannedDialogs& dialogs = m_fixture->dialogs;
    const auto run = [&](PlannedDialogs::Button answer) {
        dialogs.shown.clear();
        dialogs.buttonAnswers = {answer};
        m_fixture->action("run")->trigger();
        return recorded("runs").size();
    };
    QCOMPARE(run(PlannedDialogs::No), 0);
    QCOMPARE(dialogs.count(), 1);
    QCOMPARE(int(dialogs.shown.first().defaultButton), int(PlannedDialogs::No));
    QVERIFY(dialogs.texts("question").first().contains(m_game->path("zorv-player")));
    // What the person has chosen is started in its place.
    const QString mine = m_dir->filePath("mine");
    QVERIFY(QFile::copy(m_game->path("zorv-player"), mine));
    Family::FamilyEngineModel::instance()->setEngines({{"mine\nmore", mine, "%0", {}}});
    QCOMPARE(run(PlannedDialogs::Cancel), 0);
    QCOMPARE(run(PlannedDialogs::No), 1);
    QVERIFY(dialogs.texts("question").first().contains("'mine^Jmore'"));
    Family::FamilyEngineModel::instance()->setEngines({});
    QCOMPARE(run(PlannedDialogs::Yes), 2);
    QCOMPARE(run(PlannedDialogs::No), 3);
    QCOMPARE(dialogs.count(), 0);
    m_game->write("zorv-player", "#!/bin/sh\necho changed >> \"$RECORD/runs\"\n");
    QCOMPARE(run(PlannedDialogs::No), 3);
    QVERIFY(dialogs.texts("question").first().contains("changed"));
}

void TestRunCommands::floodLeavesTheWindowAlive_data()
{
    QTest::addColumn<QByteArray>("source");
    row("lines", QByteArray("yes 'a line that is printed again and again'"));
    row("short lines", QByteArray("yes ''"));
    row("no lines", QByteArray("cat /dev/zero"));
}

void TestRunCommands::floodLeavesTheWindowAlive()
{
    QFETCH(QByteArray, source);
    makeEngine(source + " | head -c 100000000\necho last\n");
    QElapsedTimer clock;
    qint64 longest = 0;
    QTimer beat;
    connect(&beat, &QTimer::timeout, this, [&] { longest = std::max(longest, clock.restart()); });
    clock.start();
    beat.start(0);
    m_fixture->action("run")->trigger();
    QTRY_VERIFY(panel()->text().contains("code 0"));
    QVERIFY(panel()->text().contains("last\n"));
    qInfo("longest stall: %lld ms", longest);
}

void TestRunCommands::engineIsEnded()
{
    makeEngine("trap '' TERM\necho started\nwhile :; do sleep 0.1; done\n");
    QAction* stop = m_fixture->action("stop_engine");
    QVERIFY(!stop->isEnabled());
    QTimer::singleShot(300, stop, [this, stop] {
        QVERIFY(stop->isEnabled());
        QVERIFY(!m_fixture->action("run")->isEnabled());
        stop->trigger();
    });
    m_fixture->action("run")->trigger();
    QTRY_VERIFY(panel()->text().contains("Ended by you"));
    QTRY_VERIFY(m_fixture->action("run")->isEnabled());
    QVERIFY(!stop->isEnabled());
    QCOMPARE(copiesInGame(), QStringList({"oda", "ryn"}));
}

void TestRunCommands::secondRunIsRefused()
{
    makeEngine("sleep 0.5\n");
    QTimer::singleShot(200, this, [this] { m_fixture->window->runCommands()->run(); });
    m_fixture->action("run")->trigger();
    QCOMPARE(m_fixture->dialogs.count("warning"), 1);
    QTRY_VERIFY(panel()->text().contains("code 0"));
    QVERIFY(!m_fixture->window->runCommands()->isRunning());
}

void TestRunCommands::closingEndsTheEngineFirst_data()
{
    columns<QString, int>("what", "answer");
    row("window", "window", 0);
    row("window, given up", "window", -1);
    row("folder", "folder", 0);
    row("other game", "other", 0);
}

void TestRunCommands::closingEndsTheEngineFirst()
{
    QFETCH(QString, what);
    QFETCH(int, answer);
    makeEngine(answer == 0 ? "exec sleep 100\n" : "sleep 1\n");
    const TemporaryGame other;
    App::MainWindow* window = m_fixture->window.get();
    m_fixture->dialogs.choiceAnswers = {answer};
    QTimer::singleShot(200, window, [&] {
        if (what == "window") {
            QVERIFY(!window->close());
        } else if (what == "folder") {
            m_fixture->action("close_folder")->trigger();
        } else {
            window->openPath(other.root());
        }
        QVERIFY(window->session()->game());
        QVERIFY(window->isVisible());
    });
    m_fixture->action("run")->trigger();
    QCOMPARE(m_fixture->dialogs.count("choose"), 1);
    QCOMPARE(copiesInGame(), QStringList({"oda", "ryn"}));
    if (what == "window") {
        QTRY_COMPARE(window->isVisible(), answer != 0);
    } else if (what == "folder") {
        QTRY_VERIFY(!window->session()->game());
    } else {
        QTRY_COMPARE(window->session()->folder(), other.root() + '/');
    }
}

void TestRunCommands::everythingMayCloseMeanwhile()
{
    makeEngine("sleep 0.5\n");
    QTimer::singleShot(200, this, [this] { m_fixture->window->session()->closeFolder(); });
    m_fixture->action("run")->trigger();
    QVERIFY(!m_fixture->window->session()->game());
    QVERIFY(!m_fixture->window->runCommands()->isRunning());
    QTRY_COMPARE(copiesInGame(), QStringList({"oda", "ryn"}));
    m_fixture->open(*m_game, m_game->ryn());
    m_fixture->action("run")->trigger();
    QTRY_VERIFY(panel()->text().contains("code 0"));
}

void TestRunCommands::leftoversAreOffered()
{
    makeEngine("");
    const QString copy = m_game->path("characters/zorvs_0/");
    const QStringList arguments{"leave", m_game->root(), copy};
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), arguments), 1);
    QVERIFY(QFile::exists(copy + "copy.code"));
    App::RunCommands::offerLeftovers();
    QVERIFY(m_fixture->dialogs.texts("choose").first().contains(copy));
    QVERIFY(QFile::exists(copy + "copy.code"));
    m_fixture->dialogs.choiceAnswers = {0};
    App::RunCommands::offerLeftovers();
    QCOMPARE(copiesInGame(), QStringList({"oda", "ryn"}));
    App::RunCommands::offerLeftovers();
    QCOMPARE(m_fixture->dialogs.count(), 2);
}

/// As another process, which dies with copies beside an engine.
static int leaveCopies(const QString& folder, const QString& copy)
{
    Zorv::TemporaryCopies copies(folder + '/');
    if (!copies.addFolder(copy)) {
        return 2;
    }
    QFile file(copy + "copy.code");
    if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1) {
        return 3;
    }
    file.close();
    _Exit(1);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "leave" && arguments.size() == 4) {
        return leaveCopies(arguments[2], arguments[3]);
    }
    TestRunCommands test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_runcommands.moc"
