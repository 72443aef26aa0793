#include "app/assets/palettegrid.h"

#include "app/assets/chequer.h"
#include "app/look/language.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace App {

namespace {

constexpr int Columns = 16;
constexpr int SmallestCell = 5;
constexpr int UsualCell = 9;

}  // namespace

PaletteGrid::PaletteGrid(QWidget* parent) : QWidget(parent)
{
    followLanguage(this, [this] { setAccessibleName(tr("Palette of the selected sprite")); });
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void PaletteGrid::setColors(const Zorv::RGBA* colors)
{
    m_rows = 0;
    m_marked = -1;
    if (colors) {
        std::copy(colors, colors + 256, m_colors);
        m_rows = 256 / Columns;
        const auto isUnused = [](Zorv::RGBA color) { return color == Zorv::RGBA{}; };
        while (m_rows > 1 && std::all_of(m_colors + (m_rows - 1) * Columns,
                                         m_colors + m_rows * Columns, isUnused)) {
            --m_rows;
        }
    }
    updateGeometry();
    update();
}

void PaletteGrid::setMarked(int entry)
{
    m_marked = entry < m_rows * Columns ? entry : -1;
    update();
}

QSize PaletteGrid::sizeHint() const
{
    return {Columns * UsualCell + 2, m_rows * UsualCell + 2};
}

QSize PaletteGrid::minimumSizeHint() const
{
    return {Columns * SmallestCell + 2, m_rows * SmallestCell + 2};
}

int PaletteGrid::cell() const
{
    return std::max(std::min((width() - 2) / Columns, (height() - 2) / std::max(m_rows, 1)), 1);
}

QPoint PaletteGrid::corner() const
{
    return {(width() - Columns * cell()) / 2, (height() - m_rows * cell()) / 2};
}

QRect PaletteGrid::cellOf(int entry) const
{
    return {corner() + QPoint(entry % Columns, entry / Columns) * cell(), QSize(cell(), cell())};
}

int PaletteGrid::entryAt(QPoint place) const
{
    const QPoint offset = place - corner();
    const QRect grid(0, 0, Columns * cell(), m_rows * cell());
    return grid.contains(offset) ? offset.y() / cell() * Columns + offset.x() / cell() : -1;
}

void PaletteGrid::paintEvent(QPaintEvent*)
{
    if (m_rows == 0) {
        return;
    }
    QPainter painter(this);
    const QRect grid(corner(), QSize(Columns, m_rows) * cell());
    drawChequer(&painter, grid);
    for (int i = 0; i < m_rows * Columns; ++i) {
        const Zorv::RGBA color = m_colors[i];
        painter.fillRect(cellOf(i), QColor(color.r, color.g, color.b, color.a));
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(grid.adjusted(-1, -1, 0, 0));
    if (m_marked >= 0) {
        drawMark(&painter);
    }
}

/// Two frames, one of which stands out from any colour.
void PaletteGrid::drawMark(QPainter* painter) const
{
    const QRect frame = cellOf(m_marked).adjusted(-2, -2, 1, 1);
    painter->setPen(Qt::black);
    painter->drawRect(frame);
    painter->setPen(Qt::white);
    painter->drawRect(frame.adjusted(1, 1, -1, -1));
}

bool PaletteGrid::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const int entry = m_rows == 0 ? -1 : entryAt(help->pos());
    QString text;
    if (entry >= 0) {
        const Zorv::RGBA color = m_colors[entry];
        text = tr("Colour %1: %2, alpha %3")
                   .arg(QString::number(entry), QColor(color.r, color.g, color.b).name(),
                        QString::number(color.a));
    }
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

}  // namespace App
