#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace Zorv {
class ProjectFile;
}

namespace Operations {

class RecoveryInput;

/// Keeps recovery copies of unsaved texts, sprites, sounds and canvases outside of any game folder,
/// so that the work survives a crash.
///
/// A change is copied at most once per interval, large files less often. The main thread copies a
/// text at once. It collects the bytes of sprites and sounds in small parts between other events. A
/// worker thread writes the copy to a new file, which replaces the previous one when it is
/// complete. The copy of a file is deleted when the file is saved, reloaded or closed. Main thread
/// only.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    /// Keeps copies inside `root`; the folder is created with the first copy.
    explicit RecoveryKeeper(const QString& root, QObject* parent = nullptr);

    /// Removes all copies: whoever ends the program has asked the user about unsaved work.
    ~RecoveryKeeper() override;

    /// In milliseconds, 0 to keep no copies. Until this is called, or if it is negative, the
    /// setting "recovery_seconds" applies.
    void setInterval(int interval);
    int interval() const;

    /// Follows a document or collection until it is destroyed. Does nothing if it is already
    /// followed. Call it before the first change: it records the state of the file, which later
    /// shows whether the copy is older than the file.
    void watch(Zorv::ProjectFile* file);

    /// Follows work that has not reached its file yet. Call `inputChanged()` when it changes, moves
    /// to another file, or ends. It has its own copy. It must outlive the keeper.
    void watchInput(const RecoveryInput* input);
    void inputChanged(const RecoveryInput* input);

    /// Copies all changes now and waits until they are written. True if all unsaved work has a copy
    /// then.
    bool flush();

    /// The folder of the copies; empty before the first one.
    QString folder() const;

signals:
    /// All changes of the last turn are on disk.
    void copied();

    /// A copy could not be written. Emitted only once until a copy succeeds; attempts continue.
    void failed(const QString& reason);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace Operations
