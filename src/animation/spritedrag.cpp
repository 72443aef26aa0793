#include "animation/spritedrag.h"

#include <QMimeData>

namespace Zorv {

namespace {

/// Parses "GROUP,NUMBER". False if malformed.
bool read(const QByteArray& text, SpriteNumber* sprite)
{
    const int comma = text.indexOf(',');
    bool hasGroup = false;
    bool hasNumber = false;
    *sprite = {text.left(comma).toInt(&hasGroup), text.mid(comma + 1).toInt(&hasNumber)};
    return comma > 0 && hasGroup && hasNumber && sprite->isValid();
}

}  // namespace

QString spriteDragType()
{
    return QStringLiteral("application/x-zorv-sprites");
}

QMimeData* spriteDrag(const QVector<SpriteNumber>& sprites)
{
    QByteArray text;
    for (const SpriteNumber& sprite : sprites) {
        text += QByteArray::number(sprite.group) + ',' + QByteArray::number(sprite.number) + '\n';
    }
    auto* data = new QMimeData;
    data->setData(spriteDragType(), text);
    return data;
}

QVector<SpriteNumber> draggedSprites(const QMimeData* data)
{
    QVector<SpriteNumber> sprites;
    if (!data || !data->hasFormat(spriteDragType())) {
        return sprites;
    }
    const QList<QByteArray> lines = data->data(spriteDragType()).split('\n');
    for (const QByteArray& line : lines) {
        SpriteNumber sprite;
        if (!line.isEmpty() && !read(line, &sprite)) {
            return {};
        }
        if (!line.isEmpty()) {
            sprites.append(sprite);
        }
    }
    return sprites;
}

}  // namespace Zorv
