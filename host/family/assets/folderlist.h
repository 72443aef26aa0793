#pragma once

#include "family/assets/assetid.h"

#include <QPoint>
#include <QStringList>
#include <QVector>

namespace Family {

/// The list "sprites.txt" of a loose folder: everything that its images cannot store (see
/// docs/formats.md).
struct FolderList
{
    struct Image
    {
        QString file;
        AssetId id;
        QPoint axis;
    };
    struct Palette
    {
        AssetId id;
        QString file;  ///< one image that contains it
    };

    QVector<Image> images;
    QVector<Palette> palettes;
    QVector<QPair<AssetId, AssetId>> remaps;
    QStringList unknown;  ///< malformed lines; they are kept

    /// Parses a list. Malformed lines are reported in `problems`.
    static FolderList read(const QString& text, QStringList* problems);

    /// The text; every line ends in a line feed.
    QString text() const;

    /// The name of the list file, and the entry that replaces the file name for a sprite without
    /// pixels.
    static QString fileName();
    static QString noFile();
};

}  // namespace Family
