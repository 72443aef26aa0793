#pragma once

#include <QImage>

class QIODevice;

namespace Zorv {

/// Where the pixels of a BMP file stand in it. Heads are read as Qt reads them, so that what is
/// whole here is read whole there. Nothing is consumed; the device is not sequential, and stands
/// where the file begins.
class BMPPixels
{
public:
    explicit BMPPixels(QIODevice* device);

    /// How many bytes of its rows the file lacks. Runs of pixels that come neither to their end
    /// mark nor to the last pixel lack more than any file has, as do those that declare a picture
    /// of more than 64 MiB that they cannot hold. 0 for a head that Qt refuses.
    qint64 missing() const;

    /// The bytes behind the pixels of each row.
    qint64 rowPadding() const;

    /// What runs of pixels are drawn on, for they may leave some out. Null for other files.
    QImage ground() const;

private:
    enum Compression : quint32 { Runs8 = 1, Runs4 = 2, Masks = 3 };

    bool hasRuns() const;
    bool areRunsWhole() const;
    qint64 rowBits() const;

    QIODevice* m_device;
    QSize m_size;  // empty for a head that Qt refuses
    int m_bits = 0;
    quint32 m_compression = 0;
    qint64 m_start = 0;  // of the pixels, in the file
};

}  // namespace Zorv
