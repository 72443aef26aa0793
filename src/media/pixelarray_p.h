#pragma once

#include <QtGlobal>

#include <memory>

class QImage;

namespace Zorv {

/// The bytes of an image's lines in one row, with room in front and behind.
///
/// The room in front is zero: the farthest copy of a broken stream finds zeros there.
/// The room behind takes what a packet writes past the end, and is zero to begin with.
class PixelArray
{
public:
    static constexpr int Front = 1088;
    static constexpr int Behind = 640;

    /// The bytes between are not set.
    explicit PixelArray(qint64 size);
    /// The first `lineLength` bytes of each line; zeros for what a line lacks.
    PixelArray(const QImage& image, int lineLength);

    /// There was not enough memory: nothing else may be asked then.
    bool isNull() const { return !m_bytes; }
    qint64 size() const { return m_size; }
    uchar* begin() { return m_bytes.get() + Front; }
    uchar* end() { return begin() + m_size; }

private:
    std::unique_ptr<uchar[]> m_bytes;
    qint64 m_size;
};

/// How the bytes of a stream lie in an image's memory: so many a line, then so many to
/// skip. A line of 0 bytes never ends.
struct LineLayout
{
    qint64 line;
    qint64 skip;

    /// How many bytes of a stream find a place in `memory` bytes.
    qint64 capacity(qint64 memory) const;
    /// Puts `count` bytes, at most the capacity, into the image.
    void place(QImage& image, const uchar* bytes, qint64 count) const;
};

}  // namespace Zorv
