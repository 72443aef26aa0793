#pragma once

#include "graphics/stage/graphicsrenderer.h"
#include "support/stagedata.h"

#include "graphics/stage/positionmode.h"

#include <QRandomGenerator>
#include <QTransform>

/// The pictures of all three crosses are squares.
constexpr int CrossSize = 20;

/// What a provider tells of a sprite.
struct PlainItem
{
    QPoint position;
    int mode = 13;
    int parent = 0;
    QSize size;
    QPointF scale{1, 1};
    double rotation = 0;
    StageData::Sprite* sprite = nullptr;

    StageData::Provider::Row row() const
    {
        return {sprite, {position, mode, parent, size, scale, 0, rotation, 0}};
    }
};

/// And what is known of a cross.
struct StageCross
{
    QPoint position;
    int mode = 13;
    int parent = 0;
};

/// All that decides what lies under a point, and the slow way to find it.
struct Scene
{
    using Element = Zorv::GraphicsRenderer::RenderElement;

    Zorv::GraphicsRenderer::ClickMode clickMode = Zorv::GraphicsRenderer::PositioningMode;
    bool spritesOverGuides = false;
    bool boxesOverCrosses = false;
    bool shown[7] = {true, true, true, true, true, false, true};
    unsigned char table = 1;
    unsigned char level = 2;
    QPoint origin{100, 100};
    QPoint guides{200, 200};
    StageCross crosses[3] = {{{0, 0}, 13, 0}, {{60, 0}, 13, 0}, {{0, 60}, 13, 0}};
    int boxMode = 14;
    int boxParent = 0;
    QVector<PlainItem> sprites;
    QVector<QRect> boxes[8];
    QRect selection;  // valid if there are sizers

    float zoom = 1;  // as the stage tells

    int scaled(int length) const { return qRound(float(length) * zoom); }
    QPoint scaled(QPoint point) const { return {scaled(point.x()), scaled(point.y())}; }

    static QPoint truncated(QPoint point, QPointF scale)
    {
        return {int(point.x() * scale.x()), int(point.y() * scale.y())};
    }

    /// `met` holds crosses by their number, and sprites by theirs and 3.
    QPoint anchor(int mode, int parent, QVector<int> met) const
    {
        switch (mode & 0xf3) {
        case Zorv::OriginAnchor:
            return origin;
        case Zorv::CrossAnchor:
            return parent < 3 ? place(parent, met) : QPoint();
        case Zorv::SpriteAnchor:
            return parent < sprites.size() ? place(3 + parent, met) : QPoint();
        default:
            return {};
        }
    }

    QPoint place(int item, QVector<int> met) const
    {
        const bool isSprite = item >= 3;
        const PlainItem sprite = sprites.value(item - 3);
        const QPoint own =
            isSprite ? truncated(sprite.position, sprite.scale) : crosses[item].position;
        const int mode = isSprite ? sprite.mode : crosses[item].mode;
        if ((mode & 0xf3) == Zorv::AbsoluteAnchor || met.contains(item)) {
            return own;
        }
        met.append(item);
        return scaled(own) + anchor(mode, isSprite ? sprite.parent : crosses[item].parent, met);
    }

    Element instead(Element own, int mode, int parent) const
    {
        if (mode & Zorv::MovableBoth) {
            return own;
        }
        const int number = mode & 0xf3;
        if (number == Zorv::CrossAnchor && parent < 3) {
            return Element(Zorv::GraphicsRenderer::MainCrossElement + parent);
        }
        return number == Zorv::SpriteAnchor && parent < sprites.size()
                   ? Zorv::GraphicsRenderer::SpriteElement
                   : Zorv::GraphicsRenderer::StageElement;
    }

    Element guideAt(QPoint pos) const
    {
        const int wide = (zoom < 0.5F ? 0 : 1) + 2;
        const QPoint at = scaled(guides) + origin - QPoint(1, 1);
        if (shown[6] && pos.x() >= at.x() && pos.x() < at.x() + wide) {
            return Zorv::GraphicsRenderer::VerticalGuide;
        }
        return shown[6] && pos.y() >= at.y() && pos.y() < at.y() + wide
                   ? Zorv::GraphicsRenderer::HorizontalGuide
                   : Zorv::GraphicsRenderer::StageElement;
    }

    Element crossAt(int number, QPoint pos) const
    {
        const QPoint corner =
            place(number, {}) - QPoint(scaled(CrossSize) / 2, scaled(CrossSize) / 2);
        const bool hit = shown[number] &&
                         QRect(corner, QSize(scaled(CrossSize), scaled(CrossSize))).contains(pos);
        return hit ? instead(Element(Zorv::GraphicsRenderer::MainCrossElement + number),
                             crosses[number].mode, crosses[number].parent)
                   : Zorv::GraphicsRenderer::StageElement;
    }

