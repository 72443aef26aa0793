#pragma once

#include <zorv/core/fileid.h>

#include <QString>

namespace Family {

/// What a code file contains; used as the tag of its document.
enum class FileKind : short { Character = 0, Stage = 1, Code = 2, Animations = 3, Commands = 4 };

/// The kind for a file's suffix; `Code` for an unknown suffix.
FileKind fileKindOf(const QString& fileName);

/// True for a character or a stage: the main file of a project.
bool isMainFile(FileKind kind);

/// The suffix with its dot, for example ".anim".
QString fileSuffix(FileKind kind);

/// True if the name has the suffix of any kind: the file can be shown as text.
bool hasCodeSuffix(const QString& fileName);

/// The name of a kind in messages, for example "character".
QString fileKindName(FileKind kind);

/// Name filters for all main files: "*.character" and "*.stage".
QStringList mainFileFilters();

/// The type under which a project registers files of this kind.
Zorv::FileID::Type fileType(FileKind kind);

/// The kind of code files registered under this type.
FileKind fileKindOfType(Zorv::FileID::Type type);

}  // namespace Family
