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
    int page = 0;   ///< of `Sheet::pages`
    QRect rect;     ///< where it lies; empty for one without pixels
    QPoint offset;  ///< of what lies there, in the original, whose empty edges were cut off
    QSize original;
    QPoint axis;            ///< a pixel of the original
    bool hasAxis = false;   ///< without it nothing is told of the axis
    bool isTurned = false;  ///< by 90 degrees clockwise: `rect` is as high as the picture is wide
    bool isLost = false;    ///< outside of the sheet: it counts, and is left out
    int milliseconds = 0;   ///< 0 if nothing is told
};

/// A run of frames.
struct SheetTag
{
    enum Direction { Forward, Reverse, PingPong, PingPongReverse };

    QString name;
    int first = 0;  ///< of `Sheet::frames`; both belong to it
    int last = 0;
    Direction direction = Forward;
    int repeat = 0;  ///< 0 for without end
};

/// Frames in an order of their own.
struct SheetAnimation
{
    QString name;
    QVector<int> frames;
};

/// What lies where on the pictures of a sheet.
struct Sheet
{
    /// The most frames, and pixels across and down of a page and of an original.
    static constexpr int MaxFrames = 65536;
    static constexpr int MaxSide = 16384;

    QStringList pages;           ///< what its pictures are called there; empty for "not told"
    QVector<SheetFrame> frames;  ///< in the order of the file
    QVector<SheetTag> tags;
    QVector<SheetAnimation> animations;
    QStringList others;    ///< other files of the same set
    QStringList warnings;  ///< a line each for the person
};

/// True if both show the same pixels of the same place.
bool isSamePicture(const SheetFrame& a, const SheetFrame& b);

/// The picture of a frame, upright, in the form of its page; null for one without pixels.
/// Re-entrant.
QImage pictureOf(const QImage& page, const SheetFrame& frame);

/// Marks frames that lie outside of their pages as lost, and tells of them.
void loseOutsiders(Sheet* sheet, const QVector<QSize>& pages);

}  // namespace Family
