#include "operations/media/spriteedits.h"

#include "family/assets/indexmapping.h"
#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "operations/media/spriteexport.h"

#include <zorv/core/jobs.h>
#include <zorv/core/progress.h>

#include <QCoreApplication>
#include <QImage>
#include <QSet>

#include <algorithm>
#include <limits>

namespace Operations {

using Family::AssetHistory;
using Family::AssetId;
using Family::FamilyPalette;
using Family::FamilySprite;
using Family::SpriteCollection;

namespace {

constexpr int MaxPart = 65535;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SpriteEdits)
};

QString brokenLine(const FamilySprite& sprite, const QString& fault)
{
    return Text::tr("Sprite %1 stays as it is: %2.").arg(sprite.id().text(), fault);
}

/// The sprites of these rows that can be changed; broken ones are reported.
QVector<FamilySprite*> wholeSprites(const SpriteCollection& sprites, const QVector<int>& rows,
                                    MediaResult* result)
{
    QVector<FamilySprite*> whole;
    for (const int row : rows) {
        FamilySprite* sprite = sprites.sprite(row);
        if (sprite && sprite->fault().isEmpty()) {
            whole.append(sprite);
        } else if (sprite) {
            result->warnings.append(brokenLine(*sprite, sprite->fault()));
        }
    }
    return whole;
}

/// The new identifiers, one per sprite; empty, with `error`, if one is out of range.
QVector<AssetId> newIds(const QVector<FamilySprite*>& sprites, const Renumbering& renumbering,
                        QString* error)
{
    QVector<AssetId> ids;
    for (int i = 0; i < sprites.size(); ++i) {
        const AssetId old = sprites[i]->id();
        const int group = renumbering.isShift ? old.group + renumbering.group : renumbering.group;
        const int number = renumbering.number < 0 ? old.number : renumbering.number + i;
        if (qMin(group, number) < 0 || qMax(group, number) > MaxPart) {
            *error = Text::tr("Sprite %1 would become %2,%3. Groups and numbers go from 0 to %4. "
                              "Nothing is changed.")
                         .arg(old.text(), QString::number(group), QString::number(number),
                              QString::number(MaxPart));
            return {};
        }
        ids.append({quint16(group), quint16(number)});
    }
    return ids;
}

/// The first identifier that two sprites would share; empty if there is none.
QString takenId(const SpriteCollection& sprites, const QVector<FamilySprite*>& changed,
                const QVector<AssetId>& ids)
{
    QSet<quint32> taken;
    const QSet<const FamilySprite*> moving(changed.begin(), changed.end());
    for (const auto& sprite : sprites.items()) {
        if (!moving.contains(sprite.get())) {
            taken.insert(sprite->id().key());
        }
    }
    for (const AssetId id : ids) {
        if (taken.contains(id.key())) {
            return id.text();
        }
        taken.insert(id.key());
    }
    return {};
}

/// For each palette of the sprites, the mapping of its indices to the nearest new colours.
QVector<Family::IndexMapping> mappingsTo(const Family::PaletteColors& colors,
                                         const QVector<FamilySprite*>& sprites)
{
    QHash<const FamilyPalette*, QVector<int>> rows;
    for (const FamilySprite* sprite : sprites) {
        rows[sprite->state.palette.get()].append(sprite->row);
    }
    QVector<Family::IndexMapping> mappings;
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        const Family::PaletteColors own = it.key() ? it.key()->state.colors : Family::greyColors();
        mappings.append({it.value(), Family::nearestIndices(own, colors)});
    }
    return mappings;
}

class Recoloring
{
public:
    Recoloring(SpriteCollection* sprites, FamilyPalette* palette)
        : m_sprites(sprites), m_palette(palette)
    {
    }

    MediaResult run(const QVector<int>& rows, PixelsKeep keep);

private:
    using Packed = std::shared_ptr<const Family::PackedImage>;

