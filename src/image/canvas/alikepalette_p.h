#pragma once

#include "image/canvas/imageforms_p.h"
#include "image/canvas/imagepalette.h"

namespace Zorv {

/// A palette that maps transparent colours to transparent entries and all others to the other
/// entries, if it has both kinds. Otherwise it acts like the palette it wraps, which must outlive
/// it.
class AlikePalette : public ImagePalette
{
public:
    explicit AlikePalette(ImagePalette* palette);

    unsigned char background() const override;
    unsigned char foreground() const override;
    QRgb color(unsigned char index) const override;
    unsigned char index(const QColor& color) const override;
    void setForeground(unsigned char index) override;
    void setBackground(unsigned char index) override;
    PaletteObject* palette() const override;
    void toRGBPal(RGBA (&colors)[256]) const override;

private:
    ImagePalette* m_palette;
    PaletteColors m_colors;
};

}  // namespace Zorv
