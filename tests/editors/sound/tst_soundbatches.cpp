#include "soundeditorfixture.h"

#include "core/filesystemarchive.h"
#include "media/soundconversion.h"
#include "support/faultrows.h"
#include "support/folders.h"

#include <QRadioButton>

/// Work on several sounds at once: saved, resampled, imported.
class TestSoundBatches : public SoundEditorTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void savesUnderNamesOfTheirOwn();
    void failedSavesLoseNothing_data();
    void failedSavesLoseNothing();
    void resamplesWhatDiffers();
    void resamplingEndsEarly_data();
    void resamplingEndsEarly();
    void importsFromAnotherProject_data();
    void importsFromAnotherProject();
};

void TestSoundBatches::savesUnderNamesOfTheirOwn()
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

void TestSoundBatches::failedSavesLoseNothing_data()
{
    columns<int, int>("call", "error");
    faultRows();
}

/// Of three sounds the second cannot be written; nor can the file of all of them.
void TestSoundBatches::failedSavesLoseNothing()
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

void TestSoundBatches::resamplesWhatDiffers()
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

void TestSoundBatches::resamplingEndsEarly_data()
{
    columns<QString>("how");
    row("given up", QStringLiteral("cancel"));
    row("closed", QStringLiteral("close"));
    row("a sound goes", QStringLiteral("remove"));
}

void TestSoundBatches::resamplingEndsEarly()
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

void TestSoundBatches::importsFromAnotherProject_data()
{
    columns<bool>("replaces");
    row("skip", false);
    row("replace", true);
}

void TestSoundBatches::importsFromAnotherProject()
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

QTEST_MAIN(TestSoundBatches)
#include "tst_soundbatches.moc"