    bool mapPixels(const QVector<FamilySprite*>& sprites, QSet<int>* broken);
    bool adaptTrueColors(const QVector<FamilySprite*>& sprites);
    std::function<Packed()> adapter(const FamilySprite& sprite) const;
    void recolor(FamilySprite* sprite);

    SpriteCollection* m_sprites;
    FamilyPalette* m_palette;
    MediaResult m_result;
    const std::shared_ptr<Family::PackedOnce> m_once = std::make_shared<Family::PackedOnce>();
};

MediaResult Recoloring::run(const QVector<int>& rows, PixelsKeep keep)
{
    const QVector<FamilySprite*> sprites = wholeSprites(*m_sprites, rows, &m_result);
    QSet<int> broken;
    if (keep == PixelsKeep::Looks && !mapPixels(sprites, &broken)) {
        m_result.isCanceled = true;
        return m_result;
    }
    QVector<FamilySprite*> ofTrueColor;
    for (FamilySprite* sprite : sprites) {
        if (broken.contains(sprite->row)) {
            continue;
        }
        if (keep == PixelsKeep::Looks && sprite->bits() == 32) {
            ofTrueColor.append(sprite);
        } else {
            recolor(sprite);
        }
    }
    m_result.isCanceled = !ofTrueColor.isEmpty() && !adaptTrueColors(ofTrueColor);
    return m_result;
}

bool Recoloring::mapPixels(const QVector<FamilySprite*>& sprites, QSet<int>* broken)
{
    Zorv::Progress progress(Text::tr("Recolour sprites"), 0);
    Family::MappingJob job;
    job.mappings = mappingsTo(m_palette->state.colors, sprites);
    job.progress = [&](int done, int count) { return progress.update(done, count); };
    QVector<int> rows;
    const bool isDone = Family::mapIndices(m_sprites, job, &rows);
    m_result.warnings += brokenSprites(*m_sprites, rows);
    *broken = QSet<int>(rows.begin(), rows.end());
    return isDone;
}

/// Finds the nearest colours and compresses pixels on all processors.
bool Recoloring::adaptTrueColors(const QVector<FamilySprite*>& sprites)
{
    return Zorv::runJobs<Packed>(
        Text::tr("Recolour sprites"), sprites.size(), [&](int i) { return adapter(*sprites[i]); },
        [&](int i, const Packed& packed) {
            if (!packed) {
                m_result.warnings.append(brokenLine(*sprites[i], sprites[i]->pixelFault()));
                return;
            }
            sprites[i]->setAdapted(*packed, Zorv::Sprite::ForcePalette, m_palette);
            ++m_result.done;
        });
}

/// The function returns null if the pixels of the sprite are broken.
std::function<Recoloring::Packed()> Recoloring::adapter(const FamilySprite& sprite) const
{
    return [pixels = Family::PackedPixels(*sprite.state.pixels.get()),
            colors = m_palette->state.colors, once = m_once]() -> Packed {
        const QImage image = Family::imageOfRows(pixels.format, pixels.rows(), {});
        if (image.isNull()) {
            return nullptr;
        }
        return std::make_shared<const Family::PackedImage>(
            FamilySprite::adaptedImage(image, false, Zorv::Sprite::ForcePalette, &colors),
            once.get());
    };
}

void Recoloring::recolor(FamilySprite* sprite)
{
    if (sprite->bits() != 32) {
        sprite->setPalette(m_palette);
        ++m_result.done;
    } else {
        m_result.warnings.append(Text::tr("Sprite %1 stays as it is: it is of true colour. Have "
                                          "its pixels take the nearest colours instead.")
                                     .arg(sprite->id().text()));
    }
}

}  // namespace

bool readAxisBase(const QString& name, AxisBase* base)
{
    // In the order of the enumeration.
    static const char* const names[] = {"top-left",     "top",    "top-right",   "left",
                                        "middle",       "right",  "bottom-left", "bottom",
                                        "bottom-right", "current"};
    const auto* const found = std::find(std::begin(names), std::end(names), name);
    if (found != std::end(names)) {
        *base = AxisBase(found - std::begin(names));
    }
    return found != std::end(names);
}

