#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Zorv {

/// The numbers of the placeholders "%N" in a parameter string, N with one or two digits. Each
/// number appears once, in order of first use.
QVector<unsigned> runMarks(const QString& parameters);

/// Splits a parameter string at blanks, keeping empty parts, and replaces the placeholders with
/// `texts`. A replacement always stays within its argument, even if it contains blanks, and is not
/// searched for placeholders. Unknown placeholders stay.
QStringList runArguments(const QString& parameters, const QMap<unsigned, QString>& texts);

}  // namespace Zorv
