#include "family/assets/familysprite.h"

#include "family/assets/packedcopy.h"
#include "family/assets/palettelist.h"
#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "family/assets/spritetextures.h"

#include <zorv/media/tools/colorquantizer.h>

#include <QImage>
#include <algorithm>
#include <limits>

namespace Family {

namespace {

constexpr int ColorCount = 256;

// Reverses colours and indices, so that the picture looks the same.
QImage reversedOrder(QImage image)
{
    QVector<QRgb> table = tableOfColors(colorsOfTable(image.colorTable()));
    std::reverse(table.begin(), table.end());
    for (int y = 0; y < image.height(); ++y) {
        uchar* row = image.scanLine(y);
        std::transform(row, row + image.width(), row,
                       [](uchar pixel) { return uchar(ColorCount - 1 - pixel); });
    }
    image.setColorTable(table);
    return image;
}

QImage adapted(const QImage& image, const PaletteColors& colors)
{
    QVector<Zorv::RGBA> palette;
    std::copy(colors.begin(), colors.end(), std::back_inserter(palette));
    return Zorv::ColorQuantizer::adapt(image, palette);
}

int clampedAxis(int value)
{
    return qBound<int>(std::numeric_limits<qint16>::min(), value,
                       std::numeric_limits<qint16>::max());
}

}  // namespace

FamilySprite::FamilySprite(SpriteCollection* sprites) : m_sprites(sprites) {}

FamilySprite::~FamilySprite() = default;

PixelCodec FamilySprite::codec() const
{
    return state.pixels ? state.pixels->format.codec : PixelCodec::None;
}

int FamilySprite::bits() const
{
    return state.pixels ? state.pixels->format.bits : 0;
}

QString FamilySprite::fault() const
{
    if (!state.record.isEmpty()) {
        return tr("its record in the file is broken");
    }
    if (state.pixels && !state.pixels->record.isEmpty()) {
        return tr("the record of its pixels in the file is broken");
    }
    return {};
}

QString FamilySprite::pixelFault() const
{
    const QString known = fault();
    if (known.isEmpty() && state.pixels && pixelRows().isEmpty()) {
        return tr("its pixels are broken");
    }
    return known;
}

QVector<QRgb> FamilySprite::shownColors() const
{
    if (bits() == 32) {
        return {};
    }
    const FamilyPalette* palette = m_sprites->palettes()->shown(state.palette.get());
    return palette ? palette->colorTable() : tableOfColors(greyColors());
}

QByteArray FamilySprite::pixelRows() const
{
    return state.pixels ? m_sprites->store()->rows(state.pixels.get()) : QByteArray();
}

void FamilySprite::duplicate()
{
    auto copy = std::make_shared<FamilySprite>(m_sprites);
    copy->state = state;
    copy->state.record.clear();
    copy->state.file.clear();
    copy->state.id = m_sprites->freeId(state.id);
    const AssetHistory::Step step(m_sprites->editHistory(), tr("Duplicate sprite"));
    m_sprites->insertBehind(this, {copy});
}

void FamilySprite::reload()
{
    if (state.pixels) {
        m_sprites->store()->forget(state.pixels.get());
    }
}

void FamilySprite::bindTexture()
{
    Family::bindTexture(texture(), ImageUnit);
}

Zorv::Texture* FamilySprite::texture() const
{
    const PixelData* pixels = state.pixels.get();
    return pixels ? m_sprites->store()->textures()->texture(pixels, bool(state.palette),
                                                            [this] { return image(); })
                  : nullptr;
}

void FamilySprite::setImage(const QImage& image)
{
    const QImage pixels = normalizedImage(image);
    setPixels(pixels, m_sprites->store()->add(pixels));
}

void FamilySprite::setPrepared(const Zorv::PreparedImage& prepared)
{
    if (const auto* packed = dynamic_cast<const PackedImage*>(&prepared)) {
        setPixels(packed->image(), m_sprites->store()->add(*packed));
    } else {
        setImage(prepared.image());
    }
}

/// `stored` holds the pixels of the image; null if they do not fit into a sprite.
void FamilySprite::setPixels(const QImage& image, const PixelRef& stored)
{
    if (image.format() != QImage::Format_Indexed8) {
        setPixels(stored, nullptr);
        return;
    }
    const PaletteColors colors = colorsOfTable(image.colorTable());
    const bool fits = image.colorCount() == 0 ||
                      (state.palette && colors == state.palette->state.colors) ||
                      (state.pixels && colors == colorsOfTable(shownColors()));
    if (fits) {
        setPixels(stored, state.palette);
    } else if (stored) {
        PaletteList* palettes = m_sprites->palettes();
        const AssetHistory::Step step(m_sprites->editHistory(), tr("Change sprite"));
        setPixels(stored, palettes->share(palettes->ensure(colors)));
    }
}

void FamilySprite::setImage(const QImage& image, bool reversed, int mode, Zorv::Palette* palette)
{
    const auto chosen = chosenPalette(palette);
    const QImage pixels =
        adaptedImage(image, reversed, mode, chosen ? &chosen->state.colors : nullptr);
    setAdapted(pixels, m_sprites->store()->add(pixels), mode, chosen);
}

QImage FamilySprite::adaptedImage(const QImage& image, bool reversed, int mode,
                                  const PaletteColors* colors)
{
    QImage pixels = normalizedImage(image);
    if (colors && mode == ForcePalette) {
        return adapted(pixels, *colors);
    }
    if (colors && mode == ReplacePalette && pixels.format() != QImage::Format_Indexed8) {
        pixels = Zorv::ColorQuantizer::quantize(pixels, ColorCount);
    }
    return reversed && pixels.format() == QImage::Format_Indexed8 ? reversedOrder(pixels) : pixels;
}

void FamilySprite::setAdapted(const PackedImage& packed, int mode, Zorv::Palette* palette)
{
    setAdapted(packed.image(), m_sprites->store()->add(packed), mode, chosenPalette(palette));
}

std::shared_ptr<FamilyPalette> FamilySprite::chosenPalette(const Zorv::Palette* palette) const
{
    const auto chosen = m_sprites->palettes()->share(palette);
    return chosen ? chosen : state.palette;
}

/// `stored` holds the pixels of the image; null if they do not fit into a sprite.
void FamilySprite::setAdapted(const QImage& pixels, const PixelRef& stored, int mode,
                              std::shared_ptr<FamilyPalette> chosen)
{
    if (!stored) {
        return;
    }
    PaletteList* palettes = m_sprites->palettes();
    const AssetHistory::Step step(m_sprites->editHistory(), tr("Change sprite"));
    if (pixels.format() != QImage::Format_Indexed8) {
        chosen = nullptr;
    } else if (!chosen || mode != ForcePalette) {
        const PaletteColors colors = colorsOfTable(pixels.colorTable());
        if (chosen && mode == ReplacePalette) {
            palettes->setColors(chosen.get(), colors, Zorv::Palette::KeepPixels);
        } else {
            chosen = palettes->share(palettes->ensure(colors));
        }
    }
    setPixels(stored, chosen);
}

void FamilySprite::setPixels(const PixelRef& stored, const std::shared_ptr<FamilyPalette>& palette)
{
    if (stored) {
        putPixels(stored, palette);
    }
}

bool FamilySprite::takePixels(const PackedPixels& packed, const QByteArray& rows)
{
    const PixelRef pixels = rows.isEmpty() ? PixelRef() : m_sprites->store()->add(packed, rows);
    if (!rows.isEmpty() && !pixels) {
        return false;
    }
    putPixels(pixels, pixels && packed.format.bits == 32 ? nullptr : state.palette);
    return true;
}

void FamilySprite::putPixels(const PixelRef& pixels, const std::shared_ptr<FamilyPalette>& palette)
{
    if (pixels == state.pixels && palette == state.palette && state.record.isEmpty()) {
        return;
    }
    State changed = state;
    changed.pixels = pixels;
    changed.palette = palette;
    changed.record.clear();
    const AssetHistory::Step step(m_sprites->editHistory(), tr("Change sprite"));
    m_sprites->change(this, changed);
}

Zorv::Palette* FamilySprite::palette() const
{
    return state.palette.get();
}

QPoint FamilySprite::axis() const
{
    return state.axis;
}

void FamilySprite::setAxis(QPoint axis)
{
    State changed = state;
    changed.axis = {clampedAxis(axis.x()), clampedAxis(axis.y())};
    if (changed.axis != state.axis) {
        changed.record.clear();
        const AssetHistory::Step step(m_sprites->editHistory(), tr("Move axis"));
        m_sprites->change(this, changed);
    }
}

void FamilySprite::setPalette(Zorv::Palette* palette)
{
    const auto chosen = m_sprites->palettes()->share(palette);
    if (bits() == 32 || chosen == state.palette || (palette && !chosen)) {
        return;
    }
    State changed = state;
    changed.palette = chosen;
    changed.record.clear();
    const AssetHistory::Step step(m_sprites->editHistory(), tr("Change palette of sprite"));
    m_sprites->change(this, changed);
}

void FamilySprite::setId(AssetId id)
{
    if (id != state.id) {
        State changed = state;
        changed.id = id;
        changed.record.clear();
        const AssetHistory::Step step(m_sprites->editHistory(), tr("Rename sprite"));
        m_sprites->change(this, changed);
    }
}

void FamilySprite::splitChannels()
{
    const QImage shown = image().convertToFormat(QImage::Format_ARGB32);
    if (shown.isNull()) {
        return;
    }
    const AssetHistory::Step step(m_sprites->editHistory(), tr("Split channels"));
    PaletteList* palettes = m_sprites->palettes();
    const PaletteColors greys = greyColors();
    const auto palette = palettes->share(palettes->ensure(greys));
    QVector<std::shared_ptr<FamilySprite>> added;
    AssetId id = state.id;
    for (const int shift : {16, 8, 0}) {
        QImage levels(shown.size(), QImage::Format_Indexed8);
        for (int y = 0; y < shown.height(); ++y) {
            const auto* from = reinterpret_cast<const QRgb*>(shown.constScanLine(y));
            std::transform(from, from + shown.width(), levels.scanLine(y), [shift](QRgb color) {
                return qAlpha(color) == 0 ? uchar(0) : uchar(color >> shift);
            });
        }
        auto sprite = std::make_shared<FamilySprite>(m_sprites);
        id = m_sprites->freeId(AssetId::fromKey(id.key() + 1));
        sprite->state = {id, state.axis, m_sprites->store()->add(levels), palette, {}, {}};
        added.append(sprite);
    }
    m_sprites->insertBehind(this, added);
}

QImage FamilySprite::image() const
{
    return state.pixels ? imageOfRows(state.pixels->format, pixelRows(), shownColors()) : QImage();
}

std::shared_ptr<Zorv::PixelCopy> FamilySprite::copyPixels() const
{
    return std::make_shared<PackedCopy>(*this);
}

QSize FamilySprite::size() const
{
    return state.pixels ? state.pixels->format.size : QSize(0, 0);
}

QStringList FamilySprite::propertyNames() const
{
    return {QStringLiteral("Identifier"), QStringLiteral("Group"),   QStringLiteral("Number"),
            QStringLiteral("Axis"),       QStringLiteral("Palette"), QStringLiteral("Width"),
            QStringLiteral("Height"),     QStringLiteral("Codec")};
}

QVariant FamilySprite::property(const QString& name) const
{
    switch (propertyNames().indexOf(name)) {
    case 0:
        return state.id.text();
    case 1:
        return int(state.id.group);
    case 2:
        return int(state.id.number);
    case 3:
        return state.axis;
    case 4:
        return state.palette ? state.palette->id().text() : QString();
    case 5:
        return size().width();
    case 6:
        return size().height();
    case 7:
        return codecName(codec());
    default:
        return {};
    }
}

void FamilySprite::setProperty(const QString& name, const QVariant& value)
{
    AssetId id = state.id;
    if (readIdProperty(name, value, &id)) {
        setId(id);
    } else if (name == QLatin1String("Axis") && value.canConvert<QPoint>()) {
        setAxis(value.toPoint());
    } else if (name == QLatin1String("Palette")) {
        Zorv::Palette* palette =
            AssetId::read(value, &id) ? m_sprites->palettes()->byId(id) : nullptr;
        if (palette || value.toString().isEmpty()) {
            setPalette(palette);
        }
    } else if (name == QLatin1String("Codec")) {
        setCodec(codecByName(value.toString()));
    }
}

void FamilySprite::setCodec(PixelCodec codec)
{
    if (codec == this->codec() || !state.pixels || codec == PixelCodec::None) {
        return;
    }
    State changed = state;
    changed.pixels = m_sprites->store()->recoded(state.pixels.get(), codec);
    if (changed.pixels) {
        const AssetHistory::Step step(m_sprites->editHistory(), tr("Change sprite"));
        m_sprites->change(this, changed);
    }
}

}  // namespace Family
