#pragma once

#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/stageitems_p.h"
#include "zorv_export.h"

#include <QImage>
#include <QPointer>

#include <array>
#include <functional>

namespace Zorv {

class CodeDocument;

/// A result of a hit test: the element under a point, and the index of the sprite or box.
struct StageHit
{
    GraphicsRenderer::RenderElement element = GraphicsRenderer::StageElement;
    int item = -1;
    int list = -1;  // only for a box

    bool operator==(const StageHit& other) const
    {
        return element == other.element && item == other.item && list == other.list;
    }
};

/// The last press of the left button that was not a drag, and what it picked.
struct StageClick
{
    static constexpr int Reach = 3;  // pixels; a hand is not quite still

    bool isAt(QPoint pos) const
    {
        return isValid && qAbs(pos.x() - place.x()) <= Reach && qAbs(pos.y() - place.y()) <= Reach;
    }

    bool isValid = false;
    QPoint place;
    StageHit hit;
};

/// Whether an element is a handle of selected boxes.
inline bool isSizer(GraphicsRenderer::RenderElement element)
{
    return element >= GraphicsRenderer::TopLeftSizer;
}

/// The scene of a stage and the state of its input.
class ZORV_EXPORT GraphicsRendererPrivate
{
public:
    using RenderElement = GraphicsRenderer::RenderElement;
    using ItemType = GraphicsRenderer::ItemType;

    explicit GraphicsRendererPrivate(GraphicsRenderer* owner) : q(owner) {}

    static GraphicsRendererPrivate& of(GraphicsRenderer& stage) { return *stage.d; }

    // Shared by all stages.
    static QPoint m_origin;
    static bool m_sprOverGuides;
    static bool m_contactOverCross;
    static Background& background();
    static QPixmap& crossImage(Cross::Type type);

    // graphicsrenderer.cpp. Null for an item without a position.
    QPoint* positionOf(ItemType type, unsigned index);

    // stagepositions.cpp. `out` is set to the parent's element, for items that cannot be moved
    // themselves.
    QPoint posFromMode(unsigned char mode, QPoint position, unsigned parent,
                       RenderElement* out = nullptr);
    QPoint calcPos(ItemType type, unsigned index, RenderElement* out = nullptr);
    QPoint anchorOf(unsigned char mode, unsigned parent, RenderElement* out = nullptr);
    QPoint anchorOfItem(ItemType type, unsigned index, RenderElement* out = nullptr);
    QRect crossRect(int number, RenderElement* out = nullptr);
    QRect contactRect(const ContactItem& item, QPoint anchor) const;
    QPoint spriteOffset(const SpriteItem& item) const;
    QSize spriteSize(const SpriteItem& item) const;
    int scaled(int length) const;
    QPoint scaled(QPoint point) const;

    struct Place;
    Place placeOf(ItemType type, unsigned index);
    QPoint ownPart(const Place& place) const;
    QPoint alongParents(unsigned char mode, unsigned parent);
    StageHit parentOf(unsigned char mode, unsigned parent) const;
    void replaceByParent(unsigned char mode, unsigned parent, RenderElement* out);

    // stagezoom.cpp
    void applyZoomLevel(int level);
    void zoomChanged();

    // stagedrawing.cpp, stageboxdrawing.cpp, stagerulers.cpp, stagebackground.cpp
    QRect visibleRect() const { return {QPoint(), widgetSize}; }
    int lineThickness() const;
    void renderBackground(QPainter& painter);
    void renderGuides(QPainter& painter);
    void renderOnionSkin();
    void renderSkin(const OnionSkin& skin);
    void renderSprites(int layer);
    void renderCross(QPainter& painter);
    void renderContactBoxes(QPainter& painter, ContactBoxCode::BoxType type, QColor interior,
                            QColor border);
    void renderContactBoxSizers(QPainter& painter);
    void renderRulers(QPainter& painter);

