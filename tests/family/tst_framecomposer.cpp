#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/stage/framecomposer.h"
#include "family/stage/pictureraster.h"
#include "family/stage/placedpicture.h"
#include "support/release.h"
#include "support/testtable.h"

#include <QTransform>
#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace Family;

namespace {

const unsigned Seed = 20240703;

/// A picture of random indices; those of the palette are opaque, half seen through or nothing.
QImage randomPicture(std::mt19937& random, QSize size, int colors)
{
    QImage image(size, QImage::Format_Indexed8);
    QVector<QRgb> table;
    for (int i = 0; i < colors; ++i) {
        table.append(qRgba(int(random() % 256), i, 255 - i,
                           i % 5 == 0   ? 0
                           : i % 7 == 0 ? 90
                                        : 255));
    }
    image.setColorTable(table);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, random() % unsigned(colors));
        }
    }
    return image;
}

FramePose randomPose(std::mt19937& random, QSize size)
{
    const double scales[] = {1, 1, -1, 2, 0.5, 0.3, -1.7, 3, 0.05, -4};
    const float angles[] = {0, 0, 0, 90, -90, 180, 270, -270, -180, 45, 360, -1};
    FramePose pose;
    const auto within = [&random](int most) { return int(random() % unsigned(2 * most)) - most; };
    pose.axis = {within(20), within(20)};
    pose.position = {within(30), within(30)};
    pose.size = size;
    pose.scale = {scales[random() % 10], scales[random() % 10]};
    pose.flip = uchar(random() % 4);
    pose.rotation = random() % 3 == 0 ? float(random() % 72000) / 100 : angles[random() % 12];
    return pose;
}

/// What a stage shows under the centre of one of its pixels, told the slow way: `inside` is how far
/// that lies from the edge of the picture, negative outside, and `texel` where, in its pixels.
struct Centre
{
    double inside;
    QPointF texel;
};

Centre centreAt(const FramePose& pose, float zoom, QPoint pixel)
{
    const auto scaled = [zoom](double length, double scale) {
        return qRound(float(int(length * scale)) * zoom);
    };
    const QPoint size(scaled(pose.size.width(), pose.scale.x()),
                      scaled(pose.size.height(), pose.scale.y()));
    if (size.x() == 0 || size.y() == 0) {
        return {-1, {}};
    }
    QTransform matrix;
    matrix.translate(qRound(float(pose.axis.x()) * zoom) + 4 / 256.0,
                     qRound(float(pose.axis.y()) * zoom) + 7 / 256.0);
    matrix.rotate(double(pose.rotation));
    matrix.translate(scaled(pose.position.x(), pose.scale.x()),
                     scaled(pose.position.y(), pose.scale.y()));
    matrix.scale(size.x(), size.y());
    const QPointF place = matrix.inverted().map(QPointF(pixel) + QPointF(0.5, 0.5));
    const double x = pose.flip & 1 ? 1 - place.x() : place.x();
    const double y = pose.flip & 2 ? 1 - place.y() : place.y();
    return {std::min({x, y, 1 - x, 1 - y}), {x * pose.size.width(), y * pose.size.height()}};
}

bool isBetween(const Centre& centre)
{
    const auto off = [](double place) { return std::abs(place - std::round(place)); };
    return off(centre.texel.x()) < 0.001 || off(centre.texel.y()) < 0.001;
}

/// One colour over another one, as numbers from 0 to 1.
QRgb plainlyOver(QRgb color, QRgb ground)
{
    const QColor above = QColor::fromRgba(color);
    const QColor below = QColor::fromRgba(ground);
    const double rest = below.alphaF() * (1 - above.alphaF());
    const double alpha = above.alphaF() + rest;
    const auto mix = [&](double from, double to) {
        return alpha > 0 ? (from * above.alphaF() + to * rest) / alpha : 0;
    };
    return QColor::fromRgbF(mix(above.redF(), below.redF()), mix(above.greenF(), below.greenF()),
                            mix(above.blueF(), below.blueF()), alpha)
        .rgba();
}

