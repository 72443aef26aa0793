#pragma once

#include "family/meaning/linename.h"

namespace Operations {

/// The thing that names stand for.
struct Subject
{
    Family::NameKind kind = Family::NameKind::None;
    QString mainFile;    ///< absolute, of a project that knows it by this name
    QString name;        ///< of a file its absolute path; of sprites and sounds empty
    Family::AssetId id;  ///< of sprites and sounds

    bool isNone() const { return kind == Family::NameKind::None; }

    /// What a name in a line of a project stands for.
    static Subject of(const QString& mainFile, const Family::LineName& name);

    /// The subject of a text of the person: "200", "200,0", or the path of a file as the lines of
    /// the project have it. None, with `error`, if it is no name of the kind.
    static Subject fromText(const QString& mainFile, Family::NameKind kind, const QString& text,
                            QString* error);

    /// What the person calls it, as `fromText()` takes it.
    QString shown() const;

    /// True if the name in a line is that of the subject. Not for files, whose paths begin
    /// elsewhere for each project.
    bool isNamedBy(const Family::LineName& other) const;
};

/// Why a text can be no name of a kind; empty if it can.
QString nameFault(Family::NameKind kind, const QString& text);

/// That nothing of that name is known, in words.
QString unknownSubject(const Subject& subject);

/// The file that a path in the lines of a project means.
QString fileNamed(const QString& mainFile, const QString& path);

}  // namespace Operations
