#pragma once

#include "operations/media/assetnames.h"
#include "operations/media/importimage.h"

namespace Family {
class SpriteCollection;
}

namespace Operations {

/// What to do with an image if a sprite has its group and number already.
enum class WhenTaken {
    Refuse,   ///< it is not imported
    Replace,  ///< it replaces the sprite
    NextFree  ///< it gets the next free number
};

/// How images get their groups and numbers.
struct Numbering
{
    /// Matches the end of a name: "{group}" and "{number}" match digits, "*" any text, and
    /// everything else itself. "{group}-{number}" also accepts what `importTarget()` accepts.
    /// Without "{group}" the member `group` is used, without "{number}" the next free number. Empty
    /// to ignore names.
    QString pattern = defaultPattern();

    int group = -1;  ///< used if the name has no group; negative for none
    int first = 0;   ///< the first number to try when counting
    WhenTaken whenTaken = WhenTaken::Refuse;

    static QString defaultPattern() { return QStringLiteral("{group}-{number}"); }
};

/// The identifier chosen for an image.
struct ImageNumber
{
    enum State {
        Fine,
        Counted,   ///< no number in its name: gets the next free one
        Moved,     ///< the number in its name is taken: gets the next free one
        Replaces,  ///< replaces a sprite
        Twin,      ///< the same image as `other`: both become one sprite
        NoNumber,  ///< no group in its name and none given; from here on, states are errors
        Taken,     ///< a sprite has the number
        Twice,     ///< the image `other` has the number
        NoRoom     ///< the group is full
    };

    State state = Fine;
    ImportTarget target;
    int other = -1;

    bool isFault() const { return state >= NoNumber; }
};

/// Chooses a unique identifier for each image to import into a collection. The result is always the
/// same for the same images and collection.
QVector<ImageNumber> numberImages(const QVector<ImportImage>& images, const Numbering& numbering,
                                  const Family::SpriteCollection& sprites);

/// The message for one image: why it cannot be imported, or how its number differs from its name.
/// Empty if there is nothing to report.
QString tellNumber(const QVector<ImportImage>& images, const QVector<ImageNumber>& numbers, int i);

/// What is wrong with a pattern; empty if it is valid.
QString patternFault(const QString& pattern);

}  // namespace Operations
