#pragma once

#include "image/tools/basepentool.h"

namespace Zorv {

class PaletteRemapWidget;

/// A pen that changes colours into others, as a table of twelve rows says: with the left button
/// sources into targets, with any other the way back. A stroke changes each pixel once. Without a
/// row that has both colours nothing is painted.
///
/// A click on a colour of the palette, or with Shift on the canvas, puts it into the current row:
/// the left button sets the source, any other the target. The arrows up and down choose the row.
/// With `StrokeOptions::isShading()` a click on a colour sets the rows up with the ramp it is in.
class ZORV_EXPORT ReplaceTool : public BasePenTool
{
    Q_OBJECT

public:
    explicit ReplaceTool(ImageCanvas* canvas, QObject* parent = nullptr);

    /// The table, a part of the options.
    PaletteRemapWidget* rows() const;

    /// Sets the rows up so that the left button moves colours one step on along the entries from
    /// `first` to `last`, and any other one step back. Of more than twelve steps the first count.
    void setRamp(unsigned char first, unsigned char last);

    void activated() override;
    bool keyPressed(Qt::KeyboardModifiers modifiers, int key) override;
    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;
    bool colorClicked(bool isRightButton, unsigned char index) override;

public slots:
    /// Shows the rows in the palette's present colours. While the tool is in use it hears by itself
    /// of changes of a `ColorPalette`, or of the `PaletteObject` of another palette.
    void palChanged();

protected:
    void doDraw(const QPoint& point, ImagePainter* painter) override;

private:
    QMetaObject::Connection m_follow;
    QPointer<PaletteRemapWidget> m_rows;
};

}  // namespace Zorv
