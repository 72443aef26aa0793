#pragma once

#include <QFont>
#include <QRawFont>
#include <QVector>

#include <array>

class QPainter;
class QPointF;

namespace Zorv {

/// Draws numbers from cached digit glyphs. Each keystroke repaints a number for every
/// line on the screen; drawn as text they would cost as much as the lines themselves.
class NumberPainter
{
public:
    void setFont(const QFont& font);

    /// Draws a non-negative number with its top right corner at a point.
    void draw(QPainter* painter, const QPointF& topRight, int number) const;

private:
    QFont m_font;
    QRawFont m_glyphsFont;  ///< invalid before setFont(), or if the font has no digits
    std::array<quint32, 10> m_glyphs{};
    std::array<qreal, 10> m_widths{};
    qreal m_ascent = 0;
};

}  // namespace Zorv
