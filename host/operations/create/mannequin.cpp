// The figure is drawn from capsules: all points within a radius of a line, where the radius changes
// from one end to the other. Elbows and knees are computed from the two ends of a limb. Each
// capsule has its own outline, so that a limb in front of another one stays visible, and is lit
// from above.
#include "operations/create/mannequin.h"

#include <QPointF>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace Operations {

namespace {

/// The positions of the body parts relative to the axis; y points down.
struct Points
{
    QPoint hip, chest, head, nearHand, farHand, nearFoot, farFoot;
};

struct Pose
{
    int group;
    int number;
    Points points;
};

// clang-format off
const Pose poses[] = {
    {10, 0, {{-2, -47}, {0, -73}, {4, -90}, {19, -68}, {27, -75}, {-14, -3}, {14, -3}}},
    {10, 1, {{-2, -46}, {0, -72}, {4, -89}, {19, -67}, {27, -74}, {-14, -3}, {14, -3}}},
    {10, 2, {{-1, -45}, {1, -71}, {5, -88}, {20, -66}, {28, -73}, {-14, -3}, {14, -3}}},
    {11, 0, {{0, -47}, {0, -73}, {0, -90}, {10, -56}, {-10, -58}, {-6, -3}, {6, -3}}},
    {12, 0, {{-3, -38}, {3, -62}, {9, -78}, {23, -58}, {30, -66}, {-16, -3}, {14, -3}}},
    {13, 0, {{-6, -24}, {2, -46}, {9, -61}, {23, -44}, {30, -52}, {-16, -3}, {14, -3}}},
    {13, 1, {{-6, -23}, {2, -45}, {9, -60}, {23, -43}, {30, -51}, {-16, -3}, {14, -3}}},
    {20, 0, {{0, -48}, {3, -74}, {7, -91}, {14, -60}, {22, -70}, {-14, -4}, {16, -3}}},
    {20, 1, {{1, -49}, {4, -75}, {8, -92}, {18, -62}, {20, -68}, {-4, -10}, {8, -3}}},
    {20, 2, {{0, -48}, {3, -74}, {7, -91}, {22, -66}, {14, -62}, {16, -3}, {-14, -4}}},
    {20, 3, {{1, -49}, {4, -75}, {8, -92}, {20, -64}, {18, -64}, {8, -3}, {-4, -10}}},
    {22, 0, {{2, -45}, {12, -69}, {20, -84}, {-2, -54}, {34, -62}, {-24, -14}, {22, -8}}},
    {22, 1, {{2, -48}, {12, -72}, {20, -87}, {14, -52}, {18, -56}, {-2, -20}, {6, -3}}},
    {22, 2, {{2, -45}, {12, -69}, {20, -84}, {34, -62}, {-2, -54}, {22, -8}, {-24, -14}}},
    {22, 3, {{2, -48}, {12, -72}, {20, -87}, {18, -56}, {14, -52}, {6, -3}, {-2, -20}}},
    {23, 0, {{-6, -50}, {-6, -76}, {-2, -93}, {16, -72}, {22, -80}, {8, -14}, {16, -20}}},
    {24, 0, {{-8, -42}, {-8, -67}, {-3, -84}, {16, -62}, {22, -68}, {-22, -3}, {18, -3}}},
    {31, 0, {{0, -54}, {2, -80}, {7, -97}, {18, -92}, {26, -84}, {-4, -18}, {10, -26}}},
    {31, 1, {{0, -52}, {1, -78}, {6, -95}, {20, -84}, {26, -70}, {-12, -12}, {10, -14}}},
    {32, 0, {{2, -52}, {12, -76}, {20, -91}, {26, -70}, {34, -78}, {-10, -22}, {14, -30}}},
    {33, 0, {{-2, -52}, {-8, -77}, {-7, -94}, {12, -78}, {16, -86}, {2, -18}, {16, -24}}},
    {40, 0, {{-5, -46}, {-5, -72}, {-3, -89}, {10, -90}, {15, -80}, {-18, -3}, {12, -3}}},
    {41, 0, {{-8, -24}, {-2, -46}, {2, -61}, {14, -64}, {19, -52}, {-18, -3}, {12, -3}}},
    {42, 0, {{-3, -52}, {-3, -78}, {-1, -95}, {12, -94}, {17, -84}, {-6, -18}, {10, -24}}},
    {43, 0, {{-9, -45}, {-11, -71}, {-11, -88}, {4, -90}, {9, -80}, {-20, -3}, {10, -3}}},
    {44, 0, {{-12, -24}, {-8, -46}, {-6, -61}, {7, -64}, {12, -52}, {-20, -3}, {10, -3}}},
    {50, 0, {{-4, -46}, {-10, -71}, {-18, -86}, {6, -62}, {14, -66}, {-16, -3}, {12, -3}}},
    {51, 0, {{-6, -45}, {-18, -69}, {-30, -81}, {-2, -60}, {6, -72}, {-20, -3}, {12, -6}}},
    {52, 0, {{-8, -45}, {0, -68}, {10, -80}, {12, -52}, {16, -56}, {-16, -3}, {10, -3}}},
    {53, 0, {{-14, -43}, {0, -62}, {13, -68}, {10, -46}, {16, -50}, {-20, -3}, {6, -3}}},
    {54, 0, {{-10, -24}, {-10, -46}, {-16, -60}, {8, -38}, {14, -42}, {-18, -3}, {12, -3}}},
    {56, 0, {{-4, -44}, {-16, -64}, {-28, -72}, {2, -74}, {8, -64}, {14, -34}, {22, -46}}},
    {57, 0, {{0, -40}, {-20, -52}, {-36, -46}, {-28, -70}, {-38, -64}, {18, -58}, {26, -46}}},
    {58, 0, {{0, -32}, {-24, -30}, {-42, -26}, {-26, -52}, {-38, -48}, {22, -48}, {34, -38}}},
    {59, 0, {{0, -14}, {-24, -22}, {-41, -28}, {-36, -40}, {-14, -36}, {24, -30}, {38, -20}}},
    {60, 0, {{2, -8}, {-24, -8}, {-42, -9}, {-30, -4}, {-6, -4}, {30, -5}, {46, -4}}},
    {61, 0, {{-8, -26}, {0, -48}, {8, -62}, {14, -34}, {20, -38}, {-22, -4}, {12, -3}}},
    {62, 0, {{0, -46}, {8, -66}, {18, -76}, {16, -44}, {20, -50}, {10, -26}, {16, -32}}},
    {63, 0, {{-2, -46}, {2, -71}, {10, -85}, {8, -50}, {16, -52}, {-14, -3}, {14, -3}}},
    {63, 1, {{-3, -46}, {-5, -71}, {-3, -87}, {2, -50}, {10, -52}, {-14, -3}, {14, -3}}},
    {65, 0, {{-4, -48}, {-4, -74}, {-10, -91}, {10, -86}, {16, -80}, {-8, -8}, {4, -10}}},
    {70, 0, {{-2, -47}, {8, -69}, {20, -80}, {8, -50}, {16, -54}, {-10, -3}, {8, -3}}},
    {71, 0, {{0, -47}, {0, -74}, {2, -91}, {14, -112}, {-12, -110}, {-12, -3}, {12, -3}}},
    {72, 0, {{0, -47}, {-1, -74}, {0, -91}, {12, -60}, {8, -66}, {-12, -3}, {12, -3}}},
    {73, 0, {{-8, -26}, {-2, -48}, {8, -58}, {-2, -28}, {12, -26}, {-24, -4}, {12, -3}}},
    {200, 0, {{-4, -46}, {-4, -72}, {0, -89}, {10, -68}, {22, -74}, {-16, -3}, {14, -3}}},
    {200, 1, {{2, -46}, {6, -72}, {11, -88}, {18, -66}, {43, -77}, {-16, -3}, {16, -3}}},
    {210, 0, {{-4, -48}, {-6, -74}, {-2, -91}, {16, -74}, {14, -64}, {-10, -3}, {16, -34}}},
    {210, 1, {{-4, -48}, {-12, -73}, {-11, -90}, {10, -74}, {4, -60}, {-10, -3}, {46, -56}}},
    {220, 0, {{-6, -44}, {-10, -69}, {-7, -86}, {-24, -62}, {14, -70}, {-18, -3}, {14, -3}}},
    {220, 1, {{6, -44}, {14, -69}, {21, -84}, {49, -74}, {14, -58}, {-18, -3}, {20, -3}}},
    {230, 0, {{-4, -24}, {6, -46}, {13, -60}, {20, -40}, {42, -44}, {-16, -3}, {14, -3}}},
    {240, 0, {{-10, -24}, {-8, -47}, {-3, -62}, {12, -50}, {4, -40}, {-16, -3}, {10, -8}}},
    {240, 1, {{-8, -22}, {-16, -44}, {-15, -60}, {6, -46}, {-24, -22}, {-16, -3}, {54, -6}}},
    {250, 0, {{0, -52}, {-2, -78}, {3, -95}, {16, -78}, {20, -70}, {-2, -22}, {14, -34}}},
    {250, 1, {{0, -52}, {-6, -77}, {-3, -94}, {12, -76}, {-16, -66}, {-6, -28}, {40, -34}}},
    {260, 0, {{2, -46}, {8, -71}, {14, -87}, {30, -72}, {34, -66}, {-16, -3}, {16, -3}}},
    {260, 1, {{0, -44}, {-8, -68}, {-12, -84}, {-22, -96}, {2, -92}, {-16, -3}, {16, -3}}},
    {300, 0, {{-8, -42}, {-8, -67}, {-3, -83}, {-14, -54}, {-8, -50}, {-20, -3}, {14, -3}}},
    {300, 1, {{8, -42}, {16, -67}, {23, -82}, {48, -66}, {50, -58}, {-24, -3}, {24, -3}}},
};
// clang-format on

constexpr QRgb colours[] = {
    0x00ff00ff, 0xff1c2430,              // transparent, outline
    0xff8a6a48, 0xffc09a68, 0xffe6c894,  // wood: dark, middle, light
    0xff4c4038, 0xff6c5a48, 0xff8a745c,  // wood of the far limbs
    0xff204870, 0xff3070a8, 0xff60a0d4,  // the jacket
    0xff8c2c2c, 0xffc84c3c, 0xffec8060,  // gloves and shoes
};

/// Index of the first of three colours, from dark to light.
enum Tone { Wood = 2, WoodBehind = 5, Jacket = 8, Glove = 11 };

constexpr int Outline = 1;
constexpr int Width = 240;
constexpr int Height = 180;
const QPointF Axis(120.5, 150.5);

constexpr double UpperArm = 17;
constexpr double Forearm = 18;
constexpr double Thigh = 24;
constexpr double Shin = 24;

struct Capsule
{
    QPointF from, to;
    double first, last;  // radii
    Tone tone;
};

/// The joint of a limb with two parts; `side` is the direction in which it bends.
QPointF joint(QPointF from, QPointF to, double first, double second, double side)
{
    const QPointF way = to - from;
    const double length = std::max(std::hypot(way.x(), way.y()), 1.0);
    const double along = (first * first - second * second + length * length) / (2 * length);
    const double off = std::sqrt(std::max(first * first - along * along, 0.0)) * side;
    return from + way * (along / length) + QPointF(way.y(), -way.x()) * (off / length);
}

class Drawing
{
public:
    Drawing() : m_image(Width, Height, QImage::Format_Indexed8)
    {
        m_image.setColorTable(QVector<QRgb>(std::begin(colours), std::end(colours)));
        m_image.fill(0);
    }

