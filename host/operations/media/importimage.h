#pragma once

#include "family/import/sheet.h"

#include <QImage>
#include <QStringList>
#include <QVector>

namespace Family {
struct SheetCut;
}

namespace Operations {

/// An image that is to become a sprite: a file, or a place on a sheet.
struct ImportImage
{
    QString name;  ///< of the file, or of the frame; its group and number can be read of it
    QString file;  ///< the image or the sheet; for messages
    QImage sheet;  ///< all of it, shared by its frames; null for a file of its own
    Family::SheetFrame frame;

    bool isOfSheet() const { return !sheet.isNull(); }
};

/// The pixels of such an image, and what goes with them.
struct ImportPixels
{
    QImage image;   ///< null, without an error, for a frame without pixels
    QPoint corner;  ///< what was cut off in front of it, of `original`
    QSize original;
    QPoint axis;           ///< as the file tells it: a pixel of `original`
    bool hasAxis = false;  ///< false if it does not
    QString error;
};

/// Reads the pixels, and with `crops` cuts off what does not show. Re-entrant.
ImportPixels readPixels(const ImportImage& image, bool crops);

/// True if both are the same place of the same sheet: one sprite stands for both.
bool isSameImage(const ImportImage& a, const ImportImage& b);

/// Whole files, each an image.
QVector<ImportImage> imagesOfFiles(const QStringList& files);

/// The image files of a folder, not of those below it, numbers in names by their value.
QStringList imageFilesIn(const QString& folder);

/// True for the suffix of images that can be read.
bool isImageFile(const QString& file);

/// A sheet that was read: its images in the order of the file, those that are lost left out.
struct SheetImages
{
    QVector<ImportImage> images;
    QVector<Family::SheetTag> tags;  ///< of frames by their number in the file
    QStringList warnings;
    QString error;  ///< why there are none; empty if there are
};

/// Reads the JSON of a sheet, with the files that it names beside it, and its pictures, which stand
/// in the same folder. Re-entrant.
SheetImages readSheetFile(const QString& jsonFile);

/// Cuts a picture that was read from a file. Its images are called as the file with a number from 0
/// on. Re-entrant.
SheetImages cutPicture(const QString& file, const QImage& picture, const Family::SheetCut& cut);

/// The JSON that lies beside a picture under its name; empty if there is none.
QString sheetFileBeside(const QString& imageFile);

}  // namespace Operations
