#include "image/tools/imagetool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace Zorv {

ImageTool::ImageTool(ImageCanvas* canvas, QWidget* widget, QObject* parent)
    : QObject(parent), m_widget(widget ? widget : new QWidget), m_canvas(canvas)
{
}

ImageTool::~ImageTool()
{
    delete m_widget;
}

void ImageTool::activated()
{
    activeLayerChanged();
}

void ImageTool::deactivated()
{
    mouseLost();
}

void ImageTool::activeLayerChanged() {}

bool ImageTool::keyPressed(Qt::KeyboardModifiers, int)
{
    return false;
}

void ImageTool::mousePressed(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint screen,
                             QPoint image, QCursor&)
{
    beginPress(button, screen, image);
}

void ImageTool::mouseReleased(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint, QPoint image,
                              QCursor&)
{
    setLastPos(image);
    endPress(button);
}

void ImageTool::mouseMoved(Qt::KeyboardModifiers, QPoint, QPoint image, QCursor&)
{
    setLastPos(image);
}

void ImageTool::renderCursor(QPainter&, QPoint, double) {}

bool ImageTool::colorClicked(bool, unsigned char)
{
    return false;
}

void ImageTool::mouseLost()
{
    m_buttons = {};
}

void ImageTool::mouseLeft() {}

int ImageTool::brushWidth() const
{
    return 1;
}

QWidget* ImageTool::widget() const
{
    return m_widget;
}

void ImageTool::setWidget(QWidget* widget)
{
    m_widget = widget;
}

bool ImageTool::isPressed() const
{
    return m_buttons != 0;
}

ImageCanvas* ImageTool::canvas() const
{
    return m_canvas;
}

ImageLayer* ImageTool::paintedLayer() const
{
    ImageLayer* layer = m_canvas ? m_canvas->activeLayer() : nullptr;
    return layer && layer->isVisible() ? layer : nullptr;
}

bool ImageTool::beginPress(Qt::MouseButton button, QPoint screen, QPoint image)
{
    const bool begins = !m_buttons;
    m_buttons |= button;
    if (begins) {
        m_pressPos = screen;
        m_lastPos = image;
    }
    return begins && m_buttons;
}

bool ImageTool::endPress(Qt::MouseButton button)
{
    const bool wasPressed = m_buttons != 0;
    m_buttons &= ~Qt::MouseButtons(button);
    return wasPressed && !m_buttons;
}

QPoint ImageTool::pressPos() const
{
    return m_pressPos;
}

QPoint ImageTool::lastPos() const
{
    return m_lastPos;
}

void ImageTool::setLastPos(QPoint image)
{
    m_lastPos = image;
}

void ImageTool::setColor(QPainter& painter, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
}

void ImageTool::drawPlainLine(QPainter& painter, const QPoint& from, const QSize& size)
{
    painter.drawRect(QRect(from, size.expandedTo({1, 1})));
}

void ImageTool::drawPlainRect(QPainter& painter, const QRect& rect)
{
    drawPlainLine(painter, rect.topLeft(), {rect.width(), 1});
    drawPlainLine(painter, rect.bottomLeft(), {rect.width(), 1});
    drawPlainLine(painter, rect.topLeft(), {1, rect.height()});
    drawPlainLine(painter, rect.topRight(), {1, rect.height()});
}

}  // namespace Zorv
