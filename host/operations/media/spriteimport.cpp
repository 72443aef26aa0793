#include "operations/media/spriteimport.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "operations/media/assetnames.h"
#include "operations/media/spriteexport.h"

#include <zorv/cache/sprite.h>
#include <zorv/core/jobs.h>
#include <zorv/media/colortypes.h>
#include <zorv/media/tools/colorquantizer.h>

#include <QCoreApplication>
#include <QSet>

#include <optional>

// All numbers are chosen before anything is read, so a conflict changes nothing. Worker threads
// then read, crop and compress the images. The main thread adds each one as it arrives. If an image
// fails, and may not be left out, the step that was begun is undone.

namespace Operations {

using Family::AssetHistory;
using Family::AssetId;
using Family::FamilyPalette;
using Family::FamilySprite;
using Family::PaletteColors;
using Family::PaletteList;
using Family::PixelCodec;
using Family::SpriteCollection;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SpriteImport)
};

/// An image being imported.
struct ReadImage : ImportPixels
{
    std::shared_ptr<const Family::PackedImage> packed;  ///< in the form that the sprite stores
};

/// Imports images into a collection, between two of its signals.
class Import
{
public:
    Import(SpriteCollection* sprites, const QVector<ImportImage>& images,
           const ImportRequest& request)
        : m_sprites(sprites), m_images(images), m_request(request)
    {
    }

    MediaResult run(QVector<ImportedId>* ids);

private:
    bool numberAll(MediaResult* refusal);
    bool findPalette(MediaResult* result);
    bool makePalette(MediaResult* result);
    void putAll(MediaResult* result);
    int mode() const;
    std::function<ReadImage(const ImportImage&)> reader() const;
    void take(int index, const ReadImage& read, MediaResult* result);
    FamilySprite* target(int index) const;
    void setImage(FamilySprite* sprite, const ReadImage& read);
    QString put(int index, const ReadImage& read);

    SpriteCollection* m_sprites;
    QVector<ImportImage> m_images;
    ImportRequest m_request;
    QVector<ImageNumber> m_numbers;
    QVector<FamilySprite*> m_old;  ///< null for a new sprite
    QVector<int> m_rows;           ///< of the images that become their own sprite
    QSet<int> m_missing;
    FamilyPalette* m_palette = nullptr;
};

QString nameOf(const ImportImage& image)
{
    return image.isOfSheet() ? image.name : image.file;
}

MediaResult Import::run(QVector<ImportedId>* ids)
{
    MediaResult result;
    if (!numberAll(&result)) {
        return result;
    }
    // A step without changes is not recorded, so undo() would take back the step before instead.
    bool hasChanged = false;
    const auto watch = QObject::connect(m_sprites, &SpriteCollection::modified,
                                        [&hasChanged] { hasChanged = true; });
    m_sprites->beginChange(Text::tr("Import sprites"));
    if (findPalette(&result)) {
        putAll(&result);
    }
    m_sprites->endChange();
    QObject::disconnect(watch);
    const bool mayMiss = m_request.leavesOut && result.done > 0;
    const bool isWhole = (mayMiss || result.errors.isEmpty()) && !result.isCanceled;
    if (!isWhole && hasChanged) {
        m_sprites->undo();
    }
    for (int i = 0; isWhole && ids && i < m_images.size(); ++i) {
        const ImageNumber& number = m_numbers.at(i);
        if (!m_missing.contains(number.state == ImageNumber::Twin ? number.other : i)) {
            ids->append({i, number.target.id});
        }
    }
    return result;
}

int Import::mode() const
{
    return !m_palette           ? Zorv::Sprite::ImagePalette
           : m_request.recolors ? Zorv::Sprite::ReplacePalette
                                : Zorv::Sprite::ForcePalette;
}

/// The work of a thread for one file: everything that does not need the collection.
std::function<ReadImage(const ImportImage&)> Import::reader() const
{
    const auto colors = m_palette ? std::make_optional(m_palette->state.colors) : std::nullopt;
    const auto once = std::make_shared<Family::PackedOnce>();
    return [request = m_request, mode = mode(), colors, once](const ImportImage& image) {
        ReadImage read{readPixels(image, request.crops), nullptr};
        if (read.error.isEmpty() && !read.image.isNull()) {
            read.packed = std::make_shared<const Family::PackedImage>(
                FamilySprite::adaptedImage(read.image, request.reverses, mode,
                                           colors ? &*colors : nullptr),
                once.get(), request.codec);
        }
        return read;
    };
}

/// Adds images as soon as they are ready, so that only a few are in memory.
void Import::putAll(MediaResult* result)
{
    const auto prepare = [&, toRead = reader()](int i) -> std::function<ReadImage()> {
        return [image = m_images.at(m_rows.at(i)), toRead] { return toRead(image); };
    };
    const auto taker = [&](int i, const ReadImage& read) { take(m_rows.at(i), read, result); };
    result->isCanceled =
        !Zorv::runJobs<ReadImage>(Text::tr("Images"), m_rows.size(), prepare, taker);
    m_sprites->refresh();
}

void Import::take(int index, const ReadImage& read, MediaResult* result)
{
    if (!read.error.isEmpty()) {
        m_missing.insert(index);
        result->errors.append(read.error);
    } else if (result->errors.isEmpty() || m_request.leavesOut) {
        result->note(put(index, read));
    }
}

