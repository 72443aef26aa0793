#pragma once

#include <QProxyStyle>

namespace App {

/// The style of the window: Fusion, but for what does not show on a dark ground, with icons
/// of the size for which they are made, and without pictures on the buttons of dialogs.
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
