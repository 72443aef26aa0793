#include "image/canvas/pixelmarks.h"

#include <QRect>

namespace Zorv {

namespace {

std::size_t wordOf(int x)
{
    return std::size_t(x) / 64;
}

quint64 bitOf(int x)
{
    return quint64(1) << (x % 64);
}

}  // namespace

PixelMarks::PixelMarks(const QSize& size)
    : m_size(size), m_rows(std::size_t(qMax(size.height(), 0)))
{
}

bool PixelMarks::mark(const QPoint& pixel)
{
    if (!QRect(QPoint(), m_size).contains(pixel)) {
        return false;
    }
    std::vector<quint64>& row = m_rows[std::size_t(pixel.y())];
    row.resize(wordOf(m_size.width() - 1) + 1);
    quint64& word = row[wordOf(pixel.x())];
    const quint64 bit = bitOf(pixel.x());
    const bool isNew = !(word & bit);
    word |= bit;
    return isNew;
}

void PixelMarks::unmark(const QPoint& pixel)
{
    if (QRect(QPoint(), m_size).contains(pixel) && !m_rows[std::size_t(pixel.y())].empty()) {
        m_rows[std::size_t(pixel.y())][wordOf(pixel.x())] &= ~bitOf(pixel.x());
    }
}

}  // namespace Zorv
