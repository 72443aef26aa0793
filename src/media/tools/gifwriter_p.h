#pragma once

#include "media/tools/gifimage.h"

#include <QByteArray>

#include <gif_lib.h>

class QIODevice;

namespace Zorv {

struct GIFPass;

/// Writes a GIF file record by record. The first failure, of giflib or of the device, is kept
/// and ends the writing; `finish()` tells it.
class GIFWriter
{
public:
    explicit GIFWriter(QIODevice* device);
    ~GIFWriter();

    /// Writes the head. `colors` is the global table, `loops` as of `GIFImage`.
    void begin(const QSize& size, const QVector<RGB>& colors, int background, int loops);

    /// Writes what tells how a frame is shown, and its place. `colors` is its local table, empty
    /// for the global one.
    void beginFrame(const GIFImage::SubImage& frame, const QSize& size, const QVector<RGB>& colors);

    /// Writes the pixels of the frame; or its pixels packed already, the codes without the byte
    /// in front of them that tells their size.
    void putPixels(const QImage& image, bool interlaced);
    void putPacked(const QByteArray& codes);

    /// Writes the end and gives the result of it all.
    bool finish();

private:
    Q_DISABLE_COPY(GIFWriter)

    static int writeBytes(GifFileType* file, const GifByteType* from, int count);
    void putLines(const QImage& image, const GIFPass& pass);
    void flush();
    void check(int result);

    QIODevice* m_device;
    QByteArray m_buffer;
    GifFileType* m_file;
    bool m_failed = false;
};

/// A table as giflib takes it: filled up with black to a power of two above `minimum` - 1 entries.
QVector<RGB> paddedColors(QVector<RGB> colors, int minimum);

}  // namespace Zorv
