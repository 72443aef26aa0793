#pragma once

#include <QProxyStyle>

namespace App {

/// The style of the window: Fusion, but for what that draws black on any ground, and with
/// icons of the size for which they are made.
class LookStyle : public QProxyStyle
{
    Q_OBJECT

public:
    LookStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

}  // namespace App
