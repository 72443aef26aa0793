#include "editors/palette/paletteremapwidget.h"

#include "editors/palette/palettecell_p.h"

#include <QAction>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <QtMath>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int CellSize = 12;

int checkedIndex(int index)
{
    return index >= 0 && index < 256 ? index : -1;
}

QPoint placeOf(const QMouseEvent* event)
{
    return {qFloor(event->localPos().x()), qFloor(event->localPos().y())};
}

}  // namespace

class PaletteRemapWidgetPrivate
{
public:
    QPoint step() const { return isHorizontal ? QPoint(CellSize, 0) : QPoint(0, CellSize); }
    QPoint across() const { return isHorizontal ? QPoint(0, CellSize) : QPoint(CellSize, 0); }
    QRect cell(int row, bool isTarget) const
    {
        return {step() * row + (isTarget ? across() : QPoint()), QSize(CellSize, CellSize)};
    }
    int rowAt(const QPoint& place) const;
    void paintCell(CellPainter* painter, const QRect& cell, int index, CellMarks marks) const;
    void showTip(PaletteRemapWidget* owner, const QPoint& place, const QPoint& global) const;

    bool isHorizontal = false;
    bool isSelectable = true;
    bool hasColors = false;
    RGBA colors[256] = {};
    PaletteRemapWidget::Row rows[PaletteRemapWidget::RowCount];
    int currentRow = 0;
    QAction* clearRow = nullptr;
    QAction* clearAll = nullptr;
};

int PaletteRemapWidgetPrivate::rowAt(const QPoint& place) const
{
    const int along = isHorizontal ? place.x() : place.y();
    const int beside = isHorizontal ? place.y() : place.x();
    const bool isInside = along >= 0 && along < CellSize * PaletteRemapWidget::RowCount &&
                          beside >= 0 && beside < 2 * CellSize;
    return isInside ? along / CellSize : -1;
}

void PaletteRemapWidgetPrivate::paintCell(CellPainter* painter, const QRect& cell, int index,
                                          CellMarks marks) const
{
    if (hasColors && index >= 0) {
        painter->paintColor(cell, colors[index], marks);
    } else {
        painter->paintEmpty(cell, marks);
    }
}

void PaletteRemapWidgetPrivate::showTip(PaletteRemapWidget* owner, const QPoint& place,
                                        const QPoint& global) const
{
    const int row = rowAt(place);
    if (row < 0) {
        QToolTip::hideText();
        return;
    }
    const auto text = [](int index) {
        return index < 0 ? QStringLiteral("\u2013") : QString::number(index);
    };
    QToolTip::showText(
        global,
        PaletteRemapWidget::tr("%1, %2").arg(text(rows[row].source), text(rows[row].target)), owner,
        cell(row, false) | cell(row, true));
}

PaletteRemapWidget::PaletteRemapWidget(QWidget* parent, bool horizontal)
    : QWidget(parent), d(std::make_unique<PaletteRemapWidgetPrivate>())
{
    d->isHorizontal = horizontal;
    d->clearRow = new QAction(this);
    d->clearAll = new QAction(this);
    d->clearRow->setShortcut(Qt::Key_Delete);
    d->clearRow->setShortcutContext(Qt::WidgetShortcut);
    connect(d->clearRow, &QAction::triggered, this, [this] { setRow(d->currentRow, -1, -1); });
    connect(d->clearAll, &QAction::triggered, this, &PaletteRemapWidget::clearRows);
    addActions({d->clearRow, d->clearAll});
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    QEvent translate(QEvent::LanguageChange);
    PaletteRemapWidget::changeEvent(&translate);
}

PaletteRemapWidget::~PaletteRemapWidget() = default;

void PaletteRemapWidget::setColors(const RGBA* colors)
{
    d->hasColors = colors;
    if (colors) {
        std::copy(colors, colors + 256, d->colors);
    }
    update();
}

PaletteRemapWidget::Row PaletteRemapWidget::row(int row) const
{
    return row >= 0 && row < RowCount ? d->rows[row] : Row();
}

void PaletteRemapWidget::setRow(int row, int source, int target)
{
    if (row >= 0 && row < RowCount) {
        d->rows[row] = {checkedIndex(source), checkedIndex(target)};
        update();
        emit rowsChanged();
    }
}

void PaletteRemapWidget::clearRows()
{
    std::fill(std::begin(d->rows), std::end(d->rows), Row());
    update();
    emit rowsChanged();
}

int PaletteRemapWidget::currentRow() const
{
    return d->currentRow;
}

void PaletteRemapWidget::setCurrentRow(int row)
{
    if (row >= 0 && row < RowCount && row != d->currentRow) {
        d->currentRow = row;
        update();
        emit currentRowChanged(row);
    }
}

bool PaletteRemapWidget::isSelectable() const
{
    return d->isSelectable;
}

void PaletteRemapWidget::setSelectable(bool isOn)
{
    d->isSelectable = isOn;
}

QSize PaletteRemapWidget::sizeHint() const
{
    const QPoint corner = d->step() * RowCount + d->across() * 2;
    return {corner.x(), corner.y()};
}

QSize PaletteRemapWidget::minimumSizeHint() const
{
    return sizeHint();
}

bool PaletteRemapWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        d->showTip(this, help->pos(), help->globalPos());
        return true;
    }
    return QWidget::event(event);
}

void PaletteRemapWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Colours to replace"));
        d->clearRow->setText(tr("Clear the row"));
        d->clearAll->setText(tr("Clear all rows"));
    }
    QWidget::changeEvent(event);
}

void PaletteRemapWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    CellPainter cells(&painter);
    for (int row = 0; row < RowCount; ++row) {
        CellMarks marks;
        marks.setFlag(CellMark::Selected, row == d->currentRow);
        marks.setFlag(CellMark::Focused, row == d->currentRow && hasFocus());
        d->paintCell(&cells, d->cell(row, false), d->rows[row].source, marks);
        d->paintCell(&cells, d->cell(row, true), d->rows[row].target, marks);
    }
}

void PaletteRemapWidget::mouseMoveEvent(QMouseEvent* event)
{
    d->showTip(this, placeOf(event), event->globalPos());
}

// The left button selects on release.
void PaletteRemapWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton && d->isSelectable) {
        setCurrentRow(d->rowAt(placeOf(event)));
    }
}

void PaletteRemapWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && d->isSelectable) {
        setCurrentRow(d->rowAt(placeOf(event)));
    }
}

void PaletteRemapWidget::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const int step = key == Qt::Key_Right || key == Qt::Key_Down ? 1 : -1;
    const bool isArrow = step > 0 || key == Qt::Key_Left || key == Qt::Key_Up;
    if (isArrow && d->isSelectable) {
        setCurrentRow(d->currentRow + step);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PaletteRemapWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void PaletteRemapWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace Zorv