    Element boxAt(QPoint pos) const
    {
        const QPoint at = anchor(boxMode, boxParent, {});
        if (selection.isValid()) {
            const int midX = selection.left() + (1 - selection.left() + selection.right()) / 2;
            const int midY = selection.top() + (1 - selection.top() + selection.bottom()) / 2;
            const int places[8][2] = {{selection.left(), selection.top()},
                                      {midX, selection.top()},
                                      {selection.left(), midY},
                                      {selection.right(), selection.top()},
                                      {selection.left(), selection.bottom()},
                                      {midX, selection.bottom()},
                                      {selection.right(), selection.bottom()},
                                      {selection.right(), midY}};
            for (int i = 0; i < 8; ++i) {
                const QPoint away = pos - at - scaled(QPoint(places[i][0], places[i][1]));
                if (away.x() >= -6 && away.x() <= 5 && away.y() >= -6 && away.y() <= 5) {
                    return Element(Zorv::GraphicsRenderer::TopLeftSizer + i);
                }
            }
        }
        return boxUnder(pos).isValid()
                   ? instead(Zorv::GraphicsRenderer::ContactBoxElement, boxMode, boxParent)
                   : Zorv::GraphicsRenderer::StageElement;
    }

    QRect boxUnder(QPoint pos) const
    {
        const QPoint at = anchor(boxMode, boxParent, {});
        QRect found;
        for (int type = 0; type < 8; ++type) {
            for (const QRect& box : boxes[type]) {
                const QRect drawn(scaled(box.topLeft()) + at,
                                  QSize(scaled(box.width()), scaled(box.height())));
                if ((type > 1 || shown[3 + type]) && drawn.contains(pos)) {
                    found = box;
                }
            }
        }
        return found;
    }

    bool covers(int index, QPoint pos) const
    {
        const PlainItem& item = sprites.at(index);
        const QPoint base = anchor(item.mode, item.parent, {3 + index});
        const bool isAbsolute = (item.mode & 0xf3) == Zorv::AbsoluteAnchor;
        const QPoint own = truncated(item.position, item.scale);
        const QPoint size =
            scaled(truncated(QPoint(item.size.width(), item.size.height()), item.scale));
        const QPointF turned =
            QTransform().rotate(-item.rotation).map(QPointF(pos - base) + QPointF(0.5, 0.5)) -
            (isAbsolute ? own : scaled(own));
        return QRectF(QPointF(), QSizeF(size.x(), size.y())).normalized().contains(turned) &&
               size.x() != 0 && size.y() != 0;
    }

    Element at(QPoint pos) const
    {
        const bool isRuler = (pos.x() >= 0 && pos.x() < 30) || (pos.y() >= 0 && pos.y() < 30);
        QVector<Element> found;
        if (!spritesOverGuides) {
            found.append(guideAt(pos));
        }
        if (clickMode != Zorv::GraphicsRenderer::DrawContactBoxMode) {
            if (clickMode == Zorv::GraphicsRenderer::PositioningMode) {
                found += {boxesOverCrosses ? boxAt(pos) : Zorv::GraphicsRenderer::StageElement,
                          crossAt(2, pos), crossAt(1, pos), crossAt(0, pos), boxAt(pos)};
            }
            for (int i = sprites.size() - 1; i >= 0; --i) {
                if (covers(i, pos)) {
                    const PlainItem& item = sprites.at(i);
                    found.append(clickMode == Zorv::GraphicsRenderer::CaptureMode
                                     ? Zorv::GraphicsRenderer::SpriteElement
                                     : instead(Zorv::GraphicsRenderer::SpriteElement, item.mode,
                                               item.parent));
                }
            }
            found.append(spritesOverGuides ? guideAt(pos) : Zorv::GraphicsRenderer::StageElement);
        }
        found.removeAll(Zorv::GraphicsRenderer::StageElement);
        return isRuler || found.isEmpty() ? Zorv::GraphicsRenderer::StageElement : found.first();
    }
};

inline Scene randomScene(QRandomGenerator& random)
{
    const int modes[] = {0, 1, 2, 3, 12, 13, 14, 15, 5, 9, 14, 13, 6, 11};
    const double scales[] = {1, 1, 2, -1, 0.5, -1.5};
    const auto upTo = [&random](int most) { return random.bounded(most + 1); };
    const auto any = [&random](const auto& values) {
        return values[random.bounded(int(std::size(values)))];
    };
    const auto point = [&random](int most) {
        return QPoint(random.bounded(-most, most), random.bounded(-most, most));
    };
    Scene scene;
    scene.clickMode = Zorv::GraphicsRenderer::ClickMode(std::max(0, upTo(9) - 7));
    scene.spritesOverGuides = upTo(1);
    scene.boxesOverCrosses = upTo(1);
    for (bool& shown : scene.shown) {
        shown = upTo(3) > 0;
    }
    scene.table = uchar(upTo(1));
    scene.level = uchar(upTo(11));
    scene.origin = point(40) + QPoint(120, 120);
    scene.guides = point(60);
    for (StageCross& cross : scene.crosses) {
        cross = {point(80), any(modes), upTo(3)};
    }
    scene.boxMode = any(modes);
    scene.boxParent = upTo(3);
    for (int count = upTo(4); count > 0; --count) {
        PlainItem item;
        item.position = point(50);
        item.mode = any(modes);
        item.parent = upTo(4);
        item.size = QSize(upTo(40), upTo(40));
        item.scale = {any(scales), any(scales)};
        item.rotation = upTo(1) ? 0 : random.bounded(-400, 400);
        scene.sprites.append(item);
    }
    for (auto& boxes : scene.boxes) {
        for (int count = upTo(2); count > 0; --count) {
            boxes.append(QRect(point(60), QSize(1 + upTo(40), 1 + upTo(40))));
        }
    }
    return scene;
}
