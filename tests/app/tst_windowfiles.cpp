#include "app/assets/spritepanel.h"
#include "app/changes/comparedialog.h"
#include "app/sounds/soundpanel.h"
#include "support/testsounds.h"
#include "support/testtable.h"
#include "windowfixture.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/code/codecs/textcodecs.h>
#include <zorv/editors/framework/rowlist.h>
#include <zorv/media/soundsample.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextBlock>
#include <QThread>
#include <QTimer>
#include <QToolButton>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

using App::MainWindow;
using Zorv::Dialogs;
using Zorv::TextCodecs;

namespace {

enum Answer { GiveUp = -1, ReadAgain = 0, KeepText = 1 };

// Of a file that another program has changed.
enum Overtaken { KeepChanges = 0, WriteOver = 0, ReadFile = 1, CompareFile = 2 };

}  // namespace

/// What the window does with files on disk: changes from outside, encodings,
/// line ends.
class TestWindowFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void asksWhenAFileChanges_data();
    void asksWhenAFileChanges();
    void asksBeforeWritingOverAFile_data();
    void asksBeforeWritingOverAFile();
    void asksAboutAFileThatWentAway_data();
    void asksAboutAFileThatWentAway();
    void showsUnsavedSpritesAndSounds();
    void asksBeforeWritingOverWhatCannotBeRead();
    void asksAboutWhatIsWrittenDuringASave();
    void staysQuietAboutItsOwnSave();
    void showsAFileThatWentAway();
    void changesTheEncoding_data();
    void changesTheEncoding();
    void tellsALackOfTheEncoding();
    void offersAFaithfulEncoding();
    void showsThatLineEndsWillChange();

private:
    void openLegacy();
    MainWindow* window() const { return m->window.get(); }

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestWindowFiles::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m = std::make_unique<WindowFixture>();
}

void TestWindowFiles::asksWhenAFileChanges_data()
{
    columns<bool, bool, bool>("byRename", "isModified", "isReloaded");
    for (const bool isReloaded : {true, false}) {
        const char* answer = isReloaded ? "reload" : "keep";
        QTest::addRow("written, %s", answer) << false << true << isReloaded;
        QTest::addRow("renamed, %s", answer) << true << true << isReloaded;
        QTest::addRow("without changes here, %s", answer) << false << false << isReloaded;
    }
}

void TestWindowFiles::asksWhenAFileChanges()
{
    QFETCH(bool, byRename);
    QFETCH(bool, isModified);
    QFETCH(bool, isReloaded);
    QByteArray text = m_game->read("characters/ryn/basic.anim");
    for (int i = 0; i < 200; ++i) {
        text += "# line\r\n";
    }
    m_game->write("characters/ryn/basic.anim", text);
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->goTo(120, 2);
    m->type(isModified ? QStringLiteral("mine") : QString());
    const App::TextPlace before = m->place();
    const auto change = [&](const QByteArray& line) {
        text += line;
        m_game->write(byRename ? "characters/ryn/new.tmp" : "characters/ryn/basic.anim", text);
        if (byRename) {
            QVERIFY(rename(qPrintable(m_game->path("characters/ryn/new.tmp")),
                           qPrintable(m_game->animations())) == 0);
        }
    };
    m->dialogs.buttonAnswers = {isReloaded || isModified ? Dialogs::Yes : Dialogs::No,
                                Dialogs::Yes};
    m->dialogs.choiceAnswers = {isReloaded ? ReadFile : KeepChanges, ReadFile};
    change("# theirs\r\n");
    QTRY_COMPARE(m->dialogs.count(), 1);
    QCOMPARE(m->dialogs.shown[0].kind, QString(isModified ? "choose" : "question"));
    QCOMPARE(m->document()->text().contains(QLatin1String("theirs")), isReloaded);
    QCOMPARE(m->document()->text().contains(QLatin1String("mine")), isModified && !isReloaded);
    QCOMPARE(m->document()->isModified(), isModified && !isReloaded);
    QTest::qWait(20);
    QCOMPARE(m->place().line, before.line);
    QCOMPARE(m->place().scroll, before.scroll);
    QVERIFY(isReloaded || m->place().column == before.column);
    // And again, whatever the answer was.
    change("# again\r\n");
    QTRY_COMPARE(m->dialogs.count(), 2);
    QTRY_VERIFY(m->document()->text().contains(QLatin1String("again")));
    QTest::qWait(20);
    QCOMPARE(m->place().line, before.line);
}

