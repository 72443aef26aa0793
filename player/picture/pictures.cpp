#include "picture/pictures.h"

#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/project/unreachable.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/colortypes.h>
#include <zorv/media/palettefile.h>

#include <cmath>

namespace Player {

using Family::AssetId;
using Family::FamilySprite;

namespace {

constexpr int MostKiB = 256 * 1024;
constexpr int MostNotes = 20;

AssetId idOf(int group, int number)
{
    return {quint16(group), quint16(number)};
}

int times(int channel, double factor)
{
    return qBound(0, int(std::lround(channel * factor)), 255);
}

QRgb dyed(QRgb color, const Dye& dye)
{
    const int alpha = times(qAlpha(color), dye.opacity / 100.0);
    if (dye.flat != 0) {
        return (dye.flat & 0xffffff) | uint(times(qAlpha(color), qAlpha(dye.flat) / 255.0)) << 24;
    }
    const double light = dye.costume.brightness / 100.0;
    return qRgba(times(qRed(color), dye.tint[0] * light), times(qGreen(color), dye.tint[1] * light),
                 times(qBlue(color), dye.tint[2] * light), alpha);
}

/// Colour 0 is transparent, whatever a costume defines.
void dress(QVector<QRgb>* colors, const QVector<QRgb>& file, const QVector<QRgb>& shades)
{
    const auto put = [colors](const QVector<QRgb>& from) {
        for (int i = 1; i < from.size() && i < colors->size(); ++i) {
            (*colors)[i] = from.at(i);
        }
    };
    put(file);
    put(shades);
}

QVector<QRgb> colorsOfFile(const QString& path, QString* error)
{
    Zorv::RGBA colors[256] = {};
    QVector<QRgb> result;
    if (!path.isEmpty() && Zorv::loadPaletteFile(path, colors, error)) {
        for (const Zorv::RGBA& color : colors) {
            result.append(qRgb(color.r, color.g, color.b));
        }
    }
    return result;
}

}  // namespace

Pictures::Pictures() : m_known(MostKiB) {}

Pictures::~Pictures() = default;

void Pictures::open(const QString& path)
{
    m_known.clear();
    m_missing.clear();
    m_notes.clear();
    m_dressed = nullptr;
    m_sprites.reset(path.isEmpty() ? nullptr : Family::newSprites(path));
    if (!m_sprites) {
        return;
    }
    if (!m_sprites->fromFile(*Zorv::FileSystemArchive::instance(), path, false)) {
        m_notes.append(m_sprites->errorString());
        m_sprites.reset();
        return;
    }
    m_notes += m_sprites->loadErrors().mid(0, MostNotes);
}

int Pictures::addDye(const Dye& dye)
{
    QString error;
    m_dyes.append({dye, colorsOfFile(dye.costume.file, &error)});
    if (!error.isEmpty()) {
        m_notes.append(error);
    }
    return m_dyes.size() - 1;
}

void Pictures::clearDyes()
{
    m_dyes.clear();
    m_known.clear();
}

void Pictures::setDressed(int group, int number)
{
    const FamilySprite* one = sprite(group, number);
    m_dressed = one ? one->state.palette.get() : nullptr;
}

const FamilySprite* Pictures::sprite(int group, int number) const
{
    return m_sprites ? m_sprites->byId(idOf(group, number)) : nullptr;
}

QSize Pictures::sizeOf(int group, int number) const
{
    const FamilySprite* one = sprite(group, number);
    return one ? one->size() : QSize();
}

Picture Pictures::made(const FamilySprite& sprite, const Dyed& dyedAs)
{
    Picture picture{sprite.image(), sprite.axis()};
    QImage& image = picture.image;
    if (image.format() == QImage::Format_Indexed8) {
        QVector<QRgb> colors = image.colorTable();
        if (m_dressed && sprite.state.palette.get() == m_dressed) {
            dress(&colors, dyedAs.file, dyedAs.dye.costume.shades);
        }
        for (QRgb& color : colors) {
            color = dyed(color, dyedAs.dye);
        }
        image.setColorTable(colors);
    } else if (!image.isNull()) {
        image = image.convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                line[x] = dyed(line[x], dyedAs.dye);
            }
        }
    }
    return picture;
}

Picture Pictures::find(int group, int number, int dye)
{
    const AssetId id = idOf(group, number);
    const quint64 key = quint64(dye) << 32 | id.key();
    if (const Picture* known = m_known.object(key)) {
        return *known;
    }
    if (!m_sprites || m_missing.contains(id.key())) {
        return {};
    }
    const FamilySprite* one = m_sprites->byId(id);
    const Picture picture = one ? made(*one, m_dyes.at(dye)) : Picture();
    if (picture.image.isNull()) {
        m_missing.insert(id.key());
        if (m_notes.size() < MostNotes) {
            m_notes.append(one ? tr("Sprite %1 is broken.").arg(id.text())
                               : tr("There is no sprite %1.").arg(id.text()));
        }
        return {};
    }
    m_known.insert(key, new Picture(picture), int(picture.image.sizeInBytes() / 1024) + 1);
    return picture;
}

}  // namespace Player
