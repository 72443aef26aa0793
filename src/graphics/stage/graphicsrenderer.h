#pragma once

#include "code/codedoc/contactboxcode.h"
#include "graphics/graphicsrendererbase.h"
#include "graphics/stage/onionskin.h"
#include "zorv_export.h"

#include <QColor>
#include <QList>
#include <QMatrix4x4>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

#include <memory>

namespace Zorv {

class ContactBoxesCode;
class GraphicsRendererPrivate;
class Sprite;
class SpriteProvider;

/// The stage: the sprites of a frame with crosses, contact boxes, guides, rulers and onion skin,
/// and what mouse and keys do with them.
///
/// Stage coordinates are pixels of the widget, from the top left. Model units are pixels of the
/// game; times the zoom, and rounded, they are pixels of the widget. All stages of the process
/// share origin, zoom table and mode, priorities, colours, crosses and background. Whatever shows
/// is repainted. Main thread only.
class ZORV_EXPORT GraphicsRenderer : public QObject, public GraphicsRendererBase
{
    Q_OBJECT

public:
    /// What stands on the stage.
    enum ItemType {
        MainCross = 0,
        SecondaryCross = 1,
        ExtraCross = 2,
        SpriteType = 3,
        ContactBoxesType = 4
    };

    /// What lies under the pointer. Sizers are the eight handles around selected boxes.
    enum RenderElement {
        StageElement = 0,
        SpriteElement = 1,
        MainCrossElement = 2,
        SecondaryCrossElement = 3,
        ExtraCrossElement = 4,
        HorizontalGuide = 5,
        VerticalGuide = 6,
        ContactBoxElement = 7,
        TopLeftSizer = 8,
        TopSizer = 9,
        LeftSizer = 10,
        TopRightSizer = 11,
        BottomLeftSizer = 12,
        BottomSizer = 13,
        BottomRightSizer = 14,
        RightSizer = 15
    };

    /// What a press of the left button does.
    enum ClickMode { PositioningMode = 0, DrawContactBoxMode = 1, CaptureMode = 2 };

    /// Which point stays where it is when the zoom changes, for what is not relative to anything.
    enum ZoomMode { ZoomAboutCenter = 0, ZoomAboutOrigin = 1 };

    /// How the onion skin is shown.
    enum OnionEffect { NoEffect = 0, GrayscaleEffect = 1, LighterEffect = 2, DarkerEffect = 3 };

    enum BackgroundType {
        GradientBackground = 0,    ///< two colours
        ResolutionBackground = 1,  ///< a picture of the library for a size of screen
        FileBackground = 2         ///< a picture of the person
    };

    /// Which pictures the crosses have.
    enum CrossHairType { SmallCrosses = 0, LargeCrosses = 1, FileCrosses = 2 };

    /// A selected box as it stands on the stage, which may differ from the text: its place in its
    /// list, and its rectangle in model units, left and top first.
    struct SelectedBox
    {
        ContactBoxCode::BoxType type;
        int index;
        QRect rect;

        bool operator==(const SelectedBox& other) const
        {
            return type == other.type && index == other.index && rect == other.rect;
        }
    };

    explicit GraphicsRenderer(QObject* parent = nullptr);
    ~GraphicsRenderer() override;

    /// @name The scene
    /// @{

    /// Shows and hides crosses, boxes of types 1 and 2, rulers and guides.
    void setVisibility(bool cross0, bool cross1, bool cross2, bool boxes1, bool boxes2, bool rulers,
                       bool guides);

    /// What is drawn above what, and so is found first under the pointer.
    void setPriority(bool spriteOverGuides, bool contactOverCross);
    bool spriteOverGuides() const;
    bool contactOverCross() const;

    /// The colours of the ground from top to bottom, and the picture on it. `position` is in model
    /// units from the origin; that of a resolution picture is its own. `resolution` is the size of
    /// screen that it is for. A file that cannot be read is left out. The colours reach down 256
    /// pixels until `sizeChanged()` of any stage fits them to its widget; see `setGroundFitted()`.
    void setBackground(QColor start, QColor end, BackgroundType type, QPoint position,
                       const QString& file, QSize resolution);

    /// With true, the colours of the ground always reach to the bottom of this stage, whatever the
    /// others do. False at first.
    void setGroundFitted(bool isOn);

    /// The pictures of the crosses; a file that does not exist is replaced by the small cross of
    /// its place.
    void setCrossHair(CrossHairType type, const QString& main, const QString& secondary,
                      const QString& extra);

    /// Where model (0,0) stands, in pixels of the widget.
    QPoint origin() const;
    void setOrigin(QPoint origin);
    void centralize() override;

