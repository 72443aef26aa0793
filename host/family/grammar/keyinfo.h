#pragma once

#include <zorv/code/codedoc/valuecode.h>

#include <QLatin1String>
#include <QStringList>

namespace Family {

/// How a value is written.
enum class Form : unsigned char {
    Text,           ///< in quotes
    MotionText,     ///< in quotes, as `readMotion()` takes it
    Path,           ///< in quotes, a file
    Name,           ///< a word or number without quotes
    AnimationName,  ///< the identifier of an animation
    CommandName,    ///< a name that a key of [commands] has
    MoveName,       ///< the name of a [move]
    Choice,         ///< one word of a list
    Date,           ///< 2024-05-31
    Count,          ///< not below 0
    Percent,        ///< 80%
    Colour,         ///< 0xff8040
    Colours,
    Real,
    RealPoint,
    RealPair,
    RealTriple,
    Reals,
    Int,
    Point,
    Pair,
    Quad,
    Ints,
    Any  ///< whatever the line has, of an unknown key
};

/// One key of a group: a row of a table. Texts are ASCII and static.
struct KeyInfo
{
    /// `Free` marks the row that stands for every key.
    enum Flag { NoFlags = 0, Required = 1, Repeatable = 2, Free = 4 };

    QLatin1String name;  ///< empty in a row that is `Free`
    Form form;
    int flags;       ///< of `Flag`
    double minimum;  ///< of each number; no range if not below `maximum`
    double maximum;
    QLatin1String choices;      ///< the words with '|' between
    QLatin1String oldChoices;   ///< as in "true=yes|false=no"
    QLatin1String replacement;  ///< the new name of an old key, else empty
    QLatin1String description;  ///< one line

    bool hasRange() const { return minimum < maximum; }
    bool isRequired() const { return flags & Required; }
    bool isRepeatable() const { return flags & Repeatable; }
    bool isFree() const { return flags & Free; }
    bool isDeprecated() const { return replacement.size() > 0; }
    QStringList choiceList() const;

    /// The word that a text stands for: itself, or the new one of an old word;
    /// empty if it is none of the choices.
    QLatin1String choice(const QStringRef& word) const;

    /// What stands behind '=', in words: "a whole number from 1 to 9999".
    QString expectation() const;

    /// The description in the language of the program.
    QString meaning() const;

    /// The type of the node of such a value.
    Zorv::ValueCode::Type valueType() const;
};

/// A description of the tables in the language of the program.
QString translatedDescription(QLatin1String description);

/// How many parts a form takes: 0 for any number, 1 for a form without list.
int elementCount(Form form);

}  // namespace Family
