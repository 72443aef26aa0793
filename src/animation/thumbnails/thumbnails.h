#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QObject>

#include <memory>

class QPixmap;

namespace Zorv {

class Sprites;
class ThumbnailsPrivate;

/// Thumbnails of the sprites of a list, by row, with a cache of limited size.
///
/// A sprite is decoded when its picture is first requested: a few milliseconds at a time, between
/// two user events. Requests since the last `startPage()` come first. The cache keeps some
/// thousands of pictures. Main thread only.
class ZORV_EXPORT Thumbnails : public QObject
{
    Q_OBJECT

public:
    /// Pictures have at most `side` by `side` pixels. Larger images are scaled down smoothly,
    /// smaller ones are enlarged by a whole factor.
    explicit Thumbnails(int side, QObject* parent = nullptr);
    ~Thumbnails() override;

    /// Sets the list and drops all pictures. Null for none. The list is not owned and may be
    /// destroyed. The caller must watch its changes and call `forgetAll()`.
    void setSprites(Sprites* sprites);

    /// The picture of a row: a null pointer until it is made, a null picture for a broken sprite.
    /// Valid until the next call of any function.
    const QPixmap* picture(int row);

    /// Earlier requests are no longer visible and lose their priority.
    void startPage();

    void forgetAll();

    /// Simulates how another person sees the colours; drops all pictures.
    void setColorSight(const ColorSight& sight);
    int side() const;

signals:
    /// New pictures are available.
    void made();

private:
    std::unique_ptr<ThumbnailsPrivate> d;
};

}  // namespace Zorv
