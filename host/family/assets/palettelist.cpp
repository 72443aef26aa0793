#include "family/assets/palettelist.h"

#include "family/assets/freeids.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritecollection.h"

#include <zorv/cache/crc64.h>

#include <QSet>
#include <algorithm>
#include <numeric>

namespace Family {

namespace {

/// The colours for comparison: entry 0 is transparent whatever its alpha.
PaletteColors compared(PaletteColors colors)
{
    colors[0].a = 255;
    return colors;
}

quint64 checksum(const PaletteColors& colors)
{
    const PaletteColors same = compared(colors);
    return Zorv::crc64(&same[0].r, sizeof same);
}

PaletteColors toColors(const Zorv::RGBA (&colors)[256])
{
    PaletteColors taken;
    std::copy(std::begin(colors), std::end(colors), taken.begin());
    return taken;
}

template <class Key>
void countDown(QHash<Key, int>& counts, Key key)
{
    if (--counts[key] == 0) {
        counts.remove(key);
    }
}

}  // namespace

PaletteList::PaletteList(SpriteCollection* sprites)
    : PaletteListBase(&sprites->editHistory()), m_sprites(sprites),
      m_remaps(std::make_unique<RemapModel>(&sprites->editHistory(), [this] { shownChanged(); }))
{
}

PaletteList::~PaletteList() = default;

void PaletteList::setCurrent(int row)
{
    currentIndex = row;
}

FamilyPalette* PaletteList::insert(int row, const Zorv::RGBA (&colors)[256], const QVariant& id,
                                   bool askId)
{
    AssetId wish = nextId();
    if (!AssetId::read(id, &wish) || askId) {
        wish = freeId(wish);
    }
    return place(row, toColors(colors), wish);
}

FamilyPalette* PaletteList::addPalette(const Zorv::RGBA (&colors)[256], const QVariant& id,
                                       bool askId)
{
    return insert(count(), colors, id, askId);
}

FamilyPalette* PaletteList::place(int row, const PaletteColors& colors, AssetId id)
{
    auto palette = std::make_shared<FamilyPalette>(this);
    palette->state.id = id;
    palette->state.colors = colors;
    const AssetHistory::Step step(history(), tr("Add palette"));
    insertItems(qBound(0, row, count()), {palette});
    return palette.get();
}

void PaletteList::remove(int row)
{
    if (item(row)) {
        const AssetHistory::Step step(history(), tr("Delete palette"));
        drop({row});
    }
}

void PaletteList::clear()
{
    QVector<int> rows(count());
    std::iota(rows.begin(), rows.end(), 0);
    const AssetHistory::Step step(history(), tr("Delete all palettes"));
    drop(rows);
}

void PaletteList::removeUnused()
{
    QSet<const FamilyPalette*> used;
    for (const auto& sprite : m_sprites->items()) {
        used.insert(sprite->state.palette.get());
    }
    QVector<int> rows;
    for (const ItemPtr& palette : items()) {
        if (!used.contains(palette.get()) && !m_remaps->names(palette->id())) {
            rows.append(palette->row);
        }
    }
    const AssetHistory::Step step(history(), tr("Delete unused palettes"));
    drop(rows);
}

void PaletteList::removeDuplicates()
{
    QHash<quint64, QVector<ItemPtr>> kept;
    QHash<const FamilyPalette*, ItemPtr> replaced;
    QVector<int> rows;
    for (const ItemPtr& palette : items()) {
        QVector<ItemPtr>& alike = kept[checksum(palette->state.colors)];
        const auto first = std::find_if(alike.begin(), alike.end(), [&](const ItemPtr& other) {
            return other->state.colors == palette->state.colors;
        });
        if (first == alike.end() || m_remaps->remaps(palette->id())) {
            alike.append(palette);
        } else {
            replaced.insert(palette.get(), *first);
            rows.append(palette->row);
        }
    }
    const AssetHistory::Step step(history(), tr("Delete repeated palettes"));
    for (auto it = replaced.cbegin(); it != replaced.cend(); ++it) {
        m_remaps->redirect(it.key()->id(), it.value()->id());
    }
    usePalettes(replaced);
    drop(rows);
}

// Moves the sprites from each palette to the one that it maps to.
void PaletteList::usePalettes(const QHash<const FamilyPalette*, ItemPtr>& others)
{
    for (const auto& sprite : m_sprites->items()) {
        const auto other = others.constFind(sprite->state.palette.get());
        if (other != others.cend()) {
            FamilySprite::State state = sprite->state;
            state.palette = *other;
            m_sprites->change(sprite.get(), state);
        }
    }
}

void PaletteList::drop(const QVector<int>& rows)
{
    QHash<const FamilyPalette*, ItemPtr> none;
    for (const int row : rows) {
        none.insert(item(row), nullptr);
    }
    if (!none.isEmpty()) {
        usePalettes(none);
    }
    for (int last = rows.size(); last > 0;) {
        int first = last - 1;
        while (first > 0 && rows[first - 1] == rows[first] - 1) {
            --first;
        }
        removeItems(rows[first], last - first);
        last = first;
    }
}

void PaletteList::setColors(FamilyPalette* palette, const PaletteColors& colors, int mode)
{
    if (palette->state.colors == colors && palette->state.count == 256 && !palette->isBroken()) {
        return;
    }
    const AssetHistory::Step step(history(), tr("Change palette"));
    if (mode == Zorv::Palette::AdaptPixels) {
        repaint(palette, nearestIndices(palette->state.colors, colors));
    }
    FamilyPalette::State state = palette->state;
    state.colors = colors;
    state.count = 256;
    state.record.clear();
    changeItem(palette, state);
}

void PaletteList::repaint(const FamilyPalette* palette, const IndexMap& indices)
{
    MappingJob job;
    job.mappings = {{{}, indices}};
    for (const auto& sprite : m_sprites->items()) {
        if (sprite->state.palette.get() == palette) {
            job.mappings.first().rows.append(sprite->row);
        }
    }
    QVector<int> broken;
    mapIndices(m_sprites, job, &broken);
}

void PaletteList::setId(FamilyPalette* palette, AssetId id)
{
    if (palette->id() != id) {
        const AssetHistory::Step step(history(), tr("Rename palette"));
        FamilyPalette::State state = palette->state;
        state.id = id;
        state.record.clear();
        changeItem(palette, state);
    }
}

int PaletteList::find(int from, const QVariant& id) const
{
    AssetId wanted;
    if (AssetId::read(id, &wanted) && m_ids.contains(wanted.key())) {
        for (int row = std::max(from, 0); row < count(); ++row) {
            if (item(row)->id() == wanted) {
                return row;
            }
        }
    }
    return -1;
}

FamilyPalette* PaletteList::byId(AssetId id) const
{
    return item(find(0, id.text()));
}

FamilyPalette* PaletteList::byColors(const PaletteColors& colors) const
{
    FamilyPalette* alike = nullptr;
    if (m_colorSets.contains(checksum(colors))) {
        for (const ItemPtr& palette : items()) {
            if (palette->state.colors == colors) {
                return palette.get();
            }
            if (!alike && compared(palette->state.colors) == compared(colors)) {
                alike = palette.get();
            }
        }
    }
    return alike;
}

const FamilyPalette* PaletteList::shown(const FamilyPalette* palette) const
{
    if (!palette || m_remaps->rowCount() == 0) {
        return palette;
    }
    const AssetId target = m_remaps->target(palette->id());
    const FamilyPalette* other = target == palette->id() ? nullptr : byId(target);
    return other ? other : palette;
}

FamilyPalette* PaletteList::ensure(const PaletteColors& colors)
{
    FamilyPalette* known = byColors(colors);
    return known ? known : place(count(), colors, freeId(nextId()));
}

QVector<PaletteList::ItemPtr> PaletteList::adopt(const QVector<const FamilyPalette*>& others,
                                                 int* added)
{
    FreeIds ids([this](AssetId id) { return m_ids.contains(id.key()); });
    QVector<ItemPtr> result;
    QVector<ItemPtr> copies;
    QHash<QByteArray, ItemPtr> copied;
    for (const FamilyPalette* other : others) {
        const PaletteColors& colors = other->state.colors;
        ItemPtr& copy =
            copied[QByteArray(reinterpret_cast<const char*>(colors.data()), sizeof colors)];
        const FamilyPalette* known = copy ? nullptr : byColors(colors);
        if (!copy && !known) {
            copy = std::make_shared<FamilyPalette>(this);
            copy->state = {ids.next(other->id()), other->colorCount(), colors, {}};
            copies.append(copy);
        }
        result.append(known ? share(known) : copy);
    }
    const AssetHistory::Step step(history(), tr("Add palettes"));
    insertItems(count(), copies);
    *added = copies.size();
    return result;
}

void PaletteList::autoOrganize()
{
    QVector<int> order(count());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [this](int a, int b) { return item(a)->id() < item(b)->id(); });
    reorderItems(order);
}

