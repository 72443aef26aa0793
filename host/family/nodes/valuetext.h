#pragma once

#include <QStringList>
#include <QVariant>

namespace Family {

struct KeyInfo;

/// True for a text that can stand in quotes: no control character but line
/// feeds and tabs.
bool canQuote(const QString& text);

/// The text in quotes, with escapes.
QString quotedText(const QString& text);

/// `value` in the form that a node of that key stores; invalid for one that
/// the key does not take.
QVariant normalized(const KeyInfo& key, const QVariant& value);

/// The numbers of a value, whichever type it has: a point or an area as what it is made of, a
/// number by itself.
QVariantList numbersOf(const QVariant& value);

/// The parts of a normalized value as the code writes them.
QStringList elementTexts(const KeyInfo& key, const QVariant& value);

/// The value that a person's text means, which is the text of the code but
/// without quotes and escapes. Invalid, with `error`, if it does not fit.
QVariant valueFromText(const KeyInfo& key, const QString& text, QString* error);

/// The reverse: what the person is shown.
QString textFromValue(const KeyInfo& key, const QVariant& value);

}  // namespace Family
