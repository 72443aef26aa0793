#pragma once

#include "family/check/projectcheck.h"

namespace Family {
class FamilyPalette;
class SpriteCollection;
}  // namespace Family

namespace Operations {

using ProjectsFound = QHash<QString, Family::ProjectFindings>;

/// What is about to be removed from a file.
struct Removal
{
    enum Kind { Sprites, Sounds, Animations };

    Kind kind;
    QString path;         ///< absolute, of the file
    QStringList names;    ///< "GROUP,NUMBER", or identifiers of animations
    QStringList staying;  ///< those of what stays in the file: it takes the place of its namesakes
};

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
