#pragma once

#include "zorv_export.h"

class QByteArray;
class QImage;
class QIODevice;

namespace Zorv {

struct RGBA;
struct SoundSample;

/// A file format that a host adds to the library by registering it with
/// `ExtensionManager`.
///
/// An extension has one type and overrides the one function for that type. The
/// other functions return false. Devices are already open and remain the
/// caller's. Image and sound loaders are called from several threads at once
/// and must not share state. All others are called from the main thread.
class ZORV_EXPORT Extension
{
public:
    /// What the extension does. The library leaves values 0, 7 and 8 to the
    /// host.
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

    /// The format this extension handles, in the form that `fileExtension()`
    /// returns: "TGA". The comparison is case-sensitive. Empty by default.
    virtual QByteArray name() const;

    /// Reads a file into `image`, `palette` or `sample`. Returns false if the
    /// file does not have this format; the content of the last argument is then
    /// ignored.
    virtual bool loadImage(QIODevice* device, QImage& image);
    virtual bool loadPalette(QIODevice* device, RGBA (&palette)[256]);
    virtual bool loadSound(QIODevice* device, SoundSample& sample);

    /// Writes a file. Returns false if it could not be written completely.
    virtual bool saveImage(QIODevice* device, const QImage& image);
    virtual bool savePalette(QIODevice* device, const RGBA (&palette)[256]);
    virtual bool saveSound(QIODevice* device, const SoundSample& sample);
};

}  // namespace Zorv
