#include "windowfixture.h"

#include "app/sounds/hearing.h"
#include "app/sounds/soundpanel.h"
#include "app/window/editorregistry.h"
#include "support/plannedsound.h"
#include "support/testsounds.h"

#include <zorv/editors/framework/rowlist.h>
#include <zorv/editors/sound/audiosamplewidget.h>
#include <zorv/editors/sound/soundeditor.h>

#include <QAction>
#include <QDockWidget>

/// Sounds in the real window.
class TestHearing : public QObject
{
    Q_OBJECT

private slots:
    void showsPlaysAndChangesSounds();
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

QTEST_MAIN(TestHearing)
#include "tst_hearing.moc"
