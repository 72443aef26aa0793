#pragma once

#include "graphics/glcontext.h"
#include "graphics/renderer.h"
#include "graphics/renderwidget.h"
#include "graphics/texture.h"
#include "support/gltest.h"

#include <QMatrix4x4>
#include <QPainter>

#include <functional>
#include <memory>
#include <vector>

using namespace Zorv;

constexpr QSize Size(64, 48);

/// Draws what a test wants, and writes down what comes in.
class Canvas : public Renderer
{
public:
    void keyPressed(int key, Qt::KeyboardModifiers modifiers) override
    {
        events += QStringLiteral("press %1 %2").arg(key).arg(int(modifiers));
    }
    void keyReleased(int key, Qt::KeyboardModifiers) override
    {
        events += QStringLiteral("release %1").arg(key);
    }
    void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers) override
    {
        events += QStringLiteral("down %1,%2 %3").arg(pos.x()).arg(pos.y()).arg(button);
    }
    void mouseReleased(QPoint pos, Qt::MouseButton, Qt::KeyboardModifiers) override
    {
        events += QStringLiteral("up %1,%2").arg(pos.x()).arg(pos.y());
    }
    void mouseMoved(QPoint pos, Qt::KeyboardModifiers) override
    {
        events += QStringLiteral("move %1,%2").arg(pos.x()).arg(pos.y());
    }
    void mouseWheel(int delta) override { events += QStringLiteral("wheel %1").arg(delta); }
    void pointerMoved(QPointF pos) override { pointer = pos; }
    void focusLost() override { events += QStringLiteral("focus lost"); }
    void mouseLeft() override { events += QStringLiteral("left"); }
    void grabLost() override { events += QStringLiteral("grab lost"); }
    void sizeChanged(int width, int height) override { size = QSize(width, height); }
    QColor clearColor() const override { return QColor(20, 40, 60, 0); }
    void render(QPainter& painter) override
    {
        if (underneath) {
            underneath(painter);
        }
        painter.beginNativePainting();
        glBeginTextureDrawing();
        if (draw) {
            draw();
        }
        glEndTextureDrawing();
        painter.endNativePainting();
    }

    std::function<void(QPainter&)> underneath;
    std::function<void()> draw;
    QStringList events;
    QPointF pointer;
    QSize size;
};

constexpr QRgb Ground = qRgb(20, 40, 60);

struct Fixture
{
    Canvas canvas;
    RenderWidget widget;

    Fixture()
    {
        widget.resize(Size);
        widget.setRenderer(&canvas);
        widget.show();
    }
};
inline std::unique_ptr<Fixture> s;

inline QImage painted()
{
    return s->widget.grabFramebuffer().convertToFormat(QImage::Format_RGB32);
}

/// All different, with every alpha; index 0 is transparent.
inline std::vector<RGBA> palette(int seed)
{
    std::vector<RGBA> colors;
    for (int i = 0; i < 256; ++i) {
        colors.push_back(RGBA{quint8(i), quint8(255 - i), quint8(seed * 50 + i / 3),
                              quint8(i == 0 ? 0 : 255 - i % 7 * 30)});
    }
    return colors;
}

inline QImage indices(int width, int height)
{
    QImage image(width, height, QImage::Format_Indexed8);
    image.setColorTable(QVector<QRgb>(256, 0));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, uint((x + y * width) * 3 % 256));
        }
    }
    return image;
}

inline QImage inColor(const QImage& image, const std::vector<RGBA>& colors)
{
    QImage result(image.size(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const RGBA c = colors[size_t(image.pixelIndex(x, y))];
            result.setPixel(x, y, qRgba(c.r, c.g, c.b, c.a));
        }
    }
    return result;
}

inline QMatrix4x4 placed(QRect rect)
{
    QMatrix4x4 matrix;
    matrix.translate(rect.x(), rect.y());
    matrix.scale(rect.width(), rect.height());
    return matrix;
}

inline QImage ground()
{
    QImage image(Size, QImage::Format_RGB32);
    image.fill(Ground);
    return image;
}

inline void setAlphaBlending()
{
    s->canvas.glSetBlend(true);
    s->canvas.glSetBlendEquation(Renderer::Add);
    s->canvas.glSetBlendFunction(Renderer::SourceAlpha, Renderer::OneMinusSourceAlpha);
}
