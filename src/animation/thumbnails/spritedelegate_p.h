#pragma once

#include <QStyledItemDelegate>

namespace Zorv {

class SpriteList;
class Thumbnails;

/// Draws a sprite of a list: a picture above a name. A ring in the corner marks an unused sprite.
class SpriteDelegate final : public QStyledItemDelegate
{
public:
    SpriteDelegate(Thumbnails* thumbnails, const SpriteList* list, QObject* parent);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void drawPicture(QPainter* painter, const QStyleOptionViewItem& option, const QRect& place,
                     int row) const;

    Thumbnails* m_thumbnails;
    const SpriteList* m_list;
};

}  // namespace Zorv
