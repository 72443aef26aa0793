#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>

namespace App {

/// One sprite, as large as whole multiples of its pixels fit, with a cross at its axis.
class SpritePicture : public QWidget
{
    Q_OBJECT

public:
    explicit SpritePicture(QWidget* parent = nullptr);

    /// A null image with `broken` tells the person that there is something, but broken.
    void setSprite(const QImage& image, QPoint axis, bool broken);

    /// The pixel below a place of the widget; outside of the image if there is none.
    QPoint pixelAt(QPoint place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

    /// The tool tip of a pixel: its place and colour.
    bool event(QEvent* event) override;

private:
    double zoom() const;
    QRectF imageRect() const;
    QString pixelText(QPoint pixel) const;

    QImage m_image;
    QPoint m_axis;
    bool m_isBroken = false;
};

}  // namespace App