    // hittest.cpp. A visitor returns true to accept a hit and stop; the visit functions return the
    // same.
    using HitVisitor = std::function<bool(const StageHit&)>;
    RenderElement hitTest(QPoint pos);
    RenderElement take(const StageHit& hit);
    StageHit topHit(QPoint pos);
    StageHit hitFor(QPoint pos, bool isBeneath);
    bool visitHits(QPoint pos, const HitVisitor& visit);
    bool visitGuides(QPoint pos, const HitVisitor& visit) const;
    bool visitBoxesAndCrosses(QPoint pos, const HitVisitor& visit);
    bool visitContacts(QPoint pos, const HitVisitor& visit);
    bool visitCross(int number, QPoint pos, const HitVisitor& visit);
    bool visitSprites(QPoint pos, const HitVisitor& visit);
    bool visitBoxes(QPoint pos, const HitVisitor& visit);
    bool visitMovable(StageHit hit, unsigned char mode, unsigned parent, const HitVisitor& visit);
    RenderElement guideAt(QPoint pos) const;
    bool spriteCovers(int index, QPoint pos);
    QPoint sizerFromSelection(RenderElement sizer);

    // stageinput.cpp
    void leaveMode();
    void setCursor(const QCursor& cursor);
    void finishPress();

    // stagemouse.cpp
    void pressInDrawMode(QPoint pos);
    void pressInOtherModes(QPoint pos, Qt::KeyboardModifiers modifiers);
    void pressOn(const StageHit& hit, bool isShift);
    void pressOnBox(bool toggles);
    void endClick();
    void pressInCaptureMode(QPoint pos);
    void drag(QPoint pos);
    void dragElement(QPoint delta, QPoint modelDelta);
    void dragSprite(QPoint delta, QPoint modelDelta);
    void dragCross(QPoint delta, QPoint modelDelta);
    void releaseDrag();
    void releaseDrawnBox();
    void dropDrawnBox();
    ContactItem* drawnBox();
    SpriteItem* pressedSprite();
    bool captureColor(QPoint pos, unsigned char& index);

    // contactediting.cpp
    void sizeMoveContact(bool size, RenderElement sizer, QPoint delta);
    void moveContact(QPoint delta);
    void beginResize();
    void resizeContact(RenderElement sizer, QPoint delta);
    void resetSelectionRect();
    void updateBoxSelection(const QRect& rect);
    void unselectBoxes();
    void deselectBoxes();
    void tellSelection();
    void tellMovedBox();
    CodeDocument* boxDocument() const;

    GraphicsRenderer* q;

    QSize widgetSize{-1, -1};
    QPoint widgetCentre;
    unsigned char zoomLevel = 3;
    float zoom = 1.0F;
    float previousZoom = 1.0F;
    bool groundFitted = false;
    bool guidesVisible = false;
    QPoint guideLines;
    GraphicsRenderer::OnionEffect onionEffect = GraphicsRenderer::NoEffect;
    float onionOpacity = 0.5F;
    bool onionEnabled = false;
    const Sprite* onionSprite = nullptr;
    QPoint onionOffset;
    QVector<OnionSkin> onionSkins;
    bool rulersVisible = false;
    unsigned char contactMode = 14;
    unsigned short contactParent = 0;
    std::array<Cross, 3> crosses;
    QVector<SpriteItem> spriteItems;
    QPointer<SpriteProvider> spriteProvider;
    std::array<ContactBoxes, BoxTypes> contactBoxes;
    quint64 walks = 0;  // number of walks along parents so far

    QRect selectionStart;
    QRect selectionRect{QPoint(7777, 7777), QPoint(-1, -1)};
    bool hasSelection = false;
    int clickMode = GraphicsRenderer::PositioningMode;
    bool leftButtonDown = false;
    bool moved = false;  // a drag has changed something
    QPoint lastMousePos;
    StageClick pressed;  // becomes `clicked` unless it turns into a drag
    StageClick clicked;
    int itemIndex = 0;     // the sprite or box that the last hit test found
    int boxListIndex = 0;  // the list of that box, or of the box being drawn
    int boxCountAtDrawStart = 0;
    RenderElement element = GraphicsRenderer::StageElement;  // of the current press
    QImage captureImage;  // the sprite whose colours are being picked
    QVector<GraphicsRenderer::SelectedBox> toldSelection;
};

}  // namespace Zorv