void TestWindowFiles::asksBeforeWritingOverAFile_data()
{
    columns<bool, QList<int>, bool, bool>("wasModified", "answers", "isWritten", "isMine");
    for (const bool wasModified : {true, false}) {
        const char* when = wasModified ? "before" : "after";
        QTest::addRow("changed here %s, write", when)
            << wasModified << QList<int>{WriteOver} << true << true;
        QTest::addRow("changed here %s, read", when)
            << wasModified << QList<int>{ReadFile} << false << false;
        QTest::addRow("changed here %s, give up", when)
            << wasModified << QList<int>{GiveUp} << false << true;
        QTest::addRow("changed here %s, compare", when)
            << wasModified << QList<int>{CompareFile, WriteOver} << true << true;
    }
}

// Once the person has kept what is open here, saving does not lose the rest without a word.
void TestWindowFiles::asksBeforeWritingOverAFile()
{
    const auto [wasModified, answers, isWritten, isMine] = fetched<bool, QList<int>, bool, bool>();
    const char* const name = "characters/ryn/ryn.character";
    m->open(*m_game, m_game->ryn());
    const auto typeMine = [this] { m->type(QStringLiteral("#mine ")); };
    wasModified ? typeMine() : void();
    m->dialogs.choiceAnswers = {KeepChanges};
    m_game->write(name, "# theirs\r\n");
    QTRY_COMPARE(m->dialogs.count(), 1);
    wasModified ? void() : typeMine();
    QString compared;
    QTimer closing;
    connect(&closing, &QTimer::timeout, [&compared] {
        if (auto* dialog = qobject_cast<App::CompareDialog*>(QApplication::activeModalWidget())) {
            compared = dialog->findChild<QPlainTextEdit*>()->toPlainText();
            dialog->reject();
        }
    });
    closing.start(5);
    m->dialogs.choiceAnswers = answers;
    m->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m->dialogs.count(), 1 + answers.size());
    QCOMPARE(m_game->read(name).startsWith("#mine [info]"), isWritten);
    QCOMPARE(m_game->read(name) == "# theirs\r\n", !isWritten);
    QCOMPARE(m->document()->text().contains(QLatin1String("mine")), isMine);
    QCOMPARE(m->document()->isModified(), isMine && !isWritten);
    QCOMPARE(compared.contains(QLatin1String("-# theirs")), answers.contains(CompareFile));
    QCOMPARE(compared.contains(QLatin1String("+#mine")), answers.contains(CompareFile));
    // What was settled is not asked again.
    if (!m->document()->isModified()) {
        window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window()));
        m->type(QStringLiteral("#more "));
        m->press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m->dialogs.count(), 1 + answers.size());
        QVERIFY(m_game->read(name).contains("#more"));
    }
}

void TestWindowFiles::asksAboutAFileThatWentAway_data()
{
    columns<QString, int>("what", "answer");
    for (const char* what : {"close_text", "close_project", "close_folder", "quit"}) {
        QTest::addRow("%s, save", what) << what << 0;
        QTest::addRow("%s, let go", what) << what << 1;
        QTest::addRow("%s, give up", what) << what << int(GiveUp);
    }
}

