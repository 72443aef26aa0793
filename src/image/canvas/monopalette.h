#pragma once

#include "image/canvas/imagepalette.h"

namespace Zorv {

/// The two colours of a selection mask: 0, not selected, is shown as black with alpha 100, and 1,
/// selected, as white with alpha 0. Any further index is as 1. Ground and front stay 0 and 1.
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

    /// Without effect.
    void setForeground(unsigned char index) override;
    void setBackground(unsigned char index) override;

    /// Null: these colours cannot be changed.
    PaletteObject* palette() const override;
    void toRGBPal(RGBA (&colors)[256]) const override;
};

}  // namespace Zorv