    /// Model x of the vertical guide and y of the horizontal one.
    QPoint guideLines() const;
    void setGuideLines(QPoint guides);

    /// Shows the sprites of a provider, which is not owned and may go; null shows none. Its sprites
    /// must be there until it tells of others.
    void setSprites(SpriteProvider* provider);
    SpriteProvider* spriteProvider() const;

    /// The colours of boxes of types 1 and 2, and the factor of their inside's opacity, 0 to 1.
    void setupContactBoxes(QColor first, QColor second, float opacity);

    /// Shows the boxes of a kind; null shows none. To be called again after every change of the
    /// text: boxes that are selected stay so if their rectangle is still the same. Not owned. A
    /// list whose frame has been read anew, or whose document has gone, is known to be gone: its
    /// boxes are still shown, and changed no more.
    void setContactBoxes(ContactBoxCode::BoxType type, ContactBoxesCode* code);

    /// The list that was set, null once it is gone.
    ContactBoxesCode* boxes(ContactBoxCode::BoxType type) const;

    /// Shows another frame's sprite through. `opacity` is from 0 to 1.
    void setOnionSkin(bool enabled, OnionEffect effect, float opacity);

    /// That sprite, and the place of the anchor of the main cross on it in model units. Compares
    /// the sprite alone: nothing for the one that is there. Not owned: null is to be set before it
    /// goes.
    void setOnionSkinSprite(const Sprite* sprite, QPoint offset);

    /// The same, and the one that is there may have another place, or other pixels.
    void replaceOnionSkinSprite(const Sprite* sprite, QPoint offset);

    /// Shows these, too, one above the other, while the onion skin is enabled, with its opacity and
    /// its effect. Their sprites must be there until others are set.
    void setOnionSkins(const QVector<OnionSkin>& skins);
    const QVector<OnionSkin>& onionSkins() const;

    /// @}
    /// @name Zoom
    /// Twelve levels, 0 to 11, of one of two tables.
    /// @{

    void setZoomMode(ZoomMode mode);

    /// 0: fine, to 4 times; 1: whole factors, to 10 times.
    void setZoomTable(unsigned char table);

    /// A level too high is the highest; 255 is the lowest.
    void setZoomLevel(unsigned char level);
    unsigned char zoomLevel() const;

    /// Pixels of the widget for one of the game.
    float zoom() const;
    void addZoom() override;
    void subZoom() override;
    void zoomActual() override;

    /// @}
    /// @name Items
    /// `index` counts sprites, and is ignored for crosses. Modes are those of positionmode.h.
    /// @{

    /// The number of a cross; the first sprite of the stage that shows `item`, or -1; -1 for boxes.
    int indexOfItem(ItemType type, void* item) const;

    /// In model units, or in pixels of the widget for an absolute item. (0,0) for boxes and for
    /// what is not there.
    QPoint itemPosition(ItemType type, unsigned int index) const;

    /// Nothing for boxes and for what is not there. That of a sprite stays until its provider
    /// tells of it anew, and so does the mode below.
    void setItemPosition(ItemType type, QPoint position, unsigned int index);

    /// For boxes it is the mode of all of them.
    void setItemPositionMode(ItemType type, unsigned char mode, unsigned int parent,
                             unsigned int index);

    /// @}
    /// @name Input
    /// A press takes what lies on top; with Alt what lies beneath that. A click that is no drag
    /// keeps what it has taken for the next press at its place, and a second one there takes what
    /// lies beneath: so a sprite can be dragged where boxes cover it. Behind the last comes the top
    /// again. Arrows move selected boxes by a pixel of the game, with Shift by ten.
    /// @{

    /// The left button moves what it presses on; a box that was just drawn becomes selected. As
    /// with the other modes, a drag under way ends as if the button had been released.
    void setPositioningMode();

    /// The left button draws boxes, until another mode is set or the right button is released.
    void setDrawContactBoxMode(ContactBoxCode::BoxType type);

    /// The left button picks colours of indexed sprites.
    void setCaptureMode();
    ClickMode clickMode() const;

    /// Does not repaint.
    void deselectContactBoxes();

    /// Locked boxes are shown, and neither found under the pointer nor selected: a press takes what
    /// lies beneath. They can still be drawn. Locking deselects all boxes.
    void setContactBoxesLocked(ContactBoxCode::BoxType type, bool isLocked);
    bool contactBoxesLocked(ContactBoxCode::BoxType type) const;

    /// Over all lists, in order; without the one that is being drawn.
    QVector<SelectedBox> selectedBoxes() const;

