#pragma once

#include <QStringRef>

namespace Family {

/// Reads a whole number with or without sign; false for anything else. More than 18 digits give the
/// largest number of that sign.
bool toWhole(const QStringRef& text, qint64* value);

/// Reads a finite number; false for anything else.
bool toReal(const QStringRef& text, double* value);

/// Reads one to eight digits after "0x"; false for anything else.
bool toHex(const QStringRef& text, quint32* value);

/// The shortest text that reads back as the same number; without an exponent unless that would be
/// too long.
QString realText(double value);

/// "0xff8040".
QString hexText(quint32 value);

}  // namespace Family
