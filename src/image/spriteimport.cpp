#include "image/spriteimport_p.h"

#include "cache/palette.h"
#include "cache/palettes.h"
#include "cache/pixelcopy.h"
#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/jobs.h"

#include <QCoreApplication>

#include <algorithm>

// Names, rows and conflicts are planned before anything is changed. Then each sprite is copied on
// this thread, read on a worker thread, and inserted on this thread again, a few at a time.

namespace Zorv {

namespace {

constexpr int ColorCount = 256;

/// The context of the texts of this file for translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SpriteImport)
};

QString identifierKey()
{
    return QStringLiteral("Identifier");
}

const Sprite* spriteOf(const ImportEntry& entry)
{
    const auto* list = qobject_cast<const Sprites*>(entry.source.model());
    return list ? list->sprite(entry.source.row()) : nullptr;
}

/// All entries as bytes, so that palettes can be compared. Missing entries are opaque black.
QByteArray colorsOf(const Palette& palette)
{
    RGBA colors[ColorCount];
    std::fill(std::begin(colors), std::end(colors), RGBA{0, 0, 0, 255});
    palette.toPalette(colors);
    return {reinterpret_cast<const char*>(colors), sizeof colors};
}

/// Without the alpha of entry 0, which programs store differently for the same palette.
QByteArray alikeOf(QByteArray colors)
{
    colors[int(offsetof(RGBA, a))] = 0;
    return colors;
}

}  // namespace

SpriteImport::SpriteImport(Sprites* destination, const QVector<ImportEntry>& entries,
                           ImportConflict conflicts)
    : m_destination(destination)
{
    plan(entries, conflicts);
}

void SpriteImport::plan(const QVector<ImportEntry>& entries, ImportConflict conflicts)
{
    QHash<QString, int> planned;
    for (const ImportEntry& entry : entries) {
        const QString& identifier = entry.identifier;
        if (!m_destination->canName(identifier)) {
            ++m_result.refused;
            continue;
        }
        const int before = planned.value(identifier, -1);
        const int row = before < 0 ? m_destination->find(0, identifier) : -1;
        if (before < 0 && row < 0) {
            planned.insert(identifier, m_steps.size());
            m_steps.append({entry, true, {}});
        } else if (conflicts == ImportConflict::Skip) {
            ++m_result.skipped;
        } else if (before >= 0) {
            m_steps[before].entry = entry;
            ++m_result.replaced;
        } else {
            planned.insert(identifier, m_steps.size());
            m_steps.append({entry, false, m_destination->index(row)});
        }
    }
}

bool SpriteImport::replaces(int row) const
{
    return std::any_of(m_steps.cbegin(), m_steps.cend(), [row](const Step& step) {
        return !step.isNew && step.replaced.row() == row;
    });
}

SpriteImportResult SpriteImport::run(const QString& title)
{
    const int first = int(m_destination->count());
    const Palettes* palettes = m_destination->palettes();
    for (int row = palettes->count() - 1; row >= 0; --row) {
        keep(colorsOf(*palettes->palette(row)), row);
    }
    bool hasChanged = false;
    const auto watch =
        QObject::connect(m_destination, &Sprites::modified, [&hasChanged] { hasChanged = true; });
    m_destination->beginChange(title);
    const auto prepare = [this](int step) -> std::function<Arrival()> {
        return [arrival = read(step)]() mutable {
            arrival.isWhole = arrival.pixels && arrival.pixels->read();
            return arrival;
        };
    };
    m_result.isGivenUp =
        !runJobs<Arrival>(title, m_steps.size(), prepare,
                          [this](int step, const Arrival& arrival) { take(step, arrival); });
    if (m_destination) {
        m_destination->refresh();
        removeEmpty(first);
        m_destination->endChange();
        QObject::disconnect(watch);
    }
    if (m_result.isGivenUp && hasChanged && m_destination && m_destination->canUndo()) {
        m_destination->undo();
    }
    return m_result;
}

SpriteImport::Arrival SpriteImport::read(int step) const
{
    Arrival arrival;
    if (const Sprite* sprite = spriteOf(m_steps.at(step).entry)) {
        arrival.pixels = sprite->copyPixels();
        arrival.axis = sprite->axis();
        if (const Palette* own = sprite->palette()) {
            arrival.colors = colorsOf(*own);
            arrival.paletteId = own->property(identifierKey());
        }
    }
    return arrival;
}

void SpriteImport::take(int step, const Arrival& arrival)
{
    const Step& now = m_steps.at(step);
    if (!arrival.isWhole) {
        m_result.errors.append((arrival.pixels
                                    ? Text::tr("'%1' was left out: its pixels are broken.")
                                    : Text::tr("'%1' was left out: it is no longer in its file."))
                                   .arg(now.entry.identifier));
    } else if (m_destination && put(now, arrival)) {
        ++(now.isNew ? m_result.added : m_result.replaced);
    } else {
        m_result.errors.append(Text::tr("'%1' was left out: the picture is too large for a sprite "
                                        "here, or memory is short.")
                                   .arg(now.entry.identifier));
    }
}

/// Sets the pixels before the palette, because a true-colour sprite would refuse a palette.
bool SpriteImport::put(const Step& step, const Arrival& arrival)
{
    Sprite* sprite = step.isNew                ? m_destination->addSprite()
                     : step.replaced.isValid() ? m_destination->sprite(step.replaced.row())
                                               : nullptr;
    const bool isPut = sprite && arrival.pixels->putInto(sprite);
    if (sprite && step.isNew) {
        sprite->setProperty(identifierKey(), step.entry.identifier);
        if (!isPut) {
            m_empty.append(m_addedCount);
        }
        ++m_addedCount;
    }
    if (isPut) {
        sprite->setPalette(palette(arrival));
        sprite->setProperty(QStringLiteral("Axis"), arrival.axis);
        sprite->reload();
    }
    return isPut;
}

Palette* SpriteImport::palette(const Arrival& arrival)
{
    if (arrival.colors.isEmpty()) {
        return nullptr;
    }
    Palettes* palettes = m_destination->palettes();
    const int known = m_palettes.value(arrival.colors, m_alike.value(alikeOf(arrival.colors), -1));
    if (known >= 0) {
        return palettes->palette(known);
    }
    RGBA colors[ColorCount];
    std::copy(arrival.colors.cbegin(), arrival.colors.cend(), reinterpret_cast<char*>(colors));
    Palette* added = palettes->addPalette(colors, arrival.paletteId, true);
    if (added) {
        keep(arrival.colors, int(added->index()));
        ++m_result.palettes;
    }
    return added;
}

void SpriteImport::keep(const QByteArray& colors, int row)
{
    m_palettes.insert(colors, row);
    m_alike.insert(alikeOf(colors), row);
}

void SpriteImport::removeEmpty(int first)
{
    for (int i = m_empty.size() - 1; i >= 0; --i) {
        m_destination->removeSprite(first + m_empty.at(i));
    }
}

}  // namespace Zorv
