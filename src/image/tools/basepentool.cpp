#include "image/tools/basepentool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/pixeltiles_p.h"
#include "image/tools/straightline_p.h"
#include "image/tools/strokebrush_p.h"

#include <QCursor>
#include <QEvent>
#include <QPainter>
#include <QSlider>

#include <optional>

namespace Zorv {

namespace {

const int WidestPen = 24;

QSlider* newSlider()
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setRange(1, WidestPen);
    slider->setValue(1);
    return slider;
}

}  // namespace

class BasePenToolPrivate
{
public:
    /// A straight line that follows the mouse. Each move restores what it covered and draws it
    /// anew.
    struct Straight
    {
        QPoint anchor;
        PixelTiles covered;
        PixelMarks marks;
        StraightLine line;
    };

    QPointer<QSlider> slider;
    QString title;
    bool recordUndo;
    bool isLeftButton = false;
    bool isShift = false;
    bool isStroking = false;
    StrokeBrush brush;
    std::optional<Straight> straight;
    QRect written;                    ///< by the current `draw()`
    ImageLayer* lastLayer = nullptr;  ///< of the last stroke; only compared, never dereferenced
    std::optional<QPoint> lastDrawn;
};

BasePenTool::BasePenTool(ImageCanvas* canvas, bool recordUndo, const QString& title,
                         QObject* parent)
    : ImageTool(canvas, newSlider(), parent), d(std::make_unique<BasePenToolPrivate>())
{
    d->slider = static_cast<QSlider*>(widget());
    d->title = title;
    d->recordUndo = recordUndo;
    d->slider->installEventFilter(this);
    setTexts();
    connect(d->slider, &QSlider::valueChanged, this, &ImageTool::layerChanged);
    connect(canvas, &ImageCanvas::strokeEnded, this, [this] { endStroke(); });
    connect(canvas, &ImageCanvas::activeLayerChanged, this, &BasePenTool::forgetLast);
    connect(canvas, &ImageCanvas::sizeChanged, this, &BasePenTool::forgetLast);
}

BasePenTool::~BasePenTool() = default;

void BasePenTool::setStrokeOptions(StrokeOptions* options)
{
    d->brush.setOptions(options);
}

StrokeOptions* BasePenTool::strokeOptions() const
{
    return d->brush.options();
}

QSlider* BasePenTool::slider() const
{
    return d->slider;
}

void BasePenTool::setTexts()
{
    d->slider->setAccessibleName(tr("Width of the brush"));
    d->slider->setToolTip(tr("Width of the brush, in pixels (+ and -)"));
}

bool BasePenTool::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->slider && event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    return ImageTool::eventFilter(watched, event);
}

int BasePenTool::brushWidth() const
{
    return d->slider ? d->slider->value() : 1;
}

void BasePenTool::deactivated()
{
    ImageTool::deactivated();
    endStroke();
}

bool BasePenTool::keyPressed(Qt::KeyboardModifiers, int key)
{
    const int width = brushWidth();
    const int step = key == Qt::Key_Plus ? 1 : key == Qt::Key_Minus ? -1 : 0;
    const bool isUsed = step != 0 && width + step >= 1 && width + step <= WidestPen && d->slider;
    if (isUsed) {
        d->slider->setValue(width + step);
    }
    return isUsed;
}

void BasePenTool::mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                               QPoint screen, QPoint image, QCursor&)
{
    if (!beginPress(button, screen, image)) {
        return;
    }
    d->isLeftButton = button == Qt::LeftButton;
    d->isShift = modifiers & Qt::ShiftModifier;
    if (canStroke()) {
        beginStroke();
        draw(image);
    }
}

void BasePenTool::mouseReleased(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint, QPoint,
                                QCursor&)
{
    if (endPress(button)) {
        endStroke();
    }
}

void BasePenTool::mouseMoved(Qt::KeyboardModifiers modifiers, QPoint, QPoint image, QCursor& cursor)
{
    cursor = Qt::BlankCursor;
    if (!d->isStroking || !canStroke()) {
        setLastPos(image);
        return;
    }
    const StrokeOptions* options = d->brush.options();
    const bool isStraight = options && options->straightLines() && d->recordUndo;
    if (isStraight && (modifiers & Qt::ShiftModifier)) {
        drawStraight(image);
    } else {
        d->straight.reset();
        draw(image);
    }
}

