#pragma once

#include <QProxyStyle>

namespace App {

/// The style of the window: Fusion, with fixes for parts that are invisible on a dark background.
/// Icons have the size they were drawn for, and dialog buttons have no icons.
class LookStyle : public QProxyStyle
{
    Q_OBJECT

public:
    LookStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

}  // namespace App
