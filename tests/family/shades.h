#pragma once

#include <zorv/core/filesystemarchive.h>

#include <QImage>

inline Zorv::Archive& disk()
{
    return *Zorv::FileSystemArchive::instance();
}

/// A small picture of 256 colours, another one for each kind. One of the colours may be
/// transparent.
inline QImage shades(int kind, int transparent = -1)
{
    QImage image(5, 3, QImage::Format_Indexed8);
    QVector<QRgb> table;
    for (int i = 0; i < 256; ++i) {
        table.append(qRgba(i, kind, 0, i == transparent ? 0 : 255));
    }
    image.setColorTable(table);
    for (int i = 0; i < 15; ++i) {
        image.setPixel(i % 5, i / 5, uint(i * (kind + 1)));
    }
    return image;
}
