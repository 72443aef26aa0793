#include "family/assets/spritecollection.h"

#include "family/assets/pixelstore.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritetextures.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace Family {

namespace {

AssetId next(AssetId id)
{
    return AssetId::fromKey(id.key() + 1);
}

}  // namespace

SpriteCollection::Content::Content() = default;

SpriteCollection::Content::~Content() = default;

SpriteCollection::SpriteCollection()
    : SpriteListBase(&m_history), m_store(std::make_unique<PixelStore>()),
      m_history([this] { stepDone(); }), m_palettes(std::make_unique<PaletteList>(this))
{
    setCache(m_store->cache());
}

SpriteCollection::~SpriteCollection()
{
    emit closing();
    letGo();
    dropItems();
}

// Releases pixels everywhere except in the list.
void SpriteCollection::letGo()
{
    m_snapshots.cancel();
    m_pending.clear();
    m_history.clear();
    m_unshown.clear();
    m_all.clear();
}

int SpriteCollection::brokenCount() const
{
    const auto isBroken = [](const auto& item) { return !item->state.record.isEmpty(); };
    const auto countOf = [&](const auto& list) {
        return int(std::count_if(list.begin(), list.end(), isBroken));
    };
    QSet<const PixelData*> pixels;
    for (const PixelRef& ref : m_unshown) {
        pixels.insert(ref.get());
    }
    for (const ItemPtr& sprite : items()) {
        pixels.insert(sprite->state.pixels.get());
    }
    return countOf(items()) + countOf(m_palettes->items()) +
           countOf(m_palettes->remaps()->items()) +
           int(std::count_if(pixels.begin(), pixels.end(), [](const PixelData* data) {
               return data && !data->record.isEmpty();
           }));
}

const QVector<PixelRef>& SpriteCollection::keptPixels() const
{
    const bool isBroken = std::any_of(items().begin(), items().end(), [](const ItemPtr& sprite) {
        return !sprite->state.record.isEmpty();
    });
    return isBroken ? m_all : m_unshown;
}

void SpriteCollection::removeBroken()
{
    const AssetHistory::Step step(m_history, tr("Remove broken records"));
    for (int row = items().size() - 1; row >= 0; --row) {
        if (!item(row)->fault().isEmpty()) {
            removeItems(row, 1);
        }
    }
    m_palettes->removeBroken();
    m_palettes->remaps()->removeBroken();
    if (!m_unshown.isEmpty()) {
        m_history.record(std::make_unique<AssetHistory::Swap<QVector<PixelRef>>>(
            &m_unshown, QVector<PixelRef>()));
    }
}

bool SpriteCollection::contains(AssetId id) const
{
    return m_ids.contains(id.key());
}

int SpriteCollection::firstRow(AssetId id) const
{
    if (!m_rowsKnown) {
        m_rowOfId.clear();
        m_rowOfId.reserve(items().size());
        for (int row = items().size() - 1; row >= 0; --row) {
            m_rowOfId.insert(item(row)->id().key(), row);
        }
        m_rowsKnown = true;
    }
    return m_rowOfId.value(id.key(), -1);
}

int SpriteCollection::find(int from, const QVariant& id) const
{
    AssetId wanted;
    if (!AssetId::read(id, &wanted) || !contains(wanted)) {
        return -1;
    }
    int row = firstRow(wanted);
    if (row >= 0 && row < from) {
        for (row = from; row < items().size() && item(row)->id() != wanted;) {
            ++row;
        }
    }
    return row < items().size() ? row : -1;
}

bool SpriteCollection::canName(const QVariant& id) const
{
    AssetId read;
    return AssetId::read(id, &read);
}

FamilySprite* SpriteCollection::byId(AssetId id) const
{
    return contains(id) ? item(firstRow(id)) : nullptr;
}

AssetId SpriteCollection::freeId(AssetId from) const
{
    while (m_ids.contains(from.key())) {
        from = next(from);
    }
    return from;
}

FamilySprite* SpriteCollection::insertSprite(int row, AssetId id, QPoint axis, const QImage& image)
{
    const AssetHistory::Step step(m_history, tr("Add sprite"));
    auto sprite = std::make_shared<FamilySprite>(this);
    sprite->state.id = id;
    sprite->setAxis(axis);
    sprite->setImage(image);
    if (!sprite->state.pixels) {
        return nullptr;
    }
    insertItems(qBound(0, row + 1, items().size()), {sprite});
    return sprite.get();
}

void SpriteCollection::refresh()
{
    if (m_pending.isEmpty()) {
        return;
    }
    const QVector<ItemPtr> added = std::exchange(m_pending, {});
    for (const ItemPtr& sprite : added) {
        SpriteCollection::stateWent(sprite->state);
    }
    insertItems(items().size(), added);
    m_history.end();
}

FamilySprite* SpriteCollection::addSprite()
{
    if (m_pending.isEmpty()) {
        m_history.begin(tr("Add sprites"));
    }
    auto sprite = std::make_shared<FamilySprite>(this);
    const FamilySprite* last =
        !m_pending.isEmpty() ? m_pending.last().get() : item(items().size() - 1);
    sprite->state.id = last ? freeId(next(last->id())) : AssetId();
    m_pending.append(sprite);
    stateCame(sprite->state);
    return sprite.get();
}

Zorv::ImagePreparer SpriteCollection::imagePreparer() const
{
    const auto once = std::make_shared<PackedOnce>();
    return [once](const QImage& image) {
        return std::make_shared<const PackedImage>(image, once.get());
    };
}

