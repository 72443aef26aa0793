#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QVariant>

namespace Zorv {

class Sprite;

/// What the stage draws: a list of sprites with their properties.
///
/// Implemented by the host. After each signal the stage fetches everything again. Main thread only.
class ZORV_EXPORT SpriteProvider : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The number of sprites; read again after `changed()`.
    virtual unsigned count() const = 0;

    /// Null for an index outside of the list.
    virtual Sprite* at(unsigned index) const = 0;

    /// A property of a sprite, by key: 0 position (`QPoint`), 1 mode (as in positionmode.h), 2
    /// parent, 3 size (`QSize`), 4 scale (`QPointF`), 5 flip (bits of `Renderer::Flip`), 6 rotation
    /// in degrees, clockwise, 7 layer. Lengths are in pixels of the game. An invalid value means
    /// (1,1) for the scale and 0 for everything else.
    virtual QVariant property(unsigned index, unsigned key) const = 0;

signals:
    /// All sprites may have changed, or only the one at that index.
    void changed();
    void changedAt(unsigned int index);
};

}  // namespace Zorv
