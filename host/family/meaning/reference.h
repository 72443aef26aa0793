#pragma once

#include "family/meaning/linename.h"
#include "family/meaning/projectnames.h"

namespace Family {

/// A word in a line that refers to something elsewhere.
struct Reference
{
    enum Kind : unsigned char { None, File, Named, Sprite, Sound };

    Kind kind = None;
    Form form = Form::Any;  ///< if `Named`
    QString name;           ///< the path of a file, or the name
    int group = 0;          ///< of a sprite or sound
    int number = 0;

    /// The columns of the word.
    int start = 0;
    int end = 0;
};

/// The name in a line of a document (from 0), definitions included.
LineName nameOfLine(const FamilyDocument* document, int line);

/// What the word at a line and column of a document (from 0) refers to. Costs no more than reading
/// the line.
Reference referenceAt(const FamilyDocument* document, int line, int column);

/// The target of a reference.
struct Definition
{
    QString fileName;   ///< of a file, otherwise empty
    NamePlace place;    ///< for anything but a file; without a document if not found
    QString message;    ///< why nothing was found, for the user
    int soundRow = -1;  ///< of a sound, in `FamilyProject::sounds()`

    bool isEmpty() const { return fileName.isEmpty() && !place.document && soundRow < 0; }
};

/// Looks up the target: an existing file; the first animation, command or move with the name; the
/// first frame of the project that uses the sprite, other than that on `line`; or the first sound
/// with the numbers. Linear in the number of such things in the project.
Definition definitionOf(const Reference& reference, const FamilyDocument* document,
                        const FamilyProject* project, int line);

}  // namespace Family
