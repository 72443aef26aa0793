#include "windowfixture.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QAction>
#include <QTextBlock>
#include <QThread>
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

    std::unique_ptr<QTemporaryDir> m_settings;
    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestWindowFiles::init()
{
    m_settings = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TemporaryGame>();
    m = std::make_unique<WindowFixture>(m_settings->filePath(QStringLiteral("zorv.ini")));
}

void TestWindowFiles::asksWhenAFileChanges_data()
{
    QTest::addColumn<bool>("byRename");
    QTest::addColumn<int>("answer");
    QTest::newRow("written, reload") << false << int(Dialogs::Yes);
    QTest::newRow("written, keep") << false << int(Dialogs::No);
    QTest::newRow("renamed, reload") << true << int(Dialogs::Yes);
    QTest::newRow("renamed, keep") << true << int(Dialogs::No);
}

void TestWindowFiles::asksWhenAFileChanges()
{
    QFETCH(bool, byRename);
    QFETCH(int, answer);
    QByteArray text = m_game->read("characters/ryn/basic.anim");
    for (int i = 0; i < 200; ++i) {
        text += "# line\r\n";
    }
    m_game->write("characters/ryn/basic.anim", text);
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->goTo(120, 2);
    m->type(QStringLiteral("mine"));
    const App::TextPlace before = m->place();
    const auto change = [&](const QByteArray& line) {
        text += line;
        m_game->write(byRename ? "characters/ryn/new.tmp" : "characters/ryn/basic.anim", text);
        if (byRename) {
            QVERIFY(rename(qPrintable(m_game->path("characters/ryn/new.tmp")),
                           qPrintable(m_game->animations())) == 0);
        }
    };
    m->dialogs.buttonAnswers = {Dialogs::Button(answer), Dialogs::Yes};
    change("# theirs\r\n");
    QTRY_COMPARE(m->dialogs.count(QStringLiteral("question")), 1);
    const bool isReloaded = answer == Dialogs::Yes;
    QCOMPARE(m->document()->text().contains(QLatin1String("theirs")), isReloaded);
    QCOMPARE(m->document()->text().contains(QLatin1String("mine")), !isReloaded);
    QCOMPARE(m->document()->isModified(), !isReloaded);
    QTest::qWait(20);
    QCOMPARE(m->place().line, before.line);
    QCOMPARE(m->place().scroll, before.scroll);
    QVERIFY(isReloaded || m->place().column == before.column);
    // And again, whatever the answer was.
    change("# again\r\n");
    QTRY_COMPARE(m->dialogs.count(QStringLiteral("question")), 2);
    QTRY_VERIFY(m->document()->text().contains(QLatin1String("again")));
    QTest::qWait(20);
    QCOMPARE(m->place().line, before.line);
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
    QTRY_COMPARE(m->dialogs.count(QStringLiteral("question")), 1);
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
    m->open(*m_game, m_game->ryn());
    QCOMPARE(window()->status()->stateText(), QStringLiteral("Saved"));
    QVERIFY(QFile::remove(m_game->ryn()));
    QTRY_COMPARE(window()->status()->stateText(), QStringLiteral("Missing on disk"));
    // Nothing is lost: it can be saved again.
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(m_game->read("characters/ryn/ryn.character").startsWith("[info]\r\n"));
    QTRY_COMPARE(window()->status()->stateText(), QStringLiteral("Saved"));
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
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isModified");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("text");
    QTest::newRow("read again") << int(ReadAgain) << false << "ISO-8859-1"
                                << QString::fromUtf8("\"caf\xC3\x83\xC2\xA9\"");
    QTest::newRow("keep") << int(KeepText) << false << "ISO-8859-1"
                          << QString::fromUtf8("\"caf\xC3\xA9\"");
    QTest::newRow("give up") << int(GiveUp) << false << "UTF-8"
                             << QString::fromUtf8("\"caf\xC3\xA9\"");
    QTest::newRow("keep unsaved") << int(KeepText) << true << "ISO-8859-1"
                                  << QString::fromUtf8("\"caf\xC3\xA9\"");
    QTest::newRow("give up unsaved")
        << int(GiveUp) << true << "UTF-8" << QString::fromUtf8("\"caf\xC3\xA9\"");
}

void TestWindowFiles::changesTheEncoding()
{
    QFETCH(int, answer);
    QFETCH(bool, isModified);
    QFETCH(QString, codec);
    QFETCH(QString, text);
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
