#include "operations/recovery/recoverycopy.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace Operations {

namespace {

const QByteArray Magic = QByteArrayLiteral("ZORVCOPY");
constexpr quint32 Version = 2;
constexpr int HashSize = 32;
constexpr int HeadSize = 8 + 4 + 8 + HashSize;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::RecoveryCopy)
};

/// Passes bytes on and computes their hash.
class SummedDevice final : public QIODevice
{
public:
    explicit SummedDevice(QIODevice* target) : m_target(target), m_sum(QCryptographicHash::Sha256)
    {
        open(WriteOnly | Unbuffered);
    }

    bool isSequential() const override { return true; }
    quint64 length() const { return m_length; }
    QByteArray sum() const { return m_sum.result(); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        m_sum.addData(data, int(size));
        m_length += quint64(size);
        return m_target->write(data, size);
    }

private:
    QIODevice* m_target;
    QCryptographicHash m_sum;
    quint64 m_length = 0;
};

void prepare(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setByteOrder(QDataStream::BigEndian);
}

QDateTime fromMilliseconds(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds);
}

QByteArray fieldsOf(const RecoveryCopy& copy)
{
    QByteArray bytes;
    QDataStream fields(&bytes, QIODevice::WriteOnly);
    prepare(fields);
    fields << copy.fileName << copy.mainFile << copy.gameFolder << qint32(copy.kind) << copy.codec
           << copy.time.toMSecsSinceEpoch() << copy.stamp.exists << copy.stamp.size
           << copy.stamp.changed.toMSecsSinceEpoch() << copy.stamp.hash << copy.text
           << qint32(copy.content) << copy.images;
    return bytes;
}

QByteArray headOf(const SummedDevice& body)
{
    QByteArray bytes = Magic;
    QDataStream head(&bytes, QIODevice::WriteOnly | QIODevice::Append);
    prepare(head);
    head << Version << body.length();
    return bytes + body.sum();
}

bool readFields(const QByteArray& body, RecoveryCopy* read)
{
    QDataStream fields(body);
    prepare(fields);
    qint32 kind = -1;
    qint32 content = -1;
    qint64 made = 0;
    qint64 changed = 0;
    fields >> read->fileName >> read->mainFile >> read->gameFolder >> kind >> read->codec >> made >>
        read->stamp.exists >> read->stamp.size >> changed >> read->stamp.hash >> read->text >>
        content >> read->images;
    read->assets = body.mid(int(fields.device()->pos()));
    if (fields.status() != QDataStream::Ok || kind < 0 ||
        kind > qint32(Family::FileKind::Commands) || content < RecoveryCopy::Document ||
        content > RecoveryCopy::Canvas || (content == RecoveryCopy::Document && !fields.atEnd())) {
        return false;
    }
    read->kind = Family::FileKind(kind);
    read->content = RecoveryCopy::Content(content);
    read->time = fromMilliseconds(made);
    read->stamp.changed = fromMilliseconds(changed);
    return true;
}

}  // namespace

// The header is written last, because it contains the length and the hash of the data.
bool RecoveryCopy::write(QIODevice* device,
                         const std::function<bool(QIODevice*)>& writeAssets) const
{
    const QByteArray room(HeadSize, '\0');
    const QByteArray fields = fieldsOf(*this);
    SummedDevice body(device);
    if (device->write(room) != room.size() || body.write(fields) != fields.size() ||
        (writeAssets && !writeAssets(&body))) {
        return false;
    }
    const QByteArray head = headOf(body);
    return device->seek(0) && device->write(head) == head.size();
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
    const QByteArray body =
        QByteArray::fromRawData(bytes.constData() + HeadSize, std::max(0, bytes.size() - HeadSize));
    if (head.status() != QDataStream::Ok || length != quint64(body.size()) ||
        bytes.mid(HeadSize - HashSize, HashSize) !=
            QCryptographicHash::hash(body, QCryptographicHash::Sha256)) {
        *error = Text::tr("The copy is damaged: it is cut, or its checksum is wrong.");
        return false;
    }
    if (version != Version) {
        *error = Text::tr("Another version of Zorv made the copy. Open it with that one.");
        return false;
    }
    RecoveryCopy read;
    if (!readFields(body, &read)) {
        *error = Text::tr("The copy has no sense.");
        return false;
    }
    *this = read;
    return true;
}

}  // namespace Operations
