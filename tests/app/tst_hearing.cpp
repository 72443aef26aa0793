#include "windowfixture.h"

#include "app/sounds/hearing.h"
#include "app/sounds/soundpanel.h"
#include "app/window/editorregistry.h"
#include "family/assets/soundfile.h"
#include "support/plannedsound.h"
#include "support/testsounds.h"

#include <zorv/editors/framework/rowlist.h>
#include <zorv/editors/sound/audiosamplewidget.h>
#include <zorv/editors/sound/soundeditor.h>
#include <zorv/media/wav.h>

#include <QAction>
#include <QBuffer>
#include <QDockWidget>
#include <QListWidget>

/// Sounds in the real window.
class TestHearing : public QObject
{
    Q_OBJECT

private slots:
    void showsPlaysAndChangesSounds();
    void goesBetweenMovesAndSounds();
    void tellsWhatFilesLack();
};

void TestHearing::showsPlaysAndChangesSounds()
{
    PlannedSound devices;
    const TemporaryGame game;
    game.addAssets();
    WindowFixture m;
    m.open(game, game.ryn());
    App::SoundPanel* panel = m.window->soundPanel();
    QTRY_VERIFY(panel->sounds());
    const QByteArray samples = QByteArray("abcdefgh").repeated(200);
    for (int i = 0; i < 3; ++i) {
        panel->sounds()->add(i, {}, soundOf(samples.mid(i * 8)));
    }
    qobject_cast<QDockWidget*>(panel->parentWidget())->raise();
    QTRY_VERIFY(panel->list()->isVisible());
    doubleClickRow(panel->list(), panel->list()->model()->index(1, 0));
    Zorv::SoundEditor* editor = m.window->hearing()->editor();
    auto* waveform = static_cast<Zorv::AudioSampleWidget*>(editor->workspace()->widget());
    QCOMPARE(m.window->editors()->current(), editor);
    QTRY_COMPARE(waveform->sample().data, samples.mid(8));
    QVERIFY(waveform->isVisible() && waveform->showsTrueChannels());
    QTRY_VERIFY(m.action("snd_play")->isEnabled());
    m.action("snd_play")->trigger();
    QCOMPARE(devices.output->stream->read(9999), samples.mid(8));
    m.action("snd_fade_in")->trigger();
    QTRY_VERIFY(panel->sounds()->sound(1)->sampleData() != samples.mid(8));
    m.action("undo")->trigger();
    QCOMPARE(panel->sounds()->sound(1)->sampleData(), samples.mid(8));
    m.dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    m.action("snd_delete")->trigger();
    QCOMPARE(panel->sounds()->count(), 2U);
    m.action("save")->trigger();
    QVERIFY(!panel->sounds()->isModified());
    QVERIFY(m.window->openFile(game.ryn()));
    QTRY_VERIFY(m.window->editors()->current() != editor);
}

