#pragma once

#include <QImage>

class QIODevice;

namespace Zorv {

/// Locates the pixels of a BMP file and checks that they are complete. Headers are interpreted
/// exactly as Qt does, so both agree on what is complete. The device must not be sequential and
/// must be at the start of the file; its position does not change.
class BMPPixels
{
public:
    explicit BMPPixels(QIODevice* device);

    /// The number of bytes by which the rows are too short. Run-length data that reaches neither
    /// its end mark nor the last pixel counts as more than any file has, and so does a declared
    /// size above 64 MiB that the data cannot hold. 0 for a header that Qt refuses.
    qint64 missing() const;

    /// The number of padding bytes per row.
    qint64 rowPadding() const;

    /// The zeroed image that run-length data is decoded into, because it may skip pixels. Null for
    /// other files.
    QImage ground() const;

private:
    enum Compression : quint32 { Runs8 = 1, Runs4 = 2, Masks = 3 };

    bool hasRuns() const;
    bool areRunsWhole() const;
    qint64 rowBits() const;

    QIODevice* m_device;
    QSize m_size;  // empty for a header that Qt refuses
    int m_bits = 0;
    quint32 m_compression = 0;
    qint64 m_start = 0;  // offset of the pixels in the file
};

}  // namespace Zorv
