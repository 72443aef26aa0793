#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QWidget>

#include <memory>

namespace Zorv {

class PaletteRemapWidgetPrivate;

/// Twelve pairs of colours: which palette colour is replaced by which other.
///
/// Each row shows a source and a target. Horizontal: rows go left to right, source on top.
/// Vertical: rows go top to bottom, source on the left. A click or the arrow keys choose the
/// current row. Delete and the menu clear its colours.
///
/// Main thread only.
class ZORV_EXPORT PaletteRemapWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int RowCount = 12;

    /// The mapping of a row; -1 for no colour. A row without source or target maps nothing.
    struct Row
    {
        int source = -1;
        int target = -1;

        bool isSet() const { return source >= 0 && target >= 0; }
    };

    /// `horizontal`: rows go from left to right. All rows start without colours.
    PaletteRemapWidget(QWidget* parent, bool horizontal);
    ~PaletteRemapWidget() override;

    /// Shows 256 colours, which are copied; null for none. Call it again after each change.
    void setColors(const RGBA* colors);

    /// Row 0 to 11; an empty row for any other number.
    Row row(int row) const;

    /// Sets source and target, 0 to 255; any other number means none. Ignores invalid rows.
    void setRow(int row, int source, int target);

    /// Clears the colours of all rows.
    void clearRows();

    /// The row that receives the next colours; starts at 0. Setting an invalid row does nothing.
    int currentRow() const;
    void setCurrentRow(int row);

    /// Whether the user can change the current row. True by default.
    bool isSelectable() const;
    void setSelectable(bool isOn);

    /// All cells.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The current row has changed.
    void currentRowChanged(int row);

    /// The colours of rows have changed.
    void rowsChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    std::unique_ptr<PaletteRemapWidgetPrivate> d;
};

}  // namespace Zorv
