// Painters against a model that goes pixel by pixel.

#include "image/canvas/imageselection.h"
#include "image/canvas/indexpainter.h"
#include "image/canvas/pixelmarks.h"
#include "image/canvas/rgbapainter.h"
#include "support/testimagepalette.h"

#include <QTest>

#include <cstdlib>
#include <memory>
#include <set>

using namespace Zorv;

namespace {

using Pixels = std::vector<std::vector<quint32>>;

Pixels pixelsOf(const QImage& image)
{
    Pixels pixels(std::size_t(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            pixels[std::size_t(y)].push_back(image.depth() == 8 ? quint32(image.pixelIndex(x, y))
                                                                : image.pixel(x, y));
        }
    }
    return pixels;
}

/// What a painter is to do, in the most simple way.
struct Model
{
    quint32 at(int x, int y) const { return pixels[std::size_t(y)][std::size_t(x)]; }
    bool isInside(int x, int y) const
    {
        return y >= 0 && std::size_t(y) < pixels.size() && x >= 0 &&
               std::size_t(x) < pixels[0].size();
    }
    unsigned char indexAt(int x, int y) const
    {
        return isIndexed ? static_cast<unsigned char>(at(x, y))
                         : palette->index(QColor::fromRgba(at(x, y)));
    }
    quint32 stored(unsigned char index) const { return isIndexed ? index : palette->color(index); }

    void set(int x, int y)
    {
        const quint32 value = remap.isEmpty() ? stored(color) : stored(remap.value(indexAt(x, y)));
        pixels[std::size_t(y)][std::size_t(x)] = value;
    }
    void point(QPoint p)
    {
        for (int y = p.y(); y < p.y() + width; ++y) {
            for (int x = p.x(); x < p.x() + width; ++x) {
                if (isInside(x, y) && selection->clipQuery(x, y) &&
                    (remap.isEmpty() || remap.contains(indexAt(x, y))) &&
                    met.insert({x, y}).second) {
                    set(x, y);
                }
            }
        }
    }
    void line(QPoint p, QPoint to)
    {
        const QPoint span(std::abs(to.x() - p.x()), std::abs(to.y() - p.y()));
        const QPoint sign(to.x() < p.x() ? -1 : 1, to.y() < p.y() ? -1 : 1);
        const bool wide = span.x() >= span.y();
        const int longer = std::max(span.x(), span.y());
        const int shorter = std::min(span.x(), span.y());
        for (int i = 0, error = longer / 2; i <= longer; ++i) {
            point(p);
            (wide ? p.rx() : p.ry()) += wide ? sign.x() : sign.y();
            if (error + shorter < longer) {
                error += shorter;
            } else {
                error += shorter - longer;
                (wide ? p.ry() : p.rx()) += wide ? sign.y() : sign.x();
            }
        }
    }
    void fill(QPoint seed)
    {
        if (!isInside(seed.x(), seed.y()) || at(seed.x(), seed.y()) == stored(color)) {
            return;
        }
        const quint32 value = at(seed.x(), seed.y());
        std::vector<QPoint> open = {seed};
        while (!open.empty()) {
            const QPoint p = open.back();
            open.pop_back();
            if (isInside(p.x(), p.y()) && selection->clipQuery(p.x(), p.y()) &&
                at(p.x(), p.y()) == value && met.insert({p.x(), p.y()}).second) {
                set(p.x(), p.y());
                open.insert(open.end(), {p + QPoint(1, 0), p - QPoint(1, 0), p + QPoint(0, 1),
                                         p - QPoint(0, 1)});
            }
        }
    }

    Pixels pixels;
    bool isIndexed = false;
    ImagePalette* palette = nullptr;
    ImageSelection* selection = nullptr;
    QMap<unsigned char, unsigned char> remap;
    unsigned char color = 0;
    int width = 1;
    std::set<std::pair<int, int>> met;  ///< since the stroke began, or else the call
};

/// A random picture with a random mask, a painter on it, and the model.
class Easel
{
public:
    Easel(QRandomGenerator& random, bool isIndexed, int colors, int side);

    /// Does something at random with both. What differs, or nothing.
    QString act();

private:
    int number(int end) { return int(m_random.bounded(end)); }
    unsigned char anyColor() { return static_cast<unsigned char>(number(m_colors)); }
    QPoint place()
    {
        return {number(m_image.width() + 60) - 30, number(m_image.height() + 60) - 30};
    }
    void drawPicture();
    void chooseBrush();

