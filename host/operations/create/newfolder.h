#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace Operations {

/// A folder that is being made: it has its name only once it is whole.
///
/// It is made beside its place, in a hidden folder that is locked as long as the process lives.
/// What programs that are gone have left there goes first.
class NewFolder
{
public:
    /// `place` is the path that the folder is to have; the folder around it has to be there.
    explicit NewFolder(const QString& place);

    /// Removes what was not finished.
    ~NewFolder();

    /// Makes the folder under another name. False, with `error` for the person, if something
    /// other than an empty folder has its place, or nothing can be written there.
    bool begin(QString* error);

    /// Where its files go, ends in "/".
    QString path() const;

    /// Gives it its name. False, with `error`, if that fails; nothing is left then.
    bool finish(QString* error);

    /// A text about the files in it, with their names as they will be.
    QString told(QString text) const;

    /// That nothing can be made in a folder, for the person.
    static QString cannotWrite(const QString& folder);

private:
    Q_DISABLE_COPY(NewFolder)
    bool make();

    QString m_place;
    std::unique_ptr<QTemporaryDir> m_hidden;
    std::unique_ptr<QLockFile> m_lock;
};

}  // namespace Operations