void TestWindowFiles::asksAboutAFileThatWentAway()
{
    const auto [what, answer] = fetched<QString, int>();
    const char* const name = "characters/ryn/basic.anim";
    m->open(*m_game, m_game->ryn(), m_game->animations());
    const QByteArray before = m_game->read(name);
    const QTabBar* bar = window()->tabs()->bar();
    const auto treeText = [this] {
        return window()->gameTree()->indexOf(m_game->animations()).data().toString();
    };
    // Moved to where nothing looks for it.
    QVERIFY(QFile::rename(m_game->animations(), m_game->path("elsewhere.anim")));
    QTRY_COMPARE(bar->tabText(bar->currentIndex()), QStringLiteral("basic.anim (missing)"));
    QCOMPARE(treeText(), QStringLiteral("basic.anim (missing)"));
    QTRY_COMPARE(window()->status()->stateText(), QStringLiteral("Missing on disk"));
    m->dialogs.choiceAnswers = {answer};
    m->action(qPrintable(what))->trigger();
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 1);
    QVERIFY(m->dialogs.shown.last().text.contains(QLatin1String("no longer on the disk")));
    QCOMPARE(m_game->read(name), answer == 0 ? before : QByteArray("(not there)"));
    const App::GameSession* session = window()->session();
    const bool isOpen = what == QLatin1String("close_text")      ? bar->count() == 2
                        : what == QLatin1String("close_project") ? !session->projects().isEmpty()
                        : what == QLatin1String("close_folder")  ? session->game() != nullptr
                                                                 : window()->isVisible();
    QCOMPARE(isOpen, answer == GiveUp);
    if (answer == GiveUp) {
        QVERIFY(QFile::rename(m_game->path("elsewhere.anim"), m_game->animations()));
        QTRY_COMPARE(bar->tabText(bar->currentIndex()), QStringLiteral("basic.anim"));
        QCOMPARE(treeText(), QStringLiteral("basic.anim"));
    }
}

void TestWindowFiles::showsUnsavedSpritesAndSounds()
{
    m_game->addAssets();
    m->open(*m_game, m_game->ryn());
    const Family::FamilyProject* project = window()->session()->projects().first();
    const auto tree = [this](const char* name) {
        const QString path = m_game->path(QString("characters/ryn/") + name);
        return window()->gameTree()->indexOf(path).data().toString();
    };
    const auto compare = [&](bool areSprites, bool areSounds) {
        QTRY_COMPARE(window()->isWindowModified(), areSprites || areSounds);
        QTRY_COMPARE(tree("a.sprites"), QString(areSprites ? "a.sprites*" : "a.sprites"));
        QTRY_COMPARE(tree("a.sounds"), QString(areSounds ? "a.sounds*" : "a.sounds"));
        QTRY_COMPARE(window()->findChild<QDockWidget*>("sprites")->isWindowModified(), areSprites);
        QTRY_COMPARE(window()->findChild<QDockWidget*>("sounds")->isWindowModified(), areSounds);
        QTRY_COMPARE(window()->status()->stateText(), QString("Saved") +
                                                          (areSprites ? ", sprites modified" : "") +
                                                          (areSounds ? ", sounds modified" : ""));
    };
    compare(false, false);
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    project->sprites()->insertSprite(0, {1, 1}, {}, image);
    compare(true, false);
    project->sounds()->add(0, {}, soundOf(QByteArray(20, 'x')));
    compare(true, true);
    project->sprites()->undo();
    compare(false, true);
    m->action("save_all")->trigger();
    compare(false, false);
    project->sprites()->redo();
    compare(true, false);
    m->action("close_project")->trigger();
    QVERIFY(m->dialogs.shown.last().text.contains(QLatin1String("a.sprites")));
    QCOMPARE(window()->session()->projects().size(), 1);
}