/// Errors that permission to replace cannot solve are reported first.
bool Import::numberAll(MediaResult* refusal)
{
    m_numbers = numberImages(m_images, m_request.numbering, *m_sprites);
    int fault = -1;
    for (int i = 0; i < m_images.size(); ++i) {
        const ImageNumber& number = m_numbers.at(i);
        const bool isTaken = number.state == ImageNumber::Taken;
        const bool isWorse = fault >= 0 && m_numbers.at(fault).state == ImageNumber::Taken;
        if (number.isFault() && (fault < 0 || (isWorse && !isTaken))) {
            fault = i;
        }
        m_old.append(number.state == ImageNumber::Replaces ? target(i) : nullptr);
        if (number.state != ImageNumber::Twin) {
            m_rows.append(i);
        }
    }
    if (fault >= 0) {
        *refusal = MediaResult(tellNumber(m_images, m_numbers, fault));
        refusal->isTaken = m_numbers.at(fault).state == ImageNumber::Taken;
    }
    return fault < 0;
}

/// The sprite that an image replaces.
FamilySprite* Import::target(int index) const
{
    const ImportTarget& place = m_numbers.at(index).target;
    int row = -1;
    for (int copy = 0; copy < place.copy && (copy == 0 || row >= 0); ++copy) {
        row = m_sprites->find(row + 1, place.id.text());
    }
    return m_sprites->sprite(row);
}

bool Import::findPalette(MediaResult* result)
{
    QString error;
    if (!m_request.palette.isEmpty()) {
        m_palette = ensurePalette(m_sprites, m_request.palette, &error);
    } else if (m_request.colors == 0) {
        return true;
    } else if (!makePalette(result)) {
        return false;
    }
    result->errors += error.isEmpty() ? QStringList() : QStringList(error);
    return m_palette;
}

/// Colour 0 is reserved for transparency.
bool Import::makePalette(MediaResult* result)
{
    Zorv::ColorQuantizer quantizer;
    quantizer.addColor({0, 0, 0, 0});
    const auto prepare = [&](int i) -> std::function<ImportPixels()> {
        return [image = m_images.at(m_rows.at(i))] { return readPixels(image, true); };
    };
    const auto add = [&](int, const ImportPixels& read) {
        if (!read.image.isNull()) {
            quantizer.addImage(read.image);
        }
    };
    result->isCanceled =
        !Zorv::runJobs<ImportPixels>(Text::tr("Colours"), m_rows.size(), prepare, add);
    if (result->isCanceled) {
        return false;
    }
    QVector<QRgb> table;
    const QVector<Zorv::RGBA> colors = quantizer.palette(m_request.colors);
    for (const Zorv::RGBA& color : colors) {
        table.append(qRgba(color.r, color.g, color.b, color.a));
    }
    m_palette = m_sprites->palettes()->ensure(Family::colorsOfTable(table));
    return true;
}

/// A new palette from an image gets the identifier stored in the file, if that is free.
void Import::setImage(FamilySprite* sprite, const ReadImage& read)
{
    PaletteList* palettes = m_sprites->palettes();
    const int count = palettes->count();
    sprite->setAdapted(*read.packed, mode(), m_palette);
    AssetId id;
    if (palettes->count() > count &&
        AssetId::read(read.image.text(QLatin1String(PaletteText)), &id) && !palettes->byId(id)) {
        sprite->palette()->setProperty(QStringLiteral("Identifier"), id.text());
    }
}

QString Import::put(int index, const ReadImage& read)
{
    const bool isNew = !m_old[index];
    FamilySprite* sprite = isNew ? m_sprites->addSprite() : m_old[index];
    sprite->setProperty(QStringLiteral("Identifier"), m_numbers[index].target.id.text());
    const QPoint old = sprite->axis();
    if (!read.image.isNull()) {
        setImage(sprite, read);
    }
    sprite->setAxis(importAxis(read, m_request, isNew ? nullptr : &old));
    const PixelCodec codec = m_request.codec;
    if (codec != PixelCodec::None && sprite->codec() != codec && !read.image.isNull()) {
        sprite->setProperty(QStringLiteral("Codec"), Family::codecName(codec));
        if (sprite->codec() != codec) {
            return Text::tr("'%1' would lose something as %2. Choose another codec.")
                .arg(nameOf(m_images[index]), Family::codecName(codec));
        }
    }
    return {};
}

}  // namespace

QPoint importAxis(const ImportPixels& pixels, const ImportRequest& request, const QPoint* old)
{
    if (!request.hasAxis && pixels.hasAxis) {
        return pixels.axis - pixels.corner;
    }
    if (!request.hasAxis && old) {
        return *old - pixels.corner;
    }
    return axisPlace(request.axisBase, pixels.original) + request.axis - pixels.corner;
}

MediaResult importSprites(SpriteCollection* sprites, const QVector<ImportImage>& images,
                          const ImportRequest& request, QVector<ImportedId>* ids)
{
    const AssetHistory::Hold hold(sprites->steps());
    return Import(sprites, images, request).run(ids);
}

}  // namespace Operations