void SpriteCollection::removeSprite(int index)
{
    if (item(index)) {
        const AssetHistory::Step step(m_history, tr("Delete sprite"));
        removeItems(index, 1);
    }
}

void SpriteCollection::removeSprites(QVector<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    const AssetHistory::Step step(m_history, tr("Delete sprites"));
    for (int last = rows.size(); last > 0;) {
        int first = last - 1;
        while (first > 0 && rows[first - 1] == rows[first] - 1) {
            --first;
        }
        if (item(rows[first]) && item(rows[last - 1])) {
            removeItems(rows[first], last - first);
        }
        last = first;
    }
}

void SpriteCollection::setCurrent(int index)
{
    currentIndex = index;
    m_current = items().value(index).get();
}

void SpriteCollection::beginChange(const QString& title)
{
    m_history.begin(title);
}

void SpriteCollection::endChange()
{
    m_history.end();
}

void SpriteCollection::undo()
{
    refresh();
    m_history.undo();
}

void SpriteCollection::redo()
{
    refresh();
    m_history.redo();
}

void SpriteCollection::move(unsigned from, unsigned to)
{
    const AssetHistory::Step step(m_history, tr("Move sprite"));
    moveItem(int(from), int(to));
}

void SpriteCollection::remove(unsigned index)
{
    removeSprite(int(index));
}

void SpriteCollection::autoOrganize()
{
    QVector<int> order(items().size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [this](int a, int b) { return item(a)->id() < item(b)->id(); });
    const AssetHistory::Step step(m_history, tr("Sort sprites"));
    reorderItems(order);
    m_palettes->autoOrganize();
}

bool SpriteCollection::isEmpty() const
{
    return items().isEmpty() && m_palettes->count() == 0 && m_palettes->remaps()->rowCount() == 0;
}

void SpriteCollection::reset()
{
    Content content;
    content.store = std::make_unique<PixelStore>();
    take(std::move(content), false);
    m_fileName.clear();
}

void SpriteCollection::setClean()
{
    m_history.setClean();
    tellModified();
}

void SpriteCollection::tellModified()
{
    if (m_history.hasCleanChanged()) {
        emit modificationChanged(isModified());
    }
}

QVariant SpriteCollection::data(const QModelIndex& index, int role) const
{
    const FamilySprite* sprite = index.model() == this ? item(index.row()) : nullptr;
    if (!sprite) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return sprite->id().text();
    }
    if (role != Qt::ToolTipRole) {
        return {};
    }
    const QString fault = sprite->fault();
    return fault.isEmpty()
               ? tr("%1 x %2 pixels, %3")
                     .arg(QString::number(sprite->size().width()),
                          QString::number(sprite->size().height()), codecName(sprite->codec()))
               : tr("Broken: %1").arg(fault);
}

void SpriteCollection::change(FamilySprite* sprite, const FamilySprite::State& state)
{
    const auto isThis = [sprite](const ItemPtr& other) { return other.get() == sprite; };
    if (sprite->row < 0 && std::any_of(m_pending.rbegin(), m_pending.rend(), isThis)) {
        stateWent(sprite->state);
        stateCame(state);
    }
    changeItem(sprite, state);
}

void SpriteCollection::insertBehind(const FamilySprite* sprite, const QVector<ItemPtr>& added)
{
    refresh();
    insertItems(sprite->row < 0 ? items().size() : sprite->row + 1, added);
}

void SpriteCollection::append(const QVector<ItemPtr>& sprites)
{
    refresh();
    insertItems(items().size(), sprites);
}

void SpriteCollection::shownChanged()
{
    m_changed = true;
    if (!items().isEmpty()) {
        tellRows(0, items().size() - 1);
    }
}

void SpriteCollection::take(Content&& content, bool asCopy)
{
    letGo();
    // Old pixels need their store until the last of them is destroyed.
    const std::unique_ptr<PixelStore> old = std::exchange(m_store, std::move(content.store));
    setCache(m_store->cache());
    m_unshown = content.unshown;
    m_all = content.all;
    m_loadErrors = content.errors;
    m_current = nullptr;
    currentIndex = content.sprites.isEmpty() ? -1 : 0;
    m_ids.reserve(content.sprites.size());
    resetItems(std::exchange(content.sprites, {}));
    m_palettes->reset(content.palettes);
    m_palettes->remaps()->reset(content.remaps);
    m_changed = m_countChanged = false;
    m_palettes->flush();
    emit changed(true);
    if (asCopy) {
        m_history.setDirty();
        emit modified();
    }
    tellModified();
}

void SpriteCollection::listChanged(bool count)
{
    m_changed = true;
    m_countChanged |= count;
    m_rowsKnown = false;
    if (m_current && m_current->row >= 0) {
        currentIndex = m_current->row;
    } else if (currentIndex >= items().size()) {
        currentIndex = items().size() - 1;
    }
    m_current = item(currentIndex);
}

void SpriteCollection::stateCame(const FamilySprite::State& state)
{
    ++m_ids[state.id.key()];
    m_rowsKnown = false;
    m_store->textures()->keep(state.pixels.get());
}

void SpriteCollection::stateWent(const FamilySprite::State& state)
{
    m_rowsKnown = false;
    m_store->textures()->release(state.pixels.get());
    if (--m_ids[state.id.key()] == 0) {
        m_ids.remove(state.id.key());
    }
}

void SpriteCollection::stepDone()
{
    m_store->textures()->dropReleased();
    m_palettes->flush();
    const bool count = m_countChanged;
    if (std::exchange(m_changed, false)) {
        m_countChanged = false;
        emit changed(count);
    }
    emit modified();
    tellModified();
}

}  // namespace Family