void BasePenTool::mouseLost()
{
    ImageTool::mouseLost();
    endStroke();
}

void BasePenTool::renderCursor(QPainter& painter, QPoint pos, double zoom)
{
    const int side = qRound(brushWidth() * zoom + 2);
    const QRect box(pos - QPoint(side / 2, side / 2), QSize(side, side));
    setColor(painter, Qt::white);
    drawPlainRect(painter, box);
    setColor(painter, Qt::black);
    drawPlainRect(painter, box.adjusted(-1, -1, 1, 1));
}

bool BasePenTool::canStroke() const
{
    return paintedLayer();
}

ImagePainter* BasePenTool::strokePainter()
{
    return canvas()->painter();
}

void BasePenTool::beginRecord()
{
    canvas()->beginStroke(paintedLayer(), ImageCanvas::TiledStroke, d->title);
}

void BasePenTool::endRecord()
{
    canvas()->endStroke();
}

void BasePenTool::beginStroke()
{
    if (d->recordUndo) {
        beginRecord();
    }
    d->isStroking = true;
    d->straight.reset();
    d->brush.begin(canvas()->size());
    ImageLayer* layer = canvas()->activeLayer();
    if (layer != d->lastLayer) {
        d->lastDrawn.reset();
        d->lastLayer = layer;
    }
}

/// Also called when the canvas has ended the stroke itself.
void BasePenTool::endStroke()
{
    if (!d->isStroking) {
        return;
    }
    d->isStroking = false;
    d->straight.reset();
    if (d->recordUndo && canvas()) {
        endRecord();
    }
}

void BasePenTool::forgetLast()
{
    endStroke();
    d->lastDrawn.reset();
    d->lastLayer = nullptr;
}

void BasePenTool::draw(const QPoint& point)
{
    ImagePainter* painter = strokePainter();
    if (!painter) {
        return;
    }
    painter->setWidth(brushWidth());
    painter->setMarks(&d->brush.marks());
    painter->setAnnounce([this](const QRect& rect) { return announce(rect); });
    doDraw(point, painter);
    painter->setMarks(nullptr);
    painter->setAnnounce({});
    const QRect written = d->written | d->brush.takeRestored();
    d->written = QRect();
    if (!written.isEmpty()) {
        canvas()->changed(written);
    }
    setLastPos(point);
    emit layerChanged();
}

bool BasePenTool::announce(const QRect& rect)
{
    if (d->recordUndo && !canvas()->willChange(rect)) {
        return false;
    }
    if (d->straight) {
        d->straight->covered.save(*strokePainter()->image(), rect);
    }
    d->written |= rect;
    return true;
}

/// Draws the line again from its anchor, because the mouse has moved.
void BasePenTool::drawStraight(const QPoint& point)
{
    ImagePainter* painter = strokePainter();
    QImage* image = painter ? painter->image() : nullptr;
    if (!image) {
        return;
    }
    if (!d->straight) {
        d->straight = {lastPos(), PixelTiles(*image), d->brush.marks(), {}};
    } else {
        d->written = d->straight->covered.exchange(*image);
        d->straight->covered = PixelTiles(*image);
        d->brush.marks() = d->straight->marks;
    }
    d->straight->line = StraightLine::towards(d->straight->anchor, point);
    setLastPos(d->straight->anchor);
    draw(d->straight->line.end());
}

void BasePenTool::paint(ImagePainter* painter, const QPoint& point, Join join)
{
    if (d->straight) {
        d->brush.line(painter, d->straight->line);
    } else if (point != lastPos()) {
        d->brush.line(painter, lastPos(), point);
    } else if (join == Joined && d->isShift && d->lastDrawn) {
        d->brush.line(painter, *d->lastDrawn, point);
    } else {
        d->brush.point(painter, point);
    }
    d->lastDrawn = point;
}

bool BasePenTool::isLeftButton() const
{
    return d->isLeftButton;
}

bool BasePenTool::isShift() const
{
    return d->isShift;
}

void BasePenTool::setRecordUndo(bool isOn)
{
    d->recordUndo = isOn;
}

QString BasePenTool::title() const
{
    return d->title;
}

}  // namespace Zorv
