#include "operations/recovery/recoverycopy.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>

namespace Operations {

using Family::FileKind;

namespace {

const QByteArray Magic = QByteArrayLiteral("ZORVCOPY");
constexpr quint32 Version = 1;
constexpr int HashSize = 32;
constexpr int HeadSize = 8 + 4 + 8 + HashSize;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::RecoveryCopy)
};

QByteArray hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

void prepare(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setByteOrder(QDataStream::BigEndian);
}

QDateTime fromMilliseconds(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds);
}

}  // namespace

FileStamp FileStamp::of(const QString& fileName)
{
    const QFileInfo info(fileName);
    FileStamp stamp;
    if (!fileName.isEmpty() && info.isFile()) {
        stamp.exists = true;
        stamp.size = info.size();
        stamp.changed = info.lastModified();
    }
    return stamp;
}

void FileStamp::addHash(const QString& fileName)
{
    QFile file(fileName);
    QCryptographicHash sum(QCryptographicHash::Sha256);
    if (exists && isSameState(of(fileName)) && file.open(QIODevice::ReadOnly) &&
        sum.addData(&file) && isSameState(of(fileName))) {
        hash = sum.result();
    }
}

bool FileStamp::isSameState(const FileStamp& other) const
{
    return exists == other.exists && size == other.size && changed == other.changed;
}

QByteArray RecoveryCopy::toBytes() const
{
    QByteArray body;
    QDataStream fields(&body, QIODevice::WriteOnly);
    prepare(fields);
    fields << fileName << mainFile << gameFolder << qint32(kind) << codec
           << time.toMSecsSinceEpoch() << stamp.exists << stamp.size
           << stamp.changed.toMSecsSinceEpoch() << stamp.hash << text;
    QByteArray bytes = Magic;
    QDataStream head(&bytes, QIODevice::WriteOnly | QIODevice::Append);
    prepare(head);
    head << Version << quint64(body.size());
    return bytes + hashOf(body) + body;
}

bool RecoveryCopy::fromBytes(const QByteArray& bytes, QString* error)
{
    if (!bytes.startsWith(Magic)) {
        *error = Text::tr("It is no copy of Zorv.");
        return false;
    }
    QDataStream head(bytes.mid(Magic.size(), HeadSize - Magic.size()));
    prepare(head);
    quint32 version = 0;
    quint64 length = 0;
    head >> version >> length;
    const QByteArray body = bytes.mid(HeadSize);
    if (head.status() != QDataStream::Ok || length != quint64(body.size()) ||
        bytes.mid(HeadSize - HashSize, HashSize) != hashOf(body)) {
        *error = Text::tr("The copy is damaged: it is cut, or its checksum is wrong.");
        return false;
    }
    if (version != Version) {
        *error = Text::tr("Another version of Zorv made the copy. Open it with that one.");
        return false;
    }
    QDataStream fields(body);
    prepare(fields);
    RecoveryCopy read;
    qint32 kindNumber = -1;
    qint64 made = 0;
    qint64 changed = 0;
    fields >> read.fileName >> read.mainFile >> read.gameFolder >> kindNumber >> read.codec >>
        made >> read.stamp.exists >> read.stamp.size >> changed >> read.stamp.hash >> read.text;
    if (fields.status() != QDataStream::Ok || !fields.atEnd() || kindNumber < 0 ||
        kindNumber > qint32(FileKind::Commands)) {
        *error = Text::tr("The copy has no sense.");
        return false;
    }
    read.kind = FileKind(kindNumber);
    read.time = fromMilliseconds(made);
    read.stamp.changed = fromMilliseconds(changed);
    *this = read;
    return true;
}

}  // namespace Operations
