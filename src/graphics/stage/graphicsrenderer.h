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

/// The stage. It draws the sprites of a frame with crosses, contact boxes, guides, rulers and onion
/// skin, and handles mouse and keys.
///
/// Stage coordinates are pixels of the widget, from the top left. Model units are pixels of the
/// game. To convert model units to widget pixels, multiply by the zoom and round. All stages of the
/// process share origin, zoom table and mode, priorities, colours, crosses and background. Every
/// visible change repaints. Main thread only.
class ZORV_EXPORT GraphicsRenderer : public QObject, public GraphicsRendererBase
{
    Q_OBJECT

public:
    /// The kinds of items on the stage.
    enum ItemType {
        MainCross = 0,
        SecondaryCross = 1,
        ExtraCross = 2,
        SpriteType = 3,
        ContactBoxesType = 4
    };

    /// The element under the pointer. Sizers are the eight handles around selected boxes.
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

    /// The fixed point of a zoom change, for everything that is not relative to something else.
    enum ZoomMode { ZoomAboutCenter = 0, ZoomAboutOrigin = 1 };

    /// How the onion skin is shown.
    enum OnionEffect { NoEffect = 0, GrayscaleEffect = 1, LighterEffect = 2, DarkerEffect = 3 };

    enum BackgroundType {
        GradientBackground = 0,    ///< two colours
        ResolutionBackground = 1,  ///< a picture of the library, chosen by screen size
        FileBackground = 2         ///< the user's own picture
    };

    /// Which pictures the crosses have.
    enum CrossHairType { SmallCrosses = 0, LargeCrosses = 1, FileCrosses = 2 };

    /// A selected box as the stage shows it, which may differ from the text: its type, its index in
    /// its list, and its rectangle in model units. The rectangle is normalized: left and top come
    /// first.
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

    /// Sets the stacking order. What is drawn on top is also found first under the pointer.
    void setPriority(bool spriteOverGuides, bool contactOverCross);
    bool spriteOverGuides() const;
    bool contactOverCross() const;

    /// Sets the background gradient, from top to bottom, and the picture on it. `position` is in
    /// model units from the origin; a resolution picture ignores it and uses its own. `resolution`
    /// is the screen size the picture is for. An unreadable file is left out. The gradient is 256
    /// pixels high until `sizeChanged()` of any stage fits it to its widget; see
    /// `setGroundFitted()`.
    void setBackground(QColor start, QColor end, BackgroundType type, QPoint position,
                       const QString& file, QSize resolution);

    /// If true, the background gradient always reaches the bottom of this stage, whatever the other
    /// stages do. The default is false.
    void setGroundFitted(bool isOn);

    /// Sets the pictures of the crosses. If the file of a cross does not exist, its small picture
    /// is used instead.
    void setCrossHair(CrossHairType type, const QString& main, const QString& secondary,
                      const QString& extra);

    /// Position of model (0,0), in widget pixels.
    QPoint origin() const;
    void setOrigin(QPoint origin);
    void centralize() override;

    /// Model x of the vertical guide and y of the horizontal one.
    QPoint guideLines() const;
    void setGuideLines(QPoint guides);

    /// Shows the sprites of a provider; null shows none. The provider is not owned and may be
    /// destroyed at any time. Its sprites must stay alive until it signals a change.
    void setSprites(SpriteProvider* provider);
    SpriteProvider* spriteProvider() const;

    /// Sets the colours of boxes of types 1 and 2. `opacity` is a factor for the opacity of their
    /// interior, 0 to 1.
    void setupContactBoxes(QColor first, QColor second, float opacity);

    /// Shows the boxes of one type; null shows none. Not owned. Call it again after every change of
    /// the text: selected boxes stay selected if their rectangle is unchanged.
    ///
    /// The stage notices when the list is gone because its frame was parsed again or its document
    /// was destroyed. It still shows the boxes then, but no longer edits them.
    void setContactBoxes(ContactBoxCode::BoxType type, ContactBoxesCode* code);

    /// The list that was set; null once it is gone.
    ContactBoxesCode* boxes(ContactBoxCode::BoxType type) const;