void PaletteList::beginUpdate(const QString& title)
{
    history().begin(title);
}

void PaletteList::endUpdate()
{
    history().end();
}

QAbstractItemModel* PaletteList::remapModel()
{
    return m_remaps.get();
}

Zorv::Sprites* PaletteList::sprites() const
{
    return m_sprites;
}

QVariant PaletteList::data(const QModelIndex& index, int role) const
{
    const FamilyPalette* palette = index.model() == this ? item(index.row()) : nullptr;
    if (!palette) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return palette->id().text();
    case Qt::ToolTipRole:
        return palette->isBroken() ? tr("Broken in the file")
                                   : tr("Colors: %1").arg(palette->colorCount());
    default:
        return {};
    }
}

void PaletteList::reset(const QVector<ItemPtr>& palettes)
{
    currentIndex = 0;
    resetItems(palettes);
}

void PaletteList::replace(const QVector<ItemPtr>& palettes)
{
    removeItems(0, count());
    insertItems(0, palettes);
}

void PaletteList::removeBroken()
{
    QVector<int> rows;
    for (const ItemPtr& palette : items()) {
        if (palette->isBroken()) {
            rows.append(palette->row);
        }
    }
    drop(rows);
}

void PaletteList::flush()
{
    if (m_changed) {
        const bool count = m_countChanged;
        m_changed = m_countChanged = false;
        emit palChanged(count);
    }
}

