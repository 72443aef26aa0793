#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QObject>

class QIODevice;

namespace Zorv {

/// What `PaletteObject::applyEffect()` does to each selected colour. An average is that of
/// red, green and blue, rounded down.
enum class RGBPaletteEffect {
    None = 0,
    SwapRedBlue = 1,
    SwapGreenBlue = 2,
    SwapRedGreen = 3,
    SwapBlueGreen = 4,  ///< as `SwapGreenBlue`
    SwapGreenRed = 5,   ///< as `SwapRedGreen`
    SwapBlueRed = 6,    ///< as `SwapRedBlue`
    Lighter = 7,        ///< 32 more
    Darker = 8,         ///< 32 less
    Gray = 9,           ///< the average
    Sepia = 10,
    Purple = 11,
    Contrast = 12,     ///< the average, plus 50 below 128 and minus 50 from there on
    MuchLighter = 13,  ///< 128 more
    MuchDarker = 14    ///< 128 less
};

/// The colours of a palette, `RGBA[256]`, with changes that listeners hear of.
///
/// The array is the caller's and outlives the object. A selection is a pointer to 256
/// `bool`; null means all entries. Every operation that changes entries emits `changing()`
/// first and `changed()` last, once each. Main thread only.
class ZORV_EXPORT PaletteObject : public QObject
{
    Q_OBJECT

public:
    explicit PaletteObject(RGBA (&palette)[256], QObject* parent = nullptr);

    /// Copies 256 entries in or out; `color()` gives one of them.
    void fromPalette(const RGBA* palette);
    void toPalette(RGBA (&palette)[256]) const;
    RGBA color(unsigned char index) const { return m_palette[index]; }

    /// Reads a palette file or the palette of an image. `format` is "PNG", "PCX", "BMP", "GIF",
    /// "ACT" or "ACO", in capitals; with any other the first bytes tell, and then the name of an
    /// `Extension` that loads palettes. False, and nothing changed, if it cannot be read. Colour 0
    /// becomes transparent. See `losslessImages()` for what is taken of images.
    bool fromFile(QIODevice* device, const char* format);

    /// Writes a palette file: "ACT", or a format of an `Extension`. Alpha is lost in ACT.
    bool toFile(QIODevice* device, const char* format);

    /// The entry nearest to a colour by red, green and blue. Among those as near, one with less
    /// alpha than the colour takes the place of any before it, and any behind it takes its;
    /// without such the nearest alpha wins, then the first.
    unsigned char index(RGBA color) const;

    /// Sets one entry, or all selected ones.
    void setColor(unsigned char index, RGBA color);
    void setColor(const bool* selection, RGBA color);

    /// A run of colours over as many entries as lie between `first` and `last`, the last one
    /// of it being `to`. It is written from entry 0 on. Nothing if `first` is not below `last`.
    void gradient(unsigned char first, RGBA from, unsigned char last, const RGBA& to);

    /// A run of colours over the selected entries, the last one of them being `to`; a single
    /// one becomes `from`.
    void gradient(const bool* selection, RGBA from, RGBA to);

    /// Of equal colours from entry 1 on only the last stays; the others become `replacement`,
    /// opaque.
    void clearDuplicated(RGB replacement);

    /// Puts those of 256 colours that no entry equals at the end, from 255 downwards.
    void addColors(const RGBA* colors);

    void applyEffect(RGBPaletteEffect effect, const bool* selection);

    /// Reverses the selected entries among themselves; with `alpha` the alpha of entries 0
    /// and 255 change places afterwards.
    void switchColors(const bool* selection, bool alpha);

    /// Orders the entries behind entry 0 so that each is near the one before it.
    void sortByTones();

    /// Adds to hue (0 to 359) and saturation (0 to 255) of the HSL form; the results are
    /// clamped, and opaque.
    void addHueSaturation(const bool* selection, short hue, short saturation);

    /// Adds to the channels, clamped; alpha stays.
    void addRGB(const bool* selection, short red, short green, short blue);

    /// Makes all entries transparent black, without a signal.
    void empty();

signals:
    /// Before any change, so that a listener can keep what was.
    void changing();
    /// After it.
    void changed();

private:
    RGBA* m_palette;
};

}  // namespace Zorv
