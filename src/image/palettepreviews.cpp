#include "image/palettepreviews.h"

#include "editors/palette/palettecell_p.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageforms_p.h"
#include "image/canvas/imagelayer.h"
#include "image/previewgrid_p.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <QtMath>

#include <algorithm>
#include <cstring>

// The canvas is flattened once into an indexed picture. Every preview draws the same pixels with
// its own colour table, so another palette costs no flattening. A change of the canvas marks a
// rectangle as dirty; it is flattened when the widget is painted, so never while it is hidden.

namespace Zorv {

namespace {

constexpr int Gap = 6;
constexpr int Square = 8;
const QColor LightGray(208, 208, 208);

bool isShown(const ImageCanvas* canvas)
{
    return canvas && canvas->format() == ImageCanvas::IndexedFormat;
}

}  // namespace

class PalettePreviewsPrivate
{
public:
    explicit PalettePreviewsPrivate(PalettePreviews* widget) : owner(widget) {}

    void partChanged(const QRect& part);
    void flattenDirty();
    void fit();
    void update(const QRect& pixels) const;
    QPoint devicePlace(const QPoint& place) const;

    void paint(const QPaintEvent* event);
    void paintPicture(QPainter* painter, const QRect& exposed, int index) const;
    void paintLabel(QPainter* painter, int index) const;
    QString message() const;

    void setCurrent(int index);
    void choose(int index);

