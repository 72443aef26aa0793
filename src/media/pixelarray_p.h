#pragma once

#include <QtGlobal>

#include <memory>

class QImage;

namespace Zorv {

/// The lines of an image as one array, with margins before and after it.
///
/// The front margin is zero: even the farthest copy of a broken stream reads zeros there. The back
/// margin is initially zero and takes what a packet writes past the end.
class PixelArray
{
public:
    static constexpr int Front = 1088;
    static constexpr int Behind = 640;

    /// The bytes between the margins are uninitialised.
    explicit PixelArray(qint64 size);
    /// Copies the first `lineLength` bytes of each line, padded with zeros if a line is shorter.
    PixelArray(const QImage& image, int lineLength);

    /// True if memory ran out. No other function may be called then.
    bool isNull() const { return !m_bytes; }
    qint64 size() const { return m_size; }
    uchar* begin() { return m_bytes.get() + Front; }
    uchar* end() { return begin() + m_size; }

private:
    std::unique_ptr<uchar[]> m_bytes;
    qint64 m_size;
};

/// How a stream is laid out in an image's memory: `line` bytes are filled, then `skip` bytes are
/// skipped. If `line` is 0, a line never ends.
struct LineLayout
{
    qint64 line;
    qint64 skip;

    /// How many bytes of a stream fit into `memory` bytes.
    qint64 capacity(qint64 memory) const;
    /// Copies `count` bytes, at most the capacity, into the image.
    void place(QImage& image, const uchar* bytes, qint64 count) const;
};

}  // namespace Zorv
