#include "family/assets/spritefolder.h"

#include "family/assets/foldercontent.h"
#include "family/assets/pixelstore.h"
#include "family/assets/remapmodel.h"
#include "family/project/unreachable.h"

#include <zorv/core/archive.h>
#include <zorv/media/imagefile.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <algorithm>

// `m_written` remembers which pixels and colours each file of the folder holds. Saving in place
// compares sprites with it and writes only those that differ, then the list, and last removes files
// that no sprite uses any more. Before a file is overwritten or removed, its bytes move into the
// cache, because undo may need them.

namespace Family {

namespace {

const QLatin1String alwaysFits("png");

// Checked in advance, because writing would silently lose colours in an unsuitable format.
bool holdsColors(const QString& suffix, int bits, const PaletteColors& colors)
{
    if (suffix == alwaysFits) {
        return true;
    }
    const auto transparent =
        std::count_if(colors.begin(), colors.end(), [](Zorv::RGBA color) { return color.a == 0; });
    const bool isPartly = std::any_of(colors.begin(), colors.end(), [](Zorv::RGBA color) {
        return color.a != 0 && color.a != 255;
    });
    return bits == 8 && !isPartly && transparent <= (suffix == QLatin1String("gif") ? 1 : 0);
}

const PaletteColors ownColors(const FamilySprite* sprite)
{
    return sprite->state.palette ? sprite->state.palette->state.colors : greyColors();
}

bool writeFile(Zorv::Archive& archive, const QString& fileName,
               const std::function<bool(QIODevice*)>& write, QString* error)
{
    // Links in the folder are not read, so their targets must not be overwritten either.
    if (QFileInfo(fileName).isSymLink()) {
        *error = SpriteFolder::tr("Cannot write %1: it is a link. Remove it, or put a file in its "
                                  "place.")
                     .arg(QDir::toNativeSeparators(fileName));
        return false;
    }
    QIODevice* device = archive.openFile(fileName, QIODevice::WriteOnly, error);
    if (!device) {
        return false;
    }
    const bool isGiven = write(device);
    return archive.closeFile(device, error) && isGiven;
}

}  // namespace

SpriteFolder::SpriteFolder() = default;

SpriteFolder::~SpriteFolder() = default;

void SpriteFolder::reset()
{
    m_written.clear();
    m_lost.clear();
    m_unknown.clear();
    SpriteCollection::reset();
}

bool SpriteFolder::fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    if (!QFileInfo(fileName).isDir()) {
        setErrorString(tr("Cannot read %1: it is no folder. Choose a folder of images.")
                           .arg(QDir::toNativeSeparators(fileName)));
        return false;
    }
    const QString closed = unreachable(fileName);
    if (!closed.isEmpty()) {
        setErrorString(closed);
        return false;
    }
    Content content;
    content.store = std::make_unique<PixelStore>();
    m_written.clear();
    readContent(archive, fileName, &content);
    take(std::move(content), asCopy);
    if (!asCopy) {
        for (const auto& sprite : items()) {
            noteWritten(sprite.get());
        }
        setFileName(fileName);
        setArchive(&archive);
        emit synchronized();
    }
    setErrorString({});
    return true;
}

void SpriteFolder::readContent(Zorv::Archive& archive, const QString& folder, Content* content)
{
    const FolderContent read = FolderContent::read(archive, folder);
    m_lost = read.lost;
    m_unknown = read.list.unknown;
    content->errors = read.problems;
    QHash<QString, AssetId> paletteIds;
    for (const FolderList::Palette& palette : read.list.palettes) {
        paletteIds.insert(palette.file, palette.id);
    }
    QHash<QByteArray, PaletteList::ItemPtr> known;
    for (const FolderContent::Image& image : read.images) {
        auto sprite = std::make_shared<FamilySprite>(this);
        sprite->state.file = image.file;
        sprite->state.id = image.id;
        sprite->state.axis = image.axis;
        if (!image.file.isEmpty()) {
            sprite->state.pixels = content->store->adoptFile(
                image.format, QDir(folder).filePath(image.file), image.pixelCrc);
        }
        if (image.hasColors) {
            PaletteList::ItemPtr& palette = known[QByteArray(
                reinterpret_cast<const char*>(image.colors.data()), int(sizeof image.colors))];
            if (!palette) {
                palette = std::make_shared<FamilyPalette>(palettes());
                content->palettes.append(palette);
                palette->state.colors = image.colors;
                palette->state.id = {1, quint16(content->palettes.size())};
            }
            palette->state.id = paletteIds.value(image.file, palette->state.id);
            sprite->state.palette = palette;
        }
        content->sprites.append(sprite);
    }
    for (const auto& remap : read.list.remaps) {
        content->remaps.append(std::make_shared<RemapItem>());
        content->remaps.last()->state = {remap.first, remap.second, {}};
    }
}

