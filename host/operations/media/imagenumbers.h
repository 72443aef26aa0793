#pragma once

#include "operations/media/assetnames.h"
#include "operations/media/importimage.h"

namespace Family {
class SpriteCollection;
}

namespace Operations {

/// What becomes of an image whose group and number a sprite has already.
enum class WhenTaken {
    Refuse,   ///< it cannot come
    Replace,  ///< it takes the place of the sprite
    NextFree  ///< it gets the next free number
};

/// How images get their groups and numbers.
struct Numbering
{
    /// Where these stand at the end of a name: "{group}" and "{number}" are digits, "*" is any
    /// text, and everything else is itself. "{group}-{number}" also takes what `importTarget()`
    /// does. Without "{group}" that below counts, without "{number}" the next free one. Empty
    /// for no look at names.
    QString pattern = defaultPattern();

    int group = -1;  ///< of what names do not tell; negative for none
    int first = 0;   ///< the number from which that is counted
    WhenTaken whenTaken = WhenTaken::Refuse;

    static QString defaultPattern() { return QStringLiteral("{group}-{number}"); }
};

/// What an image is going to be called.
struct ImageNumber
{
    enum State {
        Fine,
        Counted,   ///< its name does not tell, so it is the next free one
        Moved,     ///< what its name tells is taken, so it is the next free one
        Replaces,  ///< a sprite
        Twin,      ///< shows the same as `other`, and is one sprite with that
        NoNumber,  ///< neither name nor group tells; from here on it cannot come
        Taken,     ///< by a sprite
        Twice,     ///< by the image `other`
        NoRoom     ///< the group is full
    };

    State state = Fine;
    ImportTarget target;
    int other = -1;

    bool isFault() const { return state >= NoNumber; }
};

/// The numbers of images that are about to come into a collection, of each its own. The same images
/// get the same numbers as long as the collection is the same.
QVector<ImageNumber> numberImages(const QVector<ImportImage>& images, const Numbering& numbering,
                                  const Family::SpriteCollection& sprites);

/// What is to be told of one of them: why it cannot come, or what is unlike its name. Empty for
/// nothing.
QString tellNumber(const QVector<ImportImage>& images, const QVector<ImageNumber>& numbers, int i);

/// What is wrong with a pattern; empty if nothing is.
QString patternFault(const QString& pattern);

}  // namespace Operations
