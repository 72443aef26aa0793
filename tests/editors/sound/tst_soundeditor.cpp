#include "core/filesystemarchive.h"
#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/resampledlg.h"
#include "editors/sound/sndimportdlg.h"
#include "editors/sound/soundeditor.h"
#include "editors/sound/soundworkspace.h"
#include "family/assets/soundfile.h"
#include "media/soundconversion.h"
#include "media/soundedits.h"
#include "media/wav.h"
#include "support/faultrows.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/plannedsound.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <cerrno>

using namespace Zorv;
using Family::SoundFile;

namespace {

QByteArray noise(int size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return char(random.generate()); });
    return bytes;
}

SoundSample sampleOf(const Sound* sound)
{
    SoundSample sample;
    static_cast<SampleInfo&>(sample) = sound->sampleInfo();
    sample.data = sound->sampleData();
    return sample;
}

}  // namespace

class TestSoundEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stepsThroughSounds();
    void addsReplacesAndRemoves();
    void savesUnderNamesOfTheirOwn();
    void failedSavesLoseNothing_data();
    void failedSavesLoseNothing();
    void resamplesWhatDiffers();
    void resamplingEndsEarly_data();
    void resamplingEndsEarly();
    void changesTheSelectedPart();
    void findsAndReplaces_data();
    void findsAndReplaces();
    void importsFromAnotherProject_data();
    void importsFromAnotherProject();
    void plays();
    void statesAreShown_data();
    void statesAreShown();
    void projectGoes_data();
    void projectGoes();
    void staysWithOddSamples();
    void anythingCanBeUndone();

private:
    static void answer(QDialog* dialog, QRandomGenerator* random);
    void trigger(const char* name) { host->actions.value(QLatin1String(name))->trigger(); }
    QString label(const char* name)
    {
        return qobject_cast<QLabel*>(host->controls.value(QLatin1String(name)))->text();
    }
    QString wav(const char* name, const SoundSample& sample)
    {
        QFile file(folder->filePath(QLatin1String(name)));
        soundToWAV(sample, &file);
        return file.fileName();
    }
    QStringList ids() const;
    QVector<QByteArray> content() const;
    void whenOpen(const std::function<void(QDialog*)>& person);
    void resample(const QVector<int>& rows, const QString& rate, int channels);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<TestInterface> host;
    std::unique_ptr<PlannedDialogs> dialogs;
    std::unique_ptr<PlannedSound> devices;
    std::unique_ptr<TestParent> parent;
    std::unique_ptr<SoundWorkspace> workspace;
    std::unique_ptr<SoundEditor> editor;
    TestProject* project = nullptr;
    QPointer<SoundFile> sounds;
};

void TestSoundEditor::init()
{
    folder = std::make_unique<QTemporaryDir>();
    host = std::make_unique<TestInterface>();
    dialogs = std::make_unique<PlannedDialogs>();
    devices = std::make_unique<PlannedSound>();
    host->texts = {
        {2, "Bad file"}, {3, "bad: %1"}, {4, "empty %1 %2 of %3"}, {7, "All"}, {8, "No"}};
    parent = std::make_unique<TestParent>(folder->path());
    project = parent->open(QStringLiteral("a.txt"), {});
    host->projects = {project};
    sounds = new SoundFile;
    project->addFile(sounds, FileID::Sounds);
    for (int i = 0; i < 3; ++i) {
        sounds->add(i, QStringLiteral("%1,%2").arg(i).arg(i * 5), soundOf(noise(400 + i * 40, i)));
    }
    workspace = std::make_unique<SoundWorkspace>();
    editor = std::make_unique<SoundEditor>(workspace.get());
    editor->setProject(project);
    host->activateEditor(editor.get());
    editor->activate();
}

void TestSoundEditor::cleanup()
{
    editor.reset();
    workspace.reset();
    parent.reset();
    devices.reset();
    dialogs.reset();
    host.reset();
}

QStringList TestSoundEditor::ids() const
{
    QStringList result;
    for (int i = 0; i < int(sounds->count()); ++i) {
        result += sounds->sound(i)->property(QStringLiteral("Identifier")).toString();
    }
    return result;
}