    /// Gives the selected box another rectangle, on the stage alone: `updateSelectedBoxes()` writes
    /// it. Nothing unless one box is selected, nor for an empty rectangle.
    void setSelectedBoxRect(const QRect& rect);

    /// Moves the selected boxes on the stage alone; `updateSelectedBoxes()` writes them.
    void moveSelectedContactBoxes(QPoint delta);

    /// Takes the selected boxes out of the text, as one step of undo.
    void removeSelectedContactBoxes();

    /// Writes the selected boxes that were moved or resized into the text, as one step of undo.
    void updateSelectedBoxes();

    /// Over all lists, in order. Good until the next edit.
    QList<ContactBoxCode*> selectedContactBoxes();

    /// What lies at a point of the widget.
    RenderElement hitTest(QPoint pos);

    /// The shape of the pointer over an element.
    QCursor elementCursor(RenderElement element) const;

    void keyPressed(int key, Qt::KeyboardModifiers modifiers) override;
    void keyReleased(int key, Qt::KeyboardModifiers modifiers) override;
    void mousePressed(QPoint pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) override;
    void mouseReleased(QPoint pos, Qt::MouseButton button,
                       Qt::KeyboardModifiers modifiers) override;
    void mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers) override;
    void mouseWheel(int delta) override;

    /// @}

    void sizeChanged(int width, int height) override;
    void render(QPainter& painter) override;

public slots:
    /// Takes one sprite of the provider anew; does not repaint.
    virtual void spriteChangedAt(unsigned int index);

    /// Takes all sprites of the provider anew, without a repaint.
    virtual void spritesChanged();

signals:
    /// A newly drawn box is to be written into the text; the slot gives it, or null to refuse.
    Zorv::ContactBoxCode* appendContactBox(Zorv::ContactBoxCode::BoxType boxType, QRect rect);

    /// The right button has ended the drawing of boxes.
    void contactDrawingExit();

    /// The pointer stands there, in model units from the origin.
    void cursorChanged(QPoint pos);

    /// A colour was picked: its index.
    void colorCaptured(unsigned char index);

    /// A sprite or cross is being dragged: its `Sprite`, or null for a cross, and its position.
    void itemMoved(Zorv::GraphicsRenderer::ItemType type, void* item, QPoint offsetToParent);

    /// A drag has ended; for boxes also a move by keys, with null and (0,0).
    void itemReleased(Zorv::GraphicsRenderer::ItemType type, void* item, QPoint offsetToParent);

    /// Other boxes are selected, or the only one that is has another rectangle: `selectedBoxes()`
    /// tells. It comes during drags, and from `setContactBoxes()`; boxes of the text are not to be
    /// asked.
    void boxSelectionChanged();

    /// The origin or the zoom is another: by a person, at each step of a drag, or by a call.
    void viewChanged();

    /// Mouse or keys are about to be taken, and have been: the stage works on nodes of the text in
    /// between. Boxes are to be set anew in front of it, if the text has changed, and not before it
    /// is over. Such pairs may stand inside of another one.
    void inputComes();
    void inputTaken();

    /// The left button is about to pick something up, or to draw.
    void aboutToGrab();

    /// For hosts; the library does not emit them.
    void changed();
    void changedAt(unsigned int index);

protected:
    /// An input, as long as it lives. For overrides that look at the stage before they hand the
    /// input on.
    class ZORV_EXPORT Input
    {
    public:
        explicit Input(GraphicsRenderer* stage);
        ~Input();

    private:
        Q_DISABLE_COPY(Input)
        GraphicsRenderer* m_stage;
    };

    /// Draws a sprite: translated to `base`, turned by `rotation` degrees about it, moved by
    /// `offset`, with that size, all in pixels of the widget.
    virtual void renderSprite(QPoint base, QPoint offset, QSize size, float rotation,
                              unsigned char flip, Sprite* sprite, unsigned int index);
    virtual void renderOnionSkinSprite(const Sprite* sprite, QPoint base, QPoint offset, QSize size,
                                       float opacity, OnionEffect effect);

    /// Where the corners of the unit square go for a sprite as `renderSprite()` tells it. All
    /// sprites and skins of the stage stand by it.
    virtual QMatrix4x4 spriteMatrix(QPoint base, QPoint offset, QSize size, float rotation) const;

    /// What both end with: the sprite in its palette, as the unit square under `matrix`, blended by
    /// its alpha. Nothing for a sprite that is null or has no texture.
    void drawSprite(const QMatrix4x4& matrix, const Sprite* sprite, unsigned char flip,
                    float opacity, OnionEffect effect);

private:
    friend class GraphicsRendererPrivate;

    std::unique_ptr<GraphicsRendererPrivate> d;
};

}  // namespace Zorv
