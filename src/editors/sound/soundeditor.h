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

/// The editor "snd": steps through the sounds of a project; plays, adds, replaces and saves them;
/// changes their form and parts of them; imports sounds from another open project.
///
/// It publishes the tools "snd_..." in the area "sounds". While it is active, the organizer shows
/// the sounds. Each action is one undo step of the file. Long operations run in worker threads and
/// can be cancelled while the window stays responsive. Until one ends, no other action can change
/// sounds. Main thread only.
class ZORV_EXPORT SoundEditor : public FileEditor
{
    Q_OBJECT

public:
    /// The workspace is not owned and outlives the editor.
    explicit SoundEditor(SoundWorkspace* workspace, QObject* parent = nullptr);
    ~SoundEditor() override;

    /// The action "editor_snd"; hidden while there are no sounds.
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

    /// Switches to the sounds of a project; null for none.
    void setProject(Project* project) override;
    void projectAboutToClose(Project* project) override;

    /// Shows the sound of row `a`.
    void navigateTo(const QString& name, unsigned a, unsigned b, unsigned c) override;
    void undo() override;
    void redo() override;

    /// Shows the next sound whose "Identifier" matches the text: a wildcard pattern with `*` and
    /// `?` that must match all of it, or a regular expression that matches any part.
    /// Case-sensitive. Reports if there is no match.
    void find(const QString& text, unsigned flags) override;

    /// Changes the "Identifier" of the sound that `find()` would show, or of all such sounds. A
    /// regular expression replaces only the part that it matches.
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;

    /// Selects the whole waveform.
    void selectAll() override;
    ProjectFile* file() const override;

    /// Do nothing: sounds do not use the clipboard.
    void cut() override;
    void copy() override;
    void paste() override;

    Sounds* sounds() const;

    /// The current sound, or null. Valid until the collection signals a change.
    Sound* sound() const;

    /// Another sound is shown; null for none. By default passes its samples to the workspace.
    virtual void soundChanged(Sound* sound);

    /// Sounds were added or removed. By default updates slider, labels and the current sound; an
    /// override that wants this calls the base.
    virtual void soundCountChanged();

    /// Shows the current sound again after a change.
    void refreshSound();

protected:
    /// Called before the current sound is deleted, after the question of "confirm_delete". Return
    /// false to keep it, for a host that knows what plays the sound. By default true.
    virtual bool mayDeleteSound();

    /// Called before the chosen files are read. Return false to cancel. By default true.
    virtual bool mayReadSounds(const QStringList& fileNames);

    /// Reads a file in a worker thread, even if the editor dies meanwhile. Returns a sound without
    /// frames on failure; a text in `reason` is then appended to the host's message. With a valid
    /// sound, `reason` says what was lost, or why no file can hold it.
    using SoundReader = std::function<SoundSample(QString* reason)>;

    /// Returns the reader for a file. By default `soundFromWAV()`; files without plain samples are
    /// passed to the extensions for their suffix.
    virtual SoundReader soundReader(const QString& fileName);

signals:
    /// Whether a sound is shown.
    void enabled(bool isEnabled);

    /// Some files could not be opened for saving: names and reasons, one per line.
    void saveFailed(const QString& text);

private:
    friend class SoundEditorPrivate;
    std::unique_ptr<SoundEditorPrivate> d;
};

}  // namespace Zorv
