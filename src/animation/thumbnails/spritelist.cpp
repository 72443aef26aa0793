#include "animation/thumbnails/spritelist.h"

#include "animation/spritedrag.h"
#include "animation/thumbnails/spritedelegate_p.h"
#include "animation/thumbnails/spriteuses.h"
#include "animation/thumbnails/thumbnails.h"
#include "cache/palettes.h"
#include "cache/sprite.h"
#include "cache/sprites.h"

#include <QDrag>
#include <QHelpEvent>
#include <QPixmap>
#include <QPointer>
#include <QToolTip>

#include <numeric>

namespace Zorv {

namespace {

constexpr int ThumbnailSide = 56;

}  // namespace

class SpriteListPrivate
{
public:
    SpriteListPrivate(SpriteList* list) : q(list), thumbnails(ThumbnailSide) {}

    void follow();
    void forgetPictures();
    QString tipOf(int row);
    SpriteNumber numberOf(int row) const;
    QVector<SpriteNumber> numbersOf(const QVector<int>& rows) const;

    SpriteList* q;
    QPointer<Sprites> sprites;
    QPointer<SpriteUses> uses;
    Thumbnails thumbnails;
};

/// Any change can move rows or change their colours, so all pictures are dropped.
void SpriteListPrivate::follow()
{
    const auto forget = [this] { forgetPictures(); };
    QObject::connect(sprites, &Sprites::changed, &thumbnails, forget);
    QObject::connect(sprites->palettes(), &Palettes::palChanged, &thumbnails, forget);
    QObject::connect(sprites, &Sprites::closing, &thumbnails, [this] { q->setSprites(nullptr); });
    QObject::connect(sprites, &QAbstractItemModel::dataChanged, &thumbnails, forget);
    QObject::connect(sprites, &QAbstractItemModel::modelReset, &thumbnails, forget);
    QObject::connect(sprites, &QAbstractItemModel::layoutChanged, &thumbnails, forget);
    QObject::connect(sprites, &QAbstractItemModel::rowsInserted, &thumbnails, forget);
    QObject::connect(sprites, &QAbstractItemModel::rowsRemoved, &thumbnails, forget);
    QObject::connect(sprites, &QAbstractItemModel::rowsMoved, &thumbnails, forget);
}

void SpriteListPrivate::forgetPictures()
{
    thumbnails.forgetAll();
    q->viewport()->update();
}

QString SpriteListPrivate::tipOf(int row)
{
    QStringList lines;
    const QPixmap* picture = thumbnails.picture(row);
    if (picture && picture->isNull()) {
        lines.append(SpriteList::tr("The pixels of this sprite are missing or broken."));
    }
    if (q->isMarked(row)) {
        lines.append(SpriteList::tr("No frame shows this sprite."));
    }
    return lines.join(QLatin1Char('\n'));
}

SpriteNumber SpriteListPrivate::numberOf(int row) const
{
    return sprites ? spriteNumber(sprites->sprite(row)) : SpriteNumber();
}

QVector<SpriteNumber> SpriteListPrivate::numbersOf(const QVector<int>& rows) const
{
    QVector<SpriteNumber> numbers;
    for (int row : rows) {
        const SpriteNumber number = numberOf(row);
        if (number.isValid()) {
            numbers.append(number);
        }
    }
    return numbers;
}

SpriteList::SpriteList(QWidget* parent)
    : RowList(parent), d(std::make_unique<SpriteListPrivate>(this))
{
    setItemDelegate(new SpriteDelegate(&d->thumbnails, this, this));
    setUniformItemSizes(true);
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setDragDropMode(QAbstractItemView::DragOnly);
    updateGrid();
    connect(&d->thumbnails, &Thumbnails::made, viewport(), QOverload<>::of(&QWidget::update));
}

SpriteList::~SpriteList() = default;

void SpriteList::setSprites(Sprites* sprites)
{
    if (sprites == d->sprites) {
        return;
    }
    if (d->sprites) {
        d->sprites->disconnect(&d->thumbnails);
        d->sprites->palettes()->disconnect(&d->thumbnails);
    }
    d->sprites = sprites;
    d->thumbnails.setSprites(sprites);
    setModel(sprites);
    if (sprites) {
        d->follow();
    }
}

Sprites* SpriteList::sprites() const
{
    return d->sprites;
}

void SpriteList::setUses(SpriteUses* uses)
{
    if (d->uses) {
        d->uses->disconnect(viewport());
    }
    d->uses = uses;
    if (uses) {
        connect(uses, &SpriteUses::changed, viewport(), QOverload<>::of(&QWidget::update));
    }
    viewport()->update();
}

void SpriteList::setColorSight(const ColorSight& sight)
{
    d->thumbnails.setColorSight(sight);
    viewport()->update();
}

bool SpriteList::isMarked(int row) const
{
    const SpriteNumber number = d->numberOf(row);
    return number.isValid() && d->uses && d->uses->hasAnimations() && d->uses->count(number) == 0;
}

QVector<SpriteNumber> SpriteList::selectedSprites() const
{
    return d->numbersOf(selectedRows());
}

QVector<SpriteNumber> SpriteList::allSprites() const
{
    QVector<int> rows(d->sprites ? int(d->sprites->count()) : 0);
    std::iota(rows.begin(), rows.end(), 0);
    return d->numbersOf(rows);
}

void SpriteList::paintEvent(QPaintEvent* event)
{
    d->thumbnails.startPage();
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

void SpriteList::startDrag(Qt::DropActions)
{
    const QVector<SpriteNumber> numbers = selectedSprites();
    if (numbers.isEmpty()) {
        return;
    }
    // The list may be destroyed during the drag, so nothing here uses it after `exec()`.
    auto* drag = new QDrag(this);
    drag->setMimeData(spriteDrag(numbers));
    const QPixmap* picture = d->thumbnails.picture(currentIndex().row());
    if (picture && !picture->isNull()) {
        drag->setPixmap(*picture);
    }
    drag->exec(Qt::CopyAction);
}

bool SpriteList::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return RowList::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    QToolTip::showText(help->globalPos(), index.isValid() ? d->tipOf(index.row()) : QString(),
                       viewport(), visualRect(index));
    return true;
}

}  // namespace Zorv
