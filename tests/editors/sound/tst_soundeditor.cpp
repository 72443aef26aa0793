#include "soundeditorfixture.h"

#include "media/soundedits.h"

#include <QAbstractButton>
#include <QSlider>

#include <climits>

namespace {

/// Answers whatever dialog comes, by chance.
void answer(QDialog* dialog, QRandomGenerator* random)
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

}  // namespace

class TestSoundEditor : public SoundEditorTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void stepsThroughSounds();
    void addsReplacesAndRemoves();
    void changesTheSelectedPart();
    void findsAndReplaces_data();
    void findsAndReplaces();
    void staysWithOddSamples();
    void anythingCanBeUndone();
};

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
