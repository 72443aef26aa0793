#include "operations/media/spriteexport.h"

#include "family/assets/spritecollection.h"
#include "family/assets/spritejobs.h"
#include "operations/media/assetnames.h"
#include "operations/media/imagefiles.h"

#include <zorv/core/progress.h>
#include <zorv/media/palettefile.h>

#include <QCoreApplication>

#include <algorithm>

namespace Operations {

using Family::AssetId;
using Family::FamilyPalette;
using Family::FamilySprite;
using Family::ImageJob;
using Family::PaletteColors;
using Family::SpriteCollection;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SpriteExport)
};

/// What is written with a sprite besides its pixels. Kept small, because there may be many.
struct Label
{
    AssetId id;
    QPoint axis;
    AssetId palette;
    bool hasPalette;
};

QVector<Label> labelsOf(const SpriteCollection& sprites, const QVector<int>& rows)
{
    QVector<Label> labels;
    labels.reserve(rows.size());
    for (int row : rows) {
        const FamilySprite::State& state = sprites.sprite(row)->state;
        labels.append({state.id, state.axis, state.palette ? state.palette->id() : AssetId(),
                       bool(state.palette)});
    }
    return labels;
}

QStringList namesOf(const QVector<Label>& labels)
{
    QVector<AssetId> ids;
    ids.reserve(labels.size());
    for (const Label& label : labels) {
        ids.append(label.id);
    }
    return exportNames(ids);
}

void putLabel(QImage* image, const Label& label)
{
    image->setText(QLatin1String(AxisText),
                   QStringLiteral("%1,%2").arg(QString::number(label.axis.x()),
                                               QString::number(label.axis.y())));
    if (label.hasPalette) {
        image->setText(QLatin1String(PaletteText), label.palette.text());
    }
}

}  // namespace

QVector<int> selectedRows(const SpriteCollection& sprites, const Selection& selection)
{
    QVector<int> rows;
    for (int row = 0; row < int(sprites.count()); ++row) {
        const AssetId id = sprites.sprite(row)->id();
        if (selection.contains(id.group, id.number)) {
            rows.append(row);
        }
    }
    return rows;
}

bool findPalette(const SpriteCollection& sprites, const QString& name, PaletteColors* colors,
                 QString* error)
{
    AssetId id;
    if (!AssetId::read(name, &id)) {
        Zorv::RGBA read[256];
        if (!Zorv::loadPaletteFile(name, read, error)) {
            return false;
        }
        std::copy(std::begin(read), std::end(read), colors->begin());
        return true;
    }
    const FamilyPalette* palette = sprites.palettes()->byId(id);
    if (!palette) {
        *error = Text::tr("There is no palette %1.").arg(id.text());
        return false;
    }
    *colors = palette->state.colors;
    return true;
}

FamilyPalette* ensurePalette(SpriteCollection* sprites, const QString& name, QString* error)
{
    AssetId id;
    FamilyPalette* const own = AssetId::read(name, &id) ? sprites->palettes()->byId(id) : nullptr;
    PaletteColors colors;
    return own || !findPalette(*sprites, name, &colors, error)
               ? own
               : sprites->palettes()->ensure(colors);
}

MediaResult exportSprites(const SpriteCollection& sprites, const Selection& selection,
                          const OutputRequest& request, const PaletteColors* colors)
{
    const QVector<int> rows = selectedRows(sprites, selection);
    const QVector<Label> labels = labelsOf(sprites, rows);
    if (rows.isEmpty()) {
        return MediaResult(Text::tr("There is no such sprite."));
    }
    OutputFiles outputs;
    MediaResult refusal;
    if (!outputs.plan(namesOf(labels), request, QByteArrayLiteral("PNG"), &refusal)) {
        return refusal;
    }
    const QVector<QRgb> table = colors ? Family::tableOfColors(*colors) : QVector<QRgb>();
    QVector<int> placeOf(int(sprites.count()));
    for (int i = 0; i < rows.size(); ++i) {
        placeOf[rows[i]] = i;
    }
    QVector<Outcome> outcomes(rows.size());
    Outcome* outcome = outcomes.data();
    ImageJob job;
    job.rows = rows;
    job.work = [&](int row, QImage image) {
        const int i = placeOf.at(row);
        if (image.isNull()) {
            outcome[i] =
                Text::tr("Sprite %1 has no pixels, or they are broken.").arg(labels[i].id.text());
            return;
        }
        if (colors && image.format() == QImage::Format_Indexed8) {
            image.setColorTable(table);
        }
        putLabel(&image, labels[i]);
        outcome[i] = writeImage(image, outputs, i);
    };
    Zorv::Progress progress(Text::tr("Sprites"), rows.size());
    job.progress = [&](int done) { return progress.update(done); };
    MediaResult result;
    result.isCanceled = !Family::forEachImage(sprites, job);
    for (const Outcome& one : qAsConst(outcomes)) {
        result.note(one);
    }
    return result;
}

MediaResult exportPalettes(const SpriteCollection& sprites, const Selection& selection,
                           const OutputRequest& request)
{
    QVector<AssetId> ids;
    QVector<const FamilyPalette*> palettes;
    for (const auto& palette : sprites.palettes()->items()) {
        if (selection.contains(palette->id().group, palette->id().number)) {
            ids.append(palette->id());
            palettes.append(palette.get());
        }
    }
    if (ids.isEmpty()) {
        return MediaResult(Text::tr("There is no such palette."));
    }
    OutputFiles outputs;
    MediaResult refusal;
    if (!outputs.plan(exportNames(ids), request, QByteArrayLiteral("ACT"), &refusal)) {
        return refusal;
    }
    MediaResult result;
    for (int i = 0; i < palettes.size(); ++i) {
        Zorv::RGBA colors[256];
        std::fill(std::begin(colors), std::end(colors), Zorv::RGBA{0, 0, 0, 255});
        palettes[i]->toPalette(colors);
        QString fault;
        const QByteArray bytes =
            Zorv::paletteFileContent(colors, outputs.format(i), outputs.path(i), &fault);
        result.note(fault.isEmpty() ? outputs.write(i, bytes) : fault);
    }
    return result;
}

}  // namespace Operations