// A file that cannot be read is not one without sprites.
void TestWindowFiles::asksBeforeWritingOverWhatCannotBeRead()
{
    m_game->addAssets();
    m->open(*m_game, m_game->ryn());
    Family::SpriteCollection* sprites = window()->session()->projects().first()->sprites();
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    sprites->insertSprite(0, {1, 1}, {}, image);
    sprites->removeSprites({0});
    m->dialogs.choiceAnswers = {KeepChanges};
    m_game->write("characters/ryn/a.sprites", "theirs");
    QTRY_COMPARE(m->dialogs.count(), 1);
    m->dialogs.choiceAnswers = {GiveUp};
    m->action("save_all")->trigger();
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 2);
    QCOMPARE(m_game->read("characters/ryn/a.sprites"), QByteArray("theirs"));
}

// A save waits for another program, and does not write over what that has written.
void TestWindowFiles::asksAboutWhatIsWrittenDuringASave()
{
    m->open(*m_game, m_game->ryn());
    m->type(QStringLiteral("#"));
    const QString folder = m_game->path("characters/ryn");
    const int handle = ::open(qPrintable(folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(::flock(handle, LOCK_EX), 0);
    std::thread other([&] {
        QThread::msleep(200);
        m_game->write("characters/ryn/new.tmp", "# theirs\r\n");
        rename(qPrintable(folder + "/new.tmp"), qPrintable(m_game->ryn()));
        ::close(handle);
    });
    m->press(Qt::Key_S, Qt::ControlModifier);
    other.join();
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 1);
    QCOMPARE(m_game->read("characters/ryn/ryn.character"), QByteArray("# theirs\r\n"));
    QVERIFY(m->document()->isModified());
    m->dialogs.choiceAnswers = {KeepChanges, WriteOver};
    QTRY_COMPARE(m->dialogs.count(QStringLiteral("choose")), 1);
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(m_game->read("characters/ryn/ryn.character").startsWith("#[info]"));
}

void TestWindowFiles::staysQuietAboutItsOwnSave()
{
    m->open(*m_game, m_game->ryn());
    m->type(QStringLiteral("#"));
    m->press(Qt::Key_S, Qt::ControlModifier);
    QTest::qWait(600);
    QCOMPARE(m->dialogs.count(), 0);
}

void TestWindowFiles::showsAFileThatWentAway()
{
    m_game->addAssets();
    m->open(*m_game, m_game->ryn());
    QCOMPARE(window()->status()->stateText(), QStringLiteral("Saved"));
    QVERIFY(QFile::remove(m_game->ryn()));
    QTRY_COMPARE(window()->status()->stateText(), QStringLiteral("Missing on disk"));
    // Nothing is lost: it can be saved again.
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(m_game->read("characters/ryn/ryn.character").startsWith("[info]\r\n"));
    QTRY_COMPARE(window()->status()->stateText(), QStringLiteral("Saved"));
    const QPair<QWidget*, QString> panels[] = {
        {window()->spritePanel()->list(), m_game->path("characters/ryn/a.sprites")},
        {window()->soundPanel()->list(), m_game->path("characters/ryn/a.sounds")}};
    for (const auto& [list, file] : panels) {
        list->parentWidget()->parentWidget()->raise();
        list->setFocus();
        QVERIFY(QFile::remove(file));
        QTRY_VERIFY(m->action("save")->isEnabled());
        m->action("save")->trigger();
        QVERIFY(QFile::exists(file));
    }
}

/// A file of Windows-1252 that is taken for UTF-8 or whatever else at first.
void TestWindowFiles::openLegacy()
{
    m_game->write("characters/oda/oda.character", "[info]\r\nname = \"caf\xC3\xA9\"\r\n");
    m->open(*m_game, m_game->oda());
    QCOMPARE(m->document()->codecName(), QStringLiteral("UTF-8"));
}

void TestWindowFiles::changesTheEncoding_data()
{
    columns<int, bool, QString, QString>("answer", "isModified", "codec", "text");
    row("read again", int(ReadAgain), false, "ISO-8859-1",
        QString::fromUtf8("\"caf\xC3\x83\xC2\xA9\""));
    row("keep", int(KeepText), false, "ISO-8859-1", QString::fromUtf8("\"caf\xC3\xA9\""));
    row("give up", int(GiveUp), false, "UTF-8", QString::fromUtf8("\"caf\xC3\xA9\""));
    row("keep unsaved", int(KeepText), true, "ISO-8859-1", QString::fromUtf8("\"caf\xC3\xA9\""));
    row("give up unsaved", int(GiveUp), true, "UTF-8", QString::fromUtf8("\"caf\xC3\xA9\""));
}

void TestWindowFiles::changesTheEncoding()
{
    const auto [answer, isModified, codec, text] = fetched<int, bool, QString, QString>();
    openLegacy();
    if (isModified) {
        m->type(QStringLiteral("# mine"));
        m->press(Qt::Key_Return);
    }
    m->dialogs.choiceAnswers = {TextCodecs::index("ISO-8859-1"), answer};
    auto* field = window()->findChild<QToolButton*>(QStringLiteral("encoding_field"));
    QVERIFY(field);
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 2);
    QVERIFY(m->dialogs.shown[0].choices.contains(QLatin1String("windows-1252")));
    QCOMPARE(m->dialogs.shown[1].text.contains(QLatin1String("lost")), isModified);
    QCOMPARE(m->document()->codecName(), codec);
    QCOMPARE(window()->status()->encodingText(), QStringLiteral("Encoding: ") + codec);
    QVERIFY(m->document()->text().contains(text));
    QCOMPARE(m->document()->text().startsWith(QLatin1String("# mine")), isModified);
    if (answer == KeepText) {
        m->press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(m_game->read("characters/oda/oda.character").contains("\"caf\xE9\""));
    }
}

