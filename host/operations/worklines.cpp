#include "operations/worklines.h"

#include "family/assets/newsprites.h"
#include "family/assets/palettelist.h"
#include "family/assets/remapmodel.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"

#include <zorv/cache/crc64.h>
#include <zorv/core/archive.h>

#include <QStringList>

#include <memory>

namespace Operations {

using Family::FamilyDocument;
using Family::SoundFile;
using Family::SpriteCollection;

namespace {

QString pointText(QPoint point)
{
    return QStringLiteral("%1,%2").arg(QString::number(point.x()), QString::number(point.y()));
}

QString sumText(quint64 sum)
{
    return QString::number(sum, 16);
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1x%2").arg(QString::number(size.width()),
                                       QString::number(size.height()));
}

QStringList linesOf(const SpriteCollection& sprites)
{
    QStringList lines;
    for (const auto& sprite : sprites.items()) {
        const Family::FamilySprite::State& state = sprite->state;
        QStringList parts{QStringLiteral("sprite"), state.id.text(), QStringLiteral("axis"),
                          pointText(state.axis)};
        if (state.palette) {
            parts << QStringLiteral("palette") << state.palette->id().text();
        }
        if (state.pixels) {
            parts << sizeText(state.pixels->format.size) << sumText(state.pixels->pixelCrc);
        }
        lines.append(parts.join(QLatin1Char(' ')));
    }
    for (const auto& palette : sprites.palettes()->items()) {
        const Family::PaletteColors& colors = palette->state.colors;
        lines.append(
            QStringLiteral("palette %1 %2")
                .arg(palette->id().text(), sumText(Zorv::crc64(&colors[0].r, sizeof colors))));
    }
    for (const auto& remap : sprites.palettes()->remaps()->items()) {
        lines.append(
            QStringLiteral("remap %1 %2").arg(remap->state.from.text(), remap->state.to.text()));
    }
    return lines;
}

QStringList linesOf(const SoundFile& sounds)
{
    QStringList lines;
    for (const auto& sound : sounds.items()) {
        const Zorv::SampleInfo& info = sound->state.info;
        lines.append(
            QStringLiteral("sound %1 %2 Hz %3 bits %4 channels %5 frames %6")
                .arg(sound->id().text(), QString::number(info.sampleRate),
                     QString::number(info.bits), QString::number(info.channels),
                     QString::number(info.frames),
                     sound->state.samples ? sumText(sound->state.samples->plainCrc) : QString()));
    }
    return lines;
}

QString ended(const QStringList& lines)
{
    return lines.isEmpty() ? QString() : lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

}  // namespace

QString workLines(Zorv::ProjectFile* file)
{
    if (const auto* document = dynamic_cast<FamilyDocument*>(file)) {
        return document->text();
    }
    if (const auto* sprites = dynamic_cast<SpriteCollection*>(file)) {
        return ended(linesOf(*sprites));
    }
    const auto* sounds = dynamic_cast<SoundFile*>(file);
    return sounds ? ended(linesOf(*sounds)) : QString();
}

std::optional<QString> savedLines(Zorv::ProjectFile* file)
{
    Zorv::Archive& archive = *file->archive();
    const QString name = file->fileName();
    const auto linesIf = [](bool isRead, Zorv::ProjectFile* saved) {
        return isRead ? std::make_optional(workLines(saved)) : std::nullopt;
    };
    if (const auto* document = dynamic_cast<FamilyDocument*>(file)) {
        FamilyDocument saved(document->kind());
        return linesIf(saved.fromFile(archive, name, document->codecId(), false, true), &saved);
    }
    if (dynamic_cast<SoundFile*>(file)) {
        SoundFile saved;
        return linesIf(saved.fromFile(archive, name, true), &saved);
    }
    const std::unique_ptr<SpriteCollection> saved(Family::newSprites(name));
    return linesIf(saved->fromFile(archive, name, true), saved.get());
}

}  // namespace Operations
