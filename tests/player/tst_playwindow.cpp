// The window of the player, by its keys.

#include "operations/hostinterface.h"
#include "support/folders.h"
#include "support/plannedsound.h"
#include "support/testtable.h"
#include "window/gamepads.h"
#include "window/hud.h"
#include "window/keymap.h"
#include "window/playwindow.h"

#include <QFontMetrics>
#include <QLocalServer>
#include <QLocalSocket>
#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

using namespace Player;

class TestPlayWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void keysMoveBoth();
    void everyTickIsPainted();
    void whatIsHeldEndsWithTheFocus();
    void padsMoveBoth();
    void nameWithoutLetters();
    void stopAndStep();
    void savedFilesAreTaken_data();
    void savedFilesAreTaken();
    void editorTellsWhatPlays();
    void keymap_data();
    void keymap();

private:
    /// Until so many ticks are over.
    void wait(int ticks) const
    {
        const int until = m_window->state().tick + ticks;
        QTRY_VERIFY_WITH_TIMEOUT(m_window->state().tick >= until, 20000);
    }

    int place(int fighter) const { return m_window->state().fighters[fighter].x; }

    Operations::HostInterface m_host;
    std::unique_ptr<PlayWindow> m_window;
};

void TestPlayWindow::initTestCase()
{
    Operations::startHost(&m_host);
}

void TestPlayWindow::init()
{
    m_window.reset();
    auto match = std::make_unique<LoadedMatch>();
    QString error;
    QVERIFY(match->load({ZORV_SAMPLES "/arena", {"maren", "iwao"}, {}, false}, &error));
    m_window = std::make_unique<PlayWindow>(std::move(match));
    m_window->begin();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestPlayWindow::keysMoveBoth()
{
    const int first = place(0);
    const int second = place(1);
    QTest::keyPress(m_window.get(), Qt::Key_D);
    QTest::keyPress(m_window.get(), Qt::Key_Right);
    wait(10);
    QTest::keyRelease(m_window.get(), Qt::Key_D);
    QTest::keyRelease(m_window.get(), Qt::Key_Right);
    QVERIFY(place(0) > first);
    QVERIFY(place(1) > second);
    wait(20);
    QTest::keyPress(m_window.get(), Qt::Key_F);
    wait(3);
    QTest::keyRelease(m_window.get(), Qt::Key_F);
    QCOMPARE(m_window->state().fighters[0].action, Rules::Action::Move);
}

void TestPlayWindow::everyTickIsPainted()
{
    const int ticks = m_window->state().tick;
    const int painted = m_window->paintedTicks();
    wait(60);
    QCOMPARE(m_window->paintedTicks() - painted, m_window->state().tick - ticks);
    const QImage shown = m_window->screen()->grabWindow(m_window->winId()).toImage();
    QVERIFY(shown.pixel(shown.width() / 2, shown.height() - 30) != qRgb(0, 0, 0));
}

void TestPlayWindow::whatIsHeldEndsWithTheFocus()
{
    QTest::keyPress(m_window.get(), Qt::Key_A);
    wait(2);
    QFocusEvent away(QEvent::FocusOut);
    QCoreApplication::sendEvent(m_window.get(), &away);
    wait(20);
    QCOMPARE(m_window->state().fighters[0].action, Rules::Action::Stand);
}

/// A third pad waits until one goes.
void TestPlayWindow::padsMoveBoth()
{
    Gamepads* pads = m_window->gamepads();
    const int starts[] = {place(0), place(1)};
    for (const int device : {7, 3, 5, 7}) {
        pads->plugIn(device);
    }
    pads->setButton(5, Gamepads::Right, true);
    pads->setStick(7, Gamepads::Axis::Horizontal, 0.4);
    wait(5);
    QCOMPARE(place(0), starts[0]);
    pads->setStick(7, Gamepads::Axis::Horizontal, -0.9);
    pads->setButton(3, Gamepads::Right, true);
    wait(10);
    QVERIFY(place(0) < starts[0]);
    QVERIFY(place(1) > starts[1]);
    pads->pullOut(3);
    pads->setStick(7, Gamepads::Axis::Horizontal, 0);
    pads->plugIn(5);
    wait(20);
    QCOMPARE(m_window->state().fighters[1].action, Rules::Action::Stand);
    pads->setButton(5, Gamepads::A, true);
    pads->setButton(5, 99, true);
    wait(3);
    QCOMPARE(m_window->state().fighters[1].action, Rules::Action::Move);
}

/// The file has a name for the person, too.
void TestPlayWindow::nameWithoutLetters()
{
    const QString letters = QString::fromUtf8("\xf0\xa0\x80\x80");  // of a rare script
    if (QFontMetrics(QFont("sans-serif")).inFontUcs4(letters.toUcs4().first())) {
        QSKIP("a font of this computer has the letters");
    }
    Rules::FighterData data;
    data.name = "Ryn " + letters;
    data.mainFile = "/game/characters/ryn/zorvs_0";
    QCOMPARE(Hud().readableName(data), QString("ryn"));
    data.mainFile = "/game/characters/ryn/red.character";
    QCOMPARE(Hud().readableName(data), QString("red"));
    data.name = "Ryn";
    QCOMPARE(Hud().readableName(data), QString("Ryn"));
}

/// Every key of training is pressed; the meter and boxes are painted meanwhile.
void TestPlayWindow::stopAndStep()
{
    for (const int key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5,
                          Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9, Qt::Key_F10}) {
        QTest::keyClick(m_window.get(), Qt::Key(key));
        wait(2);
    }
    QCOMPARE(m_window->session().dummy().mode(), Dummy::Stand);
    QVERIFY(m_window->session().isEndless());
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    const int tick = m_window->state().tick;
    QTest::keyClick(m_window.get(), Qt::Key_PageDown);
    QCOMPARE(m_window->state().tick, tick + 1);
    QTest::keyClick(m_window.get(), Qt::Key_PageUp);
    QTest::keyClick(m_window.get(), Qt::Key_PageUp);
    QCOMPARE(m_window->state().tick, tick - 1);
    QTest::qWait(60);
    QCOMPARE(m_window->state().tick, tick - 1);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    wait(2);
}

