#include "family/check/assetcheck.h"

#include "family/assets/familypalette.h"
#include "family/assets/familysprite.h"
#include "family/assets/palettelist.h"
#include "family/assets/remapmodel.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/project/familyproject.h"

#include <QCoreApplication>
#include <QDir>

namespace Family {

using Zorv::FileID;

namespace {

const int MostNames = 10;
const int MostRecords = 20;
const int Lz5Colours = 32;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

quint32 keyOf(const QString& name)
{
    AssetId id;
    AssetId::read(name, &id);
    return id.key();
}

QSet<quint32> keysOf(const QVector<NamedPlace>& named)
{
    QSet<quint32> keys;
    for (const NamedPlace& place : named) {
        keys.insert(keyOf(place.name));
    }
    return keys;
}

/// The identifiers of the items of a list that `keys` does not have.
template <class List>
QStringList namesOutside(const List& items, const QSet<quint32>& keys)
{
    QStringList names;
    for (const auto& item : items) {
        if (!keys.contains(item->id().key())) {
            names.append(item->id().text());
        }
    }
    names.removeDuplicates();
    return names;
}

template <class List>
QSet<quint32> idsOf(const List& items)
{
    QSet<quint32> keys;
    for (const auto& item : items) {
        keys.insert(item->id().key());
    }
    return keys;
}

/// Up to the last one that is not black: files are often filled up to 256.
int coloursOf(const FamilyPalette& palette)
{
    int count = palette.colorCount();
    while (count > 0) {
        const Zorv::RGBA& last = palette.state.colors[size_t(count - 1)];
        if (last.r != 0 || last.g != 0 || last.b != 0) {
            break;
        }
        --count;
    }
    return count;
}

}  // namespace

void AssetCheck::checkSprites(const NamedPlace& place, const QVector<NamedPlace>& named,
                              bool isComplete)
{
    const auto* sprites = dynamic_cast<SpriteCollection*>(loaded(FileID::Sprites, place));
    if (!sprites) {
        m_problems.append(
            problemAt(ProblemId::FileBroken, {place.name, Text::tr("sprite")}, place));
        return;
    }
    // What is missing or unused may only seem to be, with a broken record.
    if (!checkRecords(place, sprites->loadErrors())) {
        return;
    }
    checkMissing(ProblemId::SpriteMissing, place, named, idsOf(sprites->items()));
    if (isComplete) {
        tellList(ProblemId::SpritesUnused, place, namesOutside(sprites->items(), keysOf(named)));
    }
    checkPalettes(place, sprites);
}

void AssetCheck::checkSounds(const NamedPlace& place, const QVector<NamedPlace>& named,
                             bool isComplete)
{
    const auto* sounds = dynamic_cast<SoundFile*>(loaded(FileID::Sounds, place));
    if (!sounds) {
        m_problems.append(problemAt(ProblemId::FileBroken, {place.name, Text::tr("sound")}, place));
        return;
    }
    if (!checkRecords(place, sounds->loadErrors())) {
        return;
    }
    checkMissing(ProblemId::SoundMissing, place, named, idsOf(sounds->items()));
    if (isComplete) {
        tellList(ProblemId::SoundsUnused, place, namesOutside(sounds->items(), keysOf(named)));
    }
}

Zorv::ProjectFile* AssetCheck::loaded(FileID::Type type, const NamedPlace& place) const
{
    const QList<Zorv::ProjectFile*> files = m_project->filesByType(type);
    const QString path = m_project->resolvePath(place.name);
    for (Zorv::ProjectFile* file : files) {
        if (QDir::cleanPath(file->fileName()) == path) {
            return file;
        }
    }
    return nullptr;
}

bool AssetCheck::checkRecords(const NamedPlace& place, const QStringList& lines)
{
    for (const QString& line : lines.mid(0, MostRecords)) {
        m_problems.append(problemAt(ProblemId::RecordBroken, {place.name, line}, place));
    }
    if (lines.size() > MostRecords) {
        const QString more =
            Text::tr("%n more records are broken.", nullptr, lines.size() - MostRecords);
        m_problems.append(problemAt(ProblemId::RecordBroken, {place.name, more}, place));
    }
    return lines.isEmpty();
}

void AssetCheck::checkMissing(ProblemId id, const NamedPlace& place,
                              const QVector<NamedPlace>& named, const QSet<quint32>& known)
{
    for (const NamedPlace& asset : named) {
        if (!known.contains(keyOf(asset.name))) {
            m_problems.append(problemAt(id, {asset.name, place.name}, asset));
        }
    }
}

void AssetCheck::checkPalettes(const NamedPlace& place, const SpriteCollection* sprites)
{
    QSet<const FamilyPalette*> used;
    QSet<const FamilyPalette*> beyondLz5;
    for (const auto& sprite : sprites->items()) {
        const FamilyPalette* palette = sprite->state.palette.get();
        used.insert(palette);
        if (sprite->codec() != PixelCodec::Lz5) {
            beyondLz5.insert(palette);
        }
    }
    QStringList unused;
    QStringList lost;
    const PaletteList* palettes = sprites->palettes();
    for (const auto& palette : palettes->items()) {
        if (!used.contains(palette.get())) {
            if (!palettes->remaps()->names(palette->id())) {
                unused.append(palette->id().text());
            }
        } else if (!beyondLz5.contains(palette.get()) && coloursOf(*palette) > Lz5Colours) {
            lost.append(palette->id().text());
        }
    }
    tellList(ProblemId::PalettesUnused, place, unused);
    tellList(ProblemId::ColoursLost, place, lost);
}

void AssetCheck::tellList(ProblemId id, const NamedPlace& place, const QStringList& names)
{
    if (names.isEmpty()) {
        return;
    }
    QString list = QStringList(names.mid(0, MostNames)).join(QLatin1String(" "));
    if (names.size() > MostNames) {
        list = Text::tr("%1 and %n more", nullptr, names.size() - MostNames).arg(list);
    }
    m_problems.append(problemAt(id, {place.name, list}, place));
}

}  // namespace Family
