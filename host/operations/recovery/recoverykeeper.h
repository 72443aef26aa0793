#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace Zorv {
class ProjectFile;
}

namespace Operations {

class RecoveryInput;

/// Puts unsaved texts, sprites, sounds and canvases aside, outside of the files of any game, so
/// that they outlive a crash.
///
/// What has changed is copied at most once an interval, large files less often. A text
/// is taken at once; the bytes of sprites and sounds are brought together in small parts between
/// other events. Another thread writes the copy, to a new file that takes the place of the last
/// one when it is whole. The copy of a file goes when that is saved, read again, or closed. Main
/// thread only.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    /// Keeps copies below `root`; the folder is made with the first copy.
    explicit RecoveryKeeper(const QString& root, QObject* parent = nullptr);

    /// Removes all copies: whoever ends the program has asked about unsaved work.
    ~RecoveryKeeper() override;

    /// In milliseconds, 0 to keep no copies. The setting "recovery_seconds" until
    /// another one is set, or with a negative one.
    void setInterval(int interval);
    int interval() const;

    /// Follows a document or a collection until it dies; nothing for one that is known. Call it
    /// before it changes: what its file is then tells later whether the copy is older
    /// than the file.
    void watch(Zorv::ProjectFile* file);

    /// Follows work that is not in its file yet, and tells that it has changed, or is of another
    /// file, or is none any more. It has a copy of its own, and outlives the keeper.
    void watchInput(const RecoveryInput* input);
    void inputChanged(const RecoveryInput* input);

    /// Copies now what has changed, and waits until it is written. True if
    /// all unsaved work has a copy then.
    bool flush();

    /// Where the copies are; empty before the first one.
    QString folder() const;

signals:
    /// All that had changed at the last turn is on the disk.
    void copied();

    /// A copy could not be written. Comes once until one can; the attempts go on.
    void failed(const QString& reason);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace Operations
