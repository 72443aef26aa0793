#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QObject>
#include <QRgb>
#include <QVector>

class QColor;

namespace Zorv {

class PaletteObject;

/// Where a canvas has its colours from: 256 of them, of which one is in front and one is the
/// ground. Main thread only.
class ZORV_EXPORT ImagePalette : public QObject
{
    Q_OBJECT

public:
    explicit ImagePalette(QObject* parent = nullptr);
    ~ImagePalette() override;

    /// The index that shows where nothing is.
    virtual unsigned char background() const = 0;

    /// The index to paint with.
    virtual unsigned char foreground() const = 0;

    virtual QRgb color(unsigned char index) const = 0;

    /// The entry nearest to a colour.
    virtual unsigned char index(const QColor& color) const = 0;

    virtual void setForeground(unsigned char index) = 0;
    virtual void setBackground(unsigned char index) = 0;

    /// The colours as an object that can be changed; the palette's. Null if they cannot be.
    virtual PaletteObject* palette() const = 0;

    /// Fills all 256 entries.
    virtual void toRGBPal(RGBA (&colors)[256]) const = 0;

    /// The same as a colour table of a `QImage`.
    QVector<QRgb> toRgbPal() const;
};

}  // namespace Zorv
