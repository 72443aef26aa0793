#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QColor>
#include <QWidget>

namespace Zorv {

/// A well that shows one colour, on a chequerboard if it is not opaque. Main thread only.
class ZORV_EXPORT ColorWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows opaque black. Fixed height of 16 pixels.
    explicit ColorWidget(QWidget* parent = nullptr);

    QColor color() const { return m_color; }

    /// Sets the colour as 0xAARRGGBB.
    void setColor(const unsigned int& color);

    /// Simulates how people with another colour vision see the colour.
    void setColorSight(const ColorSight& sight);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color = Qt::black;
    ColorSight m_sight;
};

}  // namespace Zorv
