#pragma once

#include <zorv/media/colortypes.h>

#include <QWidget>

namespace App {

/// The colours of a palette, 16 in a row, down to the last one that is used.
class PaletteGrid : public QWidget
{
    Q_OBJECT

public:
    explicit PaletteGrid(QWidget* parent = nullptr);

    /// 256 colours, or null for none.
    void setColors(const Zorv::RGBA* colors);

    /// Frames one entry; -1 for none. A new palette has none.
    void setMarked(int entry);
    int marked() const { return m_marked; }

    /// The entry at a place of the widget, -1 beside the grid.
    int entryAt(QPoint place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

    /// The tool tip of an entry: its number and colour.
    bool event(QEvent* event) override;

private:
    int cell() const;
    QPoint corner() const;
    QRect cellOf(int entry) const;
    void drawMark(QPainter* painter) const;

    Zorv::RGBA m_colors[256];
    int m_rows = 0;  // 0 for no palette
    int m_marked = -1;
};

}  // namespace App