PaletteList::ItemPtr PaletteList::share(const Zorv::Palette* palette) const
{
    if (palette && palette->owner() == this) {
        const ItemPtr own = items().value(int(palette->index()));
        return own.get() == palette ? own : nullptr;
    }
    return nullptr;
}

AssetId PaletteList::nextId() const
{
    const AssetId last = items().isEmpty() ? AssetId{1, 0} : items().last()->id();
    return AssetId::fromKey(last.key() + 1);
}

AssetId PaletteList::freeId(AssetId from) const
{
    while (m_ids.contains(from.key())) {
        from = AssetId::fromKey(from.key() + 1);
    }
    return from;
}

void PaletteList::listChanged(bool count)
{
    m_changed = true;
    m_countChanged |= count;
    currentIndex = qBound(0, currentIndex, std::max(this->count() - 1, 0));
    shownChanged();
}

void PaletteList::shownChanged()
{
    ++m_shownRevision;
    m_sprites->shownChanged();
}

void PaletteList::itemWent(FamilyPalette& palette)
{
    palette.dropTexture();
}

void PaletteList::stateCame(const FamilyPalette::State& state)
{
    ++m_ids[state.id.key()];
    ++m_colorSets[checksum(state.colors)];
}

void PaletteList::stateWent(const FamilyPalette::State& state)
{
    countDown(m_ids, state.id.key());
    countDown(m_colorSets, checksum(state.colors));
}

}  // namespace Family
