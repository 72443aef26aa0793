#pragma once

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

/// A picture as they are drawn for games: flat shapes with dark outlines, some shading and some
/// patterns of single pixels, in 64 colours of which the first one is transparent.
inline QImage drawnPicture(const QSize& size)
{
    QRandomGenerator random(20);
    QVector<QRgb> colors = {qRgba(0, 0, 0, 0), qRgb(16, 12, 20)};
    while (colors.size() < 64) {
        colors << qRgb(random.bounded(256), random.bounded(256), random.bounded(256));
    }
    QImage painted(size, QImage::Format_ARGB32);
    painted.fill(colors.first());
    QPainter painter(&painted);
    for (int i = 0; i < size.width() * size.height() / 1500; ++i) {
        const QPoint at(random.bounded(size.width()), random.bounded(size.height()));
        const QSize extent(random.bounded(4, 60), random.bounded(4, 60));
        painter.setPen(colors[1]);
        painter.setBrush(QColor(colors[random.bounded(2, 64)]));
        i % 3 != 0 ? painter.drawEllipse(QRect(at, extent)) : painter.drawRect(QRect(at, extent));
        painter.fillRect(QRect(at + QPoint(3, 3), extent / 2),
                         QBrush(QColor(colors[random.bounded(2, 64)]), Qt::Dense4Pattern));
    }
    painter.end();
    return painted.convertToFormat(QImage::Format_Indexed8, colors, Qt::ThresholdDither);
}
