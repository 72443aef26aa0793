#pragma once

#include "media/tools/savegif.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

/// Animations as they come from fighting games, on canvases of one size. All are indexed; index 0
/// is transparent where anything is.
namespace Animations {

using Zorv::GIFFrame;

struct Animation
{
    const char* name;
    QVector<GIFFrame> frames;
};

inline QVector<QRgb> colors(int count, bool solid, quint32 seed = 7)
{
    QRandomGenerator random(seed);
    QVector<QRgb> result = {solid ? qRgb(8, 8, 16) : qRgba(0, 0, 0, 0)};
    while (result.size() < count) {
        const int hue = int(result.size()) * 359 / count;
        result << QColor::fromHsv(hue, 80 + random.bounded(150), 60 + random.bounded(190)).rgb();
    }
    return result;
}

inline QImage indexed(const QImage& painted, const QVector<QRgb>& table)
{
    return painted.convertToFormat(QImage::Format_Indexed8, table, Qt::ThresholdDither);
}

/// A figure of limbs, shaded, leaning by `phase` from 0 to 1.
inline void drawFigure(QPainter& painter, const QPointF& at, double phase,
                       const QVector<QRgb>& table)
{
    const double swing = 12 * std::sin(phase * 6.283);
    const auto part = [&](double x, double y, double w, double h, int color) {
        painter.setPen(QColor(table[1]));
        painter.setBrush(QColor(table[color]));
        painter.drawEllipse(QRectF(at.x() + x, at.y() + y, w, h));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(table[color + 1]));
        painter.drawEllipse(QRectF(at.x() + x + w / 6, at.y() + y + h / 8, w / 2, h / 2));
    };
    part(-10 - swing, 60, 14, 46, 8);
    part(2 + swing, 60, 14, 46, 8);
    part(-16, 18 + swing / 6, 34, 50, 12);
    part(-24 + swing, 24, 12, 36, 4);
    part(14 - swing, 24, 12, 36, 4);
    part(-11, -4 + swing / 6, 22, 24, 4);
    part(-12, -8 + swing / 6, 24, 12, 16);
}

template <class Paint>
Animation make(const char* name, int count, const QSize& size, const QVector<QRgb>& table,
               Paint paint)
{
    Animation animation{name, {}};
    for (int i = 0; i < count; ++i) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(table[0]);
        QPainter painter(&image);
        paint(painter, i, double(i) / count);
        painter.end();
        animation.frames.append({indexed(image, table), {}, 4});
    }
    return animation;
}

inline void drawScene(QPainter& painter, const QSize& size, const QVector<QRgb>& table, int shift)
{
    QRandomGenerator random(3);
    for (int i = 0; i < 160; ++i) {
        const int x =
            (random.bounded(size.width() * 2) - shift + size.width() * 4) % (size.width() * 2);
        const QRect rect(x - 40, random.bounded(size.height()), 10 + random.bounded(70),
                         6 + random.bounded(40));
        painter.fillRect(rect, QColor(table[20 + i % 40]));
        painter.fillRect(rect.adjusted(2, 2, -4, -4),
                         QBrush(QColor(table[21 + i % 40]), Qt::Dense5Pattern));
    }
}

inline QVector<Animation> all()
{
    const QVector<QRgb> clear = colors(64, false);
    const QVector<QRgb> solid = colors(64, true);
    const QSize small(128, 128);
    const QSize large(320, 240);
    QVector<Animation> result;
    result << make("standing figure", 12, small, clear, [&](QPainter& painter, int, double t) {
        drawFigure(painter, {60, 12}, t / 4, clear);
    });
    result << make("walking figure", 16, large, clear, [&](QPainter& painter, int i, double t) {
        drawFigure(painter, {20.0 + 17 * i, 100}, t * 2, clear);
    });
    result << make("figure on a stage", 16, large, solid, [&](QPainter& painter, int i, double t) {
        drawScene(painter, large, solid, 0);
        drawFigure(painter, {20.0 + 17 * i, 100}, t * 2, solid);
    });
    result << make("scrolling stage", 12, large, solid, [&](QPainter& painter, int i, double t) {
        drawScene(painter, large, solid, 5 * i);
        drawFigure(painter, {150, 100}, t * 2, solid);
    });
    result << make("two poses by turns", 12, small, clear, [&](QPainter& painter, int i, double) {
        drawFigure(painter, {60, 12}, i % 2 == 0 ? 0.1 : 0.7, clear);
    });
    result << make("growing spark", 10, small, clear, [&](QPainter& painter, int i, double) {
        for (int ring = 0; ring < 6; ++ring) {
            painter.setBrush(QBrush(QColor(clear[20 + 5 * ring]), Qt::Dense3Pattern));
            const int radius = qMax(2, 8 * i - 10 * ring);
            painter.drawEllipse(QPoint(64, 64), radius, radius);
        }
    });
    for (int i = 0; i < 8; ++i) {
        const QVector<QRgb> table = colors(64, true, quint32(i));
        Animation part =
            make("colours that fade", 1, large, table,
                 [&](QPainter& painter, int, double) { drawScene(painter, large, table, 0); });
        if (i == 0) {
            result << part;
        } else {
            result.last().frames += part.frames;
        }
    }
    QRandomGenerator random(11);
    Animation noise{"noise", {}};
    for (int i = 0; i < 6; ++i) {
        QImage image(small, QImage::Format_Indexed8);
        image.setColorTable(solid);
        for (int y = 0; y < image.height(); ++y) {
            std::generate_n(image.scanLine(y), image.width(),
                            [&random] { return uchar(random.bounded(64)); });
        }
        noise.frames.append({image, {}, 4});
    }
    result << noise;
    return result;
}

}  // namespace Animations
