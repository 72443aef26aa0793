#pragma once

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QString>

namespace Zorv {

/// A file that is written beside the old one and takes its place at `commit()`.
///
/// A failure of any step is kept: from then on nothing is written, and
/// `commit()` removes the new file and leaves the old one. An object that dies
/// without `commit()` leaves the old file too.
class SafeFile : public QIODevice
{
    Q_OBJECT

public:
    explicit SafeFile(const QString& path);
    ~SafeFile() override;

    /// The file need not have reached the disk, unless it takes the place of another: what it
    /// was made of is there still.
    void setLazy() { m_isLazy = true; }

    /// Makes the new file. On false `failure()` tells why.
    bool open(OpenMode mode) override;

    /// Ends the writing; the old file is replaced by `commit()` only.
    void close() override;

    /// Puts the new file in the place of the old one.
    bool commit();

    /// Gives up: the old file stays, and `commit()` will answer false.
    void fail(const QString& reason);

    /// The first failure, in words for the person; empty without one.
    QString failure() const { return m_failure; }

    bool isSequential() const override { return false; }
    qint64 size() const override;
    bool seek(qint64 position) override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    bool checkTarget(OpenMode mode);
    bool makeFile();
    bool openNew();
    bool isTaken() const;
    bool copyOldContent();
    bool flush();
    bool writeOut(const char* data, qint64 size);
    bool replaceTarget();
    bool takePlace(QString* reason);
    void discard();
    void failWriting(const QString& reason);
    void setFailure(const QString& reason, const QString& advice);

    QString m_path;        // as the caller knows it
    QString m_target;      // with links followed
    QFile m_file;          // the new file; open until commit or failure
    QByteArray m_pending;  // to be written where m_file stands
    QString m_failure;
    bool m_targetExists = false;
    bool m_isNewOnly = false;  // what stands there by now stays
    bool m_isLazy = false;
    bool m_touched = false;  // differs from the old file, if it began as its copy
};

}  // namespace Zorv