void TestWindowFiles::tellsALackOfTheEncoding()
{
    openLegacy();
    m->goTo(1, 8);
    m->edit()->insertPlainText(QString(QChar(0x96EA)));
    m->dialogs.choiceAnswers = {TextCodecs::index("ISO-8859-1"), KeepText, GiveUp, 0};
    m->action("encoding")->trigger();
    QCOMPARE(m->dialogs.count(QStringLiteral("warning")), 1);
    QVERIFY(m->dialogs.shown.last().text.contains(QLatin1String("line 2")));
    // Told again before anything is written; given up, then saved as UTF-8.
    const QByteArray before = m_game->read("characters/oda/oda.character");
    m->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_game->read("characters/oda/oda.character"), before);
    QVERIFY(m->document()->isModified());
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(m_game->read("characters/oda/oda.character").contains("\xE9\x9B\xAA"));
    QCOMPARE(window()->status()->encodingText(), QStringLiteral("Encoding: UTF-8"));
}

void TestWindowFiles::offersAFaithfulEncoding()
{
    // Mostly UTF-8 with a byte that is none.
    m_game->write("characters/oda/oda.character",
                  "[info]\r\nname = \"\xE9\x9B\xAA\xE9\x9B\xAA\xE9\x9B\xAA\xFF\"\r\n");
    m->dialogs.choiceAnswers = {0};
    m->open(*m_game, m_game->oda());
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 1);
    QVERIFY(m->document()->isFaithful());
    QVERIFY(!m->document()->isModified());
    QCOMPARE(window()->status()->encodingText(),
             QStringLiteral("Encoding: ") + m->document()->codecName());
}

void TestWindowFiles::showsThatLineEndsWillChange()
{
    m_game->write("characters/oda/oda.character", "[info]\nname = \"Oda\"\n");
    m->open(*m_game, m_game->oda());
    QVERIFY(!window()->status()->lineEndText().isEmpty());
    m->type(QStringLiteral("#"));
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(window()->status()->lineEndText().isEmpty());
    QVERIFY(m_game->read("characters/oda/oda.character").startsWith("#[info]\r\n"));
}

QTEST_MAIN(TestWindowFiles)
#include "tst_windowfiles.moc"
