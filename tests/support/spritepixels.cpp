#include "support/spritepixels.h"

#include <QPainter>
#include <QRandomGenerator>

namespace SpritePixels {

const char* name(Kind kind)
{
    static constexpr const char* names[kinds] = {"drawn",    "dithered",  "gradient", "few colours",
                                                 "repeated", "long runs", "flat",     "noise"};
    return names[kind];
}

namespace {

QByteArray drawn(int width, int height, int colors, QRandomGenerator& random)
{
    QImage canvas(width, height, QImage::Format_Grayscale8);
    canvas.fill(0);
    QPainter painter(&canvas);
    for (int i = 0; i < 24; ++i) {
        const int shade = random.bounded(colors), outline = random.bounded(colors);
        const QRect box(random.bounded(width), random.bounded(height),
                        1 + random.bounded(width / 2 + 1), 1 + random.bounded(height / 2 + 1));
        painter.setPen(qRgb(outline, outline, outline));
        painter.setBrush(QColor(shade, shade, shade));
        i % 3 ? painter.drawEllipse(box) : painter.drawRoundedRect(box, 5, 5);
    }
    painter.end();
    return pixels(canvas);
}

char ditheredPixel(int x, int y, int colors)
{
    const int area = (x / 24 + y / 40 * 3) % colors;
    return char((x ^ y) & 1 ? area : (area + 1) % colors);
}

/// Appends runs or copies until there are enough pixels.
QByteArray pieces(Kind kind, int total, int colors, QRandomGenerator& random)
{
    static constexpr int lengths[] = {1, 2, 6, 7, 8, 9, 63, 64, 65, 257, 258, 259, 263, 264};
    QByteArray out;
    while (out.size() < total) {
        const int length = lengths[random.bounded(kind == LongRuns ? 14 : 10)];
        if (kind == FewColors) {
            out += QByteArray(1 + random.bounded(4), char(random.bounded(qMin(3, colors))));
        } else if (kind == Repeated && random.bounded(3) > 0 && !out.isEmpty()) {
            const int distance =
                1 + random.bounded(qMin(out.size(), random.bounded(2) ? 300 : 1100));
            for (int i = 0; i < length; ++i) {
                out += out[out.size() - distance];
            }
        } else {
            out += QByteArray(kind == Repeated ? 1 + random.bounded(3) : length,
                              char(random.bounded(colors)));
        }
    }
    return out.left(total);
}

}  // namespace

QByteArray make(Kind kind, int width, int height, int colors, QRandomGenerator& random)
{
    if (kind == Drawn) {
        return drawn(width, height, colors, random);
    }
    if (kind == Repeated || kind == LongRuns || kind == FewColors) {
        return pieces(kind, width * height, colors, random);
    }
    QByteArray out(width * height, char(colors / 2));
    for (int i = 0; i < out.size(); ++i) {
        const int x = i % width, y = i / width;
        if (kind == Noise) {
            out[i] = char(random.bounded(colors));
        } else if (kind == Dithered) {
            out[i] = ditheredPixel(x, y, colors);
        } else if (kind == Gradient) {
            out[i] = char((y < height / 2 ? x / 8 : (x + 3 * y) / 5) % colors);
        }
    }
    return out;
}

QImage image(const QByteArray& pixels, int width, int height)
{
    QImage out(width, height, QImage::Format_Indexed8);
    QVector<QRgb> grey;
    for (int i = 0; i < 256; ++i) {
        grey += qRgb(i, i, i);
    }
    out.setColorTable(grey);
    for (int y = 0; y < height; ++y) {
        memcpy(out.scanLine(y), pixels.constData() + y * width, size_t(width));
    }
    return out;
}

QByteArray pixels(const QImage& image)
{
    QByteArray out;
    for (int y = 0; y < image.height(); ++y) {
        out.append(reinterpret_cast<const char*>(image.constScanLine(y)), image.width());
    }
    return out;
}

}  // namespace SpritePixels