QVector<QByteArray> TestSoundEditor::content() const
{
    QVector<QByteArray> result;
    for (int i = 0; i < int(sounds->count()); ++i) {
        QBuffer buffer;
        soundToWAV(sampleOf(sounds->sound(i)), &buffer);
        result.append(ids().at(i).toLatin1() + buffer.data());
    }
    return result;
}

void TestSoundEditor::whenOpen(const std::function<void(QDialog*)>& person)
{
    auto* timer = new QTimer(editor.get());
    connect(timer, &QTimer::timeout, timer, [timer, person] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            person(dialog);
        }
    });
    timer->start(1);
}

void TestSoundEditor::resample(const QVector<int>& rows, const QString& rate, int channels)
{
    whenOpen([=](QDialog* dialog) {
        auto* list = dialog->findChild<QListView*>();
        list->clearSelection();
        for (const int row : rows) {
            list->selectionModel()->select(list->model()->index(row, 0),
                                           QItemSelectionModel::Select);
        }
        dialog->findChild<QComboBox*>("samplerate")->setCurrentText(rate);
        dialog->findChild<QComboBox*>("channels")->setCurrentIndex(channels - 1);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    trigger("snd_resample");
}

void TestSoundEditor::stepsThroughSounds()
{
    QCOMPARE(label("snd_sel_lb"), QStringLiteral("1 / 3"));
    QCOMPARE(label("snd_info_lb"),
             QStringLiteral("Channels: 1 (Mono)\nSample rate: 22050 Hz\nBits per sample: 16 bits\n"
                            "Duration: 0.00907029 seconds\nTick count: 0 at 60Hz"));
    trigger("snd_prev");
    trigger("snd_next");
    QCOMPARE(label("snd_sel_lb"), QStringLiteral("2 / 3"));
    auto* slider = qobject_cast<QSlider*>(host->controls.value("snd_sel"));
    QCOMPARE(slider->value(), 1);
    slider->setValue(2);
    QCOMPARE(editor->sound(), sounds->sound(2));
    QTRY_COMPARE(workspace->sampleWidget()->sample().data, noise(480, 2));
    slider->setSliderDown(true);
    editor->refreshSound();
    while (sounds->count() > 0) {
        trigger("snd_delete");
    }
    QCOMPARE(label("snd_sel_lb"), QStringLiteral("0 / 0"));
    QVERIFY(label("snd_info_lb").startsWith("Channels: ---"));
    QVERIFY(!editor->sound() && !host->actions.value("snd_play")->isEnabled());
    editor->undo();
    QCOMPARE(label("snd_sel_lb"), QStringLiteral("1 / 1"));
    SoundSample odd;
    odd.channels = 1;
    odd.bits = 16;
    odd.sampleRate = 8000;
    editor->sound()->setSample(odd, {});
    QVERIFY(label("snd_info_lb").contains("Duration: --- seconds\nTick count: --- at 60Hz"));
    parent->close(project);
    QVERIFY(!editor->file() && !editor->action()->isVisible());
    QCOMPARE(label("snd_sel_lb"), QStringLiteral("0 / 0"));
}

void TestSoundEditor::addsReplacesAndRemoves()
{
    const QByteArray bytes = noise(100, 9);
    const QString good = wav("9,1.wav", soundOf(bytes));
    const QString empty = wav("9,2.wav", soundOf({}));
    const QString more = wav("9,3.wav", soundOf(bytes.mid(20)));
    trigger("snd_next");
    dialogs->fileAnswers = {{good, empty, more}};
    trigger("snd_add");
    QCOMPARE(ids(), (QStringList{"0,0", "1,5", "9,1", "9,3", "2,10"}));
    QCOMPARE(sounds->currentIndex, 3);
    QCOMPARE(dialogs->texts("warning"), QStringList{"bad: " + empty});
    QCOMPARE(project->option("snd_path").toString(), QFileInfo(folder->path()).absoluteFilePath());
    editor->undo();
    QCOMPARE(sounds->count(), 3U);

    host->cancelAfter = 1;
    dialogs->fileAnswers = {{good, more, good}};
    trigger("snd_add");
    host->cancelAfter = -1;
    QVERIFY(sounds->count() > 3U && sounds->count() < 6U);
    editor->undo();
    QCOMPARE(sounds->count(), 3U);

    dialogs->fileAnswers = {{more}, {empty}, {}};
    for (int i = 0; i < 3; ++i) {
        trigger("snd_open_sample");
    }
    QCOMPARE(editor->sound()->sampleData(), bytes.mid(20));
    QCOMPARE(dialogs->count("warning"), 2);

    host->options["confirm_delete"] = true;
    dialogs->buttonAnswers = {Dialogs::No, Dialogs::Yes};
    trigger("snd_delete");
    QCOMPARE(sounds->count(), 3U);
    trigger("snd_delete");
    QCOMPARE(sounds->count(), 2U);
    trigger("snd_prev");
    trigger("snd_duplicate");
    QCOMPARE(sounds->currentIndex, 1);
    QCOMPARE(sounds->sound(1)->sampleData(), noise(400, 0));
}

void TestSoundEditor::savesUnderNamesOfTheirOwn()
{
    const auto acceptAll = [](QDialog* dialog) {
        dialog->findChild<QListView*>()->selectAll();
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    };
    const QString chosen = folder->filePath("out.v1.wav");
    QFile there(folder->filePath("out.v1_1-5.wav"));
    QVERIFY(there.open(QIODevice::WriteOnly) && there.write("mine") == 4);
    there.close();
    for (const auto answer : {Dialogs::No, Dialogs::Yes}) {
        dialogs->fileAnswers = {{chosen}};
        dialogs->buttonAnswers = {answer};
        whenOpen(acceptAll);
        trigger("snd_save_sample");
        QCOMPARE(QFile::exists(folder->filePath("out.v1_0-0.wav")), answer == Dialogs::Yes);
        QCOMPARE(there.size() == 4, answer == Dialogs::No);
    }
    QCOMPARE(soundFromWAV(&there).data, noise(440, 1));
    dialogs->fileAnswers = {{folder->filePath("no/way/a.wav")}};
    QFile blocked(folder->filePath("no"));
    QVERIFY(blocked.open(QIODevice::WriteOnly));
    QSignalSpy failed(editor.get(), &SoundEditor::saveFailed);
    whenOpen([](QDialog* dialog) { dialog->accept(); });
    trigger("snd_save_sample");
    QCOMPARE(failed.count(), 1);
}

void TestSoundEditor::failedSavesLoseNothing_data()
{
    columns<int, int>("call", "error");
    faultRows();
}

/// Of three sounds the second cannot be written; nor can the file of all of them.
void TestSoundEditor::failedSavesLoseNothing()
{
    const auto [call, error] = fetched<int, int>();
    const QString old = folder->filePath("out_1-5.wav");
    const QString whole = folder->filePath("a.sounds");
    Archive* archive = FileSystemArchive::instance();
    QVERIFY(sounds->toFile(*archive, whole, false));
    const QByteArray before = readFile(whole);
    QVERIFY(writeFile(old, "mine"));
    QString told;
    connect(editor.get(), &SoundEditor::saveFailed, this,
            [&](const QString& text) { told = text; });
    dialogs->fileAnswers = {{folder->filePath("out.wav")}};
    dialogs->buttonAnswers = {Dialogs::Yes};
    whenOpen([&, call = call, error = error](QDialog* dialog) {
        dialog->findChild<QListView*>()->selectAll();
        faultArm("out_1-5", FaultCall(call), 1, error, call == FaultWrite);
        dialog->accept();
    });
    trigger("snd_save_sample");
    told += dialogs->texts("error").join('\n');
    QVERIFY2(told.contains(old) && told.contains(qt_error_string(error)), qPrintable(told));
    QCOMPARE(readFile(old), QByteArray("mine"));
    QFile first(folder->filePath("out_0-0.wav"));
    QCOMPARE(soundFromWAV(&first).data, noise(400, 0));

    sounds->remove(1);
    faultArm("a.sounds", FaultCall(call), 1, error, call == FaultWrite);
    QVERIFY(!sounds->toFile(*archive, whole, false));
    faultArm("", FaultOpen, 0, 0, 0);
    QVERIFY2(sounds->errorString().contains(qt_error_string(error)),
             qPrintable(sounds->errorString()));
    QVERIFY(sounds->isModified());
    QCOMPARE(readFile(whole), before);
}

void TestSoundEditor::resamplesWhatDiffers()
{
    const QVector<QByteArray> before = content();
    SampleInfo target = sounds->sound(0)->sampleInfo();
    target.sampleRate = 44100;
    target.channels = 2;
    const SoundSample first = convertSound(sampleOf(sounds->sound(0)), target).sample;
    const SoundSample last = convertSound(sampleOf(sounds->sound(2)), target).sample;
    resample({0, 2}, "44100 Hz", 2);
    QCOMPARE(sounds->sound(0)->sampleData(), first.data);
    QCOMPARE(sounds->sound(2)->sampleData(), last.data);
    QCOMPARE(content().at(1), before.at(1));
    const QVector<QByteArray> after = content();
    resample({0, 2}, "44100 Hz", 2);
    QCOMPARE(host->progresses.last().updates, (QList<QPair<int, int>>{{0, 0}}));
    QCOMPARE(content(), after);
    editor->undo();
    QCOMPARE(content(), before);
}

void TestSoundEditor::resamplingEndsEarly_data()
{
    columns<QString>("how");
    row("given up", QStringLiteral("cancel"));
    row("closed", QStringLiteral("close"));
    row("a sound goes", QStringLiteral("remove"));
}

void TestSoundEditor::resamplingEndsEarly()
{
    const auto [how] = fetched<QString>();
    for (int i = 0; i < 20; ++i) {
        sounds->add(3, {}, soundOf(noise(400000, 77)));
    }
    const QVector<QByteArray> before = content();
    if (how == "cancel") {
        host->cancelAfter = 2;
    }
    QTimer::singleShot(60, this, [this, how = how] {
        if (how == "close") {
            parent->close(project);
        } else if (how == "remove") {
            sounds->remove(0);
        }
    });
    resample({0, 1, 2, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}, "48000 Hz", 1);
    QCOMPARE(bool(sounds), how != "close");
    if (sounds) {
        QVERIFY(sounds->sound(int(sounds->count()) - 1)->sampleInfo().sampleRate == 22050);
        while (sounds->canUndo() && sounds->count() >= (how == "remove" ? 22 : 23)) {
            sounds->undo();
            if (content() == before) {
                return;
            }
        }
        QFAIL("undo does not bring the sounds back");
    }
}

void TestSoundEditor::changesTheSelectedPart()
{
    const SoundSample sound = sampleOf(editor->sound());
    AudioSampleWidget* widget = workspace->sampleWidget();
    QTRY_COMPARE(widget->sample().data, sound.data);
    QVERIFY(!host->actions.value("snd_trim")->isEnabled());
    widget->setSelection({50, 60});
    using Edit = SoundSample (*)(const SoundSample&, SoundRange);
    const std::pair<const char*, Edit> edits[] = {{"snd_fade_in", fadeInSound},
                                                  {"snd_fade_out", fadeOutSound},
                                                  {"snd_silence", silenceSound},
                                                  {"snd_trim", trimSound}};
    for (const auto& edit : edits) {
        trigger(edit.first);
        QCOMPARE(editor->sound()->sampleData(), edit.second(sound, {50, 60}).data);
        editor->undo();
        QCOMPARE(editor->sound()->sampleData(), sound.data);
        widget->showNow();
        widget->setSelection({50, 60});
    }
    trigger("snd_next");
    trigger("snd_normalize");
    QCOMPARE(editor->sound()->sampleData(), normalizeSound(soundOf(noise(440, 1)), {0, 220}).data);
}

void TestSoundEditor::findsAndReplaces_data()
{
    columns<int, QString, unsigned, int>("from", "text", "flags", "found");
    row("pattern", 0, QStringLiteral("?,*"), 0U, 1);
    row("all of it", 0, QStringLiteral(",5"), 0U, -1);
    row("expression", 0, QStringLiteral(",1"), 1U, 2);
    row("bad expression", 0, QStringLiteral("(1"), 1U, -1);
    row("backward", 2, QStringLiteral("*"), 4U, 1);
    row("not around", 2, QStringLiteral("0*"), 0U, -1);
    row("around", 2, QStringLiteral("0*"), 8U, 0);
    row("around backward", 0, QStringLiteral("2*"), 12U, 2);
}

void TestSoundEditor::findsAndReplaces()
{
    const auto [from, text, flags, found] = fetched<int, QString, unsigned, int>();
    editor->navigateTo({}, unsigned(from), 0, 0);
    editor->find(text, flags);
    QCOMPARE(sounds->currentIndex, found < 0 ? from : found);
    QCOMPARE(dialogs->texts("information").size(), int(found < 0));
    editor->navigateTo({}, unsigned(from), 0, 0);
    const QStringList before = ids();
    editor->replace(text, QStringLiteral("7,7"), flags, false);
    QCOMPARE(ids() != before, found >= 0);
    if (found >= 0) {
        editor->undo();
    }
    QCOMPARE(ids(), before);
    editor->replace(QStringLiteral("^(\\d),(.*)$"), QStringLiteral("5\\1,\\2"), 1, true);
    QCOMPARE(ids(), (QStringList{"50,0", "51,5", "52,10"}));
    editor->undo();
    QCOMPARE(ids(), before);
    editor->replace(QStringLiteral("1"), QStringLiteral("one"), 1, true);
    QCOMPARE(ids(), before);
    QVERIFY(dialogs->texts("warning").value(0).contains("'one,5'"));
}

void TestSoundEditor::importsFromAnotherProject_data()
{
    columns<bool>("replaces");
    row("skip", false);
    row("replace", true);
}

void TestSoundEditor::importsFromAnotherProject()
{
    const auto [replaces] = fetched<bool>();
    trigger("snd_import_proj");
    QCOMPARE(dialogs->texts("warning"),
             QStringList{"You can't import from the destination project!"});
    TestProject* other = parent->open(QStringLiteral("b.txt"), {});
    host->projects.append(other);
    auto* source = new SoundFile;
    other->addFile(source, FileID::Sounds);
    for (const char* id : {"1,5", "8,8"}) {
        source->add(9, QLatin1String(id), soundOf(noise(60, 4), 2, 8));
    }
    const QVector<QByteArray> before = content();
    whenOpen([replaces = replaces](QDialog* dialog) {
        dialog->findChild<QListView*>("source")->selectAll();
        dialog->findChild<QPushButton*>("add")->click();
        dialog->findChild<QRadioButton*>("replace")->setChecked(replaces);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    trigger("snd_import_proj");
    QCOMPARE(ids(), (QStringList{"0,0", "8,8", "1,5", "2,10"}));
    QCOMPARE(sounds->sound(2)->sampleData(), noise(replaces ? 60 : 440, replaces ? 4 : 1));
    QCOMPARE(sounds->currentIndex, 1);
    const QStringList told = dialogs->texts("information").value(0).split('\n');
    QCOMPARE(told.size(), replaces ? 2 : 1);
    editor->undo();
    QCOMPARE(content(), before);
}

void TestSoundEditor::plays()
{
    const auto checked = [this](const char* name) {
        return host->actions.value(name)->isChecked();
    };
    trigger("snd_play");
    QVERIFY(checked("snd_play") && !checked("snd_stop") && !checked("snd_play_loop"));
    trigger("snd_play_loop");
    QVERIFY(checked("snd_play_loop") && !checked("snd_play"));
    QCOMPARE(devices->output->stream->read(1000), noise(400, 0).repeated(3).left(1000));
    trigger("snd_next");
    QVERIFY(checked("snd_stop") && !checked("snd_play_loop"));
    trigger("snd_play");
    QCOMPARE(devices->output->stream->read(1000), noise(440, 1));
    parent->close(project);
    QCOMPARE(int(workspace->currentState()), int(SoundSample::StoppedState));
}

void TestSoundEditor::statesAreShown_data()
{
    columns<QString, QString>("plan", "shown");
    row("played to the end", QStringLiteral("playri"), QStringLiteral("PS"));
    row("late, but not at the end", QStringLiteral("playia"), QStringLiteral("P.P"));
    row("a loop is never at its end", QStringLiteral("loopria"), QStringLiteral("L.L"));
    row("suspended by the system", QStringLiteral("playua"), QStringLiteral("P-P"));
    row("stopped by the system", QStringLiteral("playx"), QStringLiteral("PS"));
    row("played again", QStringLiteral("playxplayri"), QStringLiteral("PSPS"));
    row("gone while it plays", QStringLiteral("playf"), QStringLiteral("PS"));
    row("gone and back", QStringLiteral("playfbplay"), QStringLiteral("PSP"));
    row("gone before", QStringLiteral("fplaybloop"), QStringLiteral("L"));
    row("looping no more", QStringLiteral("looptri"), QStringLiteral("LPS"));
}

/// "play" and "loop" by their actions, "t" ends looping; the device: "r" reads all, "i" is idle,
/// "a" active, "u" suspended, "x" stopped, "f" fails, "b" is back. What the actions say behind each
/// of these that changes it: P, L, S, - for none; "." while it is idle.
void TestSoundEditor::statesAreShown()
{
    const auto [plan, shown] = fetched<QString, QString>();
    workspace->sampleWidget()->showNow();
    QString seen;
    QString last = QStringLiteral("S");
    for (int i = 0; i < plan.size(); ++i) {
        PlannedOutput* output = devices->output;
        if (plan.mid(i, 4) == "play" || plan.mid(i, 4) == "loop") {
            trigger(plan.mid(i, 4) == "play" ? "snd_play" : "snd_play_loop");
            i += 3;
        } else if (plan[i] == 't') {
            trigger("snd_play_loop");
        } else if (plan[i] == 'r') {
            output->stream->read(100000);
        } else if (plan[i] == 'f') {
            devices->isGone = true;
            output->fails = true;
            output->become(SoundOutput::Active);
            output->become(SoundOutput::Stopped);
        } else if (plan[i] == 'b') {
            devices->isGone = false;
        } else {
            output->become(plan[i] == 'i'   ? SoundOutput::Idle
                           : plan[i] == 'a' ? SoundOutput::Active
                           : plan[i] == 'u' ? SoundOutput::Suspended
                                            : SoundOutput::Stopped);
        }
        const auto isOn = [&](const char* name) { return host->actions.value(name)->isChecked(); };
        const QString now = isOn("snd_play")        ? "P"
                            : isOn("snd_play_loop") ? "L"
                            : isOn("snd_stop")      ? "S"
                                                    : "-";
        const bool isIdle = devices->output && devices->output->now == SoundOutput::Idle;
        seen += isIdle ? "." : now != last || seen.endsWith('.') ? now : QString();
        last = now;
    }
    QCOMPARE(seen, shown);
}

void TestSoundEditor::projectGoes_data()
{
    columns<QString>("during");
    for (const char* during :
         {"snd_play", "snd_play_loop", "slider", "waveform", "snd_add", "snd_open_sample",
          "snd_delete", "snd_save_sample", "snd_resample", "snd_import_proj", "items",
          "snd_add at work", "snd_open_sample at work", "snd_import_proj at work"}) {
        row(during, QString(during));
    }
}

void TestSoundEditor::projectGoes()
{
    const auto [during] = fetched<QString>();
    host->options["confirm_delete"] = true;
    workspace->sampleWidget()->showNow();
    TestProject* other = parent->open(QStringLiteral("b.txt"), {});
    host->projects.append(other);
    auto* source = new SoundFile;
    other->addFile(source, FileID::Sounds);
    const bool isAtWork = during.endsWith("work");
    const SoundSample added = soundOf(noise(isAtWork ? 1 << 22 : 100, 9));
    source->add(0, {}, added);
    dialogs->fileAnswers = {{wav("5,5.wav", added)}};
    dialogs->buttonAnswers = {Dialogs::Yes};
    bool isClosed = false;
    const auto close = [&] {
        if (!isClosed) {
            isClosed = true;
            host->projects.removeOne(project);
            parent->close(project);
        }
    };
    auto* slider = qobject_cast<QSlider*>(host->controls.value("snd_sel"));
    if (during == "slider") {
        slider->setSliderDown(true);
        slider->setSliderPosition(1);
    } else if (during == "waveform") {
        QTest::mousePress(workspace->sampleWidget(), Qt::LeftButton, {}, {10, 10});
    } else if (isAtWork) {
        // The first loop that runs then waits for another thread.
        whenOpen([&](QDialog* dialog) {
            dialog->findChild<QListView*>("source")->selectAll();
            dialog->findChild<QPushButton*>("add")->click();
            QTimer::singleShot(0, this, close);
            dialog->accept();
        });
        if (!during.contains("import")) {
            QTimer::singleShot(0, this, close);
        }
        trigger(during.section(' ', 0, 0).toLatin1().constData());
        QVERIFY(isClosed);
    } else {
        const bool isLater = during == "items" || during.startsWith("snd_play");
        dialogs->whileOpen = [&](const PlannedDialogs::Shown&) { isLater ? void() : close(); };
        whenOpen([&](QDialog* dialog) {
            close();
            dialog->accept();
        });
        trigger(during == "items" ? "snd_save_sample" : during.toLatin1().constData());
    }
    close();
    QVERIFY(!sounds && !editor->file() && !editor->sound());
    QCOMPARE(label("snd_sel_lb"), QStringLiteral("0 / 0"));
    QCOMPARE(int(workspace->currentState()), int(SoundSample::StoppedState));
    QTest::mouseMove(workspace->sampleWidget(), {40, 10});
    QTest::mouseRelease(workspace->sampleWidget(), Qt::LeftButton, {}, {40, 10});
    slider->setSliderDown(false);
    for (QAction* action : qAsConst(host->actions)) {
        action->trigger();
    }
    QTest::qWait(200);
    QVERIFY(workspace->sampleWidget()->sample().data.isEmpty());
}

void TestSoundEditor::staysWithOddSamples()
{
    const struct
    {
        int channels, bits, rate, frames, bytes;
    } forms[] = {{1, 16, 22050, 0, 0},  {1, 16, 22050, 1, 2},       {1, 16, 1, 40, 80},
                 {8, 8, 22050, 9, 72},  {1, 16, 384000, 100, 200},  {2, 24, 22050, 100, 301},
                 {1, 16, 0, 100, 200},  {0, 16, 22050, 100, 200},   {16, 16, 22050, 9, 288},
                 {1, 12, 22050, 9, 18}, {1, 16, INT_MIN, 100, 200}, {1, 0, 22050, 9, 18}};
    for (const auto& form : forms) {
        SoundSample odd;
        odd.channels = quint16(form.channels);
        odd.bits = quint16(form.bits);
        odd.sampleRate = form.rate;
        odd.frames = form.frames;
        odd.data = noise(form.bytes, 1);
        sounds->add(1, {}, odd);
    }
    const QVector<QByteArray> before = content();
    for (int row = 0; row < int(sounds->count()); ++row) {
        editor->navigateTo({}, unsigned(row), 0, 0);
        int steps = 0;
        for (const char* name : {"snd_play", "snd_trim", "snd_fade_in", "snd_fade_out",
                                 "snd_normalize", "snd_silence", "snd_duplicate"}) {
            workspace->sampleWidget()->showNow();
            editor->selectAll();
            const QVector<QByteArray> now = content();
            trigger(name);
            steps += content() != now;
        }
        resample({row}, "8000 Hz", 2);
        while (content() != before && steps-- > -2) {
            editor->undo();
        }
        QCOMPARE(content(), before);
    }
}

/// Answers whatever dialog comes, by chance.
void TestSoundEditor::answer(QDialog* dialog, QRandomGenerator* random)
{
    const QList<QListView*> lists = dialog->findChildren<QListView*>();
    for (QListView* list : lists) {
        random->bounded(2) ? list->selectAll() : list->clearSelection();
    }
    const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        const bool isEnd = qobject_cast<QDialogButtonBox*>(button->parentWidget());
        if (!isEnd && random->bounded(2)) {
            button->click();
        }
    }
    const QList<QComboBox*> boxes = dialog->findChildren<QComboBox*>();
    for (QComboBox* box : boxes) {
        box->setCurrentIndex(random->bounded(qMax(box->count(), 1)));
    }
    auto* rate = dialog->findChild<QComboBox*>("samplerate");
    if (rate && rate->currentIndex() > 5) {
        rate->setCurrentIndex(0);  // the others only take longer
    }
    random->bounded(3) ? dialog->accept() : dialog->reject();
}

/// All of the menu, and the device as it likes.
void TestSoundEditor::anythingCanBeUndone()
{
    TestProject* other = parent->open(QStringLiteral("b.txt"), {});
    host->projects.append(other);
    auto* source = new SoundFile;
    other->addFile(source, FileID::Sounds);
    source->add(0, QStringLiteral("1,5"), soundOf(noise(60, 4), 2, 8));
    QFile text(folder->filePath("no.wav"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no sound") > 0);
    text.close();
    const QStringList files{wav("4,4.wav", soundOf(noise(64, 3), 2, 8)), text.fileName(),
                            folder->filePath("none.wav"), folder->filePath("out.wav")};
    host->options["confirm_delete"] = true;
    const QVector<QByteArray> before = content();
    const int steps = [this] {
        int count = 0;
        for (; sounds->canUndo(); ++count) {
            sounds->undo();
        }
        for (int i = 0; i < count; ++i) {
            sounds->redo();
        }
        return count;
    }();
    QRandomGenerator random(qEnvironmentVariableIntValue("ZORV_TEST_SEED") + 12);
    QTimer person;
    connect(&person, &QTimer::timeout, this, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            answer(dialog, &random);
        }
    });
    person.start(1);
    QList<QByteArray> names{"replace", "undo", "redo", "slider", "device"};
    for (const QString& name : host->actions.keys()) {
        if (name.startsWith("snd_")) {
            names.append(name.toLatin1());
        }
    }
    const int rounds = qMax(qEnvironmentVariableIntValue("ZORV_TEST_RUNS"), 1) * 200;
    for (int i = 0; i < rounds; ++i) {
        const QByteArray name = names[random.bounded(names.size())];
        const QString first = files[random.bounded(files.size())];
        dialogs->fileAnswers = {random.bounded(5) ? QStringList{first, files[0]} : QStringList()};
        dialogs->buttonAnswers = {random.bounded(2) ? Dialogs::Yes : Dialogs::No};
        host->cancelAfter = random.bounded(3) ? -1 : random.bounded(3);
        if (random.bounded(3)) {
            workspace->sampleWidget()->showNow();
            workspace->sampleWidget()->setSelection({random.bounded(20), random.bounded(20)});
        }
        if (name == "replace") {
            editor->replace(QStringLiteral("*"), QStringLiteral("3,%1").arg(i), 8,
                            random.bounded(2));
        } else if (name == "undo" || name == "redo") {
            const bool isBack = sounds->steps().canUndo() && name == "undo" && i % 3 == 0;
            isBack ? editor->undo() : editor->redo();
        } else if (name == "slider") {
            auto* slider = qobject_cast<QSlider*>(host->controls.value("snd_sel"));
            slider->setSliderDown(random.bounded(2));
            slider->setSliderPosition(random.bounded(8));
        } else if (name == "device") {
            devices->isGone = random.bounded(3) == 0;
            devices->only = random.bounded(2) ? soundOf({}, 2, 8) : SoundSample();
            if (devices->output) {
                devices->output->fails = devices->isGone;
                devices->output->become(SoundOutput::State(random.bounded(4)));
            }
        } else {
            trigger(name.constData());
        }
        QCOMPARE(
            label("snd_sel_lb"),
            sounds->count() == 0
                ? QStringLiteral("0 / 0")
                : QStringLiteral("%1 / %2").arg(sounds->currentIndex + 1).arg(sounds->count()));
        QCOMPARE(editor->sound(), sounds->sound(sounds->currentIndex));
    }
    person.stop();
    int count = 0;
    for (; sounds->canUndo(); ++count) {
        editor->undo();
    }
    QVERIFY(count > steps);
    for (int i = 0; i < steps; ++i) {
        editor->redo();
    }
    QCOMPARE(content(), before);
}

QTEST_MAIN(TestSoundEditor)
#include "tst_soundeditor.moc"
