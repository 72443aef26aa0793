#include "animation/thumbnails/spritedelegate_p.h"

#include "animation/thumbnails/spritelist.h"
#include "animation/thumbnails/thumbnails.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int Gap = 4;
constexpr int RingSide = 7;

QColor textColor(const QStyleOptionViewItem& option)
{
    const bool isSelected = option.state & QStyle::State_Selected;
    return option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
}

/// A red that is readable on the background of the list.
QColor faultColor(const QStyleOptionViewItem& option)
{
    if (option.state & QStyle::State_Selected) {
        return textColor(option);
    }
    const bool isDark = option.palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(0xff, 0x8f, 0x87) : QColor(0xb3, 0x26, 0x1e);
}

void drawRing(QPainter* painter, const QStyleOptionViewItem& option)
{
    const QRectF ring(option.rect.right() - RingSide - 2, option.rect.top() + 2.5, RingSide,
                      RingSide);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(textColor(option), 1.5));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(ring);
    painter->restore();
}

}  // namespace

SpriteDelegate::SpriteDelegate(Thumbnails* thumbnails, const SpriteList* list, QObject* parent)
    : QStyledItemDelegate(parent), m_thumbnails(thumbnails), m_list(list)
{
}

QSize SpriteDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    const int side = m_thumbnails->side();
    const int widest = option.fontMetrics.horizontalAdvance(QStringLiteral("00000,000"));
    return {std::max(side, widest) + 2 * Gap, side + option.fontMetrics.height() + 3 * Gap};
}

void SpriteDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    const QWidget* view = option.widget;
    view->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, view);
    const QRect rect = option.rect.adjusted(Gap, Gap, -Gap, -Gap);
    const QRect text(rect.left(), rect.bottom() - option.fontMetrics.height(), rect.width(),
                     option.fontMetrics.height());
    painter->setPen(textColor(option));
    painter->drawText(
        text, Qt::AlignHCenter | Qt::AlignVCenter,
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, text.width()));
    const QRect place(rect.left(), rect.top(), rect.width(), m_thumbnails->side());
    drawPicture(painter, option, place, index.row());
    if (m_list->isMarked(index.row())) {
        drawRing(painter, option);
    }
}

void SpriteDelegate::drawPicture(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QRect& place, int row) const
{
    const QPixmap* picture = m_thumbnails->picture(row);
    if (picture && !picture->isNull()) {
        QRect rect(QPoint(), picture->size());
        rect.moveCenter(place.center());
        painter->drawPixmap(rect, *picture);
    } else if (picture) {
        painter->setPen(faultColor(option));
        painter->drawText(place, Qt::AlignCenter, QStringLiteral("!"));
    }
}

}  // namespace Zorv
