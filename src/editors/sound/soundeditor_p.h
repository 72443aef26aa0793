#pragma once

#include "cache/sounds.h"
#include "core/progressreporter.h"
#include "editors/sound/soundeditor.h"
#include "editors/sound/soundworkspace.h"
#include "media/soundconversion.h"
#include "media/soundedits.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QVector>

#include <functional>
#include <optional>

class QAction;
class QRegularExpression;
class QSlider;

namespace Zorv {

class AudioSampleWidget;
class Interface;
class OrganizerEditor;
struct ReadySample;

/// The state of a `SoundEditor`, and the slots of its tools. The host finds the slots by name.
class SoundEditorPrivate : public QObject
{
    Q_OBJECT

public:
    SoundEditorPrivate(SoundEditor* editor, SoundWorkspace* workspace);
    ~SoundEditorPrivate() override;

    // soundeditorcontrols.cpp
    void publish();

    // soundeditorselection.cpp
    void take(Sounds* now);
    int current() const;
    int count() const { return sounds ? int(sounds->count()) : 0; }
    void show(int row);
    void updateRange();
    void showFacts(Sound* now);
    void showNothing();
    void endSliderDrag();
    void listChanged();
    void lendList(bool isLent);
    void selectInList();
    OrganizerEditor* organizer() const;
    QVector<int> matches(const QString& text, unsigned flags, QRegularExpression* pattern) const;
    int firstMatch(const QVector<int>& found, unsigned flags) const;
    void rename(const QVector<int>& rows, const std::function<QString(const QString&)>& newName);
    void stateChanged(SoundSample::State state);
    void updatePart();
    AudioSampleWidget* waveform() const { return workspace->sampleWidget(); }

    // soundeditorfiles.cpp
    QString folder() const;
    void rememberFolder(const QString& fileName) const;
    ReadySample readReady(const QString& fileName, QString* reason) const;
    void addFiles(const QStringList& files, const QList<QVariant>& ids);
    void replaceBy(const ReadySample& ready, const QString& fileName, const QString& reason);
    void tellUnreadable(const QString& fileName, const QString& reason) const;

    // soundeditorwork.cpp
    using Work = std::function<SoundConversion(const SoundSample&, const std::atomic<bool>*)>;
    void change(const QVector<int>& rows, const QString& title, const std::optional<QString>& step,
                const Work& work);
    using Edit = SoundSample (*)(const SoundSample&, SoundRange);
    void edit(unsigned textId, Edit edit);

    /// True if an action may change sounds now. Brings the editor to the front.
    bool begin();

    SoundEditor* const editor;
    Interface* const host;
    QPointer<SoundWorkspace> workspace;
    QPointer<Sounds> sounds;
    Sound* sound = nullptr;  // may dangle after a change of the collection: compare only
    SampleInfo info;
    int inhibit = 0;  // guard: the editor itself changes slider, actions or current row
    bool isBusy = false;

    QPointer<QAction> editorAction;
    QPointer<QSlider> slider;
    QPointer<QAction> playAction;
    QPointer<QAction> playLoopAction;
    QPointer<QAction> stopAction;

public slots:
    void add();
    void del();
    void duplicate();
    void openSnd();
    void saveSndAs();
    void resample();
    void play(bool isOn);
    void playLoop(bool isOn);
    void stop(bool isOn);
    void projImport();
    void selPosChanged(int row);
    void previous();
    void next();
    void trim();
    void fadeIn();
    void fadeOut();
    void normalize();
    void silence();

signals:
    void enabled(bool isEnabled);

    /// Whether a part of the waveform is selected.
    void partEnabled(bool isEnabled);
    void setSelPos(int row);
    void setPosText(const QString& text);
    void setInfoText(const QString& text);
};

}  // namespace Zorv
