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
    int number = 1;  ///< counts from 1, among parts with equal name and argument

    /// Name and argument as written in a path.
    QString text() const;
};

/// Splits a path. Empty, with `error`, if it is malformed.
QVector<PathPart> splitPath(const QString& path, QString* error);

/// A name as written in a path: quoted unless it is a word.
QString pathName(const QString& name);

}  // namespace Family
