#pragma once

#include "family/meaning/linename.h"
#include "family/meaning/projectnames.h"

namespace Family {

/// A word of a line that names something which stands elsewhere.
struct Reference
{
    enum Kind : unsigned char { None, File, Named, Sprite, Sound };

    Kind kind = None;
    Form form = Form::Any;  ///< of a `Named` one
    QString name;           ///< the path of a file, or the name
    int group = 0;          ///< of a sprite or sound
    int number = 0;

    /// The columns of the word.
    int start = 0;
    int end = 0;
};

/// The name in a line of a document, from 0, also where something gets it.
LineName nameOfLine(const FamilyDocument* document, int line);

/// What the word at a line and column of a document refers to, from 0. It costs
/// no more than to read the line.
Reference referenceAt(const FamilyDocument* document, int line, int column);

/// Where a reference leads.
struct Definition
{
    QString fileName;   ///< of a file, else empty
    NamePlace place;    ///< otherwise; without a document if there is none
    QString message;    ///< why there is none, for the person
    int soundRow = -1;  ///< of a sound, in `FamilyProject::sounds()`

    bool isEmpty() const { return fileName.isEmpty() && !place.document && soundRow < 0; }
};

/// Looks for what is referred to: a file that is there, the first animation, command
/// or move of the name, the first frame of the project that shows the sprite, other
/// than that of `line`, the first sound of the numbers. Linear in what the project has of the kind.
Definition definitionOf(const Reference& reference, const FamilyDocument* document,
                        const FamilyProject* project, int line);

}  // namespace Family
