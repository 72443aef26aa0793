#include "operations/create/placeholders.h"

#include "family/assets/spritefile.h"
#include "family/check/filefacts.h"
#include "operations/create/mannequin.h"
#include "operations/create/room.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QDir>
#include <QFileInfo>
#include <QMap>

namespace Operations {

using Family::AssetId;
using Family::FileFacts;

namespace {

bool readFacts(const QString& fileName, FileFacts* facts, QString* error)
{
    Zorv::FileText text;
    if (!text.read(*Zorv::FileSystemArchive::instance(), fileName, -1, error)) {
        return false;
    }
    *facts = Family::factsOf({text, Family::fileKindOf(fileName)}, fileName);
    return true;
}

bool writeSprites(const QString& fileName, const QMap<quint32, AssetId>& shown, bool isStage,
                  QString* error)
{
    Family::SpriteFile sprites;
    for (const AssetId id : shown) {
        const PlacedDrawing drawing = isStage ? drawRoom(id) : drawMannequin(id);
        sprites.insertSprite(int(sprites.count()) - 1, id, drawing.axis, drawing.image);
    }
    // All placeholders share one palette. Its identifier lets later images share it too.
    if (sprites.palettes()->count() > 0) {
        sprites.palettes()->palette(0)->setProperty(QStringLiteral("Identifier"),
                                                    QStringLiteral("0,0"));
    }
    const bool isWritten = sprites.toFile(*Zorv::FileSystemArchive::instance(), fileName, true);
    *error = isWritten ? QString() : sprites.errorString();
    return isWritten;
}

}  // namespace

bool drawPlaceholders(const QString& mainFile, QString* error)
{
    FileFacts facts;
    if (!readFacts(mainFile, &facts, error)) {
        return false;
    }
    const QDir folder = QFileInfo(mainFile).absoluteDir();
    QString missing;
    QMap<quint32, AssetId> shown;
    const auto note = [&shown](const FileFacts& of) {
        for (const Family::AssetUse& use : of.sprites) {
            shown.insert(use.id.key(), use.id);
        }
    };
    note(facts);
    for (const Family::FileReference& reference : qAsConst(facts.files)) {
        const QString path = QDir::cleanPath(folder.filePath(reference.path));
        FileFacts named;
        if (reference.type == Zorv::FileID::Sprites) {
            missing = missing.isEmpty() && !QFileInfo::exists(path) ? path : missing;
        } else if (Family::isCodeFile(reference.type) && QFileInfo(path).isFile()) {
            if (!readFacts(path, &named, error)) {
                return false;
            }
            note(named);
        }
    }
    return missing.isEmpty() ||
           writeSprites(missing, shown, Family::fileKindOf(mainFile) == Family::FileKind::Stage,
                        error);
}

}  // namespace Operations