    QRandomGenerator& m_random;
    int m_colors;
    TestImagePalette m_palette;
    ImageSelection m_selection;
    QImage m_image;
    PixelMarks m_marks;
    bool m_isStroke;
    std::unique_ptr<ImagePainter> m_painter;
    QRegion m_announced;
    Model m_model;
};

Easel::Easel(QRandomGenerator& random, bool isIndexed, int colors, int side)
    : m_random(random), m_colors(colors),
      m_image(1 + number(side), 1 + number(side),
              isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32),
      m_marks(m_image.size()), m_isStroke(number(2))
{
    m_palette.randomize(random, colors, 1, 1);
    drawPicture();
    m_selection.setSize(number(3) ? m_image.size() : QSize(1 + number(side), 1 + number(side)));
    if (number(2)) {
        QImage* mask = m_selection.editMask();
        for (int i = mask->width() * mask->height() / 10; i > 0; --i) {
            mask->scanLine(number(mask->height()))[number(mask->width())] = 0;
        }
    }
    if (isIndexed) {
        m_painter = std::make_unique<IndexPainter>(&m_palette, &m_selection);
    } else {
        m_painter = std::make_unique<RGBAPainter>(&m_palette, &m_selection);
    }
    m_painter->setImage(&m_image);
    m_painter->setMarks(m_isStroke ? &m_marks : nullptr);
    m_painter->setAnnounce([this](const QRect& rect) {
        m_announced += rect;
        return true;
    });
    m_model = {pixelsOf(m_image), isIndexed, &m_palette, &m_selection, {}, 0, 1, {}};
}

void Easel::drawPicture()
{
    // Few walls make regions that run through many tiles.
    const int share = number(2) ? 20 : 2;
    for (int y = 0; y < m_image.height(); ++y) {
        for (int x = 0; x < m_image.width(); ++x) {
            const unsigned char index = number(share) ? 0 : anyColor();
            m_image.setPixel(x, y, m_image.depth() == 8 ? index : m_palette.color(index));
        }
    }
}

void Easel::chooseBrush()
{
    m_model.width = 1 + number(24);
    m_painter->setWidth(m_model.width);
    m_model.color = anyColor();
    m_painter->setColor(m_model.color);
    m_painter->clearRemap();
    m_model.remap.clear();
    for (int i = number(4); i > 0; --i) {
        const unsigned char from = anyColor();
        const unsigned char to = anyColor();
        m_painter->setRemap(from, to);
        m_model.remap.insert(from, to);
    }
    m_selection.enableQueries(number(4) > 0);
}

QString Easel::act()
{
    chooseBrush();
    const QPoint from = place();
    const QPoint to = place();
    const int kind = number(5);
    // Only a remap in a stroke knows what was met before, and only points and lines ask.
    const bool asks = m_isStroke && !m_model.remap.isEmpty() && kind < 4;
    const auto met = m_model.met;
    if (!asks) {
        m_model.met.clear();
    }
    const Pixels before = m_model.pixels;
    m_announced = QRegion();
    if (kind == 0) {
        m_painter->point(from);
        m_model.point(from);
    } else if (kind < 4) {
        m_painter->line(from, to);
        m_model.line(from, to);
    } else {
        m_painter->floodFill(from);
        m_model.fill(from);
    }
    if (!asks) {
        m_model.met = met;
    }
    const Pixels painted = pixelsOf(m_image);
    for (std::size_t y = 0; y < painted.size(); ++y) {
        for (std::size_t x = 0; x < painted[y].size(); ++x) {
            const bool isNew = painted[y][x] != before[y][x];
            if (painted[y][x] != m_model.pixels[y][x] ||
                (isNew && !m_announced.contains(QPoint(int(x), int(y))))) {
                return QStringLiteral("act %1, pixel %2, %3").arg(kind).arg(x).arg(y);
            }
        }
    }
    return {};
}

}  // namespace

class TestImagePainter : public QObject
{
    Q_OBJECT

private slots:
    void randomActs_data();
    void randomActs();
    void extremes();
};

void TestImagePainter::randomActs_data()
{
    QTest::addColumn<bool>("isIndexed");
    QTest::addColumn<int>("colors");
    QTest::addColumn<int>("side");
    for (const int colors : {2, 16, 256}) {
        for (const int side : {1, 30, 200}) {
            for (const bool isIndexed : {true, false}) {
                QTest::addRow("%s, %d colours, up to %d", isIndexed ? "indexed" : "true colour",
                              colors, side)
                    << isIndexed << colors << side;
            }
        }
    }
}

void TestImagePainter::randomActs()
{
    QFETCH(bool, isIndexed);
    QFETCH(int, colors);
    QFETCH(int, side);
    QRandomGenerator random(quint32(colors * 1000 + side));
    for (int run = 0; run < 12; ++run) {
        Easel easel(random, isIndexed, colors, side);
        for (int step = 0; step < 15; ++step) {
            const QString fault = easel.act();
            QVERIFY2(fault.isEmpty(),
                     qPrintable(QStringLiteral("run %1, step %2: ").arg(run).arg(step) + fault));
        }
    }
}

// Points far away cost nothing and overflow nothing; who is refused writes nothing.
void TestImagePainter::extremes()
{
    TestImagePalette palette;
    ImageSelection selection;
    selection.setSize({100, 3});
    QImage image(100, 3, QImage::Format_Indexed8);
    image.fill(0);
    IndexPainter painter(&palette, &selection);
    painter.line({0, 0}, {1, 1});
    painter.setImage(&image);
    painter.setColor(7);
    const int far = std::numeric_limits<int>::max();
    painter.line({-far, 1}, {far, 1});
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(image.constScanLine(1)), 100),
             QByteArray(100, 7));
    for (const QPoint& end : {QPoint(far, far), QPoint(-far - 1, far), QPoint(-far, -far)}) {
        painter.line({50, 1}, end);
        painter.line(end, {50, 1});
        painter.point(end);
        painter.floodFill(end);
    }
    painter.setAnnounce([](const QRect&) { return false; });
    const QImage before = image.copy();
    painter.setColor(9);
    painter.line({0, 0}, {99, 2});
    painter.floodFill({0, 1});
    painter.point({4, 1});
    QCOMPARE(pixelsOf(image), pixelsOf(before));
}

QTEST_GUILESS_MAIN(TestImagePainter)
#include "tst_imagepainter.moc"
