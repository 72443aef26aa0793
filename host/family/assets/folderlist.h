#pragma once

#include "family/assets/assetid.h"

#include <QPoint>
#include <QStringList>
#include <QVector>

namespace Family {

/// The list "sprites.txt" of a loose folder: what its images cannot hold (see docs/formats.md).
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
        QString file;  ///< an image that has it
    };

    QVector<Image> images;
    QVector<Palette> palettes;
    QVector<QPair<AssetId, AssetId>> remaps;
    QStringList unknown;  ///< lines that make no sense; they stay

    /// Reads the text of a list. Lines that make no sense are told in `problems`.
    static FolderList read(const QString& text, QStringList* problems);

    /// The text, with a line feed at each line end.
    QString text() const;

    /// Its name, and what stands in the place of a file for a sprite without pixels.
    static QString fileName();
    static QString noFile();
};

}  // namespace Family
