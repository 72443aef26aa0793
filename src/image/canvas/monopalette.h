#pragma once

#include "image/canvas/imagepalette.h"

namespace Zorv {

/// The two colours of a selection mask: 0, not selected, is black with alpha 100; 1, selected, is
/// white with alpha 0. Higher indices act like 1. Background and foreground stay 0 and 1.
class ZORV_EXPORT MonoPalette : public ImagePalette
{
    Q_OBJECT

public:
    using ImagePalette::ImagePalette;

    unsigned char background() const override;
    unsigned char foreground() const override;
    QRgb color(unsigned char index) const override;

    /// 0 or 1.
    unsigned char index(const QColor& color) const override;

    /// No effect.
    void setForeground(unsigned char index) override;
    void setBackground(unsigned char index) override;

    /// Null: these colours are fixed.
    PaletteObject* palette() const override;
    void toRGBPal(RGBA (&colors)[256]) const override;
};

}  // namespace Zorv
