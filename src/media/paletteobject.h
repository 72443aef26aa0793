#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QObject>

class QIODevice;

namespace Zorv {

/// What `PaletteObject::applyEffect()` does to each selected colour. An average is the average of
/// red, green and blue, rounded down.
enum class RGBPaletteEffect {
    None = 0,
    SwapRedBlue = 1,
    SwapGreenBlue = 2,
    SwapRedGreen = 3,
    SwapBlueGreen = 4,  ///< same as `SwapGreenBlue`
    SwapGreenRed = 5,   ///< same as `SwapRedGreen`
    SwapBlueRed = 6,    ///< same as `SwapRedBlue`
    Lighter = 7,        ///< 32 more
    Darker = 8,         ///< 32 less
    Gray = 9,           ///< the average
    Sepia = 10,
    Purple = 11,
    Contrast = 12,     ///< the average, plus 50 below 128 and minus 50 from there on
    MuchLighter = 13,  ///< 128 more
    MuchDarker = 14    ///< 128 less
};

/// Operations on a palette, `RGBA[256]`, with change signals.
///
/// The array belongs to the caller and must outlive the object. A selection is a pointer to 256
/// `bool`; null means all entries. Every operation that changes entries emits `changing()` first
/// and `changed()` last, once each. Main thread only.
class ZORV_EXPORT PaletteObject : public QObject
{
    Q_OBJECT

public:
    explicit PaletteObject(RGBA (&palette)[256], QObject* parent = nullptr);

    /// Copies 256 entries in or out. `color()` returns one entry.
    void fromPalette(const RGBA* palette);
    void toPalette(RGBA (&palette)[256]) const;
    RGBA color(unsigned char index) const { return m_palette[index]; }

    /// Reads a palette file or the palette of an image. `format` is "PNG", "PCX", "BMP", "GIF",
    /// "ACT" or "ACO", in capitals. For any other value the first bytes decide, then the name of an
    /// `Extension` that loads palettes. False, with nothing changed, if it cannot be read. Colour 0
    /// becomes transparent. `losslessImages()` describes what is read from images.
    bool fromFile(QIODevice* device, const char* format);

    /// Writes a palette file: "ACT" or a format of an `Extension`. ACT does not store alpha.
    bool toFile(QIODevice* device, const char* format);

    /// The entry nearest to a colour by red, green and blue. Among equally near entries, one with
    /// less alpha than the colour replaces every earlier one, and is itself replaced by every later
    /// one. If there is none with less alpha, the nearest alpha wins, then the first.
    unsigned char index(RGBA color) const;

    /// Sets one entry, or all selected ones.
    void setColor(unsigned char index, RGBA color);
    void setColor(const bool* selection, RGBA color);

    /// Writes a gradient from `from` to `to`. It has `last` - `first` colours, the last of which is
    /// `to`, and is written from entry 0 on. Does nothing if `first` is not below `last`.
    void gradient(unsigned char first, RGBA from, unsigned char last, const RGBA& to);

    /// Writes a gradient to the selected entries, the last of which becomes `to`. A single entry
    /// becomes `from`.
    void gradient(const bool* selection, RGBA from, RGBA to);

    /// Removes duplicates from entry 1 on. Of equal colours the last one is kept; the others become
    /// `replacement`, opaque.
    void clearDuplicated(RGB replacement);

    /// Adds those of 256 colours that the palette lacks, from entry 255 downwards.
    void addColors(const RGBA* colors);

    void applyEffect(RGBPaletteEffect effect, const bool* selection);

    /// Reverses the order of the selected entries. With `alpha`, entries 0 and 255 then swap their
    /// alpha.
    void switchColors(const bool* selection, bool alpha);

    /// Sorts the entries after entry 0 so that each is similar to the previous one.
    void sortByTones();

    /// Adds to hue (0 to 359) and saturation (0 to 255) in HSL. The results are clamped and opaque.
    void addHueSaturation(const bool* selection, short hue, short saturation);

    /// Adds to the channels, clamped; alpha is unchanged.
    void addRGB(const bool* selection, short red, short green, short blue);

    /// Makes all entries transparent black, without a signal.
    void empty();

signals:
    /// Emitted before any change, so that a listener can save the previous state.
    void changing();
    /// Emitted after the change.
    void changed();

private:
    RGBA* m_palette;
};

}  // namespace Zorv
