#pragma once

#include "image/canvas/imagepalette.h"
#include "media/paletteobject.h"

#include <QColor>
#include <QRandomGenerator>

#include <algorithm>
#include <iterator>

/// Colours of a canvas in an array, opaque black at first.
class TestImagePalette : public Zorv::ImagePalette
{
public:
    TestImagePalette()
    {
        std::fill(std::begin(colors), std::end(colors), Zorv::RGBA{0, 0, 0, 255});
    }

    /// `used` random colours, the rest as the last of them; `clear` of 4 are transparent and
    /// `half` of 4 half transparent.
    void randomize(QRandomGenerator& random, int used, int clear, int half)
    {
        for (int i = 0; i < 256; ++i) {
            const quint32 bits = random.generate();
            const int kind = random.bounded(4);
            const int alpha = kind < clear          ? 0
                              : kind < clear + half ? 1 + int(bits >> 24) % 254
                                                    : 255;
            colors[i] = i < used ? Zorv::RGBA{quint8(bits), quint8(bits >> 8), quint8(bits >> 16),
                                              quint8(alpha)}
                                 : colors[used - 1];
        }
    }

    unsigned char background() const override { return ground; }
    unsigned char foreground() const override { return front; }
    QRgb color(unsigned char index) const override
    {
        const Zorv::RGBA c = colors[index];
        return qRgba(c.r, c.g, c.b, c.a);
    }
    unsigned char index(const QColor& color) const override
    {
        return m_object.index({quint8(color.red()), quint8(color.green()), quint8(color.blue()),
                               quint8(color.alpha())});
    }
    void setForeground(unsigned char index) override { front = index; }
    void setBackground(unsigned char index) override { ground = index; }
    Zorv::PaletteObject* palette() const override { return &m_object; }
    void toRGBPal(Zorv::RGBA (&table)[256]) const override
    {
        std::copy(std::begin(colors), std::end(colors), table);
    }

    Zorv::RGBA colors[256];
    unsigned char ground = 0;
    unsigned char front = 1;

private:
    mutable Zorv::PaletteObject m_object{colors};
};
