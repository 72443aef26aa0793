#pragma once

#include <QByteArray>
#include <QString>

/// Copies all files below a folder; the copies can be written. False if one could not be.
bool copyFolder(const QString& source, const QString& target);

/// Writes a file in place of the old one, and makes its folder. False if it could not be.
bool writeFile(const QString& path, const QByteArray& bytes = {});

/// The bytes of a file; "(not there)" if it cannot be read.
QByteArray readFile(const QString& path);
