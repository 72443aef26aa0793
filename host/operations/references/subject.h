#pragma once

#include "family/meaning/linename.h"

namespace Operations {

/// The thing that a name refers to.
struct Subject
{
    Family::NameKind kind = Family::NameKind::None;
    QString mainFile;    ///< absolute, of a project that uses this name for it
    QString name;        ///< for files the absolute path; empty for sprites and sounds
    Family::AssetId id;  ///< for sprites and sounds

    bool isNone() const { return kind == Family::NameKind::None; }

    /// The subject that a name in a line of a project refers to.
    static Subject of(const QString& mainFile, const Family::LineName& name);

    /// Parses a text of the user: "200", "200,0", or a file path as written in the project. None,
    /// with `error`, if it is not a valid name of this kind.
    static Subject fromText(const QString& mainFile, Family::NameKind kind, const QString& text,
                            QString* error);

    /// The name as shown to the user, in the form that `fromText()` accepts.
    QString shown() const;

    /// True if a name in a line refers to the subject. Not for files: their paths are relative to a
    /// different folder in each project.
    bool isNamedBy(const Family::LineName& other) const;
};

/// Why a text is not a valid name of this kind; empty if it is.
QString nameFault(Family::NameKind kind, const QString& text);

/// A message that the name is unknown.
QString unknownSubject(const Subject& subject);

/// The file that a path in the lines of a project refers to.
QString fileNamed(const QString& mainFile, const QString& path);

}  // namespace Operations
