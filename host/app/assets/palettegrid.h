#pragma once

#include "media/colortypes.h"

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

    Zorv::RGBA m_colors[256];
    int m_rows = 0;  // 0 for no palette
};

}  // namespace App
