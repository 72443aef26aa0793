#include "family/check/assetfacts.h"

#include "family/assets/familypalette.h"
#include "family/assets/familysound.h"
#include "family/assets/familysprite.h"
#include "family/assets/foldercontent.h"
#include "family/assets/palettelist.h"
#include "family/assets/remapmodel.h"
#include "family/assets/soundfile.h"
#include "family/assets/soundfiledata.h"
#include "family/assets/spritecollection.h"
#include "family/assets/spritefiledata.h"
#include "family/project/unreachable.h"

#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>
#include <QHash>

#include <functional>

namespace Family {

using Zorv::FileID;

namespace {

constexpr int Lz5Colours = 32;

/// The number of colours without trailing black ones: files are often padded to 256.
int coloursOf(const PaletteColors& colors, int count)
{
    while (count > 0) {
        const Zorv::RGBA& last = colors[size_t(count - 1)];
        if (last.r != 0 || last.g != 0 || last.b != 0) {
            break;
        }
        --count;
    }
    return count;
}

/// How sprites use a palette.
struct PaletteUse
{
    AssetId id;
    int colours = 0;
    bool isRemapped = false;
    bool isUsed = false;
    bool isBeyondLz5 = false;

    void takeSprite(PixelCodec codec)
    {
        isUsed = true;
        isBeyondLz5 |= codec != PixelCodec::Lz5;
    }
};

void takePalettes(const QVector<PaletteUse>& palettes, AssetFacts* facts)
{
    for (const PaletteUse& palette : palettes) {
        if (!palette.isUsed && !palette.isRemapped) {
            facts->unusedPalettes.append(palette.id.text());
        } else if (palette.isUsed && !palette.isBeyondLz5 && palette.colours > Lz5Colours) {
            facts->cutPalettes.append(palette.id.text());
        }
    }
}

void takeSpriteData(const SpriteFileData& data, AssetFacts* facts)
{
    facts->isReadable = true;
    facts->faults = data.problems;
    QVector<PaletteUse> palettes;
    for (const SpriteFileData::Palette& palette : data.palettes) {
        palettes.append({palette.id, coloursOf(palette.colors, palette.count)});
        for (const SpriteFileData::Remap& remap : data.remaps) {
            palettes.last().isRemapped |= remap.from == palette.id || remap.to == palette.id;
        }
    }
    for (const SpriteFileData::Sprite& sprite : data.sprites) {
        facts->ids.append(sprite.id);
        if (sprite.palette != SpriteFileData::None) {
            palettes[int(sprite.palette)].takeSprite(
                sprite.stream == SpriteFileData::None
                    ? PixelCodec::None
                    : data.streams[int(sprite.stream)].format.codec);
        }
    }
    takePalettes(palettes, facts);
}

/// In a folder each palette belongs to an image and none is stored as LZ5, so palettes need no
/// check.
void takeFolder(const QString& folder, AssetFacts* facts)
{
    const FolderContent content = FolderContent::read(*Zorv::FileSystemArchive::instance(), folder);
    facts->isReadable = unreachable(folder).isEmpty();
    facts->faults = content.problems;
    for (const FolderContent::Image& image : content.images) {
        facts->ids.append(image.id);
    }
}

void takeSounds(const SoundFileData& data, AssetFacts* facts)
{
    facts->isReadable = true;
    for (const SoundFileData::Sound& sound : data.sounds) {
        facts->ids.append(sound.id);
        if (!sound.broken.isEmpty()) {
            facts->faults.append(
                SoundFileData::faultLine(facts->ids.size(), sound.id, sound.fault));
        }
    }
}

AssetFacts factsOfSprites(const SpriteCollection* sprites)
{
    AssetFacts facts;
    facts.isReadable = true;
    // `loadErrors()` dates from the last load and may name records that were removed since. So it
    // counts only while broken records exist.
    facts.faults = sprites->brokenCount() > 0 ? sprites->loadErrors() : QStringList();
    QVector<PaletteUse> palettes;
    QHash<const FamilyPalette*, int> places;
    for (const auto& palette : sprites->palettes()->items()) {
        places.insert(palette.get(), palettes.size());
        palettes.append({palette->id(), coloursOf(palette->state.colors, palette->colorCount()),
                         sprites->palettes()->remaps()->names(palette->id())});
    }
    for (const auto& sprite : sprites->items()) {
        facts.ids.append(sprite->id());
        const int place = places.value(sprite->state.palette.get(), -1);
        if (place >= 0) {
            palettes[place].takeSprite(sprite->codec());
        }
    }
    takePalettes(palettes, &facts);
    return facts;
}

AssetFacts factsOfSounds(const SoundFile* sounds)
{
    AssetFacts facts;
    facts.isReadable = true;
    facts.faults = sounds->loadErrors();
    for (const auto& sound : sounds->items()) {
        facts.ids.append(sound->id());
    }
    return facts;
}

template <class Data>
bool readData(const QString& path, Data* data)
{
    Zorv::Archive& disk = *Zorv::FileSystemArchive::instance();
    QString error;
    QIODevice* device = disk.openFile(path, QIODevice::ReadOnly, &error);
    const bool isRead = device && data->read(device, &error);
    if (device) {
        disk.closeFile(device);
    }
    return isRead;
}

}  // namespace

AssetFacts assetFacts(FileID::Type type, const QString& path)
{
    AssetFacts facts;
    if (type == FileID::Sprites && QFileInfo(path).isDir()) {
        takeFolder(path, &facts);
    } else if (type == FileID::Sprites) {
        SpriteFileData data;
        if (readData(path, &data)) {
            takeSpriteData(data, &facts);
        }
    } else {
        SoundFileData data;
        if (readData(path, &data)) {
            takeSounds(data, &facts);
        }
    }
    return facts;
}

AssetFacts assetFacts(const Zorv::ProjectFile* file)
{
    const auto* sprites = dynamic_cast<const SpriteCollection*>(file);
    const auto* sounds = dynamic_cast<const SoundFile*>(file);
    return sprites ? factsOfSprites(sprites) : sounds ? factsOfSounds(sounds) : AssetFacts();
}

}  // namespace Family
