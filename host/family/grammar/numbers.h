#pragma once

#include <QStringRef>

namespace Family {

/// The whole number that a text is, with a sign or not; false for anything
/// else. One that is too big for 18 digits gives the largest of its sign.
bool toWhole(const QStringRef& text, qint64* value);

/// The finite number that a text is; false for anything else.
bool toReal(const QStringRef& text, double* value);

/// The number behind "0x", of one to eight digits; false for anything else.
bool toHex(const QStringRef& text, quint32* value);

/// The shortest text that reads back as the number, without an exponent where
/// that is not too long.
QString realText(double value);

/// "0xff8040".
QString hexText(quint32 value);

}  // namespace Family