    void draw(const Capsule& capsule)
    {
        const double most = std::max(capsule.first, capsule.last) + 2;
        const QRectF area = QRectF(capsule.from, capsule.to)
                                .normalized()
                                .adjusted(-most, -most, most, most)
                                .translated(Axis);
        for (int y = std::max(0, int(area.top())); y < std::min(Height, int(area.bottom())); ++y) {
            uchar* line = m_image.scanLine(y);
            for (int x = std::max(0, int(area.left())); x < std::min(Width, int(area.right()));
                 ++x) {
                const int colour = colourAt(capsule, QPointF(x, y) - Axis + QPointF(0.5, 0.5));
                line[x] = colour > 0 ? uchar(colour) : line[x];
            }
        }
    }

    PlacedDrawing cropped() const
    {
        QRect used;
        for (int y = 0; y < Height; ++y) {
            const uchar* line = m_image.constScanLine(y);
            for (int x = 0; x < Width; ++x) {
                used = line[x] > 0 ? used.united(QRect(x, y, 1, 1)) : used;
            }
        }
        return {m_image.copy(used), Axis.toPoint() - used.topLeft()};
    }

private:
    /// 0 outside of the capsule.
    static int colourAt(const Capsule& capsule, QPointF point)
    {
        const QPointF way = capsule.to - capsule.from;
        const double length = QPointF::dotProduct(way, way);
        const double at =
            length > 0 ? qBound(0.0, QPointF::dotProduct(point - capsule.from, way) / length, 1.0)
                       : 0.0;
        const QPointF off = point - capsule.from - way * at;
        const double distance = std::hypot(off.x(), off.y());
        const double radius = capsule.first + (capsule.last - capsule.first) * at;
        if (distance > radius + 1) {
            return 0;
        }
        if (distance > radius) {
            return Outline;
        }
        const double light = (-off.x() * 0.5 - off.y()) / radius;
        return capsule.tone + (light > 0.45 ? 2 : light > -0.45 ? 1 : 0);
    }

