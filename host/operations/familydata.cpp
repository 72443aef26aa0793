#include "operations/familydata.h"

#include "family/completer/completerfile.h"
#include "family/project/familyenginemodel.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/core/safefile.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QMap>

static void initResources()
{
    Q_INIT_RESOURCE(family_data);
}

namespace Operations {

using Family::FamilyEngineModel;

namespace {

/// Shipped files are smaller; a larger one belongs to the user.
constexpr qint64 MaxSize = 4 * 1024 * 1024;

QByteArray hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

class Preparation
{
public:
    explicit Preparation(const QString& folder) : m_folder(folder + QLatin1Char('/')) {}

    QString run()
    {
        readRecord();
        const QDir shipped(QStringLiteral(":/family/snippets"));
        const QStringList names = shipped.entryList(QDir::Files, QDir::Name);
        for (const QString& name : names) {
            QFile file(shipped.filePath(name));
            if (file.open(QIODevice::ReadOnly)) {
                putSnippet(QLatin1String("snippets/") + name, file.readAll());
            }
        }
        putCompleter();
        writeRecord();
        return m_error;
    }

private:
    QString path(const QString& name) const { return m_folder + name; }

    bool isThere(const QString& name) const { return QFile::exists(path(name)); }

    QByteArray read(const QString& name) const
    {
        Zorv::Archive& disk = *Zorv::FileSystemArchive::instance();
        QIODevice* device = disk.openFile(path(name), QIODevice::ReadOnly);
        const QByteArray bytes = device ? device->read(MaxSize) : QByteArray();
        disk.closeFile(device);
        return bytes;
    }

    bool write(const QString& name, const QByteArray& bytes)
    {
        QString error;
        const bool isWritten = Zorv::SafeFile::save(path(name), bytes, &error);
        if (m_error.isEmpty()) {
            m_error = error;
        }
        return isWritten;
    }

    void putSnippet(const QString& name, const QByteArray& bytes)
    {
        const QByteArray version = hashOf(bytes);
        const QByteArray last = m_record.value(name);
        if (last == version) {
            return;
        }
        const bool isOurs = isThere(name) ? hashOf(read(name)) == last : last.isEmpty();
        if (!isOurs || write(name, bytes)) {
            m_record.insert(name, version);
            m_isRecordChanged = true;
        }
    }

    void putCompleter()
    {
        const QString name = Family::completerFileName();
        const QByteArray now = isThere(name) ? read(name) : QByteArray();
        const QByteArray words = Family::completerXml();
        if (now != words && (!isThere(name) || Family::isOwnCompleter(now))) {
            write(name, words);
        }
    }

    /// One line per file: hash, blank, name.
    void readRecord()
    {
        const QList<QByteArray> lines = read(recordName).split('\n');
        for (const QByteArray& line : lines) {
            const int blank = line.indexOf(' ');
            if (blank > 0) {
                m_record.insert(QString::fromUtf8(line.mid(blank + 1)), line.left(blank));
            }
        }
    }

    void writeRecord()
    {
        if (!m_isRecordChanged) {
            return;
        }
        QByteArray bytes;
        for (auto entry = m_record.cbegin(); entry != m_record.cend(); ++entry) {
            bytes += entry.value() + ' ' + entry.key().toUtf8() + '\n';
        }
        write(recordName, bytes);
    }

    const QString recordName = QStringLiteral("shipped");

    QString m_folder;
    QString m_error;
    QMap<QString, QByteArray> m_record;
    bool m_isRecordChanged = false;
};

}  // namespace

bool prepareFamilyData(QString* error)
{
    initResources();
    *error = Preparation(FamilyEngineModel::instance()->dataPath()).run();
    return error->isEmpty();
}

}  // namespace Operations
