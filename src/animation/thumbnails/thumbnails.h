#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QObject>

#include <memory>

class QPixmap;

namespace Zorv {

class Sprites;
class ThumbnailsPrivate;

/// Small pictures of the sprites of a list, by row.
///
/// A sprite is decoded when somebody has asked for its picture: a few milliseconds at a time,
/// between two events of the person, those first that were asked for since the last `startPage()`.
/// Some thousands of pictures are kept. Main thread only.
class ZORV_EXPORT Thumbnails : public QObject
{
    Q_OBJECT

public:
    /// Pictures of `side` by `side` pixels at most. What is larger is made smaller smoothly, what
    /// is smaller is enlarged by a whole number.
    explicit Thumbnails(int side, QObject* parent = nullptr);
    ~Thumbnails() override;

    /// Forgets the pictures of the list before. Null for none. The list is not owned, and may die;
    /// its changes are for the caller to follow, with `forgetAll()`.
    void setSprites(Sprites* sprites);

    /// The picture of a row: a null pointer until it is made, a null picture if the sprite is
    /// broken. Good until the next call of any operation.
    const QPixmap* picture(int row);

    /// What was asked for before is no longer in sight.
    void startPage();

    void forgetAll();

    /// Makes pictures as somebody else sees them; forgets those that are made.
    void setColorSight(const ColorSight& sight);
    int side() const;

signals:
    /// Pictures have been made.
    void made();

private:
    std::unique_ptr<ThumbnailsPrivate> d;
};

}  // namespace Zorv