void TestHearing::goesBetweenMovesAndSounds()
{
    PlannedSound devices;
    const TemporaryGame game;
    game.addAssets();
    game.write("characters/ryn/moves.code", "[move jab]\r\nanimation = 1\r\n[.sound]\r\n"
                                            "hit = 5,1\r\nguard = 5,0\r\n"
                                            "[move kick]\r\n[.sound]\r\nhit = 5, 1\r\n"
                                            "guard = 7,7\r\n");
    WindowFixture m;
    m.open(game, game.ryn(), game.path("characters/ryn/moves.code"));
    App::SoundPanel* panel = m.window->soundPanel();
    QTRY_VERIFY(panel->sounds());
    for (int i = 0; i < 3; ++i) {
        panel->sounds()->add(i, QStringLiteral("5,%1").arg(i), soundOf(QByteArray(80, char(i))));
    }
    Zorv::SoundEditor* editor = m.window->hearing()->editor();
    const Zorv::Editor* text = m.window->editors()->current();
    m.goTo(3, 7);
    m.press(Qt::Key_F12);
    QCOMPARE(m.window->editors()->current(), editor);
    QCOMPARE(editor->sound(), panel->sounds()->sound(1));
    QCOMPARE(panel->currentRow(), 1);
    pressIn(editor->workspace()->widget(), Qt::ALT + Qt::Key_Left);
    QCOMPARE(m.window->editors()->current(), text);
    QCOMPARE(m.edit()->textCursor().blockNumber(), 3);
    m.goTo(8, 9);
    m.press(Qt::Key_F12);  // there is none
    QCOMPARE(m.window->editors()->current(), text);

    qobject_cast<QDockWidget*>(panel->parentWidget())->raise();
    const auto uses = [panel] {
        QStringList texts;
        for (int row = 0; row < panel->uses()->count(); ++row) {
            texts.append(panel->uses()->item(row)->text());
        }
        return texts;
    };
    QTRY_COMPARE(uses(),
                 (QStringList{"jab: hit, moves.code, line 4", "kick: hit, moves.code, line 8"}));
    QVERIFY(panel->uses()->item(0)->toolTip().contains("animation 1"));
    doubleClickRow(panel->uses(), panel->uses()->model()->index(1, 0));
    QCOMPARE(m.edit()->textCursor().blockNumber(), 7);
    QCOMPARE(m.edit()->textCursor().selectedText(), QStringLiteral("5, 1"));
    pressIn(panel->uses(), Qt::Key_Delete);
    QCOMPARE(panel->sounds()->count(), 3U);
    m.edit()->insertPlainText(QStringLiteral("5,2"));
    QTRY_COMPARE(uses().size(), 1);
    m.window->hearing()->showSound(2);
    QTRY_COMPARE(uses(), QStringList("kick: hit, moves.code, line 8"));
    panel->setCurrentRow(0);
    QTRY_COMPARE(uses(), QStringList("jab: guard, moves.code, line 5"));
    QCOMPARE(editor->sound(), panel->sounds()->sound(2));
    pressIn(panel->list(), Qt::Key_Down);
    QCOMPARE(editor->sound(), panel->sounds()->sound(1));
    m.dialogs.choiceAnswers = {1};
    m.action("close_folder")->trigger();
    QTRY_COMPARE(uses(), QStringList());
}

/// One is cut short, one of a form that cannot be stored.
void TestHearing::tellsWhatFilesLack()
{
    PlannedSound devices;
    const TemporaryGame game;
    game.addAssets();
    WindowFixture m;
    m.open(game, game.ryn());
    App::SoundPanel* panel = m.window->soundPanel();
    QTRY_VERIFY(panel->sounds());
    const auto wav = [](const Zorv::SoundSample& sample) {
        QBuffer buffer;
        Zorv::soundToWAV(sample, &buffer);
        return buffer.data();
    };
    game.write("cut.wav", wav(soundOf(QByteArray(800, 'x'))).chopped(400));
    game.write("wide.wav", wav(soundOf(QByteArray(180, 'x'), 9)));
    const QStringList files{game.path("cut.wav"), game.path("wide.wav")};
    m.dialogs.fileAnswers = {files, files.mid(0, 1)};
    m.action("snd_add")->trigger();
    QCOMPARE(panel->sounds()->count(), 1U);
    m.action("snd_open_sample")->trigger();
    QCOMPARE(panel->sounds()->sound(0)->sampleData(), QByteArray(400, 'x'));
    const QStringList told = m.dialogs.texts("warning");
    QCOMPARE(told.size(), 2);
    QVERIFY2(told[0].contains("of 400 frames it has 200") && told[0].contains("1 to 8 channels"),
             qPrintable(told[0]));
    QVERIFY2(told[1].contains("of 400 frames it has 200"), qPrintable(told[1]));
}

QTEST_MAIN(TestHearing)
#include "tst_hearing.moc"