    /// Switches the onion skin, the translucent sprite of another frame. `opacity` is 0 to 1.
    void setOnionSkin(bool enabled, OnionEffect effect, float opacity);

    /// Sets the sprite of the onion skin. `offset` is the anchor of the main cross on that sprite,
    /// in model units. Compares only the sprite: if it is the current one, nothing happens and
    /// `offset` is ignored. Not owned: set null before the sprite is destroyed.
    void setOnionSkinSprite(const Sprite* sprite, QPoint offset);

    /// Like `setOnionSkinSprite()`, but also applies a new offset or new pixels of the current
    /// sprite.
    void replaceOnionSkinSprite(const Sprite* sprite, QPoint offset);

    /// Sets additional skins, drawn one above the other while the onion skin is enabled, with its
    /// opacity and its effect. Their sprites must stay alive until other skins are set.
    void setOnionSkins(const QVector<OnionSkin>& skins);
    const QVector<OnionSkin>& onionSkins() const;

    /// @}
    /// @name Zoom
    /// Twelve levels, 0 to 11, of one of two tables.
    /// @{

    void setZoomMode(ZoomMode mode);

    /// 0: fine steps up to factor 4. 1: whole factors up to 10.
    void setZoomTable(unsigned char table);

    /// Clamps a level that is too high. 255 means the lowest level.
    void setZoomLevel(unsigned char level);
    unsigned char zoomLevel() const;

    /// The number of widget pixels for one pixel of the game.
    float zoom() const;
    void addZoom() override;
    void subZoom() override;
    void zoomActual() override;

    /// @}
    /// @name Items
    /// `index` is the index of a sprite and is ignored for crosses. Modes are described in
    /// positionmode.h.
    /// @{

    /// For a cross, its number. For a sprite, the index of the first sprite of the stage that shows
    /// `item`, or -1. For boxes, -1.
    int indexOfItem(ItemType type, void* item) const;

    /// In model units; for an absolute item in widget pixels. (0,0) for boxes and for an item that
    /// does not exist.
    QPoint itemPosition(ItemType type, unsigned int index) const;

    /// Does nothing for boxes and for an item that does not exist. The position of a sprite, and
    /// likewise the mode below, holds until its provider signals a change.
    void setItemPosition(ItemType type, QPoint position, unsigned int index);

    /// For boxes, the mode applies to all of them.
    void setItemPositionMode(ItemType type, unsigned char mode, unsigned int parent,
                             unsigned int index);

    /// @}
    /// @name Input
    /// A press picks the topmost element; with Alt, the one below it. A click that is not a drag
    /// remembers its element for the next press at the same place. A second click there picks the
    /// element below, and after the lowest comes the topmost again. This makes it possible to drag
    /// a sprite that is covered by boxes. Arrow keys move selected boxes by one pixel of the game,
    /// with Shift by ten.
    /// @{

    /// The left button moves the element it presses. A box that was just drawn becomes selected.
    /// Like the other mode setters, it ends a drag in progress as if the button had been released.
    void setPositioningMode();

    /// The left button draws boxes, until another mode is set or the right button is released.
    void setDrawContactBoxMode(ContactBoxCode::BoxType type);

    /// The left button picks colours of indexed sprites.
    void setCaptureMode();
    ClickMode clickMode() const;

    /// Does not repaint.
    void deselectContactBoxes();

    /// Locked boxes are shown but cannot be picked or selected: a press picks what is below them.
    /// They can still be drawn. Locking deselects all boxes.
    void setContactBoxesLocked(ContactBoxCode::BoxType type, bool isLocked);
    bool contactBoxesLocked(ContactBoxCode::BoxType type) const;

    /// From all lists, in order, without the box that is being drawn.
    QVector<SelectedBox> selectedBoxes() const;

    /// Changes the rectangle of the selected box on the stage only; `updateSelectedBoxes()` writes
    /// it to the text. Does nothing unless exactly one box is selected, or if the rectangle is
    /// empty.
    void setSelectedBoxRect(const QRect& rect);

    /// Moves the selected boxes on the stage only; `updateSelectedBoxes()` writes them to the text.
    void moveSelectedContactBoxes(QPoint delta);

