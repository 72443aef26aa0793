#pragma once

#include "family/check/projectcheck.h"
#include "operations/fixes/fix.h"

#include <functional>

namespace Operations {

/// What fixes are made of.
struct FixSource
{
    QString folder;                                      ///< names in problems are relative to it
    QHash<QString, Family::ProjectFindings> projects;    ///< by main file
    std::function<QString(const QString& path)> textOf;  ///< of a code file, lines end in '\n'
};

/// The ways to mend a problem, the most likely first. Most problems have none or one; of those that
/// the grammar has no answer to, none.
QVector<Fix> fixesOf(const Family::Problem& problem, const FixSource& source);

/// A file whose plain problems are mended.
struct MendedText
{
    QString path;  ///< absolute
    QString before;
    QString after;
};

/// Mends what is plain in a game, a project or a code file, until nothing is left of it. Writes
/// nothing. `error` as of `Family::checkGame()`.
QVector<MendedText> mendPlain(const QString& path, QString* error);

}  // namespace Operations
