#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QWidget>

#include <memory>

namespace Zorv {

class PaletteRemapWidgetPrivate;

/// Twelve pairs of colours: which colour of a palette becomes which other.
///
/// A row shows its source and its target. Rows follow each other from left to right with the source
/// on top, or from the top down with the source at the left. A click, or the arrows, make a row the
/// current one; Delete and the menu take its colours away.
///
/// Main thread only.
class ZORV_EXPORT PaletteRemapWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int RowCount = 12;

    /// What a row maps; -1 for no colour. A row that lacks one of both maps nothing.
    struct Row
    {
        int source = -1;
        int target = -1;

        bool isSet() const { return source >= 0 && target >= 0; }
    };

    /// With `horizontal` rows follow each other from left to right. No row has colours.
    PaletteRemapWidget(QWidget* parent, bool horizontal);
    ~PaletteRemapWidget() override;

    /// Shows 256 colours, which are copied; null for none. Call it again when they change.
    void setColors(const RGBA* colors);

    /// A row of 0 to 11; one without colours for any other.
    Row row(int row) const;

    /// Sets source and target, from 0 to 255; any other is none. Nothing for a row that is none.
    void setRow(int row, int source, int target);

    /// Takes the colours of all rows away.
    void clearRows();

    /// The row that the next colours are for, 0 at first. Nothing for one that is none.
    int currentRow() const;
    void setCurrentRow(int row);

    /// Whether the person can make another row the current one. True at first.
    bool isSelectable() const;
    void setSelectable(bool isOn);

    /// All cells.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Another row is the current one.
    void currentRowChanged(int row);

    /// Rows have other colours.
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
