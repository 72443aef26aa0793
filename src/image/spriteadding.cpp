#include "image/spriteadding_p.h"

#include "cache/palette.h"
#include "cache/palettes.h"
#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/jobs.h"
#include "image/imagefilelists_p.h"
#include "media/imagetransfer.h"
#include "media/tools/cropimage.h"

#include <QCoreApplication>

namespace Zorv {

namespace {

/// The context of the texts of this file for translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SpriteAdding)
};

QString identifierKey()
{
    return QStringLiteral("Identifier");
}

/// False for an image without a stored axis.
bool readAxis(const QImage& image, QPoint* axis)
{
    const QStringList parts = image.text(QLatin1String(AxisText)).split(QLatin1Char(','));
    bool isX = false;
    bool isY = false;
    *axis = {parts.value(0).toShort(&isX), parts.value(1).toShort(&isY)};
    return isX && isY;
}

}  // namespace

ImageRead loadNonCroppedImage(const QString& fileName)
{
    ImageRead read;
    read.image = readImageFile(fileName, &read.error);
    return read;
}

ImageRead loadCroppedImage(const QString& fileName)
{
    ImageRead read = loadNonCroppedImage(fileName);
    if (!read.image.isNull()) {
        cropImage(read.image, &read.corner, 0);
    }
    return read;
}

SpriteAdding::SpriteAdding(Sprites* sprites, const QStringList& files,
                           const QList<QVariant>& identifiers)
    : m_sprites(sprites), m_files(files), m_identifiers(identifiers)
{
}

void SpriteAdding::run(bool isCropped)
{
    const QString title = Text::tr("Add sprites");
    const int first = int(m_sprites->count());
    m_sprites->beginChange(title);
    const ImagePreparer makeReady = m_sprites->imagePreparer();
    const auto prepare = [&](int i) -> std::function<ImageRead()> {
        return [file = m_files.at(i), isCropped, makeReady] {
            ImageRead read = isCropped ? loadCroppedImage(file) : loadNonCroppedImage(file);
            if (!read.image.isNull()) {
                read.prepared = makeReady(read.image);
            }
            return read;
        };
    };
    const bool isWhole = runJobs<ImageRead>(title, m_files.size(), prepare,
                                            [this](int i, const ImageRead& read) { add(i, read); });
    if (!m_sprites) {
        return;
    }
    m_sprites->refresh();
    removeEmpty(first);
    m_sprites->endChange();
    if (!isWhole && m_sprites && m_sprites->canUndo() && int(m_sprites->count()) > first) {
        m_sprites->undo();
    }
}

void SpriteAdding::add(int index, const ImageRead& read)
{
    if (!m_sprites) {
        return;
    }
    Sprite* sprite = read.image.isNull() ? nullptr : m_sprites->addSprite();
    if (!sprite) {
        m_errors.append(read.error);
        return;
    }
    if (m_identifiers.size() == m_files.size()) {
        sprite->setProperty(identifierKey(), m_identifiers.at(index));
    }
    const int paletteCount = m_sprites->palettes()->count();
    sprite->setPrepared(*read.prepared);
    if (sprite->size() == read.image.size()) {
        setTexts(sprite, read, paletteCount);
        sprite->reload();
    } else {
        m_empty.append(m_count);
        m_errors.append(Text::tr("'%1' could not be taken up: the picture of %2 by %3 is too large "
                                 "for a sprite, or memory is short.")
                            .arg(m_files.at(index), QString::number(read.image.width()),
                                 QString::number(read.image.height())));
    }
    ++m_count;
}

/// Sets axis and palette name. A palette that was added with the image gets the identifier stored
/// in the file, if that is free.
void SpriteAdding::setTexts(Sprite* sprite, const ImageRead& read, int paletteCount)
{
    QPoint axis;
    if (readAxis(read.image, &axis) || !read.corner.isNull()) {
        sprite->setProperty(QStringLiteral("Axis"), axis - read.corner);
    }
    const Palettes* palettes = m_sprites->palettes();
    const QString id = read.image.text(QLatin1String(PaletteText));
    if (palettes->count() > paletteCount && !id.isEmpty() && palettes->find(0, id) < 0) {
        sprite->palette()->setProperty(identifierKey(), id);
    }
}

void SpriteAdding::removeEmpty(int first)
{
    for (int i = m_empty.size() - 1; i >= 0; --i) {
        m_sprites->removeSprite(first + m_empty.at(i));
    }
}

}  // namespace Zorv
