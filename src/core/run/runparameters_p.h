#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Zorv {

/// The numbers of the marks "%N" of a parameter string, N with one or two digits,
/// each once, in the order of their first place.
QVector<unsigned> runMarks(const QString& parameters);

/// The arguments that a parameter string stands for: its parts between blanks, empty
/// ones too, in which the marks of `texts` are replaced. Whatever a text
/// holds, it stays in its argument, and no mark is looked for in it. Other marks stay.
QStringList runArguments(const QString& parameters, const QMap<unsigned, QString>& texts);

}  // namespace Zorv
