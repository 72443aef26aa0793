#include "soundeditorfixture.h"

#include <QSlider>

/// What plays, and what is left of it when its project goes.
class TestSoundStates : public SoundEditorTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void plays();
    void statesAreShown_data();
    void statesAreShown();
    void projectGoes_data();
    void projectGoes();
};

void TestSoundStates::plays()
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

void TestSoundStates::statesAreShown_data()
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
void TestSoundStates::statesAreShown()
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

void TestSoundStates::projectGoes_data()
{
    columns<QString>("during");
    for (const char* during :
         {"snd_play", "snd_play_loop", "slider", "waveform", "snd_add", "snd_open_sample",
          "snd_delete", "snd_save_sample", "snd_resample", "snd_import_proj", "items",
          "snd_add at work", "snd_open_sample at work", "snd_import_proj at work"}) {
        row(during, QString(during));
    }
}

void TestSoundStates::projectGoes()
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

QTEST_MAIN(TestSoundStates)
#include "tst_soundstates.moc"