bool isClose(QRgb a, QRgb b)
{
    return (qAlpha(a) == 0 && qAlpha(b) == 0) ||
           (qAbs(qRed(a) - qRed(b)) < 2 && qAbs(qGreen(a) - qGreen(b)) < 2 &&
            qAbs(qBlue(a) - qBlue(b)) < 2 && qAbs(qAlpha(a) - qAlpha(b)) < 2);
}

}  // namespace

class TestFrameComposer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsWhatLiesUnderTheCentres();
    void drawsIndicesAsColours();
    void mixesAsTheStage();
    void drawsBoxesAndAxis();
    void refusesWhatCannotBeDrawn_data();
    void refusesWhatCannotBeDrawn();

private:
    const FrameNode& frame(const QString& lines);
    void addSprite(int number, const QImage& image)
    {
        m_sprites->insertSprite(-1, {0, quint16(number)}, QPoint(3, 4), image);
    }

    std::unique_ptr<SpriteCollection, Release> m_sprites;
    std::unique_ptr<FamilyDocument, Release> m_document;
};

void TestFrameComposer::initTestCase()
{
    std::mt19937 random(Seed);
    m_sprites.reset(newSprites(QStringLiteral("x.sprites")));
    m_document.reset(new FamilyDocument(FileKind::Animations));
    addSprite(0, randomPicture(random, {9, 7}, 40));
    QImage opaque = randomPicture(random, {32, 32}, 200);
    opaque.setColorTable(tableOfColors(greyColors()));
    addSprite(1, opaque);
    for (int i = 0; i < 1024; ++i) {
        opaque.setPixel(i % 32, i / 32, uint(i % 256));
    }
    addSprite(2, opaque);
    addSprite(3, opaque.convertToFormat(QImage::Format_ARGB32));
}

const FrameNode& TestFrameComposer::frame(const QString& lines)
{
    m_document->setPlainText(QStringLiteral("zorv 1\nanimation 1\n%1\n").arg(lines));
    return *static_cast<const FrameNode*>(m_document->animations()->animation(0)->childAt(0));
}

void TestFrameComposer::showsWhatLiesUnderTheCentres()
{
    std::mt19937 random(Seed);
    const float zooms[] = {1, 1, 0.25F, 0.75F, 1.5F, 2, 2.25F, 4};
    const QRgb ground = qRgb(10, 200, 90);
    int compared = 0;
    for (int round = 0; round < 400; ++round) {
        const QSize size(int(random() % 24 + 1), int(random() % 24 + 1));
        const QImage picture = randomPicture(random, size, 100);
        const FramePose pose = randomPose(random, size);
        const float zoom = zooms[random() % 8];
        const PlacedPicture place(pose, zoom);
        const QRect area = place.bounds().adjusted(-2, -2, 2, 2) & QRect(-80, -80, 160, 160);
        QImage drawn(area.size(), QImage::Format_ARGB32);
        drawn.fill(ground);
        if (!area.isEmpty()) {
            PictureRaster(&drawn, area.topLeft()).draw(place, picture);
        }
        for (int i = 0; i < area.width() * area.height(); ++i) {
            const QPoint on(i % area.width(), i / area.width());
            const QPoint pixel = area.topLeft() + on;
            const Centre centre = centreAt(pose, zoom, pixel);
            if (std::abs(centre.inside) < 0.0001 || (centre.inside > 0 && isBetween(centre))) {
                continue;
            }
            const QPoint texel = centre.inside < 0
                                     ? QPoint(-1, -1)
                                     : QPoint(int(centre.texel.x()), int(centre.texel.y()));
            const QRgb color = texel.x() < 0 ? 0 : picture.pixel(texel);
            const QString at = QStringLiteral("seed %1, round %2, %3,%4")
                                   .arg(Seed)
                                   .arg(round)
                                   .arg(pixel.x())
                                   .arg(pixel.y());
            QVERIFY2(isClose(drawn.pixel(on), plainlyOver(color, ground)), qPrintable(at));
            QVERIFY2(place.pixelAt(pixel) == texel, qPrintable(at));
            const int index = qAlpha(color) == 0 ? -1 : picture.pixelIndex(texel);
            QVERIFY2(FrameComposer::colorAt(picture, pose, zoom, pixel) == index, qPrintable(at));
            ++compared;
        }
    }
    QVERIFY(compared > 200000);
}

