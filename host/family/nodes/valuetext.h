#pragma once

#include <QStringList>
#include <QVariant>

namespace Family {

struct KeyInfo;

/// True if the text can be quoted: it has no control characters except line feeds and tabs.
bool canQuote(const QString& text);

/// The text in quotes, with escapes.
QString quotedText(const QString& text);

/// `value` in the form that a node of this key stores; invalid if the key does not accept it.
QVariant normalized(const KeyInfo& key, const QVariant& value);

/// The numbers in a value of any type: the coordinates of a point or rectangle, or a number itself.
QVariantList numbersOf(const QVariant& value);

/// The elements of a normalized value as written in code.
QStringList elementTexts(const KeyInfo& key, const QVariant& value);

/// The value for a text that a user types: like code, but without quotes and escapes. Invalid, with
/// `error`, if it does not fit.
QVariant valueFromText(const KeyInfo& key, const QString& text, QString* error);

/// The reverse: the text shown to the user.
QString textFromValue(const KeyInfo& key, const QVariant& value);

}  // namespace Family
