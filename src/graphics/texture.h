#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QByteArray>
#include <QSize>

class QImage;
class QOpenGLFunctions;

namespace Zorv {

/// An image or a palette in the memory of the graphics card.
///
/// An indexed image has one byte per pixel. The shader looks up its colours in a palette texture,
/// so changing the palette needs no new image. A texture is created in the shared context
/// (`context()`) and can be drawn in every `RenderWidget`. Main thread only, except
/// `dataFromImage()` and the destructor, which any thread may call.
class ZORV_EXPORT Texture
{
public:
    /// The content of a texture.
    enum Kind { Empty = 0, PaletteKind = 1, IndexedKind = 2, RgbaKind = 3 };

    /// The data of an upload. Preparing it needs no GL.
    struct ImageData
    {
        QSize size;         ///< of the image
        QSize textureSize;  ///< the same, or the next powers of two where GL needs them
        bool indexed = false;
        QByteArray bytes;  ///< 1 (indexed) or 4 (RGBA) per pixel, bottom row first
    };

    Texture();
    explicit Texture(const QImage& image);

    /// A palette of 256 colours.
    explicit Texture(const RGBA* palette);
    explicit Texture(const ImageData& data);

    /// Schedules the deletion of the name in the thread of the context.
    ~Texture();

    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    /// Creates the texture of an image, `Format_Indexed8` or any other format. A null image deletes
    /// the texture.
    void fromImage(const QImage& image);

    /// Creates a palette texture of 256 colours. Null deletes the texture.
    void fromPalette(const RGBA* palette);

    /// Creates the texture from prepared data. Empty or too few bytes delete the texture; `id` and
    /// the other fields then keep their values, and the texture draws nothing. Data larger than
    /// `GL_MAX_TEXTURE_SIZE` draws nothing either, but sets the fields.
    void fromData(const ImageData& data);

    /// Prepares an upload. A non-indexed image must have 32 bits per pixel and no padding between
    /// rows, otherwise its rows come out shifted. `bytes` stays empty for a null image and above
    /// one gigabyte. Any thread, once the context exists.
    static void dataFromImage(const QImage& image, ImageData& data);

    /// Deletes the texture immediately; `id` becomes 0.
    void reset();

    /// Exchanges only the names.
    void swap(Texture& other);

    /// True if `id` was a valid name but has been deleted, or is gone with its context.
    bool isStale() const;

    int kind = Empty;
    quint32 id = 0;      ///< the name in GL; 0 for none
    double uMax = -1.0;  ///< width of the image over that of the texture
    double vMax = -1.0;  ///< height likewise
    QSize size{-1, -1};  ///< of the image

private:
    void deleteName(QOpenGLFunctions* gl);
    void makeName(QOpenGLFunctions& gl);

    bool m_isDeleted = false;
    quint32 m_contextNumber = 0;
};

}  // namespace Zorv
