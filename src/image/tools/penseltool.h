#pragma once

#include "image/canvas/monopalette.h"
#include "image/tools/basepentool.h"

#include <memory>

namespace Zorv {

/// Paints on the selection: the left button adds pixels, the right one removes them. One undo step
/// per stroke. Needs no layer.
class ZORV_EXPORT PenSelTool : public BasePenTool
{
    Q_OBJECT

public:
    explicit PenSelTool(ImageCanvas* canvas, QObject* parent = nullptr);
    ~PenSelTool() override;

    void deactivated() override;
    void mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button, QPoint screen,
                      QPoint image, QCursor& cursor) override;

protected:
    void draw(const QPoint& point) override;
    void doDraw(const QPoint& point, ImagePainter* painter) override;
    bool canStroke() const override;
    ImagePainter* strokePainter() override;
    void beginRecord() override;

private:
    MonoPalette m_palette;
    std::unique_ptr<ImagePainter> m_painter;
    bool m_takesAway = false;
};

}  // namespace Zorv