bool SpriteFolder::isWritten(const FamilySprite* sprite) const
{
    if (!sprite->state.pixels) {
        return true;
    }
    const auto written = m_written.constFind(sprite->state.file);
    return written != m_written.cend() && written->pixels == sprite->state.pixels &&
           (sprite->bits() == 32 || written->colors == ownColors(sprite));
}

void SpriteFolder::noteWritten(const FamilySprite* sprite)
{
    if (sprite->state.pixels) {
        m_written.insert(sprite->state.file, {sprite->state.pixels, ownColors(sprite)});
    }
}

QString SpriteFolder::newName(const FamilySprite* sprite, const QString& folder) const
{
    const QString base = sprite->state.file.isEmpty()
                             ? QStringLiteral("%1_%2").arg(QString::number(sprite->id().group),
                                                           QString::number(sprite->id().number))
                             : QFileInfo(sprite->state.file).completeBaseName();
    QString name = base + QLatin1String(".png");
    for (int i = 2; QFileInfo::exists(QDir(folder).filePath(name)); ++i) {
        name = QStringLiteral("%1 (%2).png").arg(base, QString::number(i));
    }
    return name;
}

bool SpriteFolder::writeImage(Zorv::Archive& archive, const QString& folder, FamilySprite* sprite)
{
    const PaletteColors colors = ownColors(sprite);
    const QByteArray rows = sprite->pixelRows();
    if (rows.isEmpty()) {
        setErrorString(tr("Cannot write the sprite %1: its pixels are broken. Remove it, or give "
                          "it another image.")
                           .arg(sprite->id().text()));
        return false;
    }
    QString suffix = QFileInfo(sprite->state.file).suffix().toLower();
    if (suffix.isEmpty() || !holdsColors(suffix, sprite->bits(), colors)) {
        suffix = alwaysFits;
        sprite->state.file = newName(sprite, folder);
    }
    const QString path = QDir(folder).filePath(sprite->state.file);
    const QImage image = imageOfRows(sprite->state.pixels->format, rows, tableOfColors(colors));
    // Undo may still need the old content of the file.
    store()->takeIn(path);
    QString reason;
    const bool done = writeFile(
        archive, path,
        [&](QIODevice* device) {
            return Zorv::saveImage(device, suffix.toUpper().toLatin1().constData(), image);
        },
        &reason);
    if (!done) {
        setErrorString(reason.isEmpty() ? tr("Cannot write %1.").arg(path) : reason);
    }
    return done;
}

bool SpriteFolder::writeList(Zorv::Archive& archive, const QString& folder)
{
    FolderList list;
    QSet<const FamilyPalette*> named;
    for (const auto& sprite : items()) {
        const FamilySprite::State& state = sprite->state;
        list.images.append(
            {state.pixels ? state.file : FolderList::noFile(), state.id, state.axis});
        if (state.pixels && state.palette && !named.contains(state.palette.get())) {
            named.insert(state.palette.get());
            list.palettes.append({state.palette->id(), state.file});
        }
    }
    list.images += m_lost;
    list.unknown = m_unknown;
    for (const auto& remap : palettes()->remaps()->items()) {
        list.remaps.append({remap->state.from, remap->state.to});
    }
    const QString path = QDir(folder).filePath(FolderList::fileName());
    const QByteArray text = list.text().toUtf8();
    QString reason;
    const bool done = writeFile(
        archive, path, [&](QIODevice* device) { return device->write(text) == text.size(); },
        &reason);
    if (!done) {
        setErrorString(reason.isEmpty() ? tr("Cannot write %1.").arg(path) : reason);
    }
    return done;
}

void SpriteFolder::removeOld(const QString& folder)
{
    QSet<QString> used;
    for (const auto& sprite : items()) {
        used.insert(sprite->state.file);
    }
    for (auto it = m_written.begin(); it != m_written.end();) {
        if (used.contains(it.key())) {
            ++it;
            continue;
        }
        const QString path = QDir(folder).filePath(it.key());
        store()->takeIn(path);
        QFile::remove(path);
        it = m_written.erase(it);
    }
}

bool SpriteFolder::toFile(Zorv::Archive& archive, const QString& folder, bool asCopy)
{
    refresh();
    const bool isOwn = !fileName().isEmpty() && QDir(folder) == QDir(fileName());
    for (const auto& sprite : items()) {
        if (!sprite->state.pixels || (isOwn && isWritten(sprite.get()))) {
            continue;
        }
        if (!writeImage(archive, folder, sprite.get())) {
            return false;
        }
        if (isOwn) {
            noteWritten(sprite.get());
        }
    }
    if (!writeList(archive, folder)) {
        return false;
    }
    if (isOwn) {
        removeOld(folder);
    }
    if (!asCopy) {
        if (!isOwn) {
            // Only now, and without the names of the old folder: a later save skips files that are
            // in here, and deletes those that no sprite uses.
            m_written.clear();
            for (const auto& sprite : items()) {
                noteWritten(sprite.get());
            }
        }
        setFileName(folder);
        setArchive(&archive);
        setClean();
        emit synchronized();
    }
    setErrorString({});
    return true;
}

}  // namespace Family
