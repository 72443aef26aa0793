#pragma once

#include "media/tools/gifimage.h"

#include <QByteArray>

#include <gif_lib.h>

class QIODevice;

namespace Zorv {

struct GIFPass;

/// Writes a GIF file record by record. The first error, of giflib or of the device, stops all
/// further writing and is reported by `finish()`.
class GIFWriter
{
public:
    explicit GIFWriter(QIODevice* device);
    ~GIFWriter();

    /// Writes the header. `colors` is the global table; `loops` is defined in `GIFImage`.
    void begin(const QSize& size, const QVector<RGB>& colors, int background, int loops);

    /// Writes the control data and position of a frame. `colors` is its local table, empty for the
    /// global one.
    void beginFrame(const GIFImage::SubImage& frame, const QSize& size, const QVector<RGB>& colors);

    /// Write the pixels of the frame, either as an image or already packed. Packed codes do not
    /// include the leading byte with the code size.
    void putPixels(const QImage& image, bool interlaced);
    void putPacked(const QByteArray& codes);

    /// Writes the end of the file and returns whether everything succeeded.
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

/// A colour table in giflib's form: padded with black to a power of two of at least `minimum`
/// entries.
QVector<RGB> paddedColors(QVector<RGB> colors, int minimum);

}  // namespace Zorv
