#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/imageplace_p.h"
#include "image/imagerenderer.h"
#include "image/picturetiles_p.h"
#include "image/tools/strokeoptions.h"

#include <QCursor>
#include <QPointer>

#include <array>
#include <memory>
#include <optional>

class QStackedLayout;

namespace Zorv {

/// A frame one pixel wide, around a rectangle.
void drawOutline(QPainter& painter, const QRect& rect, const QColor& color);

/// What the sources of the renderer share: input (imagepointer.cpp), keys (imagekeys.cpp), drawing
/// (imagedrawing.cpp), the axes of symmetry (symmetrygrips.cpp) and that of the canvas
/// (canvasaxis.cpp).
class ImageRendererPrivate
{
public:
    static constexpr int Tools = ImageTool::FloodFillTool + 1;

    /// What a grip moves: an axis of symmetry, or the axis of the canvas.
    enum Grip { NoGrip, UprightGrip, LevelGrip, AxisGrip };

    ImageRendererPrivate(ImageRenderer* renderer, ImagePalette* palette);
    ~ImageRendererPrivate();

    void addTools();
    void follow();

    /// Where everything is now.
    ImagePlace place() const;

    /// Changes the widget or the views. What is in the middle of a view stays there.
    template <class Act>
    void changeViews(Act act)
    {
        const QPoint before = views.middle();
        act();
        if (views.middle() != before) {
            canvas.setPosition(savePosition(canvas.position()) + views.middle() - before);
        }
    }

    void setSize();
    void zoomTo(double zoom, const QPointF& fixed);
    void zoomAboutMiddle(double zoom);

    /// @name Input
    /// @{

    /// Notes the place of a mouse call.
    void setPointer(QPoint pos);

    /// The exact place of a mouse call, in the middle of the pixel of the screen.
    QPointF exactPlace(QPoint pos) const;

    /// What a tool is told for a place: with centred brushes the corner of the square around it.
    QPoint toolPixel(const QPointF& pos, ImageView view) const;
    QPoint toolPixel(QPoint pixel) const;

    bool movesPicture(Qt::KeyboardModifiers modifiers) const;
    ImageTool* toolFor(Qt::KeyboardModifiers modifiers) const;
    void press(QPoint pos, QPoint pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void release(QPoint pos, QPoint pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void move(QPoint pos, QPoint pixel, Qt::KeyboardModifiers modifiers);

    /// A move where the pointer is, after the tool or what it does has changed.
    void moveAgain();

    /// The press ends without a release.
    void losePress();

    /// Lets a tool change the cursor of the widget.
    template <class Call>
    void withCursor(Call call);
    void setCursor(const QCursor& cursor);

    void tell(const QPoint& pixel);
    void tellAgain();
    /// @}

    /// @name The cell of the keys
    /// @{
    void moveCell(int key, Qt::KeyboardModifiers modifiers);
    void clickCell(Qt::KeyboardModifiers modifiers);
    void endDrag();
    void showCell();
    void hideCell();
    void bringIntoView(const QPoint& pixel);
    ImageView cellView() const;

    /// The middle of a pixel on the screen.
    QPoint cellPlace(const QPoint& pixel) const;
    /// @}

    /// @name Grips
    /// @{

    /// What a press would take hold of: nothing while the mouse moves the picture.
    Grip gripAt(const QPointF& pos, Qt::KeyboardModifiers modifiers) const;
    void takeGrip(const QPointF& pos, Qt::KeyboardModifiers modifiers);
    void dragGrip(const QPointF& pos);
    void showGrip(Grip under);
    /// @}

    /// @name Symmetry
    /// @{
    QRect gripRect(Grip grip, ImageView view) const;
    void dragSymmetry(const QPointF& pos);
    void drawAxes(QPainter& painter, ImageView view) const;
    /// @}

    /// @name The axis of the canvas
    /// @{
    bool isAxisShown() const;
    QPoint axisPlace(ImageView view) const;
    QRect axisRect(ImageView view) const;
    void dragAxis(const QPointF& pos);

    /// True if the key is one that moves the axis.
    bool moveAxisBy(int key, Qt::KeyboardModifiers modifiers);

    /// The axis, or the sprite, has become another one: a drag would go on from a wrong place.
    void loseAxis();
    void drawCanvasAxis(QPainter& painter, ImageView view) const;
    /// @}

    void draw(QPainter& painter, ImageView view);
    void drawGrid(QPainter& painter, const QRect& shown) const;
    void drawFrame(QPainter& painter, ImageView view) const;
    void drawCell(QPainter& painter, ImageView view) const;
    void drawToolCursor(QPainter& painter, ImageView view);
    QPoint cursorPlace(ImageView view) const;

    ImageRenderer* const q;
    ImageCanvas canvas;
    PictureTiles tiles{&canvas};
    StrokeOptions options;
    std::array<ImageTool*, Tools> tools = {};
    QPointer<QWidget> panel;
    QStackedLayout* pages = nullptr;
    ImageTool* current = nullptr;

    QColor topColor = Qt::lightGray;
    QColor bottomColor = Qt::gray;
    unsigned shown = 0;  ///< of `ImageRenderer::Option`
    int changeDepth = 0;
    ImagePlace views;  ///< place and zoom aside, which the canvas has

    QPoint mousePos;
    std::optional<QPointF> exact;  ///< told in front of the call; none if that is elsewhere
    bool isOutside = true;         ///< of the widget, as far as is known
    bool isSpaceHeld = false;
    bool isPanning = false;
    qint64 wheelRest = 0;
    Qt::MouseButtons pressed;
    ImageTool* pressTool = nullptr;
    ImageView pressView = ImageView::Zoomed;
    Grip grip = NoGrip;         ///< that is dragged
    QPointF axisFromPointer;    ///< in pixels of the canvas, while the axis is dragged
    bool isMovingAxis = false;  ///< what is heard of the axis comes from here

    bool isCellShown = false;
    bool isCellDragged = false;
    QPoint cell;

    std::optional<QPoint> toldPixel;
    int toldIndex = -1;
    QRgb toldColor = 0;
};

}  // namespace Zorv
