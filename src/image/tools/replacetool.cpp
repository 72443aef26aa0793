#include "image/tools/replacetool.h"

#include "editors/palette/colorpalette.h"
#include "editors/palette/paletteremapwidget.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imagepalette.h"
#include "image/tools/colorramp.h"
#include "image/tools/strokeoptions.h"
#include "media/paletteobject.h"

#include <QHBoxLayout>
#include <QImage>
#include <QSlider>

#include <algorithm>

namespace Zorv {

ReplaceTool::ReplaceTool(ImageCanvas* canvas, QObject* parent)
    : BasePenTool(canvas, true, QStringLiteral("replace"), parent),
      m_rows(new PaletteRemapWidget(nullptr, true))
{
    m_rows->setFixedSize(144, 24);
    auto* options = new QWidget;
    auto* layout = new QHBoxLayout(options);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(4);
    layout->addWidget(m_rows);
    layout->addWidget(slider());
    setWidget(options);
    palChanged();
}

PaletteRemapWidget* ReplaceTool::rows() const
{
    return m_rows;
}

void ReplaceTool::setRamp(unsigned char first, unsigned char last)
{
    if (!m_rows) {
        return;
    }
    m_rows->clearRows();
    const int steps = std::min(int(last) - first, PaletteRemapWidget::RowCount);
    for (int i = 0; i < steps; ++i) {
        m_rows->setRow(i, first + i, first + i + 1);
    }
}

void ReplaceTool::activated()
{
    BasePenTool::activated();
    disconnect(m_follow);
    const ImagePalette* palette = canvas()->palette();
    // A `ColorPalette` is followed itself: its palette object does not signal undo and drags in the
    // grid.
    if (const auto* grid = qobject_cast<const ColorPalette*>(palette)) {
        m_follow = connect(grid, &ColorPalette::paletteChanged, this, &ReplaceTool::palChanged);
    } else if (const PaletteObject* colors = palette->palette()) {
        m_follow = connect(colors, &PaletteObject::changed, this, &ReplaceTool::palChanged);
    }
    palChanged();
}

bool ReplaceTool::keyPressed(Qt::KeyboardModifiers modifiers, int key)
{
    const int step = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
    if (step == 0 || !m_rows) {
        return BasePenTool::keyPressed(modifiers, key);
    }
    const int row = m_rows->currentRow() + step;
    m_rows->setCurrentRow(row);
    return m_rows->currentRow() == row;
}

void ReplaceTool::mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                               QPoint screen, QPoint image, QCursor& cursor)
{
    if (!isPressed()) {
        setRecordUndo(!(modifiers & Qt::ShiftModifier));
    }
    BasePenTool::mousePressed(modifiers, button, screen, image, cursor);
}

void ReplaceTool::doDraw(const QPoint& point, ImagePainter* painter)
{
    if (isShift()) {
        if (painter->image() && painter->image()->rect().contains(lastPos())) {
            colorClicked(!isLeftButton(), painter->color(lastPos()));
        }
        return;
    }
    bool hasRows = false;
    for (int i = 0; m_rows && i < PaletteRemapWidget::RowCount; ++i) {
        const PaletteRemapWidget::Row row = m_rows->row(i);
        if (row.isSet()) {
            const auto source = static_cast<unsigned char>(row.source);
            const auto target = static_cast<unsigned char>(row.target);
            painter->setRemap(isLeftButton() ? source : target, isLeftButton() ? target : source);
            hasRows = true;
        }
    }
    // Without a pair there is no remap, and the painter would paint all pixels.
    if (hasRows) {
        paint(painter, point, Apart);
    }
    painter->clearRemap();
}

bool ReplaceTool::colorClicked(bool isRightButton, unsigned char index)
{
    const StrokeOptions* options = strokeOptions();
    if (!m_rows) {
        return false;
    }
    if (options && options->isShading()) {
        const ColorRamp ramp = ColorRamp::around(*canvas()->palette(), index);
        // A ramp may have more steps than there are rows: start near the clicked colour.
        const int first = std::max<int>(ramp.first, index - PaletteRemapWidget::RowCount / 2);
        setRamp(static_cast<unsigned char>(first), ramp.last);
        return true;
    }
    const PaletteRemapWidget::Row row = m_rows->row(m_rows->currentRow());
    m_rows->setRow(m_rows->currentRow(), isRightButton ? row.source : index,
                   isRightButton ? index : row.target);
    return true;
}

void ReplaceTool::palChanged()
{
    if (m_rows) {
        RGBA colors[256];
        canvas()->palette()->toRGBPal(colors);
        m_rows->setColors(colors);
    }
}

}  // namespace Zorv
