#include "editors/code/numberpainter_p.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>

#include <algorithm>

namespace Zorv {

void NumberPainter::setFont(const QFont& font)
{
    if (m_glyphsFont.isValid() && font == m_font) {
        return;
    }
    const QFontMetricsF metrics(font);
    m_font = font;
    m_ascent = metrics.ascent();
    m_glyphsFont = QRawFont::fromFont(font);
    const QVector<quint32> glyphs =
        m_glyphsFont.glyphIndexesForString(QStringLiteral("0123456789"));
    if (glyphs.size() != int(m_glyphs.size()) || glyphs.contains(0)) {
        m_glyphsFont = QRawFont();
        return;
    }
    std::copy(glyphs.begin(), glyphs.end(), m_glyphs.begin());
    for (int digit = 0; digit < 10; ++digit) {
        m_widths[std::size_t(digit)] = metrics.horizontalAdvance(QChar('0' + digit));
    }
}

void NumberPainter::draw(QPainter* painter, const QPointF& topRight, int number) const
{
    const QPointF baseline = topRight + QPointF(0, m_ascent);
    if (!m_glyphsFont.isValid()) {
        const QString text = QString::number(number);
        const qreal width = QFontMetricsF(m_font).horizontalAdvance(text);
        painter->setFont(m_font);
        painter->drawText(baseline - QPointF(width, 0), text);
        return;
    }
    QVector<quint32> glyphs;
    QVector<QPointF> places;
    qreal x = 0;
    for (int rest = number; rest > 0 || glyphs.isEmpty(); rest /= 10) {
        const auto digit = std::size_t(rest % 10);
        x -= m_widths[digit];
        glyphs.append(m_glyphs[digit]);
        places.append(QPointF(x, 0));
    }
    QGlyphRun run;
    run.setRawFont(m_glyphsFont);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    painter->drawGlyphRun(baseline, run);
}

}  // namespace Zorv
