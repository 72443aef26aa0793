#pragma once

#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/soundeditor.h"
#include "editors/sound/soundworkspace.h"
#include "family/assets/soundfile.h"
#include "media/wav.h"
#include "support/planneddialogs.h"
#include "support/plannedsound.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <algorithm>

using namespace Zorv;
using Family::SoundFile;

inline QByteArray noise(int size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return char(random.generate()); });
    return bytes;
}

inline SoundSample sampleOf(const Sound* sound)
{
    SoundSample sample;
    static_cast<SampleInfo&>(sample) = sound->sampleInfo();
    sample.data = sound->sampleData();
    return sample;
}

/// The editor on three sounds of a project, with answers and devices as they are planned.
class SoundEditorTest : public QObject
{
protected:
    void begin();
    void end();

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

inline void SoundEditorTest::begin()
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

inline void SoundEditorTest::end()
{
    editor.reset();
    workspace.reset();
    parent.reset();
    devices.reset();
    dialogs.reset();
    host.reset();
}

inline QStringList SoundEditorTest::ids() const
{
    QStringList result;
    for (int i = 0; i < int(sounds->count()); ++i) {
        result += sounds->sound(i)->property(QStringLiteral("Identifier")).toString();
    }
    return result;
}

inline QVector<QByteArray> SoundEditorTest::content() const
{
    QVector<QByteArray> result;
    for (int i = 0; i < int(sounds->count()); ++i) {
        QBuffer buffer;
        soundToWAV(sampleOf(sounds->sound(i)), &buffer);
        result.append(ids().at(i).toLatin1() + buffer.data());
    }
    return result;
}

inline void SoundEditorTest::whenOpen(const std::function<void(QDialog*)>& person)
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

inline void SoundEditorTest::resample(const QVector<int>& rows, const QString& rate, int channels)
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
