#include "operations/media/assetimport.h"

#include "family/assets/freeids.h"
#include "family/assets/pixeltransfer.h"
#include "family/assets/spritecollection.h"
#include "family/project/familyproject.h"

#include <QCoreApplication>

#include <algorithm>

// Pixels are transferred first, and equal pixels become one shared object in the destination. So
// two sprites look the same only if they refer to the same pixels. Then each sprite that can keep
// its number does. The others are compared with the sprite at their number, then with sprites of
// the same pixels, and get a free number if none is equal. Only sprites that are really new are
// added.

namespace Operations {

using Family::AssetHistory;
using Family::AssetId;
using Family::FamilyPalette;
using Family::FamilyProject;
using Family::FamilySprite;
using Family::PaletteList;
using Family::PixelRef;
using Family::SpriteCollection;
using Zorv::AssetResult;
using Zorv::SpriteNumber;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AssetImport)
};

/// A sprite being imported.
struct Arrival
{
    AssetId id;  ///< first in the source, later in the destination
    const FamilySprite* sprite = nullptr;
    PixelRef pixels;  ///< in the destination
};

SpriteNumber numberOf(AssetId id)
{
    return {id.group, id.number};
}

bool isSame(const FamilyPalette* a, const FamilyPalette* b)
{
    return a == b || (a && b && a->state.colors == b->state.colors);
}

bool isSame(const FamilySprite& present, const Arrival& arrival)
{
    const FamilySprite::State& a = present.state;
    const FamilySprite::State& b = arrival.sprite->state;
    return a.record.isEmpty() && a.pixels == arrival.pixels && a.axis == b.axis &&
           isSame(a.palette.get(), b.palette.get());
}

bool isBroken(const FamilySprite& sprite)
{
    return !sprite.fault().isEmpty() || (sprite.state.palette && sprite.state.palette->isBroken());
}

QString brokenText(const SpriteCollection& sprites, const QVector<SpriteNumber>& broken)
{
    const QString first =
        AssetId{quint16(broken.first().group), quint16(broken.first().number)}.text();
    return Text::tr("%n of the sprites in '%1' are broken, the first one is %2. Nothing is "
                    "imported. Put them in anew there, or import the animations without their "
                    "sprites.",
                    nullptr, broken.size())
        .arg(sprites.fileName(), first);
}

class Import
{
public:
    Import(const SpriteCollection* source, SpriteCollection* destination)
        : m_source(source), m_destination(destination), m_transfer(source, destination),
          m_ids([destination](AssetId id) { return destination->contains(id); })
    {
    }

    AssetResult run(const QVector<SpriteNumber>& sprites, const QString& title,
                    BrokenSprites broken);

private:
    void read(const QVector<SpriteNumber>& sprites);
    void place();
    void settle(Arrival arrival);
    const FamilySprite* sameElsewhere(const Arrival& arrival);
    void put();
    QHash<const FamilyPalette*, PaletteList::ItemPtr> bringPalettes();

    const SpriteCollection* m_source;
    SpriteCollection* m_destination;
    Family::PixelTransfer m_transfer;
    Family::FreeIds m_ids;
    QMultiHash<const Family::PixelData*, const FamilySprite*> m_shown;  // created on demand
    QVector<Arrival> m_arrivals;
    QVector<Arrival> m_new;
    AssetResult m_result;
};

AssetResult Import::run(const QVector<SpriteNumber>& sprites, const QString& title,
                        BrokenSprites broken)
{
    read(sprites);
    if (!m_result.broken.isEmpty() && broken == BrokenSprites::KeepAll) {
        m_result.error = brokenText(*m_source, m_result.broken);
        return m_result;
    }
    place();
    if (!m_new.isEmpty()) {
        const AssetHistory::Step step(m_destination->editHistory(), title);
        put();
    }
    return m_result;
}

void Import::read(const QVector<SpriteNumber>& sprites)
{
    constexpr int Most = 0xffff;
    for (const SpriteNumber number : sprites) {
        const bool isNumber = number.isValid() && qMax(number.group, number.number) <= Most;
        const AssetId id{quint16(number.group), quint16(number.number)};
        const FamilySprite* sprite = isNumber ? m_source->byId(id) : nullptr;
        if (!sprite) {
            m_result.missing.append(number);
            continue;
        }
        const bool hasPixels = bool(sprite->state.pixels);
        const bool isWhole = !isBroken(*sprite);
        const PixelRef pixels =
            isWhole && hasPixels ? m_transfer.take(sprite->state.pixels.get()) : PixelRef();
        if (!isWhole || (hasPixels && !pixels)) {
            m_result.broken.append(number);
        } else {
            m_arrivals.append({id, sprite, pixels});
        }
    }
}

