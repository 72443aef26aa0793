#include "app/assets/spritelist.h"

#include "app/assets/thumbnails.h"
#include "app/look/language.h"
#include "app/look/theme.h"

#include <zorv/cache/palettes.h>
#include <zorv/cache/sprites.h>

#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

namespace App {

namespace {

constexpr int ThumbnailSide = 56;
constexpr int Gap = 4;

/// A picture above a number.
class SpriteDelegate final : public QStyledItemDelegate
{
public:
    SpriteDelegate(Thumbnails* thumbnails, QObject* parent)
        : QStyledItemDelegate(parent), m_thumbnails(thumbnails)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        const int side = m_thumbnails->side();
        const int widest = option.fontMetrics.horizontalAdvance(QStringLiteral("00000,000"));
        return {std::max(side, widest) + 2 * Gap, side + option.fontMetrics.height() + 3 * Gap};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, index);
        ground.text.clear();
        const QWidget* view = option.widget;
        view->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, view);
        const QRect rect = option.rect.adjusted(Gap, Gap, -Gap, -Gap);
        const QRect text(rect.left(), rect.bottom() - option.fontMetrics.height(), rect.width(),
                         option.fontMetrics.height());
        const QRect place(rect.left(), rect.top(), rect.width(), m_thumbnails->side());
        const bool isSelected = option.state & QStyle::State_Selected;
        painter->setPen(
            option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(
            text, Qt::AlignHCenter | Qt::AlignVCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, text.width()));
        drawPicture(painter, place, m_thumbnails->picture(index.row()), isSelected);
    }

private:
    void drawPicture(QPainter* painter, const QRect& place, const QPixmap* picture,
                     bool isSelected) const
    {
        if (picture && !picture->isNull()) {
            QRect rect(QPoint(), picture->size());
            rect.moveCenter(place.center());
            painter->drawPixmap(rect, *picture);
        } else if (picture) {
            if (!isSelected) {
                painter->setPen(Theme::colour(Theme::ErrorText));
            }
            painter->drawText(place, Qt::AlignCenter, QStringLiteral("!"));
        }
    }

    Thumbnails* m_thumbnails;
};

}  // namespace

SpriteList::SpriteList(QWidget* parent)
    : RowList(parent), m_thumbnails(new Thumbnails(ThumbnailSide, this))
{
    followLanguage(this, [this] { setAccessibleName(tr("Sprites of the project")); });
    setItemDelegate(new SpriteDelegate(m_thumbnails, this));
    setUniformItemSizes(true);
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    updateGrid();
    connect(m_thumbnails, &Thumbnails::made, viewport(), QOverload<>::of(&QWidget::update));
}

void SpriteList::setSprites(Zorv::Sprites* sprites)
{
    if (sprites == m_sprites) {
        return;
    }
    if (m_sprites) {
        m_sprites->disconnect(m_thumbnails);
        m_sprites->palettes()->disconnect(m_thumbnails);
    }
    m_sprites = sprites;
    m_thumbnails->setSprites(sprites);
    setModel(sprites);
    if (sprites) {
        // Any change can move rows or give them other colours.
        const auto forget = [this] {
            m_thumbnails->forgetAll();
            viewport()->update();
        };
        connect(sprites, &Zorv::Sprites::changed, m_thumbnails, forget);
        connect(sprites->palettes(), &Zorv::Palettes::palChanged, m_thumbnails, forget);
        connect(sprites, &QAbstractItemModel::dataChanged, m_thumbnails, forget);
        connect(sprites, &QAbstractItemModel::modelReset, m_thumbnails, forget);
        connect(sprites, &QAbstractItemModel::layoutChanged, m_thumbnails, forget);
        connect(sprites, &QAbstractItemModel::rowsInserted, m_thumbnails, forget);
        connect(sprites, &QAbstractItemModel::rowsRemoved, m_thumbnails, forget);
        connect(sprites, &QAbstractItemModel::rowsMoved, m_thumbnails, forget);
    }
}

void SpriteList::paintEvent(QPaintEvent* event)
{
    m_thumbnails->startPage();
    RowList::paintEvent(event);
}

void SpriteList::changeEvent(QEvent* event)
{
    RowList::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGrid();
    }
}

void SpriteList::updateGrid()
{
    setGridSize(itemDelegate()->sizeHint(viewOptions(), QModelIndex()));
}

}  // namespace App
