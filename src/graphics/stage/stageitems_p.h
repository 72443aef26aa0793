#pragma once

#include "graphics/stage/boxlist_p.h"
#include "zorv_export.h"

#include <QBrush>
#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QVector>

namespace Zorv {

class Sprite;

/// One of the three crosses. Its position is in model units, or in widget pixels if its anchor is
/// absolute.
struct Cross
{
    enum Type { Main = 0, Secondary = 1, Extra = 2 };

    bool visible = true;
    unsigned char mode = 13;
    unsigned short parent = 0;
    QPoint position;
    quint64 walk = 0;  // the last walk along parents that visited it
};

/// The zoom mode, and the row of the zoom table in use.
struct ZORV_EXPORT Zoom
{
    static int mode;
    static unsigned char table;
};

constexpr int ZoomLevels = 12;
ZORV_EXPORT extern const float s_zoomTable[2][ZoomLevels];
ZORV_EXPORT extern const unsigned char s_zoomActual[2];

/// A sprite, as reported by its provider.
struct SpriteItem
{
    unsigned char mode = 0;
    unsigned char layer = 0;
    unsigned short parent = 0;
    QPoint position;
    QSize size{0, 0};
    QPointF scale{1, 1};
    unsigned char flip = 0;
    float rotation = 0;  // degrees, clockwise on the screen
    Sprite* sprite = nullptr;
    quint64 walk = 0;  // as in Cross
};

/// The stage's working copy of a box, in model units. During a drag it differs from the text.
struct ZORV_EXPORT ContactItem
{
    ContactBoxCode* box = nullptr;  // null while it is being drawn
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    QRect source;  // the box in the text when a resize began
    bool selected = false;

    /// Rounded; right and bottom are inclusive.
    QRect rect() const;

    /// The same, normalized: left and top come first. Boxes can be drawn or stretched to the left
    /// or up.
    QRect normalRect() const;
    void setRect(const QRect& rect);
};

/// The boxes of one kind.
struct ZORV_EXPORT ContactBoxes
{
    static QColor color[2];
    static float opacity;

    BoxList code;
    QVector<ContactItem> items;
    bool visible = true;
    bool locked = false;  // not found by hit tests
};

constexpr int BoxTypes = 8;

inline bool isBoxType(ContactBoxCode::BoxType type)
{
    return type >= 1 && type <= BoxTypes;
}

/// The background.
struct Background
{
    QPoint position;  // of the picture, in model units from the origin
    QColor start;
    QColor end;
    QBrush gradient;
    QPixmap image;
};

}  // namespace Zorv