    PalettePreviews* owner;
    QPointer<const ImageCanvas> canvas;
    QVector<PalettePreviews::Preview> previews;
    QImage picture;  // indexed, in the size of the canvas; outdated within `dirty`
    QRect dirty;
    PreviewGrid grid;
    double ratio = 1;
    int current = -1;
    ColorSight sight;
};

void PalettePreviewsPrivate::partChanged(const QRect& part)
{
    if (!isShown(canvas) || picture.size() != canvas->size()) {
        fit();
        return;
    }
    dirty |= part & picture.rect();
    for (int i = 0; i < grid.count(); ++i) {
        update(grid.part(i, part & picture.rect()));
    }
}

/// Repaints a rectangle given in screen pixels.
void PalettePreviewsPrivate::update(const QRect& pixels) const
{
    const QPoint from(qFloor(pixels.left() / ratio), qFloor(pixels.top() / ratio));
    const QPoint to(qCeil((pixels.right() + 1) / ratio), qCeil((pixels.bottom() + 1) / ratio));
    owner->update(QRect(from, QSize(to.x() - from.x(), to.y() - from.y())));
}

void PalettePreviewsPrivate::flattenDirty()
{
    const QRect part = dirty;
    dirty = {};
    if (part.isEmpty() || !isShown(canvas)) {
        return;
    }
    const QImage merged = canvas->mergePart(part);
    if (merged.size() != part.size() || merged.format() != QImage::Format_Indexed8) {
        return;
    }
    for (int y = 0; y < part.height(); ++y) {
        std::memcpy(picture.scanLine(part.top() + y) + part.left(), merged.constScanLine(y),
                    std::size_t(part.width()));
    }
}

/// Recomputes the layout, because the size of canvas, widget or screen pixels may have changed.
void PalettePreviewsPrivate::fit()
{
    const QSize size = isShown(canvas) ? canvas->size() : QSize();
    if (picture.size() != size) {
        picture = size.isEmpty() ? QImage() : emptyImage(size, QImage::Format_Indexed8);
        dirty = picture.rect();
    }
    ratio = owner->devicePixelRatioF();
    const QFontMetrics metrics = owner->fontMetrics();
    QSize label(0, metrics.height());
    for (const PalettePreviews::Preview& preview : qAsConst(previews)) {
        label.rwidth() = std::max(label.width(), metrics.horizontalAdvance(preview.name));
    }
    label = {qCeil(label.width() * ratio), qCeil(label.height() * ratio)};
    grid = PreviewGrid(owner->size() * ratio, picture.size(), previews.size(), label,
                       qRound(Gap * ratio));
    owner->update();
}

QPoint PalettePreviewsPrivate::devicePlace(const QPoint& place) const
{
    return {qFloor(place.x() * ratio), qFloor(place.y() * ratio)};
}

QString PalettePreviewsPrivate::message() const
{
    if (canvas && !isShown(canvas)) {
        return PalettePreviews::tr("The image has no palette: its colours are its own.");
    }
    return previews.isEmpty() || !canvas ? PalettePreviews::tr("There is no palette to show.")
                                         : QString();
}

void PalettePreviewsPrivate::paint(const QPaintEvent* event)
{
    if (ratio != owner->devicePixelRatioF()) {
        fit();
    }
    flattenDirty();
    QPainter painter(owner);
    const QString text = message();
    if (!text.isEmpty()) {
        painter.drawText(owner->rect(), Qt::AlignCenter | Qt::TextWordWrap, text);
        return;
    }
    for (int i = 0; i < grid.count(); ++i) {
        paintPicture(&painter, event->rect(), i);
        paintLabel(&painter, i);
    }
}

void PalettePreviewsPrivate::paintPicture(QPainter* painter, const QRect& exposed, int index) const
{
    const QRect place = grid.picture(index);
    const QRectF seen(place.x() / ratio, place.y() / ratio, place.width() / ratio,
                      place.height() / ratio);
    if (!seen.intersects(exposed)) {
        return;
    }
    CellPainter cells(painter);
    const QRectF pixels(exposed.x() * ratio, exposed.y() * ratio, exposed.width() * ratio,
                        exposed.height() * ratio);
    cells.paintChequer(place, pixels.toAlignedRect(), qRound(Square * ratio), LightGray);
    painter->drawImage(place, seenWith(sight, indexedView(picture, previews.at(index).colors)));
}

void PalettePreviewsPrivate::paintLabel(QPainter* painter, int index) const
{
    const QRect cell = grid.label(index);
    const QRectF place(cell.x() / ratio, cell.y() / ratio, cell.width() / ratio,
                       cell.height() / ratio);
    const bool isCurrent = index == current;
    const QPalette& colors = owner->palette();
    if (isCurrent) {
        painter->fillRect(place,
                          colors.color(owner->hasFocus() ? QPalette::Active : QPalette::Inactive,
                                       QPalette::Highlight));
    }
    painter->setPen(colors.color(isCurrent ? QPalette::HighlightedText : QPalette::WindowText));
    painter->drawText(place, Qt::AlignCenter,
                      painter->fontMetrics().elidedText(previews.at(index).name, Qt::ElideRight,
                                                        int(place.width())));
}

void PalettePreviewsPrivate::setCurrent(int index)
{
    current = index >= 0 && index < previews.size() ? index : -1;
    owner->setAccessibleDescription(current < 0 ? QString() : previews.at(current).name);
    owner->update();
}

void PalettePreviewsPrivate::choose(int index)
{
    if (index >= 0 && index < previews.size() && isShown(canvas)) {
        setCurrent(index);
        emit owner->chosen(index);
    }
}

PalettePreviews::PalettePreviews(QWidget* parent)
    : QWidget(parent), d(std::make_unique<PalettePreviewsPrivate>(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Palettes side by side"));
}

PalettePreviews::~PalettePreviews() = default;

void PalettePreviews::setCanvas(const ImageCanvas* canvas)
{
    if (d->canvas) {
        disconnect(d->canvas, nullptr, this, nullptr);
    }
    d->canvas = canvas;
    d->picture = QImage();
    if (canvas) {
        const auto fit = [this] { d->fit(); };
        connect(canvas, &ImageCanvas::partChanged, this,
                [this](const ImageLayer*, const QRect& part) { d->partChanged(part); });
        connect(canvas, &ImageCanvas::sizeChanged, this, fit);
        connect(canvas, &ImageCanvas::formatChanged, this, fit);
        connect(canvas, &QObject::destroyed, this, fit);
    }
    d->fit();
}

void PalettePreviews::setPreviews(const QVector<Preview>& previews)
{
    d->previews = previews.mid(0, MaxCount);
    for (Preview& preview : d->previews) {
        preview.colors.resize(256);
    }
    d->setCurrent(d->current);
    d->fit();
}

void PalettePreviews::refresh()
{
    d->dirty = d->picture.rect();
    d->fit();
}

void PalettePreviews::setColorSight(const ColorSight& sight)
{
    if (d->sight != sight) {
        d->sight = sight;
        update();
    }
}

int PalettePreviews::currentIndex() const
{
    return d->current;
}

void PalettePreviews::setCurrentIndex(int index)
{
    d->setCurrent(index);
}

int PalettePreviews::indexAt(const QPoint& place) const
{
    return d->grid.indexAt(d->devicePlace(place));
}

QSize PalettePreviews::sizeHint() const
{
    return {480, 160};
}

QSize PalettePreviews::minimumSizeHint() const
{
    return {120, 60};
}

bool PalettePreviews::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int index = indexAt(help->pos());
        QToolTip::showText(help->globalPos(), index < 0 ? QString() : d->previews.at(index).name,
                           this);
        return true;
    }
    return QWidget::event(event);
}

void PalettePreviews::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Palettes side by side"));
        update();
    } else if (event->type() == QEvent::FontChange) {
        d->fit();
    }
    QWidget::changeEvent(event);
}

void PalettePreviews::paintEvent(QPaintEvent* event)
{
    d->paint(event);
}

void PalettePreviews::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->fit();
}

void PalettePreviews::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        d->choose(indexAt(event->pos()));
    } else {
        QWidget::mouseReleaseEvent(event);
    }
}

void PalettePreviews::keyPressEvent(QKeyEvent* event)
{
    const int last = d->previews.size() - 1;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        d->setCurrent(std::max(d->current - 1, 0));
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        d->setCurrent(std::min(d->current + 1, last));
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        d->choose(d->current);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PalettePreviews::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void PalettePreviews::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace Zorv