    QImage m_image;
};

void drawArm(Drawing* drawing, QPointF shoulder, QPointF hand, Tone tone)
{
    const QPointF elbow = joint(shoulder, hand, UpperArm, Forearm, -1);
    drawing->draw({shoulder, elbow, 5, 4, tone});
    drawing->draw({elbow, hand, 4, 3, tone});
    drawing->draw({hand, hand, 5, 5, Glove});
}

void drawLeg(Drawing* drawing, QPointF hip, QPointF foot, Tone tone)
{
    const QPointF knee = joint(hip, foot, Thigh, Shin, 1);
    drawing->draw({hip, knee, 7, 5, tone});
    drawing->draw({knee, foot, 5, 3.5, tone});
    drawing->draw({foot + QPointF(-1, 0), foot + QPointF(6, 0.5), 3, 2.5, Glove});
}

void drawBody(Drawing* drawing, const Points& at)
{
    const QPointF neck = QPointF(at.chest) * 0.7 + QPointF(at.head) * 0.3;
    drawing->draw({at.chest, neck, 4, 4, Wood});
    drawing->draw({at.hip, at.chest, 8, 11, Jacket});
    drawing->draw({at.head, at.head, 9, 9, Wood});
    // A band around the head shows the direction of the face.
    const QPointF up = QPointF(at.head - at.chest) / 17;
    const QPointF front(-up.y(), up.x());
    drawing->draw({QPointF(at.head) + up * 3 - front * 5, QPointF(at.head) + up * 3 + front * 7, 1,
                   1, Glove});
}

const Points& pointsOf(Family::AssetId id)
{
    const auto* const found =
        std::find_if(std::begin(poses), std::end(poses), [id](const Pose& pose) {
            return pose.group == id.group && pose.number == id.number;
        });
    return found == std::end(poses) ? poses[0].points : found->points;
}

}  // namespace

PlacedDrawing drawMannequin(Family::AssetId id)
{
    const Points& at = pointsOf(id);
    const QPointF shoulder = QPointF(at.chest) - QPointF(0, 2);
    Drawing drawing;
    drawArm(&drawing, shoulder + QPointF(5, 0), at.farHand, WoodBehind);
    drawLeg(&drawing, QPointF(at.hip) + QPointF(4, 0), at.farFoot, WoodBehind);
    drawLeg(&drawing, QPointF(at.hip) - QPointF(3, 0), at.nearFoot, Wood);
    drawBody(&drawing, at);
    drawArm(&drawing, shoulder - QPointF(4, 0), at.nearHand, Wood);
    return drawing.cropped();
}

}  // namespace Operations
