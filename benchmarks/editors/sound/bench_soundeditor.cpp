// How long the event loop stands still while a hundred sounds are resampled.

#include "support/bench.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testproject.h"

#include "editors/sound/soundeditor.h"
#include "editors/sound/soundworkspace.h"
#include "family/assets/soundfile.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Zorv;

namespace {

const double LongestStall = 50;  // milliseconds

SoundSample noise(int seed, int seconds)
{
    SoundSample sound;
    sound.channels = 1;
    sound.bits = 16;
    sound.sampleRate = 22050;
    sound.frames = seconds * 22050;
    quint32 state = quint32(seed);
    sound.data.resize(sound.frames * 2);
    for (char& byte : sound.data) {
        state = state * 1664525 + 1013904223;
        byte = char(state >> 24);
    }
    return sound;
}

void chooseAll()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog) {
        QTimer::singleShot(1, chooseAll);
        return;
    }
    dialog->findChild<QListView*>()->selectAll();
    dialog->findChild<QComboBox*>("samplerate")->setCurrentText("48000 Hz");
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

/// The longest turn in milliseconds while all sounds are resampled, shown and taken back; negative
/// if they were not.
double longestTurn(TestInterface& host, int count, int seconds)
{
    const QTemporaryDir folder;
    TestParent parent(folder.path());
    TestProject* project = parent.open("a.txt", {});
    auto* sounds = new Family::SoundFile;
    project->addFile(sounds, FileID::Sounds);
    for (int i = 0; i < count; ++i) {
        sounds->add(i, {}, noise(i, seconds));
    }
    SoundWorkspace workspace;
    SoundEditor editor(&workspace);
    editor.setProject(project);
    editor.activate();

    double longest = 0;
    QElapsedTimer sinceTurn;
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, [&] {
        if (sinceTurn.isValid() && !QApplication::activeModalWidget()) {
            longest = std::max(longest, double(sinceTurn.nsecsElapsed()) / 1e6);
        }
        sinceTurn.start();
    });
    turns.start(1);  // a loop that never rests would be put aside by the system
    QTimer::singleShot(1, chooseAll);
    host.actions.value("snd_resample")->trigger();
    const bool isDone = sounds->sound(count - 1)->sampleInfo().sampleRate == 48000;
    QTest::qWait(1000);
    editor.undo();
    QTest::qWait(1000);
    turns.stop();
    return isDone ? longest : -1;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    TestInterface host;
    const PlannedDialogs dialogs;
    const double many = longestTurn(host, 100, 1);
    const double longOnes = longestTurn(host, 12, 60);
    if (many < 0 || longOnes < 0) {
        return 1;
    }
    Bench::ratio("longest turn while 100 sounds are resampled, to 50 ms", many, LongestStall, 1);
    Bench::ratio("the same with 12 sounds of a minute", longOnes, LongestStall, 1);
    return 0;
}
