#pragma once

#include "family/check/projectcheck.h"

namespace Family {
class FamilyDocument;
class FamilyPalette;
class SpriteCollection;
}  // namespace Family

namespace Operations {

using ProjectsFound = QHash<QString, Family::ProjectFindings>;

/// Items about to be removed from a file.
struct Removal
{
    enum Kind { Sprites, Sounds, Animations };

    Kind kind = Sprites;
    QString path;         ///< absolute path of the file
    QStringList names;    ///< "GROUP,NUMBER", or identifiers of animations
    QStringList staying;  ///< items that stay; one with the same name replaces a removed one

    bool operator==(const Removal& other) const
    {
        return kind == other.kind && path == other.path && names == other.names &&
               staying == other.staying;
    }
};

/// Builds a `Removal` from the rows to remove of a list of sprites or sounds.
template <class List>
Removal removalOf(Removal::Kind kind, const List& list, const QVector<int>& rows)
{
    Removal removal{kind, list.fileName(), {}, {}};
    for (int row = 0; row < list.items().size(); ++row) {
        (rows.contains(row) ? removal.names : removal.staying)
            .append(list.items()[row]->id().text());
    }
    return removal;
}

/// The same for the animations of a document.
Removal removalOf(const Family::FamilyDocument& document, const QVector<int>& rows);

/// The places that name something that would no longer exist. Each place occurs once, ordered by
/// file and line. `NamedPlace::name` is the name written there.
QVector<Family::NamedPlace> usesOf(const Removal& removal, const ProjectsFound& projects);

/// The projects that name a file, searched in the game around it on disk. For callers without a
/// window that knows them already.
ProjectsFound projectsNaming(const QString& path);

/// The sprites that use a palette and the remaps that name it, as text; empty if it is unused.
QStringList usesOfPalette(const Family::SpriteCollection* sprites,
                          const Family::FamilyPalette* palette);

/// At most ten places, a line each such as "FILE, line 12: 200,0", and the number of the others.
QStringList inWords(const QVector<Family::NamedPlace>& places);

}  // namespace Operations