void TestFrameComposer::drawsIndicesAsColours()
{
    const QString options[] = {
        {},
        QStringLiteral("angle 30"),
        QStringLiteral("scale -2,0.5  flip hv"),
    };
    for (int number = 0; number < 4; ++number) {
        for (const QString& option : options) {
            const FrameNode& node =
                frame(QStringLiteral("frame 0,%1  offset 5,-3  %2").arg(number).arg(option));
            QString error;
            FrameComposer composer(m_sprites.get(), {});
            const QRect area = composer.bounds(node, &error);
            const QImage indexed = composer.composeIndexed(node, area, &error);
            // A turned picture of all 256 colours has none left for the corners.
            const bool fits = number < 2 || (number == 2 && option != options[1]);
            QCOMPARE(indexed.format(), fits ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
            QCOMPARE(error, QString());
            const QImage colors = composer.compose(node, area, &error);
            for (int i = 0; i < area.width() * area.height(); ++i) {
                const QPoint at(i % area.width(), i / area.width());
                QVERIFY(isClose(indexed.pixel(at), colors.pixel(at)));
            }
            // Nothing is cut off: a larger area shows no more.
            const QRect wide = area.adjusted(-9, -9, 9, 9);
            QImage part(wide.size(), QImage::Format_ARGB32);
            part.fill(0);
            PictureRaster(&part, wide.topLeft())
                .draw(PlacedPicture(composer.pose(node, &error), 1),
                      m_sprites->byId({0, quint16(number)})->image());
            QCOMPARE(composer.compose(node, wide, &error), part);
            QCOMPARE(part.copy(9, 9, area.width(), area.height()), colors);
            QCOMPARE(error, QString());
        }
    }
}

void TestFrameComposer::mixesAsTheStage()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    for (int alpha = 0; alpha < 256; alpha += 15) {
        for (int ground = 0; ground < 256; ground += 15) {
            const QRgb color = qRgba(200, 20, 255, alpha);
            const QRgb below = qRgba(30, 250, 90, ground);
            image.setPixel(0, 0, below);
            PictureRaster(&image, {5, 5}).fill({5, 5, 3, 3}, color);
            QVERIFY2(isClose(image.pixel(0, 0), plainlyOver(color, below)),
                     qPrintable(QStringLiteral("%1 over %2").arg(alpha).arg(ground)));
        }
    }
}

