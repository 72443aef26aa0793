#pragma once

#include <zorv/core/fileid.h>

#include <QStringList>
#include <QVector>

namespace Zorv {
class CodeDocument;
}

namespace Family {

class FamilyDocument;

/// A file that a main document names in `[files]` or elsewhere.
struct FileReference
{
    Zorv::FileID::Type type;  ///< `Resource` for what is never loaded
    QString path;             ///< as it is written, relative to the project's folder
    int line;                 ///< block number of the value
    int column;               ///< of the path in it, from 0
    int length;
};

/// The kind of a file that a project only names (a palette file, music).
constexpr auto ResourceFile = Zorv::FileID::Type(64);

/// True for a kind that is loaded as a document.
bool isCodeFile(Zorv::FileID::Type type);

/// True for a kind that is loaded as a collection: sprites and sounds.
bool isAssetFile(Zorv::FileID::Type type);

/// The files behind the path of a reference: itself, or all files of a folder of sprites.
QStringList filesBehind(Zorv::FileID::Type type, const QString& path);

/// What a key of a group names, if it names a file.
Zorv::FileID::Type namedFileType(const QString& group, const QString& key);

/// Every file that a document names, in the order of the text.
QVector<FileReference> fileReferences(const FamilyDocument* document);

/// Why a path cannot be used, or `Fine`.
enum class PathFault { Fine, Empty, LeavesGame, NamesItself };

/// Looks at the path that the file `mainFile` names. `gameFolder` is the root of the game.
PathFault pathFault(const QString& gameFolder, const QString& mainFile, const QString& path);

/// True if what is written to `path` comes to lie in the game folder, with all links followed.
bool staysInside(const QString& gameFolder, const QString& path);

}  // namespace Family
