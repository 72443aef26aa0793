#include "operations/recovery/canvascopy.h"

#include <QBuffer>
#include <QDataStream>

namespace Operations {

QString CanvasCopy::lines() const
{
    QString text =
        QStringLiteral("canvas of sprite %1 axis %2,%3 %4x%5\n")
            .arg(identifier, QString::number(record.axis.x()), QString::number(record.axis.y()),
                 QString::number(record.size.width()), QString::number(record.size.height()));
    for (const Zorv::CanvasRecord::Layer& layer : record.layers) {
        text += QStringLiteral("layer %1%2\n")
                    .arg(layer.name, layer.isVisible ? QString() : QStringLiteral(" hidden"));
    }
    return text;
}

bool CanvasCopy::write(QIODevice* device) const
{
    QByteArray head;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << identifier << qint32(row);
    return device->write(head) == head.size() && record.write(device);
}

bool CanvasCopy::read(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_15);
    QString sprite;
    qint32 at = -1;
    stream >> sprite >> at;
    if (stream.status() != QDataStream::Ok ||
        !record.read(bytes.mid(int(stream.device()->pos())))) {
        return false;
    }
    identifier = sprite;
    row = at;
    return true;
}

QByteArray CanvasCopy::picture() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QImage image = record.flattened();
    return !image.isNull() && image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

}  // namespace Operations
