#pragma once

#include "family/familydocument.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <memory>

/// The folder of a sample game.
inline QString gameFolder(const QString& game)
{
    return QStringLiteral(SAMPLES "/") + game;
}

/// The code files below a folder, relative to it and in order.
inline QStringList codeFiles(const QString& folder)
{
    QStringList files;
    QDirIterator it(folder, {"*.character", "*.stage", "*.code", "*.anim", "*.commands"},
                    QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files += QDir(folder).relativeFilePath(it.next());
    }
    files.sort();
    return files;
}

inline QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline std::unique_ptr<Family::FamilyDocument> openSample(const QString& fileName)
{
    QString error;
    std::unique_ptr<Family::FamilyDocument> document(
        Family::FamilyDocument::open(fileName, &error));
    if (!document) {
        qWarning("%s: %s", qPrintable(fileName), qPrintable(error));
    }
    return document;
}
