#include "editors/palette/palettewidget.h"

#include "editors/palette/palettecell_p.h"
#include "editors/palette/palettewidget_p.h"

#include <QColor>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Zorv {

namespace {

constexpr int SmallestCell = 6;
constexpr int LargestCell = 64;
constexpr double DisabledOpacity = 0.4;

}  // namespace

PaletteWidgetPrivate::PaletteWidgetPrivate(PaletteWidget* widget)
    : owner(widget), object(history.colors())
{
}

int PaletteWidgetPrivate::slotAt(const QPoint& place) const
{
    if (place.x() < 0 || place.y() < 0 || place.x() >= cellSize * columns) {
        return -1;
    }
    const int slot = place.x() / cellSize + columns * (place.y() / cellSize);
    return slot < colorCount ? slot : -1;
}

QRect PaletteWidgetPrivate::cellOf(int slot) const
{
    return {slot % columns * cellSize, slot / columns * cellSize, cellSize, cellSize};
}

QString PaletteWidgetPrivate::textOf(int slot) const
{
    const RGBA color = history.colors()[slot];
    const QString note = notes ? notes(slot) : QString();
    return PaletteWidget::tr("%1, %2, %3, %4\nIndex %5, %6")
               .arg(QString::number(color.r), QString::number(color.g), QString::number(color.b),
                    QString::number(color.a), QString::number(slot),
                    QColor(color.r, color.g, color.b).name()) +
           (note.isEmpty() ? note : QLatin1Char('\n') + note);
}

void PaletteWidgetPrivate::beginChange()
{
    if (!isLocked) {
        history.beginChange();
    }
}

void PaletteWidgetPrivate::paint(const QPaintEvent* event) const
{
    QPainter painter(owner);
    if (!owner->isEnabled()) {
        painter.setOpacity(DisabledOpacity);
    }
    CellPainter cells(&painter);
    const bool isFloating = dragging && pressed >= 0 && owner->rect().contains(dragPos);
    for (int slot = 0; slot < colorCount; ++slot) {
        const QRect cell = cellOf(slot);
        if (!event->rect().intersects(cell) || (isFloating && slot == pressed)) {
            continue;
        }
        CellMarks marks;
        marks.setFlag(CellMark::Selected, owner->selection[slot]);
        marks.setFlag(CellMark::Focused, slot == cursor && owner->hasFocus());
        cells.paintColor(cell, seenWith(sight, history.colors()[slot]), marks);
    }
    if (isFloating) {
        cells.paintColor(QRect(dragPos - pressOffset, QSize(cellSize, cellSize)),
                         seenWith(sight, history.colors()[pressed]), CellMark::Selected);
    }
}

PaletteWidget::PaletteWidget(QWidget* parent)
    : QWidget(parent), d(std::make_unique<PaletteWidgetPrivate>(this))
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Palette"));
    connect(&d->object, &PaletteObject::changing, this, [this] { d->beginChange(); });
    connect(&d->object, &PaletteObject::changed, this, [this] {
        update();
        emit changed();
    });
}

PaletteWidget::~PaletteWidget() = default;

PaletteObject* PaletteWidget::palette() const
{
    return &d->object;
}

int PaletteWidget::firstSelection() const
{
    const bool* const first = std::find(std::begin(selection), std::end(selection), true);
    return first == std::end(selection) ? 0 : int(first - selection);
}

void PaletteWidget::clearSelection()
{
    std::fill(std::begin(selection), std::end(selection), false);
    update();
}

unsigned short PaletteWidget::colorCount() const
{
    return static_cast<unsigned short>(d->colorCount);
}

void PaletteWidget::setColorCount(unsigned short count)
{
    d->cancel();
    d->colorCount = std::min<int>(count, 256);
    d->cursor = std::clamp(d->cursor, 0, std::max(d->colorCount - 1, 0));
    clearSelection();
    updateGeometry();
}

int PaletteWidget::slotAt(QPoint place) const
{
    return d->slotAt(place);
}

int PaletteWidget::cellSize() const
{
    return d->cellSize;
}

void PaletteWidget::setCellSize(int size)
{
    d->cellSize = std::clamp(size, SmallestCell, LargestCell);
    updateGeometry();
    update();
}

void PaletteWidget::reset()
{
    if (!d->isLocked) {
        d->history.reset();
        update();
    }
}

void PaletteWidget::flatten()
{
    if (!d->isLocked) {
        d->history.flatten();
        update();
    }
}

void PaletteWidget::undo()
{
    if (!d->isLocked && canUndo()) {
        d->history.undo();
        update();
        emit changed();
    }
}

void PaletteWidget::redo()
{
    if (!d->isLocked && canRedo()) {
        d->history.redo();
        update();
        emit changed();
    }
}

bool PaletteWidget::canUndo() const
{
    return d->history.canUndo();
}

bool PaletteWidget::canRedo() const
{
    return d->history.canRedo();
}

bool PaletteWidget::isLocked() const
{
    return d->isLocked;
}

void PaletteWidget::setLocked(bool isOn)
{
    d->isLocked = isOn;
}

bool PaletteWidget::isMultiSelection() const
{
    return d->isMulti;
}

void PaletteWidget::setMultiSelection(bool isOn)
{
    d->isMulti = isOn;
}

bool PaletteWidget::isSelectable() const
{
    return d->isSelectable;
}

void PaletteWidget::setSelectable(bool isOn)
{
    d->isSelectable = isOn;
}

bool PaletteWidget::isMovable() const
{
    return d->isMovable;
}

void PaletteWidget::setMovable(bool isOn)
{
    d->isMovable = isOn;
    d->cancel();
}

bool PaletteWidget::isMoving() const
{
    return d->isMoving;
}

void PaletteWidget::setColorSight(const ColorSight& sight)
{
    if (d->sight != sight) {
        d->sight = sight;
        update();
    }
}

void PaletteWidget::setSlotNotes(std::function<QString(int)> notes)
{
    d->notes = std::move(notes);
}

QSize PaletteWidget::sizeHint() const
{
    const int rows = (d->colorCount + d->columns - 1) / d->columns;
    return {d->cellSize * d->columns, d->cellSize * rows};
}

QSize PaletteWidget::minimumSizeHint() const
{
    return sizeHint();
}

bool PaletteWidget::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // The grid's keys take precedence over window shortcuts.
        if (d->handles(static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        d->showTip(help->pos(), help->globalPos());
        return true;
    }
    case QEvent::WindowBlocked:
        d->lose();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void PaletteWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Palette"));
    } else if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        d->lose();
    }
    QWidget::changeEvent(event);
}

void PaletteWidget::paintEvent(QPaintEvent* event)
{
    d->paint(event);
}

void PaletteWidget::mousePressEvent(QMouseEvent* event)
{
    d->press(event);
}

void PaletteWidget::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    event->ignore();
    d->release(event);
}

void PaletteWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    QWidget::mouseDoubleClickEvent(event);
    event->ignore();
    d->doubleClick(event);
}

void PaletteWidget::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
    event->ignore();
    d->move(event);
}

void PaletteWidget::keyPressEvent(QKeyEvent* event)
{
    if (d->handles(event)) {
        d->press(event);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PaletteWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void PaletteWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    d->lose();
    update();
}

void PaletteWidget::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    d->cancel();
}

void PaletteWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    d->lose();
}

}  // namespace Zorv
