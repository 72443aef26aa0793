#pragma once

#include "family/check/projectcheck.h"

namespace Family {
class FamilyDocument;
class FamilyPalette;
class SpriteCollection;
}  // namespace Family

namespace Operations {

using ProjectsFound = QHash<QString, Family::ProjectFindings>;

/// What is about to be removed from a file.
struct Removal
{
    enum Kind { Sprites, Sounds, Animations };

    Kind kind = Sprites;
    QString path;         ///< absolute, of the file
    QStringList names;    ///< "GROUP,NUMBER", or identifiers of animations
    QStringList staying;  ///< those of what stays in the file: it takes the place of its namesakes

    bool operator==(const Removal& other) const
    {
        return kind == other.kind && path == other.path && names == other.names &&
               staying == other.staying;
    }
};

/// Of the rows of a list of sprites or sounds, those to be removed.
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

/// Likewise of the animations of a document.
Removal removalOf(const Family::FamilyDocument& document, const QVector<int>& rows);

/// The places that name what would not be there any more, each once, in the order of files and
/// lines. `NamedPlace::name` is the name that stands there.
QVector<Family::NamedPlace> usesOf(const Removal& removal, const ProjectsFound& projects);

/// The projects of the game around a file that name it, as they lie on the disk: for those who
/// have no window that knows them.
ProjectsFound projectsNaming(const QString& path);

/// The sprites that have a palette and the remaps that name it, in words; empty if it is not used.
QStringList usesOfPalette(const Family::SpriteCollection* sprites,
                          const Family::FamilyPalette* palette);

/// A line for each place, "FILE, line 12: 200,0", of at most ten, and how many there are beside.
QStringList inWords(const QVector<Family::NamedPlace>& places);

}  // namespace Operations
