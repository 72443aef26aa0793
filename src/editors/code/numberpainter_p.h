#pragma once

#include <QFont>
#include <QRawFont>
#include <QVector>

#include <array>

class QPainter;
class QPointF;

namespace Zorv {

/// Draws numbers in a font. There is one for each line on the screen at each key, and
/// drawn as texts they would take as long as the lines themselves.
class NumberPainter
{
public:
    void setFont(const QFont& font);

    /// Draws a number that is not negative, with its top right corner at a place.
    void draw(QPainter* painter, const QPointF& topRight, int number) const;

private:
    QFont m_font;
    QRawFont m_glyphsFont;  ///< invalid before a font was set, and for one without digits
    std::array<quint32, 10> m_glyphs{};
    std::array<qreal, 10> m_widths{};
    qreal m_ascent = 0;
};

}  // namespace Zorv
