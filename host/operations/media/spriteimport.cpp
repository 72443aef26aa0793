#include "operations/media/spriteimport.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "operations/media/assetnames.h"
#include "operations/media/spriteexport.h"

#include <zorv/core/jobs.h>
#include <zorv/media/imagetransfer.h>
#include <zorv/media/tools/cropimage.h>

#include <QCoreApplication>

#include <optional>

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

/// An image on its way into a collection.
struct ImportImage
{
    QImage image;
    QPoint corner;  ///< what was cut off in front of it
    QString error;
    std::shared_ptr<const Family::PackedImage> packed;  ///< as the sprite takes it
};

/// Puts images into a collection, between two of its signals.
class Import
{
public:
    Import(SpriteCollection* sprites, const QStringList& files, const ImportRequest& request)
        : m_sprites(sprites), m_files(files), m_request(request)
    {
    }

    MediaResult run();

private:
    bool findSprites(MediaResult* refusal);
    bool findPalette(QString* error);
    void putAll(MediaResult* result);
    int mode() const;
    std::function<ImportImage(const QString&)> reader() const;
    void setImage(FamilySprite* sprite, const ImportImage& read);
    QString put(int index, const ImportImage& read);

    SpriteCollection* m_sprites;
    QStringList m_files;
    ImportRequest m_request;
    QVector<ImportTarget> m_targets;
    QVector<FamilySprite*> m_old;  ///< null for a sprite that is new
    FamilyPalette* m_palette = nullptr;
    bool m_isTouched = false;
};

ImportImage readCropped(const QString& file, bool crops)
{
    ImportImage read;
    read.image = Zorv::readImageFile(file, &read.error);
    if (crops && !read.image.isNull()) {
        Zorv::cropImage(read.image, &read.corner);
    }
    if (qMax(read.image.width(), read.image.height()) > Family::LargestSprite) {
        read.error = Text::tr("'%1' is larger than a sprite can be, %2 by %2.")
                         .arg(file, QString::number(Family::LargestSprite));
    }
    return read;
}

/// The axis that a file tells, else another one.
QPoint axisOf(const QImage& image, QPoint other)
{
    const QStringList parts = image.text(QLatin1String(AxisText)).split(QLatin1Char(','));
    bool isX = false;
    bool isY = false;
    const QPoint told(parts.value(0).toShort(&isX), parts.value(1).toShort(&isY));
    return isX && isY ? told : other;
}

MediaResult Import::run()
{
    QString error;
    m_targets = importTargets(
        m_files, m_request.group, [this](AssetId id) { return m_sprites->freeId(id); }, &error);
    if (m_targets.isEmpty()) {
        return MediaResult(error);
    }
    MediaResult result;
    if (!findSprites(&result)) {
        return result;
    }
    const QString title = Text::tr("Import sprites");
    m_sprites->beginChange(title);
    if (findPalette(&error)) {
        putAll(&result);
    } else {
        result.errors.append(error);
    }
    m_sprites->endChange();
    const bool isWhole = result.errors.isEmpty() && !result.isCanceled;
    if (!isWhole && m_isTouched && m_sprites->steps().undoTitle() == title) {
        m_sprites->undo();
    }
    return result;
}

int Import::mode() const
{
    return !m_palette           ? Zorv::Sprite::ImagePalette
           : m_request.recolors ? Zorv::Sprite::ReplacePalette
                                : Zorv::Sprite::ForcePalette;
}

/// What is done with a file on another thread: all but what needs the collection.
std::function<ImportImage(const QString&)> Import::reader() const
{
    const auto colors = m_palette ? std::make_optional(m_palette->state.colors) : std::nullopt;
    const auto once = std::make_shared<Family::PackedOnce>();
    return [request = m_request, mode = mode(), colors, once](const QString& file) {
        ImportImage read = readCropped(file, request.crops);
        if (read.error.isEmpty()) {
            read.packed = std::make_shared<const Family::PackedImage>(
                FamilySprite::adaptedImage(read.image, request.reverses, mode,
                                           colors ? &*colors : nullptr),
                once.get(), request.codec);
        }
        return read;
    };
}

/// Images go into the collection as they come: no more than a few are in memory.
void Import::putAll(MediaResult* result)
{
    const auto prepare = [&, toRead = reader()](int i) -> std::function<ImportImage()> {
        return [file = m_files[i], toRead] { return toRead(file); };
    };
    const auto take = [&](int i, const ImportImage& read) {
        if (!read.error.isEmpty()) {
            result->errors.append(read.error);
        } else if (result->errors.isEmpty()) {
            result->note(put(i, read));
        }
    };
    result->isCanceled =
        !Zorv::runJobs<ImportImage>(Text::tr("Images"), m_files.size(), prepare, take);
    m_sprites->refresh();
}

bool Import::findSprites(MediaResult* refusal)
{
    for (int i = 0; i < m_targets.size(); ++i) {
        const ImportTarget& target = m_targets[i];
        int row = -1;
        for (int copy = 0; copy < target.copy && (copy == 0 || row >= 0); ++copy) {
            row = m_sprites->find(row + 1, target.id.text());
        }
        if (row >= 0 && !m_request.force) {
            *refusal = MediaResult(Text::tr("There is a sprite %1 already, which '%2' would "
                                            "replace. Nothing is changed.")
                                       .arg(target.id.text(), m_files[i]));
            refusal->isTaken = true;
            return false;
        }
        m_old.append(m_sprites->sprite(row));
    }
    return true;
}

bool Import::findPalette(QString* error)
{
    if (m_request.palette.isEmpty()) {
        return true;
    }
    const int count = m_sprites->palettes()->count();
    m_palette = ensurePalette(m_sprites, m_request.palette, error);
    m_isTouched = m_sprites->palettes()->count() > count;
    return m_palette;
}

/// A palette that an image has brought is called as the file tells, if that is free.
void Import::setImage(FamilySprite* sprite, const ImportImage& read)
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

QString Import::put(int index, const ImportImage& read)
{
    m_isTouched = true;
    const bool isNew = !m_old[index];
    FamilySprite* sprite = isNew ? m_sprites->addSprite() : m_old[index];
    sprite->setProperty(QStringLiteral("Identifier"), m_targets[index].id.text());
    setImage(sprite, read);
    const QPoint axis = m_request.hasAxis ? m_request.axis
                        : isNew           ? axisOf(read.image, QPoint())
                                          : axisOf(read.image, sprite->axis());
    sprite->setAxis(axis - read.corner);
    const PixelCodec codec = m_request.codec;
    if (codec != PixelCodec::None && sprite->codec() != codec) {
        sprite->setProperty(QStringLiteral("Codec"), Family::codecName(codec));
        if (sprite->codec() != codec) {
            return Text::tr("'%1' would lose something as %2. Choose another codec.")
                .arg(m_files[index], Family::codecName(codec));
        }
    }
    return {};
}

}  // namespace

MediaResult importSprites(SpriteCollection* sprites, const QStringList& files,
                          const ImportRequest& request)
{
    const AssetHistory::Hold hold(sprites->steps());
    return Import(sprites, files, request).run();
}

}  // namespace Operations