void TestPlayWindow::savedFilesAreTaken_data()
{
    columns<bool>("isCopy");
    row("the game itself", false);
    row("what a copy was made of", true);
}

/// Places stay; what cannot be read leaves all as it is.
void TestPlayWindow::savedFilesAreTaken()
{
    const auto [isCopy] = fetched<bool>();
    m_window.reset();
    PlannedSound sound;
    QTemporaryDir folder;
    const QString game = folder.filePath("game");
    const QString original = game + "/characters/a/a.character";
    const QString copy = folder.filePath("run/zorvs_0");
    const auto textOf = [](const char* name) {
        return "[info]\nname = \"" + QByteArray(name) + "\"\n[constants]\nlife = 500\n";
    };
    writeFile(original, textOf("first"));
    writeFile(game + "/characters/b/b.character", textOf("other"));
    writeFile(copy, textOf("unsaved"));
    const MatchRequest request{
        game, {isCopy ? copy : original}, {}, false, isCopy ? original : QString()};
    auto match = std::make_unique<LoadedMatch>();
    QString error;
    QVERIFY(match->load(request, &error));
    m_window = std::make_unique<PlayWindow>(std::move(match), request);
    // An editor that is gone leaves all to the files.
    m_window->setEditor(folder.filePath("nobody"));
    m_window->begin();
    QTest::keyClick(m_window.get(), Qt::Key_F12);
    QCOMPARE(m_window->title(), QString(isCopy ? "unsaved against other" : "first against first"));
    QTest::keyPress(m_window.get(), Qt::Key_A);
    wait(10);
    QTest::keyRelease(m_window.get(), Qt::Key_A);
    wait(2);
    const int before = place(0);
    writeFile(original, textOf("second"));
    QTRY_VERIFY(m_window->title().startsWith("second against "));
    QCOMPARE(place(0), before);
    // What stands still is not heard either.
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    writeFile(original, textOf("third"));
    QTRY_VERIFY(m_window->title().startsWith("third against "));
    QCOMPARE(sound.output->now, Zorv::SoundOutput::Suspended);
    QTest::keyClick(m_window.get(), Qt::Key_Space);
    QVERIFY(QFile::remove(original));
    wait(60);
    QVERIFY(m_window->title().startsWith("third against "));
}

