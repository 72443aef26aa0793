#include "operations/create/room.h"

#include <QVector>

#include <cmath>
#include <cstdlib>

namespace Operations {

namespace {

constexpr int Width = 960;
constexpr int WallHeight = 360;
constexpr int FloorHeight = 114;
constexpr int Bands = 9;
constexpr int Cell = 40;
constexpr int TileSide = 64;

// The bands of the wall, from top to bottom, then those of the floor, from back to front.
enum Colour { Wall = 1, Floor = Wall + Bands, Line = Floor + Bands, Strong, Middle };

QRgb mixed(QRgb from, QRgb to, int part, int of)
{
    const auto mix = [=](int a, int b) { return a + (b - a) * part / of; };
    return qRgb(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)),
                mix(qBlue(from), qBlue(to)));
}

QImage canvas(int width, int height)
{
    QVector<QRgb> colours(Middle + 1, qRgba(255, 0, 255, 0));
    for (int i = 0; i < Bands; ++i) {
        colours[Wall + i] = mixed(qRgb(34, 42, 58), qRgb(96, 110, 132), i, Bands - 1);
        colours[Floor + i] = mixed(qRgb(92, 84, 78), qRgb(168, 152, 134), i, Bands - 1);
    }
    colours[Line] = qRgb(74, 88, 110);
    colours[Strong] = qRgb(120, 136, 160);
    colours[Middle] = qRgb(216, 152, 80);
    QImage image(width, height, QImage::Format_Indexed8);
    image.setColorTable(colours);
    return image;
}

/// Grid lines every 40 pixels from the middle and up from the floor; each fifth is a strong one.
QImage wall()
{
    QImage image = canvas(Width, WallHeight);
    for (int y = 0; y < WallHeight; ++y) {
        const int up = WallHeight - y;
        uchar* line = image.scanLine(y);
        for (int x = 0; x < Width; ++x) {
            const int aside = x - Width / 2;
            const bool isLine = aside % Cell == 0 || up % Cell == 0;
            const bool isStrong = aside % (5 * Cell) == 0 || up % (5 * Cell) == 0;
            const int colour = isStrong ? int(Strong)
                               : isLine ? int(Line)
                                        : Wall + y * Bands / WallHeight;
            line[x] = uchar(std::abs(aside) <= 1 ? int(Middle) : colour);
        }
    }
    return image;
}

/// Floor boards in perspective: they continue the lines of the wall and get wider toward the
/// viewer.
QImage floor()
{
    QImage image = canvas(Width, FloorHeight);
    for (int y = 0; y < FloorHeight; ++y) {
        uchar* line = image.scanLine(y);
        const double spread = Cell * (1 + y * 1.5 / FloorHeight);
        const int ground = Floor + 1 + y * (Bands - 1) / FloorHeight;
        for (int x = 0; x < Width; ++x) {
            const int aside = x - Width / 2;
            const double off = std::abs(aside - std::round(aside / spread) * spread);
            const int colour = y == 0 || off <= 0.5 ? int(Floor) : ground;
            line[x] = uchar(std::abs(aside) <= 1 + y / Cell ? int(Middle) : colour);
        }
    }
    return image;
}

QImage tile()
{
    QImage image = canvas(TileSide, TileSide);
    image.fill(uint(Wall + Bands / 2));
    for (int i = 0; i < TileSide; ++i) {
        image.setPixel(i, 0, Strong);
        image.setPixel(0, i, Strong);
    }
    return image;
}

}  // namespace

PlacedDrawing drawRoom(Family::AssetId id)
{
    if (id.group == 0 && id.number == 0) {
        return {wall(), {}};
    }
    return {id.group == 0 && id.number == 1 ? floor() : tile(), {}};
}

}  // namespace Operations
