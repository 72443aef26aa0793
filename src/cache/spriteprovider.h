#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QVariant>

namespace Zorv {

class Sprite;

/// What the stage draws from: a list of sprites with what is to be known of each.
///
/// Implemented by the host. The stage asks anew after each signal. Main thread only.
class ZORV_EXPORT SpriteProvider : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// How many there are; asked for again after `changed()`.
    virtual unsigned count() const = 0;

    /// Null for an index outside of the list.
    virtual Sprite* at(unsigned index) const = 0;

    /// What the stage asks for by key: 0 position (`QPoint`), 1 mode (as in positionmode.h),
    /// 2 parent, 3 size (`QSize`), 4 scale (`QPointF`), 5 flip (bits of `Renderer::Flip`),
    /// 6 rotation in degrees, clockwise, 7 layer. Lengths are in pixels of the game. An invalid
    /// value is (1,1) for the scale, 0 for the others.
    virtual QVariant property(unsigned index, unsigned key) const = 0;

signals:
    /// All sprites may have changed; or the one at that index.
    void changed();
    void changedAt(unsigned int index);
};

}  // namespace Zorv
