#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QByteArray>
#include <QSize>

class QImage;
class QOpenGLFunctions;

namespace Zorv {

/// An image or a palette in the memory of the graphics processor.
///
/// An indexed image is one byte a pixel, and the shader finds its colours in a palette texture, so
/// that another palette needs no new image. Made in the shared context (`context()`), it can be
/// drawn in every `RenderWidget`. Everything is for the main thread, but the destructor, which any
/// thread may call, and `dataFromImage()`.
class ZORV_EXPORT Texture
{
public:
    /// What a texture carries.
    enum Kind { Empty = 0, PaletteKind = 1, IndexedKind = 2, RgbaKind = 3 };

    /// The bytes of an upload, which need no GL to be prepared.
    struct ImageData
    {
        QSize size;         ///< of the image
        QSize textureSize;  ///< the same, or the next powers of two where GL needs them
        bool indexed = false;
        QByteArray bytes;  ///< 1 (indexed) or 4 (R, G, B, A) a pixel, bottom row first
    };

    Texture();
    explicit Texture(const QImage& image);

    /// Of 256 colours.
    explicit Texture(const RGBA* palette);
    explicit Texture(const ImageData& data);

    /// Has the name deleted by the thread of the context, soon.
    ~Texture();

    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    /// Makes the texture of an image, `Format_Indexed8` or any other. A null one deletes what was
    /// there.
    void fromImage(const QImage& image);

    /// Makes a palette texture of 256 colours. Null deletes what was there.
    void fromPalette(const RGBA* palette);

    /// Makes the texture of prepared data. Empty or too few bytes delete what was there; `id` and
    /// the rest keep their values then, and the texture draws nothing. One larger than
    /// `GL_MAX_TEXTURE_SIZE` draws nothing either, but has its fields.
    void fromData(const ImageData& data);

    /// Prepares an upload. An image that is not indexed must have 32 bits a pixel and no bytes
    /// between its rows, or its rows come out shifted. Bytes stay empty for a null image and for
    /// more than a gigabyte. On any thread once the context is made.
    static void dataFromImage(const QImage& image, ImageData& data);

    /// Deletes the texture at once; `id` is 0.
    void reset();

    /// Exchanges the names alone.
    void swap(Texture& other);

    /// True if `id` was a name, but has been deleted, or has gone with its context.
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
