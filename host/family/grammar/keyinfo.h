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
    CommandName,    ///< a name defined by a key of [commands]
    MoveName,       ///< the name of a [move]
    Choice,         ///< one word of a list
    Date,           ///< 2024-05-31
    Count,          ///< at least 0
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
    Any  ///< the rest of the line, for an unknown key
};

/// One key of a group: a row of a table. Texts are static ASCII.
struct KeyInfo
{
    /// `Free`: the row applies to every key.
    enum Flag { NoFlags = 0, Required = 1, Repeatable = 2, Free = 4 };

    QLatin1String name;  ///< empty in a row that is `Free`
    Form form;
    int flags;       ///< of `Flag`
    double minimum;  ///< of each number; no range if not less than `maximum`
    double maximum;
    QLatin1String choices;      ///< the words separated by '|'
    QLatin1String oldChoices;   ///< for example "true=yes|false=no"
    QLatin1String replacement;  ///< the new name of an old key, otherwise empty
    QLatin1String description;  ///< one line

    bool hasRange() const { return minimum < maximum; }
    bool isRequired() const { return flags & Required; }
    bool isRepeatable() const { return flags & Repeatable; }
    bool isFree() const { return flags & Free; }
    bool isDeprecated() const { return replacement.size() > 0; }
    QStringList choiceList() const;

    /// The choice meant by a word: the word itself, or the new word for an old one; empty if it is
    /// no choice.
    QLatin1String choice(const QStringRef& word) const;

    /// What must follow '=', in words: "a whole number from 1 to 9999".
    QString expectation() const;

    /// The description in the program's language.
    QString meaning() const;

    /// The type of the node for such a value.
    Zorv::ValueCode::Type valueType() const;
};

/// A description from the tables in the program's language.
QString translatedDescription(QLatin1String description);

/// The number of elements of a form: 0: any number; 1: the form is not a list.
int elementCount(Form form);

}  // namespace Family
