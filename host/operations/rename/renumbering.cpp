#include "operations/rename/renumbering_p.h"

#include "family/assets/newsprites.h"
#include "family/assets/remapmodel.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/check/assetfacts.h"

#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <memory>

namespace Operations {

using Family::AssetId;
using Family::NameKind;

namespace {

const QString identifier = QStringLiteral("Identifier");

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Rename)
};

struct Release
{
    void operator()(Zorv::ProjectFile* file) const { file->release(); }
};

/// Renames all items with this identifier, because users of the first one would otherwise find the
/// next. False if one is broken, because a broken record cannot be changed.
template <class Items>
bool rename(const Items& items, AssetId from, AssetId to)
{
    bool isDone = true;
    for (const auto& item : items) {
        if (item->id() == from) {
            item->setProperty(identifier, to.text());
            isDone &= item->id() == to;
        }
    }
    return isDone;
}

QString brokenText(const ChangeSet::Asset& asset)
{
    return Text::tr("%1: %2 is broken and keeps its number. Remove or replace it first.")
        .arg(QDir::toNativeSeparators(asset.path), asset.from.text());
}

/// Updates the remaps that refer to a palette.
void redirect(Family::RemapModel* remaps, AssetId from, AssetId to)
{
    for (int i = 0; i < remaps->rowCount() * Family::RemapModel::ColumnCount; ++i) {
        const QModelIndex cell =
            remaps->index(i / Family::RemapModel::ColumnCount, i % Family::RemapModel::ColumnCount);
        if (cell.data().toString() == from.text()) {
            remaps->setData(cell, to.text());
        }
    }
}

bool renumberSprites(const ChangeSet::Asset& asset, Zorv::Archive* archive, QString* error)
{
    const std::unique_ptr<Family::SpriteCollection, Release> sprites(
        Family::openSprites(asset.path, error));
    if (!sprites) {
        return false;
    }
    const bool isSprite = asset.kind == NameKind::Sprite;
    if (!(isSprite ? rename(sprites->items(), asset.from, asset.to)
                   : rename(sprites->palettes()->items(), asset.from, asset.to))) {
        *error = brokenText(asset);
        return false;
    }
    if (!isSprite) {
        redirect(sprites->palettes()->remaps(), asset.from, asset.to);
    }
    const bool isWritten = sprites->toFile(*archive, asset.path, true);
    *error = sprites->errorString();
    return isWritten;
}

bool renumberSounds(const ChangeSet::Asset& asset, Zorv::Archive* archive, QString* error)
{
    Family::SoundFile sounds;
    const bool isRead = sounds.fromFile(*Zorv::FileSystemArchive::instance(), asset.path, false);
    if (isRead && !rename(sounds.items(), asset.from, asset.to)) {
        *error = brokenText(asset);
        return false;
    }
    const bool isDone = isRead && sounds.toFile(*archive, asset.path, true);
    *error = sounds.errorString();
    return isDone;
}

}  // namespace

bool readIds(const QString& path, NameKind kind, QVector<AssetId>* ids)
{
    if (kind == NameKind::Palette) {
        QFile file(path);
        QString error;
        Family::SpriteFileData data;
        const bool isRead = file.open(QIODevice::ReadOnly) && data.read(&file, &error);
        for (const Family::SpriteFileData::Palette& palette : qAsConst(data.palettes)) {
            ids->append(palette.id);
        }
        return isRead;
    }
    const Family::AssetFacts facts = Family::assetFacts(
        kind == NameKind::Sprite ? Zorv::FileID::Sprites : Zorv::FileID::Sounds, path);
    *ids = facts.ids;
    return facts.isReadable;
}

bool renumber(const ChangeSet::Asset& asset, Zorv::Archive* archive, QString* error)
{
    return asset.kind == NameKind::Sound ? renumberSounds(asset, archive, error)
                                         : renumberSprites(asset, archive, error);
}

}  // namespace Operations
