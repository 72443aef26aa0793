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

/// What takes the place of a part of a text, by its characters from 0; lines end in one.
struct TextChange
{
    int position;
    int length;
    QString text;
};

/// One way to mend a problem: a value, which says what to do and has done nothing yet.
struct Fix
{
    enum Kind {
        Text,    ///< changes of the code file `path`
        File,    ///< `path` is made
        Sprite,  ///< the sprite file `path` gets a placeholder as `id`
        Sound    ///< the sound file `path` gets silence as `id`
    };

    QString title;  ///< for a menu, as in "Write 'life'"
    Kind kind = Text;
    QString path;          ///< absolute
    bool isPlain = false;  ///< the one obvious mend: nobody need be asked

    QString before;               ///< the whole text that the changes are made for
    QVector<TextChange> changes;  ///< in the order of the text; none overlap
    int cursor = -1;              ///< where the person goes on in the text that comes out

    Family::AssetId id;
    QString palettes;  ///< of a palette file: the sprite file whose colours it begins with
    QString mainFile;  ///< of the project that the problem was found in
};

/// The text that comes out.
QString changed(const QString& text, const QVector<TextChange>& changes);

/// Does the changes of a `Text` as one step of undo. False, with nothing done, if the document says
/// something else by now.
bool applyText(const Fix& fix, Family::FamilyDocument* document);

/// Makes the file of a `File`: of the template of its suffix; a palette gets the colours of the
/// project's first one. False, with `error` for the person, if that fails.
bool makeFile(const Fix& fix, QString* error);

/// Adds what is missing, one step of undo each. False if it is there already.
bool addPlaceholder(Family::AssetId id, Family::SpriteCollection* sprites);
bool addSilence(Family::AssetId id, Family::SoundFile* sounds);

}  // namespace Operations
