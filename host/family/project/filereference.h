#pragma once

#include <zorv/core/fileid.h>

#include <QStringList>
#include <QVector>

namespace Zorv {
class CodeDocument;
}

namespace Family {

class FamilyDocument;

/// A file named by a main document, in `[files]` or elsewhere.
struct FileReference
{
    Zorv::FileID::Type type;  ///< `Resource`: never loaded
    QString path;             ///< as written, relative to the project's folder
    int line;                 ///< block number of the value
    int column;               ///< of the path, from 0
    int length;
};

/// The kind of file that a project only names (a palette file, music).
constexpr auto ResourceFile = Zorv::FileID::Type(64);

/// True for a kind that is loaded as a document.
bool isCodeFile(Zorv::FileID::Type type);

/// True for a kind that is loaded as a collection: sprites and sounds.
bool isAssetFile(Zorv::FileID::Type type);

/// The files at the path of a reference: the file itself, or all files of a sprite folder.
QStringList filesBehind(Zorv::FileID::Type type, const QString& path);

/// The type of file that a key in a group names, if any.
Zorv::FileID::Type namedFileType(const QString& group, const QString& key);

/// All files that a document names, in the order of the text.
QVector<FileReference> fileReferences(const FamilyDocument* document);

/// Why a path cannot be used, or `Fine`.
enum class PathFault { Fine, Empty, LeavesGame, NamesItself };

/// Checks a path that the file `mainFile` names. `gameFolder` is the root of the game.
PathFault pathFault(const QString& gameFolder, const QString& mainFile, const QString& path);

/// True if a file written to `path` ends up inside the game folder, with all links followed.
bool staysInside(const QString& gameFolder, const QString& path);

}  // namespace Family
