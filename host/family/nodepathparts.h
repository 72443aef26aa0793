#pragma once

#include <QString>
#include <QVector>

namespace Family {

/// One part of a path: `name:argument#number`.
struct PathPart
{
    QString name;
    QString argument;
    bool hasArgument = false;
    int number = 1;  ///< from 1, among parts of the same name and argument

    /// Name and argument, as a path has them.
    QString text() const;
};

/// The parts of a path. Empty, with `error`, for one that is not well formed.
QVector<PathPart> splitPath(const QString& path, QString* error);

/// A name as a path has it: in quotes where it is no word.
QString pathName(const QString& name);

}  // namespace Family