/// A character, a stage with both as they were, what is saved of it, another character; and the
/// files, once the editor is gone.
void TestPlayWindow::editorTellsWhatPlays()
{
    QTemporaryDir folder;
    const auto write = [&folder](const char* path, const char* name) {
        const QString file = folder.filePath(path);
        writeFile(file, "[info]\nname = \"" + QByteArray(name) + "\"\n");
        return file;
    };
    const QString a = write("game/characters/a/a.character", "a");
    const QString b = write("game/characters/b/b.character", "b");
    const QString stage = write("game/stages/s/s.stage", "s");
    MatchRequest request{folder.filePath("game"), {write("run/a", "a0")}, {}, false, a};
    auto match = std::make_unique<LoadedMatch>();
    QString error;
    QVERIFY(match->load(request, &error));
    m_window = std::make_unique<PlayWindow>(std::move(match), request);
    QLocalServer editor;
    QVERIFY(editor.listen(folder.filePath("editor")));
    m_window->setEditor(editor.fullServerName());
    m_window->begin();
    QTRY_VERIFY(editor.hasPendingConnections());
    QLocalSocket* const player = editor.nextPendingConnection();
    const auto play = [&](const QString& copy, const QString& original, bool isStage) {
        player->write(
            QStringLiteral("{\"play\":{\"copy\":\"%1\",\"original\":\"%2\",\"stage\":%3}}\n")
                .arg(copy, original, isStage ? "true" : "false")
                .toUtf8());
    };
    play(write("run/a1", "a1"), a, false);
    QTRY_COMPARE(m_window->title(), QString("a1 against b"));
    play(folder.filePath("run/none"), a, false);
    play(write("run/s1", "s1"), stage, true);
    QTRY_COMPARE(m_window->title(), QString("a against b"));
    play(write("run/b1", "b1"), b, false);
    QTRY_COMPARE(m_window->title(), QString("b1 against a"));
    play({}, {}, false);
    QTRY_COMPARE(m_window->title(), QString("b against a"));
    // It asks the editor, as long as that is there.
    write("game/characters/a/a.character", "a2");
    QTRY_VERIFY(player->canReadLine());
    QCOMPARE(player->readAll(), QByteArray("{\"changed\":true}\n"));
    QCOMPARE(m_window->title(), QString("b against a"));
    player->write("nonsense\n");
    QTRY_COMPARE(player->state(), QLocalSocket::UnconnectedState);
    write("game/characters/a/a.character", "a333");
    QTRY_COMPARE(m_window->title(), QString("b against a333"));
}

void TestPlayWindow::keymap_data()
{
    columns<QString, int, int, int>("text", "key", "player", "notes");
    row("usual", QString(), int(Qt::Key_F), 0, 0);
    row("another key", QString("2 light = Ins # x"), int(Qt::Key_Insert), 1, 0);
    row("taken from the other", QString("2 light = F"), int(Qt::Key_F), 1, 0);
    row("the one before has no meaning", QString("1 light = Z"), int(Qt::Key_F), -1, 0);
    row("unknown sign", QString("1 lite = Z"), int(Qt::Key_Z), -1, 1);
    row("unknown key", QString("1 light = Zz\n1 light = Ctrl+A"), int(Qt::Key_F), 0, 2);
    row("a button leaves its sign", QString("1 heavy = pad A\n2 light = pad Start"), int(Qt::Key_F),
        0, 0);
    row("unknown button", QString("1 heavy = pad Z\n1 heavy = pad"), int(Qt::Key_F), 0, 2);
    row("no player", QString("3 light = Z\n= Z\nlight"), int(Qt::Key_Z), -1, 3);
}

void TestPlayWindow::keymap()
{
    const auto [text, key, player, notes] = fetched<QString, int, int, int>();
    Keymap keys;
    keys.read(text);
    QCOMPARE(keys.notes().size(), notes);
    // What is written is read the same.
    Keymap again;
    again.read(keys.text());
    int found = -1;
    quint8 bit = 0;
    again.find(key, &found, &bit);
    QCOMPARE(found, player);
    QCOMPARE(again.text(), keys.text());
}

QTEST_MAIN(TestPlayWindow)
#include "tst_playwindow.moc"
