// Fills against a plain stack of pixels, and lines of a wide brush against filled rows.

#include "image/canvas/imageselection.h"
#include "image/canvas/indexpainter.h"
#include "image/canvas/monopalette.h"
#include "support/bench.h"

#include <QImage>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

using namespace Zorv;

namespace {

const int Side = 4096;
const uchar Color = 7;

QImage emptyPicture()
{
    QImage image(Side, Side, QImage::Format_Indexed8);
    image.fill(0);
    return image;
}

void clear(QImage& image, const QRect& rect)
{
    const QRect inside = rect & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        std::memset(image.scanLine(y) + inside.left(), 0, std::size_t(inside.width()));
    }
}

/// A way that winds from the corner to the middle, as wide as its walls.
QImage spiral(int width)
{
    QImage image = emptyPicture();
    image.fill(1);
    QRect rest = image.rect();
    int start = 0;
    while (rest.width() >= 2 * width) {
        clear(image, {QPoint(start, rest.top()), QPoint(rest.right(), rest.top() + width - 1)});
        clear(image, {QPoint(rest.right() - width + 1, rest.top()), rest.bottomRight()});
        clear(image, {QPoint(rest.left(), rest.bottom() - width + 1), rest.bottomRight()});
        clear(image, {QPoint(rest.left(), rest.top() + 2 * width),
                      QPoint(rest.left() + width - 1, rest.bottom())});
        start = rest.left();
        rest.adjust(2 * width, 2 * width, -2 * width, -2 * width);
    }
    return image;
}

template <class IsWall>
QImage walls(IsWall isWall)
{
    QImage image = emptyPicture();
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            image.scanLine(y)[x] = x + y > 0 && isWall(x, y) ? 1 : 0;
        }
    }
    return image;
}

/// Every pixel of the colour is taken from a stack and its four neighbours are put on it.
void fillPlainly(QImage& image)
{
    uchar* pixels = image.bits();
    std::vector<QPoint> open;
    open.reserve(1024);
    open.emplace_back(0, 0);
    while (!open.empty()) {
        const QPoint p = open.back();
        open.pop_back();
        if (p.x() < 0 || p.y() < 0 || p.x() >= Side || p.y() >= Side ||
            pixels[p.y() * Side + p.x()] != 0) {
            continue;
        }
        pixels[p.y() * Side + p.x()] = Color;
        open.emplace_back(p.x() + 1, p.y());
        open.emplace_back(p.x() - 1, p.y());
        open.emplace_back(p.x(), p.y() + 1);
        open.emplace_back(p.x(), p.y() - 1);
    }
}

struct Easel
{
    Easel()
    {
        selection.setSize({Side, Side});
        painter.setColor(Color);
    }
    MonoPalette palette;
    ImageSelection selection;
    IndexPainter painter{&palette, &selection};
};

/// The least time of a few fills of copies.
template <class Fill>
double fillTime(const QImage& picture, int rounds, Fill fill)
{
    double least = 1e9;
    for (int i = 0; i < rounds; ++i) {
        QImage copy = picture.copy();
        least = std::min(least, Bench::once([&] { fill(copy); }));
    }
    return least;
}

double ownFill(Easel& easel, const QImage& picture)
{
    return fillTime(picture, 15, [&easel](QImage& image) {
        easel.painter.setImage(&image);
        easel.painter.floodFill({0, 0});
    });
}

void fills()
{
    QRandomGenerator random(1);
    const struct
    {
        const char* name;
        QImage picture;
        double limit;
    } pictures[] = {
        {"empty", emptyPicture(), 0.1},
        {"a spiral of 16 pixels", spiral(16), 0.1},
        {"5 % noise", walls([&random](int, int) { return random.bounded(100) < 5; }), 0.4},
        {"dots", walls([](int x, int y) { return x % 2 && y % 2; }), 0.4},
        {"a spiral of one pixel", spiral(1), 0.4},
    };
    Easel easel;
    for (const auto& [name, picture, limit] : pictures) {
        const double plain = fillTime(picture, 3, fillPlainly);
        const QByteArray title = QByteArray("fill of 4096 x 4096, ") + name + ", to a stack";
        Bench::ratio(title.constData(), ownFill(easel, picture), plain, limit);
    }
    QImage image = emptyPicture();
    double warm = 1e9;
    for (int i = 0; i < 15; ++i) {
        warm = std::min(warm, Bench::once([&image, i] {
                            std::memset(image.bits(), i, std::size_t(image.sizeInBytes()));
                        }));
    }
    Bench::ratio("the same, empty, to memset", ownFill(easel, emptyPicture()), warm, 6);
}

/// The runs of a picture with one shape.
std::vector<QRect> runsOf(const QImage& image)
{
    std::vector<QRect> runs;
    for (int y = 0; y < Side; ++y) {
        const uchar* row = image.constScanLine(y);
        const uchar* first = std::find(row, row + Side, Color);
        if (first != row + Side) {
            const uchar* last = std::find(first, row + Side, uchar(0));
            runs.emplace_back(int(first - row), y, int(last - first), 1);
        }
    }
    return runs;
}

void line(Easel& easel, int angle)
{
    const int times = 50;
    QImage image = emptyPicture();
    easel.painter.setImage(&image);
    easel.painter.setWidth(24);
    const double radians = angle * 3.14159265 / 180;
    const QPoint middle(Side / 2, Side / 2);
    const QPoint end =
        middle + QPoint(int(1500 * std::cos(radians)), int(1500 * std::sin(radians)));
    const auto own = [&] {
        for (int i = 0; i < times; ++i) {
            easel.painter.line(middle, end);
        }
    };
    own();
    // The peer knows beforehand what is covered.
    const std::vector<QRect> runs = runsOf(image);
    const auto peer = [&] {
        for (int i = 0; i < times; ++i) {
            for (const QRect& run : runs) {
                std::memset(image.scanLine(run.y()) + run.x(), Color, std::size_t(run.width()));
            }
        }
    };
    const QByteArray title =
        "line of width 24 at " + QByteArray::number(angle) + " degrees, to filling its rows";
    Bench::ratio(title.constData(), Bench::pairedRatio(41, own, peer), 1, 2);
}

}  // namespace

int main()
{
    fills();
    Easel easel;
    for (const int angle : {0, 20, 45, 70, 90}) {
        line(easel, angle);
    }
    return 0;
}