QPoint axisPlace(AxisBase base, const QSize& size)
{
    // The enumeration lists the places in rows of three.
    const auto at = [](int third, int length) {
        return third == 0 ? 0 : third == 1 ? length / 2 : qMax(length - 1, 0);
    };
    return {at(int(base) % 3, size.width()), at(int(base) / 3, size.height())};
}

MediaResult setAxes(SpriteCollection* sprites, const QVector<int>& rows, AxisBase base,
                    QPoint offset)
{
    using Limits = std::numeric_limits<qint16>;
    const QRect range(QPoint(Limits::min(), Limits::min()), QPoint(Limits::max(), Limits::max()));
    MediaResult result;
    const QVector<FamilySprite*> whole = wholeSprites(*sprites, rows, &result);
    QVector<QPoint> axes;
    for (const FamilySprite* sprite : whole) {
        const bool isMoved = base == AxisBase::Current;
        axes.append((isMoved ? sprite->axis() : axisPlace(base, sprite->size())) + offset);
        if (!range.contains(axes.last())) {
            return MediaResult(Text::tr("The axis of sprite %1 would be %2,%3, too far away. "
                                        "Nothing is changed.")
                                   .arg(sprite->id().text(), QString::number(axes.last().x()),
                                        QString::number(axes.last().y())));
        }
    }
    const AssetHistory::Step step(sprites->editHistory(), Text::tr("Set axis"));
    for (int i = 0; i < whole.size(); ++i) {
        whole[i]->setAxis(axes[i]);
    }
    result.done = whole.size();
    return result;
}

MediaResult renumberSprites(SpriteCollection* sprites, const QVector<int>& rows,
                            const Renumbering& renumbering)
{
    MediaResult result;
    QString error;
    const QVector<FamilySprite*> whole = wholeSprites(*sprites, rows, &result);
    const QVector<AssetId> ids = newIds(whole, renumbering, &error);
    if (!error.isEmpty()) {
        return MediaResult(error);
    }
    const QString taken = takenId(*sprites, whole, ids);
    if (!taken.isEmpty()) {
        return MediaResult(
            Text::tr("Two sprites would be called %1. Nothing is changed.").arg(taken));
    }
    const AssetHistory::Step step(sprites->editHistory(), Text::tr("Renumber sprites"));
    for (int i = 0; i < whole.size(); ++i) {
        whole[i]->setProperty(QStringLiteral("Identifier"), ids[i].text());
    }
    result.done = whole.size();
    return result;
}

MediaResult recolorSprites(SpriteCollection* sprites, const QVector<int>& rows,
                           const QString& palette, PixelsKeep keep)
{
    sprites->refresh();
    const AssetHistory::Hold hold(sprites->steps());
    MediaResult result;
    bool hasChanged = false;
    const auto watch = QObject::connect(sprites, &SpriteCollection::modified,
                                        [&hasChanged] { hasChanged = true; });
    {
        const AssetHistory::Step step(sprites->editHistory(), Text::tr("Recolour sprites"));
        QString error;
        FamilyPalette* const chosen = ensurePalette(sprites, palette, &error);
        result = chosen ? Recoloring(sprites, chosen).run(rows, keep) : MediaResult(error);
    }
    QObject::disconnect(watch);
    if (result.isCanceled && hasChanged) {
        sprites->undo();
    }
    return result;
}

QStringList brokenSprites(const SpriteCollection& sprites, const QVector<int>& rows)
{
    QStringList lines;
    for (const int row : rows) {
        if (const FamilySprite* sprite = sprites.sprite(row)) {
            lines.append(brokenLine(*sprite, sprite->pixelFault()));
        }
    }
    return lines;
}

}  // namespace Operations
