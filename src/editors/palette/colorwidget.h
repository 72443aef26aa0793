#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QColor>
#include <QWidget>

namespace Zorv {

/// A well that shows one colour, with squares behind one that is not opaque. Main thread only.
class ZORV_EXPORT ColorWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows opaque black. It is 16 pixels high.
    explicit ColorWidget(QWidget* parent = nullptr);

    QColor color() const { return m_color; }

    /// Takes the colour as 0xAARRGGBB.
    void setColor(const unsigned int& color);

    /// Paints it as somebody else sees it.
    void setColorSight(const ColorSight& sight);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color = Qt::black;
    ColorSight m_sight;
};

}  // namespace Zorv
