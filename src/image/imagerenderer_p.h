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

/// Draws a frame one pixel wide around a rectangle.
void drawOutline(QPainter& painter, const QRect& rect, const QColor& color);

/// State shared by the source files of the renderer: input (imagepointer.cpp), keys
/// (imagekeys.cpp), drawing (imagedrawing.cpp), symmetry axes (symmetrygrips.cpp) and the canvas
/// axis (canvasaxis.cpp).
class ImageRendererPrivate
{
public:
    static constexpr int Tools = ImageTool::FloodFillTool + 1;

    /// What a grip drags: a symmetry axis, or the canvas axis.
    enum Grip { NoGrip, UprightGrip, LevelGrip, AxisGrip };

    ImageRendererPrivate(ImageRenderer* renderer, ImagePalette* palette);
    ~ImageRendererPrivate();

    void addTools();
    void follow();

    /// The present geometry.
    ImagePlace place() const;

    /// Changes the widget size or the views. What is in the middle of a view stays there.
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

    /// Records the position of a mouse event.
    void setPointer(QPoint pos);

    /// The exact position of a mouse event, in the middle of the screen pixel.
    QPointF exactPlace(QPoint pos) const;

    /// The pixel to pass to a tool: with centred brushes, the corner of the square around the
    /// position.
    QPoint toolPixel(const QPointF& pos, ImageView view) const;
    QPoint toolPixel(QPoint pixel) const;

    bool movesPicture(Qt::KeyboardModifiers modifiers) const;
    ImageTool* toolFor(Qt::KeyboardModifiers modifiers) const;
    void press(QPoint pos, QPoint pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void release(QPoint pos, QPoint pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void move(QPoint pos, QPoint pixel, Qt::KeyboardModifiers modifiers);

    /// Repeats the last move, after the tool or its action has changed.
    void moveAgain();

    /// Ends the press without a release.
    void losePress();

    /// Lets a tool change the cursor of the widget.
    template <class Call>
    void withCursor(Call call);
    void setCursor(const QCursor& cursor);

    void tell(const QPoint& pixel);
    void tellAgain();
    /// @}

    /// @name The keyboard cell
    /// @{
    void moveCell(int key, Qt::KeyboardModifiers modifiers);
    void clickCell(Qt::KeyboardModifiers modifiers);
    void endDrag();
    void showCell();
    void hideCell();
    void bringIntoView(const QPoint& pixel);
    ImageView cellView() const;

    /// The middle of a canvas pixel, in the widget.
    QPoint cellPlace(const QPoint& pixel) const;
    /// @}

    /// @name Grips
    /// @{

    /// The grip that a press would take; none while the mouse moves the picture.
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

    /// @name The canvas axis
    /// @{
    bool isAxisShown() const;
    QPoint axisPlace(ImageView view) const;
    QRect axisRect(ImageView view) const;
    void dragAxis(const QPointF& pos);

    /// Returns true if the key is one that moves the axis.
    bool moveAxisBy(int key, Qt::KeyboardModifiers modifiers);

    /// Ends a drag of the axis, because the axis or the sprite has been replaced and the drag would
    /// continue from a wrong place.
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
    unsigned shown = 0;  ///< flags of `ImageRenderer::Option`
    int changeDepth = 0;
    ImagePlace views;  ///< except position and zoom, which the canvas stores

    QPoint mousePos;
    std::optional<QPointF> exact;  ///< sent before the mouse event; none if it is elsewhere
    bool isOutside = true;  ///< whether the pointer is outside the widget, as far as is known
    bool isSpaceHeld = false;
    bool isPanning = false;
    qint64 wheelRest = 0;
    Qt::MouseButtons pressed;
    ImageTool* pressTool = nullptr;
    ImageView pressView = ImageView::Zoomed;
    Grip grip = NoGrip;         ///< the one being dragged
    QPointF axisFromPointer;    ///< in canvas pixels, while the axis is dragged
    bool isMovingAxis = false;  ///< guards against re-entrance: the axis change comes from here

    bool isCellShown = false;
    bool isCellDragged = false;
    QPoint cell;

    std::optional<QPoint> toldPixel;
    int toldIndex = -1;
    QRgb toldColor = 0;
};

}  // namespace Zorv
