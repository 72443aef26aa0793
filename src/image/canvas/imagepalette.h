#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QObject>
#include <QRgb>
#include <QVector>

class QColor;

namespace Zorv {

class PaletteObject;

/// The colours of a canvas: 256 entries, one of them the foreground and one the background. Main
/// thread only.
class ZORV_EXPORT ImagePalette : public QObject
{
    Q_OBJECT

public:
    explicit ImagePalette(QObject* parent = nullptr);
    ~ImagePalette() override;

    /// The index for empty area.
    virtual unsigned char background() const = 0;

    /// The index to paint with.
    virtual unsigned char foreground() const = 0;

    virtual QRgb color(unsigned char index) const = 0;

    /// The entry nearest to a colour.
    virtual unsigned char index(const QColor& color) const = 0;

    virtual void setForeground(unsigned char index) = 0;
    virtual void setBackground(unsigned char index) = 0;

    /// The colours as an object that can be changed, owned by the palette. Null if they are fixed.
    virtual PaletteObject* palette() const = 0;

    /// Fills all 256 entries.
    virtual void toRGBPal(RGBA (&colors)[256]) const = 0;

    /// The same colours as a colour table for a `QImage`.
    QVector<QRgb> toRgbPal() const;
};

}  // namespace Zorv
