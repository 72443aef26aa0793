#include "media/bmppixels_p.h"

#include "media/bitmapinfoheader.h"
#include "media/imagesize_p.h"

#include <QDataStream>
#include <QtEndian>

#include <climits>
#include <cstring>

// Qt's BMP reader accepts a truncated file and leaves its missing rows as uninitialised memory. So
// the end of the last row is found before Qt reads the file. For plain rows the position is
// computed. For run-length data the runs are followed, with each step taken as Qt takes it.

namespace Zorv {

namespace {

const int FileHeader = 14;
const int LargestInfo = 124;
const int MaxColors = 256;
const qint64 MaxPixels = qint64(16384) * 16384;

// A run of 255 pixels takes two bytes.
const int RunRatio = 128;

enum InfoSize : quint32 { OldInfo = 12, WindowsInfo = 40, OS2Info = 64, Windows4Info = 108 };

bool isOldInfo(quint32 size)
{
    return size != WindowsInfo && size != OS2Info && size != Windows4Info && size != LargestInfo;
}

/// The header in front of the pixels. The older form, from before Windows 3, has fewer and shorter
/// fields.
BITMAPINFOHEADER infoOf(const QByteArray& head)
{
    QDataStream stream(head.mid(FileHeader));
    stream.setByteOrder(QDataStream::LittleEndian);
    BITMAPINFOHEADER info;
    stream >> info;
    if (!isOldInfo(info.biSize)) {
        return info;
    }
    BITMAPINFOHEADER old;
    qint16 width = 0;
    qint16 height = 0;
    stream.device()->seek(0);
    stream >> old.biSize >> width >> height >> old.biPlanes >> old.biBitCount;
    old.biWidth = width;
    old.biHeight = height;
    return old;
}

/// Follows run-length data through the rows. Memory holds the rows from last to first.
class RunWalk
{
public:
    RunWalk(const QByteArray& runs, int bits, QSize size)
        : m_runs(runs), m_bits(bits), m_width(size.width()), m_height(size.height()),
          m_rowSize((size.width() + 3) / 4 * 4)
    {
    }

    /// True if the runs reach the end mark, or exactly the last pixel.
    bool isWhole()
    {
        while (m_y < m_height) {
            const int count = next();
            const int value = next();
            if (count <= 0 && value < 0) {
                return m_isFilled;
            }
            if (value < 0 || !(count > 0 ? move(count) : follow(value))) {
                return false;
            }
        }
        return true;
    }

private:
    enum Escape { EndOfRow = 0, EndMark = 1, Jump = 2 };

    int next() { return m_at < m_runs.size() ? uchar(m_runs[m_at++]) : -1; }

    /// Limits a run to the end of the picture. It may continue into the next row.
    int room(int count) const
    {
        const qint64 end = (m_height - 1) * m_rowSize + m_width;
        const qint64 place = (m_height - 1 - m_y) * m_rowSize + m_x;
        return int(qMin<qint64>(count, end - place));
    }

    bool move(int count)
    {
        m_x += room(count);
        m_isFilled = m_isFilled || (m_y == m_height - 1 && m_x >= m_width);
        return true;
    }

    bool follow(int escape)
    {
        switch (escape) {
        case EndOfRow:
            m_x = 0;
            ++m_y;
            return true;
        case EndMark:
            m_y = m_height;
            return true;
        case Jump: {
            const int right = next();
            const int up = next();
            m_x = qMin(m_x + right, m_width - 1);
            m_y = qMin(m_y + up, m_height - 1);
            return up >= 0;
        }
        default:
            return copy(escape);
        }
    }

    /// Literal pixels, padded to a whole word.
    bool copy(int count)
    {
        const int pixels = room(count);
        const int bytes = m_bits == 8 ? pixels : (pixels + 1) / 2;
        m_at += bytes;
        const bool isThere = m_at <= m_runs.size();
        m_at += bytes & 1;
        return isThere && move(pixels);
    }

    const QByteArray& m_runs;
    const int m_bits;
    const qint64 m_width;
    const qint64 m_height;
    const qint64 m_rowSize;
    int m_at = 0;
    qint64 m_x = 0;
    qint64 m_y = 0;
    bool m_isFilled = false;
};

}  // namespace

BMPPixels::BMPPixels(QIODevice* device) : m_device(device)
{
    const QByteArray head = device->peek(FileHeader + LargestInfo);
    const BITMAPINFOHEADER info = infoOf(head);
    const bool hasSize = info.biWidth > 0 && info.biHeight != 0 && info.biHeight != INT_MIN &&
                         qint64(info.biWidth) * qAbs(info.biHeight) <= MaxPixels;
    const bool hasTable = info.biBitCount <= 8;
    if (!hasSize || info.biCompression > Masks || (hasTable && info.biClrUsed > MaxColors)) {
        return;
    }
    m_size = QSize(info.biWidth, qAbs(info.biHeight));
    m_bits = info.biBitCount;
    m_compression = info.biCompression;
    m_start = FileHeader + qint64(info.biSize);
    if (hasTable) {
        const int colors = info.biClrUsed > 0 ? int(info.biClrUsed) : 1 << m_bits;
        m_start += colors * (info.biSize == OldInfo ? 3 : 4);
    } else if (m_compression == Masks && info.biSize < Windows4Info) {
        m_start += 3 * sizeof(quint32);
    }
    // The header states where the pixels begin. A value that points into the header itself is
    // ignored.
    m_start = qMax<qint64>(m_start, qFromLittleEndian<qint32>(head.constData() + 10));
}

bool BMPPixels::hasRuns() const
{
    return m_compression == Runs8 || m_compression == Runs4;
}

qint64 BMPPixels::missing() const
{
    if (m_size.isEmpty()) {
        return 0;
    }
    if (hasRuns()) {
        return areRunsWhole() ? 0 : INT_MAX;
    }
    const qint64 rows = rowBits() / 8 * m_size.height();
    return qMax<qint64>(0, m_start + rows - m_device->bytesAvailable());
}

qint64 BMPPixels::rowPadding() const
{
    return (rowBits() - qint64(m_size.width()) * m_bits) / 8;
}

QImage BMPPixels::ground() const
{
    QImage image(hasRuns() ? m_size : QSize(), QImage::Format_Indexed8);
    if (!image.isNull()) {
        std::memset(image.bits(), 0, size_t(image.sizeInBytes()));
    }
    return image;
}

/// Rows are padded to 32 bits.
qint64 BMPPixels::rowBits() const
{
    return (qint64(m_size.width()) * m_bits + 31) / 32 * 32;
}

bool BMPPixels::areRunsWhole() const
{
    const double pixels = double(m_size.width()) * m_size.height();
    if (!isHonestSize(pixels, m_bits, double(m_device->bytesAvailable()) * RunRatio)) {
        return false;
    }
    const qint64 begin = m_device->pos();
    if (m_start >= m_device->bytesAvailable() || !m_device->seek(begin + m_start)) {
        return false;
    }
    const QByteArray runs = m_device->readAll();
    return m_device->seek(begin) && RunWalk(runs, m_bits, m_size).isWhole();
}

}  // namespace Zorv
