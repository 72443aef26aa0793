#pragma once

#include "zorv_export.h"

class QByteArray;
class QImage;
class QIODevice;

namespace Zorv {

struct RGBA;
struct SoundSample;

/// A format that a host adds to the library; registered with `ExtensionManager`.
///
/// An extension has one type and overrides the one operation of that type; the
/// others give false. Devices are open and stay the caller's. Image and sound
/// loaders are called from several threads at once and must not share state; all
/// others are called from the main thread.
class ZORV_EXPORT Extension
{
public:
    /// What the extension does. Values 0, 7 and 8 are the host's.
    enum Type {
        Other = 0,
        ImageLoader = 1,
        ImageSaver = 2,
        PaletteLoader = 3,
        PaletteSaver = 4,
        SoundLoader = 5,
        SoundSaver = 6,
        User1 = 7,
        User2 = 8
    };

    virtual ~Extension();
    virtual Type type() const = 0;

    /// The format string that it stands for, as `fileExtension()` makes it of a
    /// file name: "TGA". Compared with case. Empty by default.
    virtual QByteArray name() const;

    /// Reads a file into `image`, `palette` or `sample`. False if it is not of
    /// the format; what the last argument holds then does not count.
    virtual bool loadImage(QIODevice* device, QImage& image);
    virtual bool loadPalette(QIODevice* device, RGBA (&palette)[256]);
    virtual bool loadSound(QIODevice* device, SoundSample& sample);

    /// Writes a file. False if it could not be written whole.
    virtual bool saveImage(QIODevice* device, const QImage& image);
    virtual bool savePalette(QIODevice* device, const RGBA (&palette)[256]);
    virtual bool saveSound(QIODevice* device, const SoundSample& sample);
};

}  // namespace Zorv
