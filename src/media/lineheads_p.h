#pragma once

#include <QByteArray>

class QIODevice;

namespace Zorv {

/// Iterates over the lines of a text and keeps only the first `HeadSize` bytes of each. A file of
/// any size, with lines of any length, takes a fixed amount of memory.
///
/// A text with n separators has n + 1 lines, empty ones included.
class LineHeads
{
public:
    static constexpr int HeadSize = 64;

    LineHeads(QIODevice* device, const QByteArray& separator);

    /// The next line without its separator; empty after the last.
    QByteArray next();

    /// Whether the last line has been returned.
    bool atEnd() const { return m_atEnd; }

private:
    bool fill();
    void take(QByteArray& line, int size);

    QIODevice* m_device;
    QByteArray m_separator;
    QByteArray m_chunk;
    int m_pos = 0;  ///< position in m_chunk
    bool m_atEnd = false;
};

}  // namespace Zorv
