#pragma once

#include "family/import/sheet.h"

#include <QImage>
#include <QStringList>
#include <QVector>

namespace Family {
struct SheetCut;
}

namespace Operations {

/// An image to import as a sprite: a file, or a part of a sheet.
struct ImportImage
{
    QString name;  ///< of the file or the frame; group and number are parsed from it
    QString file;  ///< the image or the sheet; for messages
    QImage sheet;  ///< the whole sheet, shared by its frames; null for an image with its own file
    Family::SheetFrame frame;

    bool isOfSheet() const { return !sheet.isNull(); }
};

/// The pixels of such an image, and related data.
struct ImportPixels
{
    QImage image;   ///< null without an error for a frame without pixels
    QPoint corner;  ///< how much was cropped on the left and top of `original`
    QSize original;
    QPoint axis;           ///< from the file: a pixel of `original`
    bool hasAxis = false;  ///< false if the file has none
    QString error;
};

/// Reads the pixels; with `crops` the invisible border is cropped. Re-entrant.
ImportPixels readPixels(const ImportImage& image, bool crops);

/// True if both are the same part of the same sheet. They become one sprite.
bool isSameImage(const ImportImage& a, const ImportImage& b);

/// One image for each file.
QVector<ImportImage> imagesOfFiles(const QStringList& files);

/// The image files of a folder, without sub-folders, sorted with numbers by value.
QStringList imageFilesIn(const QString& folder);

/// True if the suffix belongs to a readable image format.
bool isImageFile(const QString& file);

/// The images of a sheet in file order, without the broken ones.
struct SheetImages
{
    QVector<ImportImage> images;
    QVector<Family::SheetTag> tags;  ///< their frames are counted as in the file
    QStringList warnings;
    QString error;  ///< why there are no images; empty on success
};

/// Reads the JSON of a sheet, the files beside it that it names, and its pictures from the same
/// folder. Re-entrant.
SheetImages readSheetFile(const QString& jsonFile);

/// Cuts a picture that was read from a file. The images are named after the file, with numbers from
/// 0. Re-entrant.
SheetImages cutPicture(const QString& file, const QImage& picture, const Family::SheetCut& cut);

/// The JSON file of the same name beside a picture; empty if there is none.
QString sheetFileBeside(const QString& imageFile);

}  // namespace Operations
