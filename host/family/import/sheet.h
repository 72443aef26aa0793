#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class QImage;

namespace Family {

/// One picture on a sheet.
struct SheetFrame
{
    QString name;   ///< without folder and suffix; empty in a grid
    int page = 0;   ///< index in `Sheet::pages`
    QRect rect;     ///< position on the page; empty if it has no pixels
    QPoint offset;  ///< of `rect` in the original, whose empty edges were trimmed
    QSize original;
    QPoint axis;            ///< a pixel of the original
    bool hasAxis = false;   ///< if false, the axis is unknown
    bool isTurned = false;  ///< by 90 degrees clockwise: `rect` is as high as the picture is wide
    bool isLost = false;    ///< outside of the sheet: keeps its index, is not imported
    int milliseconds = 0;   ///< 0 if unknown
};

/// A run of frames.
struct SheetTag
{
    enum Direction { Forward, Reverse, PingPong, PingPongReverse };

    QString name;
    int first = 0;  ///< index in `Sheet::frames`; both ends included
    int last = 0;
    Direction direction = Forward;
    int repeat = 0;  ///< 0: endless
};

/// Frames in a custom order.
struct SheetAnimation
{
    QString name;
    QVector<int> frames;
};

/// The layout of a sheet: where each frame is on its pictures.
struct Sheet
{
    /// Limits: number of frames; width and height of a page and of an original, in pixels.
    static constexpr int MaxFrames = 65536;
    static constexpr int MaxSide = 16384;

    QStringList pages;           ///< names of its pictures; empty if unknown
    QVector<SheetFrame> frames;  ///< in the order of the file
    QVector<SheetTag> tags;
    QVector<SheetAnimation> animations;
    QStringList others;    ///< other files of the same set
    QStringList warnings;  ///< one line each, for the user
};

/// True if both show the same pixels at the same place.
bool isSamePicture(const SheetFrame& a, const SheetFrame& b);

/// The picture of a frame, upright, in the format of its page; null if it has no pixels.
/// Re-entrant.
QImage pictureOf(const QImage& page, const SheetFrame& frame);

/// Marks frames outside of their pages as lost and adds a warning.
void loseOutsiders(Sheet* sheet, const QVector<QSize>& pages);

}  // namespace Family
