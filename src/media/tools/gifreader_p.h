#pragma once

#include "media/tools/gifimage.h"

#include <QByteArray>

#include <gif_lib.h>

class QIODevice;

namespace Zorv {

/// Reads a GIF file frame by frame from a device, through a buffer.
class GIFReader
{
public:
    /// What was found in the file.
    enum Record { Frame, End, Broken };

    explicit GIFReader(QIODevice* device);
    ~GIFReader();

    /// Reads the header: size, global colours and background. False if it is not a GIF file.
    bool readHead(GIFImage& gif);

    /// Reads to the end of the next frame. If the result is `Frame`, `frame` is complete. File-wide
    /// information on the way goes into `gif`.
    Record readFrame(GIFImage& gif, GIFImage::SubImage& frame);

private:
    Q_DISABLE_COPY(GIFReader)

    static int readBytes(GifFileType* file, GifByteType* to, int count);
    qint64 bytesLeft() const;
    bool readExtension(GIFImage& gif, GIFImage::SubImage& frame);
    bool readPicture(GIFImage::SubImage& frame);
    bool readPixels(QImage& image);
    bool readInterlaced(uchar* bits, int width, int height, int stride);

    QIODevice* m_device;
    QByteArray m_buffer;
    int m_position = 0;
    GifFileType* m_file = nullptr;
};

}  // namespace Zorv