    /// Removes the selected boxes from the text, in one undo step.
    void removeSelectedContactBoxes();

    /// Writes moved or resized selected boxes to the text, in one undo step.
    void updateSelectedBoxes();

    /// From all lists, in order. The pointers are valid until the next edit.
    QList<ContactBoxCode*> selectedContactBoxes();

    /// The topmost element at a point of the widget.
    RenderElement hitTest(QPoint pos);

    /// The mouse cursor for an element.
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
    /// Reads one sprite from the provider again, without a repaint.
    virtual void spriteChangedAt(unsigned int index);

    /// Reads all sprites from the provider again, without a repaint.
    virtual void spritesChanged();

signals:
    /// Asks for a newly drawn box to be written to the text. The slot returns that box, or null to
    /// refuse.
    Zorv::ContactBoxCode* appendContactBox(Zorv::ContactBoxCode::BoxType boxType, QRect rect);

    /// The user ended drawing boxes with the right button.
    void contactDrawingExit();

    /// The pointer has moved; `pos` is in model units from the origin.
    void cursorChanged(QPoint pos);

    /// The user picked the colour with this index.
    void colorCaptured(unsigned char index);

    /// A sprite or cross is being dragged. `item` is the `Sprite`, or null for a cross;
    /// `offsetToParent` is its position.
    void itemMoved(Zorv::GraphicsRenderer::ItemType type, void* item, QPoint offsetToParent);

    /// A drag has ended. For boxes, also a move by keys; `item` is then null and the position
    /// (0,0).
    void itemReleased(Zorv::GraphicsRenderer::ItemType type, void* item, QPoint offsetToParent);

    /// The selection has changed, or the only selected box has another rectangle; see
    /// `selectedBoxes()`. Also emitted during drags and by `setContactBoxes()`. Slots must not
    /// access boxes of the text.
    void boxSelectionChanged();

    /// The origin or the zoom has changed, by a call or by the user; during a drag at each step.
    void viewChanged();

    /// Emitted before and after each mouse or key event. Between the two the stage works with nodes
    /// of the text, so do not set boxes there. If the text has changed, set the boxes in a slot of
    /// the first signal. Pairs may be nested.
    void inputComes();
    void inputTaken();

    /// The left button is about to pick up an element or to draw.
    void aboutToGrab();

    /// For hosts; never emitted by the library.
    void changed();
    void changedAt(unsigned int index);

protected:
    /// Emits `inputComes()` when constructed and `inputTaken()` when destroyed. For overrides that
    /// look at the stage before they pass the event on.
    class ZORV_EXPORT Input
    {
    public:
        explicit Input(GraphicsRenderer* stage);
        ~Input();

    private:
        Q_DISABLE_COPY(Input)
        GraphicsRenderer* m_stage;
    };

    /// Draws a sprite: translated to `base`, rotated by `rotation` degrees about it, moved by
    /// `offset`, scaled to `size`. All lengths are widget pixels.
    virtual void renderSprite(QPoint base, QPoint offset, QSize size, float rotation,
                              unsigned char flip, Sprite* sprite, unsigned int index);
    virtual void renderOnionSkinSprite(const Sprite* sprite, QPoint base, QPoint offset, QSize size,
                                       float opacity, OnionEffect effect);

    /// Maps the unit square to the place of a sprite, in the way `renderSprite()` describes. Used
    /// for all sprites and onion skins of the stage.
    virtual QMatrix4x4 spriteMatrix(QPoint base, QPoint offset, QSize size, float rotation) const;

    /// The last step of `renderSprite()` and `renderOnionSkinSprite()`: draws the sprite with its
    /// palette, as the unit square under `matrix`, alpha-blended. Does nothing for a null sprite or
    /// one without a texture.
    void drawSprite(const QMatrix4x4& matrix, const Sprite* sprite, unsigned char flip,
                    float opacity, OnionEffect effect);

private:
    friend class GraphicsRendererPrivate;

    std::unique_ptr<GraphicsRendererPrivate> d;
};

}  // namespace Zorv
