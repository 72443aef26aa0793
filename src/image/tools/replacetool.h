#pragma once

#include "image/tools/basepentool.h"

namespace Zorv {

class PaletteRemapWidget;

/// A pen that replaces colours according to a table of twelve rows: the left button turns sources
/// into targets, any other button the reverse. A stroke changes each pixel once. Nothing is painted
/// unless a row has both colours.
///
/// A click on a colour of the palette, or Shift and a click on the canvas, puts it into the current
/// row: the left button sets the source, any other the target. The up and down keys choose the row.
/// With `StrokeOptions::isShading()` a click on a colour fills the rows with its ramp.
class ZORV_EXPORT ReplaceTool : public BasePenTool
{
    Q_OBJECT

public:
    explicit ReplaceTool(ImageCanvas* canvas, QObject* parent = nullptr);

    /// The table, part of the options.
    PaletteRemapWidget* rows() const;

    /// Fills the rows so that the left button moves colours one step along the entries from `first`
    /// to `last`, and any other button one step back. Only the first twelve steps are used.
    void setRamp(unsigned char first, unsigned char last);

    void activated() override;
    bool keyPressed(Qt::KeyboardModifiers modifiers, int key) override;
    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    bool colorClicked(bool isRightButton, unsigned char index) override;

public slots:
    /// Updates the rows to the current colours of the palette. While active, the tool follows
    /// changes of a `ColorPalette`, or of another palette's `PaletteObject`, by itself.
    void palChanged();

protected:
    void doDraw(const QPoint& point, ImagePainter* painter) override;

private:
    QMetaObject::Connection m_follow;
    QPointer<PaletteRemapWidget> m_rows;
};

}  // namespace Zorv
