#pragma once

#include "media/tools/gifimage.h"

#include <QByteArray>

#include <gif_lib.h>

class QIODevice;

namespace Zorv {

/// Reads a GIF file frame by frame, from the bytes of a device through a buffer.
class GIFReader
{
public:
    /// What stands next in the file.
    enum Record { Frame, End, Broken };

    explicit GIFReader(QIODevice* device);
    ~GIFReader();

    /// Reads the head: size, global colours and background. False if it is no GIF file.
    bool readHead(GIFImage& gif);

    /// Reads up to the end of the next frame. With `Frame`, `frame` is whole; what else the file
    /// tells on the way goes into `gif`.
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