/// Sprites that can keep their numbers are placed first, before others look for free ones.
void Import::place()
{
    std::sort(m_arrivals.begin(), m_arrivals.end(),
              [](const Arrival& a, const Arrival& b) { return a.id < b.id; });
    QVector<Arrival> unsettled;
    for (const Arrival& arrival : qAsConst(m_arrivals)) {
        if (m_destination->contains(arrival.id)) {
            unsettled.append(arrival);
        } else {
            m_ids.keep(arrival.id);
            m_new.append(arrival);
        }
    }
    for (const Arrival& arrival : qAsConst(unsettled)) {
        settle(arrival);
    }
}

void Import::settle(Arrival arrival)
{
    const FamilySprite* present = m_destination->byId(arrival.id);
    if (present && isSame(*present, arrival)) {
        ++m_result.shared;
        return;
    }
    const SpriteNumber from = numberOf(arrival.id);
    if (const FamilySprite* same = sameElsewhere(arrival)) {
        ++m_result.shared;
        m_result.renumbered.insert(from, numberOf(same->id()));
        return;
    }
    arrival.id = m_ids.next(arrival.id);
    m_result.renumbered.insert(from, numberOf(arrival.id));
    m_new.append(arrival);
}

const FamilySprite* Import::sameElsewhere(const Arrival& arrival)
{
    if (m_shown.isEmpty()) {
        for (const auto& sprite : m_destination->items()) {
            m_shown.insert(sprite->state.pixels.get(), sprite.get());
        }
    }
    const FamilySprite* first = nullptr;
    const Family::PixelData* pixels = arrival.pixels.get();
    for (auto it = m_shown.constFind(pixels); it != m_shown.cend() && it.key() == pixels; ++it) {
        const FamilySprite* sprite = *it;
        if ((!first || sprite->row < first->row) && isSame(*sprite, arrival) &&
            m_destination->byId(sprite->id()) == sprite) {
            first = sprite;
        }
    }
    return first;
}

QHash<const FamilyPalette*, PaletteList::ItemPtr> Import::bringPalettes()
{
    QHash<const FamilyPalette*, PaletteList::ItemPtr> result;
    QVector<const FamilyPalette*> wanted;
    for (const Arrival& arrival : qAsConst(m_new)) {
        const FamilyPalette* palette = arrival.sprite->state.palette.get();
        if (palette && !result.contains(palette)) {
            result.insert(palette, nullptr);
            wanted.append(palette);
        }
    }
    std::sort(wanted.begin(), wanted.end(),
              [](const FamilyPalette* a, const FamilyPalette* b) { return a->row < b->row; });
    const QVector<PaletteList::ItemPtr> brought =
        m_destination->palettes()->adopt(wanted, &m_result.palettes);
    for (int i = 0; i < wanted.size(); ++i) {
        result[wanted[i]] = brought[i];
    }
    return result;
}

/// New sprites keep their order in the source.
void Import::put()
{
    const auto palettes = bringPalettes();
    std::sort(m_new.begin(), m_new.end(),
              [](const Arrival& a, const Arrival& b) { return a.sprite->row < b.sprite->row; });
    QVector<SpriteCollection::ItemPtr> added;
    added.reserve(m_new.size());
    for (const Arrival& arrival : qAsConst(m_new)) {
        auto sprite = std::make_shared<FamilySprite>(m_destination);
        const FamilySprite::State& from = arrival.sprite->state;
        sprite->state = {arrival.id, from.axis, arrival.pixels, palettes.value(from.palette.get()),
                         {},         {}};
        added.append(sprite);
    }
    m_destination->append(added);
    m_result.added = added.size();
}

QString noSprites(const FamilyProject* project)
{
    return Text::tr("Nothing is imported: '%1' has no sprites that could be read. Write a sprite "
                    "file into its group [files], or mend that one; or import the animations "
                    "without their sprites.")
        .arg(project->title());
}

}  // namespace

AssetResult importAssets(const SpriteCollection* source, SpriteCollection* destination,
                         const QVector<SpriteNumber>& sprites, const QString& title,
                         BrokenSprites broken)
{
    destination->refresh();
    const AssetHistory::Hold reads(source->steps());
    const AssetHistory::Hold writes(destination->steps());
    return Import(source, destination).run(sprites, title, broken);
}

AssetResult importAssets(const Zorv::AssetRequest& request)
{
    const auto* source = dynamic_cast<const FamilyProject*>(request.source);
    const auto* destination = dynamic_cast<const FamilyProject*>(request.destination);
    if (request.sprites.isEmpty() || !source || !destination) {
        return {};
    }
    for (const FamilyProject* project : {source, destination}) {
        if (!project->sprites()) {
            AssetResult refusal;
            refusal.error = noSprites(project);
            return refusal;
        }
    }
    return importAssets(source->sprites(), destination->sprites(), request.sprites,
                        Text::tr("Import sprites from project '%1'").arg(source->title()),
                        request.leavesBroken ? BrokenSprites::AreLeft : BrokenSprites::KeepAll);
}

}  // namespace Operations
