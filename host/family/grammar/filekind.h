#pragma once

#include <zorv/core/fileid.h>

#include <QString>

namespace Family {

/// What a code file is for; the tag of its document.
enum class FileKind : short { Character = 0, Stage = 1, Code = 2, Animations = 3, Commands = 4 };

/// The kind that a file's suffix stands for; `Code` for an unknown one.
FileKind fileKindOf(const QString& fileName);

/// True for a character or a stage: the main file of a project.
bool isMainFile(FileKind kind);

/// The suffix with its dot, as in ".anim".
QString fileSuffix(FileKind kind);

/// True for a name with the suffix of any kind: a file that can be shown as a text.
bool hasCodeSuffix(const QString& fileName);

/// The word for a kind in messages: "character".
QString fileKindName(FileKind kind);

/// Filters for all main files: "*.character" and "*.stage".
QStringList mainFileFilters();

/// Under what a project registers a file of that kind.
Zorv::FileID::Type fileType(FileKind kind);

/// The kind of the code files that are registered under a type.
FileKind fileKindOfType(Zorv::FileID::Type type);

}  // namespace Family
