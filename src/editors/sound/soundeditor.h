#pragma once

#include "editors/framework/fileeditor.h"
#include "zorv_export.h"

#include <functional>
#include <memory>

namespace Zorv {

class Sound;
class SoundEditorPrivate;
class Sounds;
class SoundWorkspace;
struct SoundSample;

/// The editor "snd": steps through the sounds of a project, plays, adds, replaces and saves them,
/// changes their form and parts of them, and takes sounds over from another open project.
///
/// It publishes the tools "snd_..." in the area "sounds". While it is in front, the organizer shows
/// the sounds. What one action does is one step of undo of the file. What takes long is done in
/// other threads while the window goes on, and can be cancelled; until it has ended, no other
/// action changes sounds. Main thread only.
class ZORV_EXPORT SoundEditor : public FileEditor
{
    Q_OBJECT

public:
    /// The workspace is not owned and outlives the editor.
    explicit SoundEditor(SoundWorkspace* workspace, QObject* parent = nullptr);
    ~SoundEditor() override;

    /// "editor_snd"; hidden while there are no sounds.
    QAction* action() const override;

    /// "snd".
    QString name() const override;

    /// 1 while the collection has no file.
    int canEditFileType() const override;
    QStringList areas() const override;
    Workspace* workspace() const override;
    void activate() override;
    void deactivate() override;
    void retranslate() override;

    /// Takes up the sounds of the project; null for none.
    void setProject(Project* project) override;
    void projectAboutToClose(Project* project) override;

    /// Shows the sound of a row, `a`.
    void navigateTo(const QString& name, unsigned a, unsigned b, unsigned c) override;
    void undo() override;
    void redo() override;

    /// Shows the next sound whose "Identifier" is like the text: a pattern with `*` and `?` for all
    /// of it, or an expression that is somewhere in it. Upper and lower case differ. Tells if there
    /// is none.
    void find(const QString& text, unsigned flags) override;

    /// Gives the sound that `find()` would show, or all such sounds, another "Identifier". Of an
    /// expression what it matches is replaced.
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;

    /// Selects all of the waveform.
    void selectAll() override;
    ProjectFile* file() const override;

    /// Nothing: sounds do not go by the clipboard.
    void cut() override;
    void copy() override;
    void paste() override;

    Sounds* sounds() const;

    /// The sound that is shown, or null. Good until the collection signals a change.
    Sound* sound() const;

    /// Another sound is shown, or with null none: as it stands here the workspace gets its samples.
    virtual void soundChanged(Sound* sound);

    /// Sounds have come or gone: as it stands here slider, labels and the sound that is shown
    /// follow, and so they do if an override calls this one.
    virtual void soundCountChanged();

    /// Shows the current sound anew.
    void refreshSound();

protected:
    /// Asked before the current sound is deleted, behind the question of "confirm_delete". False
    /// keeps it: for a host that knows who plays it. Here true.
    virtual bool mayDeleteSound();

    /// Asked before the files that the person has chosen are read. False gives up. Here true.
    virtual bool mayReadSounds(const QStringList& fileNames);

    /// Reads a file in another thread, whatever becomes of the editor meanwhile. It gives a sound
    /// without frames if that does not go; then `reason`, if a text is put there, is told behind
    /// the host's. Beside a sound with frames it tells what is lost, or why no file can hold it.
    using SoundReader = std::function<SoundSample(QString* reason)>;

    /// How a file is read. As it stands here that is `soundFromWAV()`, and for what has no plain
    /// samples the extensions of the file's suffix.
    virtual SoundReader soundReader(const QString& fileName);

signals:
    /// A sound is shown.
    void enabled(bool isEnabled);

    /// Some files could not be opened to save sounds in them: their names and reasons, a line each.
    void saveFailed(const QString& text);

private:
    friend class SoundEditorPrivate;
    std::unique_ptr<SoundEditorPrivate> d;
};

}  // namespace Zorv
