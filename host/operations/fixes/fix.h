#pragma once

#include "family/assets/assetid.h"

#include <QString>
#include <QVector>

namespace Family {
class FamilyDocument;
class SoundFile;
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// A replacement of a part of a text. Positions count characters from 0; a line end is one
/// character.
struct TextChange
{
    int position;
    int length;
    QString text;
};

/// A possible fix for a problem. A value: it describes the change, and creating it changes nothing.
struct Fix
{
    enum Kind {
        Text,    ///< changes the code file `path`
        File,    ///< creates the file `path`
        Sprite,  ///< adds a placeholder sprite `id` to the sprite file `path`
        Sound    ///< adds silence as sound `id` to the sound file `path`
    };

    QString title;  ///< for a menu, such as "Write 'life'"
    Kind kind = Text;
    QString path;          ///< absolute
    bool isPlain = false;  ///< the only obvious fix: no need to ask the user

    QString before;               ///< the whole text that the changes apply to
    QVector<TextChange> changes;  ///< in text order, without overlaps
    int cursor = -1;              ///< where to put the cursor in the new text

    Family::AssetId id;
    QString palettes;  ///< for a palette file: the sprite file to take the colours from
    QString mainFile;  ///< of the project in which the problem was found
};

/// Returns the text with the changes applied.
QString changed(const QString& text, const QVector<TextChange>& changes);

/// Applies a `Text` fix as one undo step. Returns false and changes nothing if the document has
/// changed since.
bool applyText(const Fix& fix, Family::FamilyDocument* document);

/// Creates the file of a `File` fix from the template of its suffix. A palette gets the colours of
/// the project's first palette. False, with `error` for the user, if that fails.
bool makeFile(const Fix& fix, QString* error);

/// Adds the missing item, one undo step each. False if it exists already.
bool addPlaceholder(Family::AssetId id, Family::SpriteCollection* sprites);
bool addSilence(Family::AssetId id, Family::SoundFile* sounds);

}  // namespace Operations