void TestFrameComposer::drawsBoxesAndAxis()
{
    FrameStyle style;
    style.zoom = 2;
    style.parts = FrameStyle::Boxes;
    style.attack = qRgb(255, 0, 0);
    style.body = qRgb(0, 0, 255);
    style.boxOpacity = 0.8;
    const FrameNode& node = frame(QStringLiteral("body -3,-5, 2,-1\nattack 1,-3, 1,-3\nframe 0,0"));
    QString error;
    FrameComposer boxes(m_sprites.get(), style);
    QCOMPARE(boxes.bounds(node, &error), QRect(-6, -10, 12, 10));
    const QImage image = boxes.compose(node, {-7, -11, 14, 12}, &error);
    // Lines are two pixels wide; a dot is what is inside of the lower box, and nothing else is.
    const QStringList wanted{
        QStringLiteral("              "), QStringLiteral(" bbbbbbbbbbbb "),
        QStringLiteral(" bbbbbbbbbbbb "), QStringLiteral(" bb........bb "),
        QStringLiteral(" bb........bb "), QStringLiteral(" bb......aabb "),
        QStringLiteral(" bb......aabb "), QStringLiteral(" bb........bb "),
        QStringLiteral(" bb........bb "), QStringLiteral(" bbbbbbbbbbbb "),
        QStringLiteral(" bbbbbbbbbbbb "), QStringLiteral("              "),
    };
    QStringList found;
    for (int y = 0; y < image.height(); ++y) {
        found.append(QString());
        for (int x = 0; x < image.width(); ++x) {
            const QRgb color = image.pixel(x, y);
            found.last() += QLatin1Char(color == style.attack.rgba()     ? 'a'
                                        : color == style.body.rgba()     ? 'b'
                                        : color == qRgba(0, 0, 255, 102) ? '.'
                                        : qAlpha(color) == 0             ? ' '
                                                                         : '?');
        }
    }
    QCOMPARE(found, wanted);

    style.parts = FrameStyle::Axis;
    const QImage cross(QStringLiteral(":/zorvl_icons/icons/sff.png"));
    FrameComposer axis(m_sprites.get(), style);
    const QRect area = axis.bounds(node, &error);
    QCOMPARE(area, QRect(QPoint(-cross.width(), -cross.height()), cross.size() * 2));
    QVERIFY(!area.isEmpty());
    QCOMPARE(axis.compose(node, area, &error).pixel(area.width() / 2, 3),
             cross.pixel(cross.width() / 2, 1));
}

void TestFrameComposer::refusesWhatCannotBeDrawn_data()
{
    columns<QString, float, QString>("line", "zoom", "error");
    const QString fine = QStringLiteral("frame 0,0");
    const QString zoom = QStringLiteral("A zoom is above 0");
    row("no sprite", QStringLiteral("frame 7,7"), 1.0F, QStringLiteral("7,7"));
    row("nothing left", QStringLiteral("frame 0,0  scale 0.01,1"), 1.0F,
        QStringLiteral("scaled to nothing"));
    row("too large", QStringLiteral("frame 0,1  scale 64,64"), 64.0F,
        QStringLiteral("131072 by 131072 pixels"));
    row("turned, too large", QStringLiteral("frame 0,1  scale 64,64  angle 5"), 64.0F,
        QStringLiteral("which is too large"));
    row("hardly turned", QStringLiteral("frame 0,1  scale 64,64  angle 0.000001"), 64.0F,
        QStringLiteral("which is too large"));
    row("far away", QStringLiteral("frame 0,0  offset 2147483647,-2147483648"), 64.0F, QString());
    row("no zoom", fine, 0.0F, zoom);
    row("negative", fine, -2.0F, zoom);
    row("huge", fine, 1e30F, zoom);
    row("no number", fine, std::numeric_limits<float>::quiet_NaN(), zoom);
}

void TestFrameComposer::refusesWhatCannotBeDrawn()
{
    const auto [line, zoom, error] = fetched<QString, float, QString>();
    FrameStyle style;
    style.zoom = zoom;
    style.parts |= FrameStyle::Boxes | FrameStyle::Axis;
    const FrameNode& node = frame(QStringLiteral("body -30000,0, 5,30000\n") + line);
    QString ignored;
    QString told;
    style.parts = FrameStyle::Sprite;
    FrameComposer composer(m_sprites.get(), style);
    const QImage image = composer.composeIndexed(node, composer.bounds(node, &ignored), &told);
    QVERIFY2(error.isEmpty() == told.isEmpty() && told.contains(error), qPrintable(told));
    QVERIFY(image.isNull() != told.isEmpty());
    // Any area can be asked for, also one that the picture reaches into from far away.
    FrameComposer small(m_sprites.get(), style);
    for (const QPoint corner :
         {QPoint(-4, -4), QPoint(1 << 28, -(1 << 28)), QPoint(-5000, 70000)}) {
        const QImage part = small.compose(node, {corner, QSize(8, 8)}, &ignored);
        QVERIFY(part.isNull() || part.size() == QSize(8, 8));
    }
}

QTEST_MAIN(TestFrameComposer)
#include "tst_framecomposer.moc"
