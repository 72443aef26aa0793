#pragma once

#include "family/check/projectcheck.h"
#include "operations/fixes/fix.h"

#include <functional>

namespace Operations {

/// The data that fixes are derived from.
struct FixSource
{
    QString folder;                                      ///< file names in problems are relative to
                                                         ///< it
    QHash<QString, Family::ProjectFindings> projects;    ///< by main file
    std::function<QString(const QString& path)> textOf;  ///< of a code file, lines end in '\n'
};

/// The possible fixes for a problem, most likely first. Most problems have none or one. A problem
/// has none if the grammar does not say what is right.
QVector<Fix> fixesOf(const Family::Problem& problem, const FixSource& source);

/// A file after its plain problems were fixed.
struct MendedText
{
    QString path;  ///< absolute
    QString before;
    QString after;
};

/// Fixes all plain problems of a game, a project or a code file, until none is left. Writes no
/// files. `error` is the one of `Family::checkGame()`.
QVector<MendedText> mendPlain(const QString& path, QString* error);

}  // namespace Operations
